Dim n
n = 4
n(0) = 1   ' expect error 13 at 3:1
