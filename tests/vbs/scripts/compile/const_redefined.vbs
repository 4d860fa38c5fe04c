Const A = 1
Const A = 2   ' expect error 1041 at 2:7
