Option Explicit
Dim a
a = 1
WriteLine a   ' expect: 1
ReDim made(2)
WriteLine UBound(made)   ' expect: 2
b = 2   ' expect error 500 at 7:1
