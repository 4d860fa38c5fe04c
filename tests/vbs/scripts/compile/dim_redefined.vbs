Dim a, b
Sub S()
  Dim a      ' a local of the same name is a different variable
End Sub
Dim c, a     ' expect error 1041 at 5:8
