s = ""
For i = 1 To 100000
  s = s & "x"
Next
WriteLine Len(s)   ' expect: 100000
t = "a"
t = t & 1 & Null & True
WriteLine t        ' expect: a1True
u = "<"
u = u & 1 & Null & "-" & True & Empty & 2.5
WriteLine u        ' expect: <1-True2.5
v = 5
v = v & "x" & 1
WriteLine v        ' expect: 5x1
Function Grow()
  w = w & "in"
  Grow = "g"
End Function
w = "w"
w = w & Grow() & "!"
WriteLine w        ' expect: wg!
Dim parts(1)
parts(0) = "p0"
z = "z"
z = z & parts(0) & Chr(33) & UCase("q") & vbTab & Len(z)
WriteLine z        ' expect: zp0!Q	1
