Dim d()
ReDim d(2)
d(0) = "a" : d(2) = "c"
ReDim Preserve d(4)
WriteLine d(0) & d(2) & UBound(d)      ' expect: ac4
ReDim d(1)
WriteLine IsEmpty(d(0))                ' expect: True
ReDim e(1, 1)
e(0, 1) = 5
ReDim Preserve e(1, 3)
WriteLine e(0, 1) & UBound(e, 2)       ' expect: 53
ReDim x(-1)
WriteLine UBound(x)                    ' expect: -1
s = 5
ReDim s(2)
WriteLine UBound(s)                    ' expect: 2
Erase d
On Error Resume Next
v = d(0)
WriteLine Err.Number                   ' expect: 9
Err.Clear
ReDim Preserve e(3, 3)
WriteLine Err.Number                   ' expect: 9
