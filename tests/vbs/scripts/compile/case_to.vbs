Select Case 3
  Case 1 To 5   ' expect error 1021 at 2:10
End Select
