x = "abc   ' expect error 1033 at 1:5
