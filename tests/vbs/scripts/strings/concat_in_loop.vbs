s = ""
For i = 1 To 100000
  s = s & "x"
Next
WriteLine Len(s)   ' expect: 100000
t = "a"
t = t & 1 & Null & True
WriteLine t        ' expect: a1True
