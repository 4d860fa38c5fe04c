x = 1 @ 2   ' expect error 1032 at 1:7
