Select Case 3
  Case Is > 2   ' expect error 1021 at 2:8
End Select
