y = 1
Const x = y   ' expect error 1045 at 2:11
