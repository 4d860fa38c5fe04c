If True Then
  x = 1
' expect error 1014 at 4:1
