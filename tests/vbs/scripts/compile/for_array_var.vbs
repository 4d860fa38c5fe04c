For a(1) = 1 To 2   ' expect error 1040 at 1:6
Next
