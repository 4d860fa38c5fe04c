WriteLine Later(2)            ' expect: 4
WriteLine K2                  ' expect: 9
If False Then
  Sub Hidden()
    WriteLine "hidden runs"
  End Sub
End If
Hidden                        ' expect: hidden runs
Function Later(x)
  Later = x * 2
End Function
Const K2 = 9
Sub Twice()
  WriteLine "first"
End Sub
Sub Twice()
  WriteLine "second"
End Sub
Twice                         ' expect: second
Sub LocalLater()
  y = 5
  Dim y
  WriteLine y
End Sub
y = "global"
LocalLater                    ' expect: 5
WriteLine y                   ' expect: global
