x = 1
If x WriteLine 1   ' expect error 1017 at 2:6
