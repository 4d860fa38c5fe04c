WriteLine runs
Sub S()
  x = 1
' expect error 1016
End Function
