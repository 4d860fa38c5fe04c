Dim a(3)
WriteLine UBound(a) & " " & LBound(a)   ' expect: 3 0
a(0) = "x" : a(3) = 4
WriteLine a(0) & a(3) & IsEmpty(a(1))  ' expect: x4True
Dim m(1, 2)
m(1, 2) = "corner"
WriteLine m(1, 2) & UBound(m, 2)       ' expect: corner2
b = a
b(0) = "copy"
WriteLine a(0) & b(0)                   ' expect: xcopy
WriteLine TypeName(a) & " " & VarType(a)   ' expect: Variant() 8204
WriteLine UBound(Split(""))             ' expect: -1
WriteLine UBound(Array())               ' expect: -1
c = Array(1, "two", 3.5)
WriteLine c(1) & UBound(c)              ' expect: two2
WriteLine a(1.5 + 0)                    ' expect:
a(2.5) = "banker"
WriteLine a(2)                          ' expect: banker
Function MakeArr()
  Dim t(1)
  t(0) = "made"
  MakeArr = t
End Function
WriteLine MakeArr()(0)                  ' expect: made
