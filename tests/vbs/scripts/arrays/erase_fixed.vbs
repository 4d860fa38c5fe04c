Dim a(2)
a(1) = "v"
Erase a
WriteLine UBound(a) & IsEmpty(a(1))   ' expect: 2True
n = 5
Erase n   ' expect error 13
