For i = 1 To 3
Next i   ' expect error 1025 at 2:6
