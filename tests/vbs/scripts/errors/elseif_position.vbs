x = 2
If x = 1 Then
  WriteLine "one"
ElseIf x / 0 = 2 Then   ' expect error 11 at 4:1
  WriteLine "never"
End If
