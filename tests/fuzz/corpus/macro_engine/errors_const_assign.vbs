Const C = 1
C = 2   ' expect error 501
