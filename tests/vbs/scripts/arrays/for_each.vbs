For Each v In Array(1, 2, 3)
  s = s & v
Next
WriteLine s                 ' expect: 123
Dim m(1, 1)
m(0, 0) = "a" : m(1, 0) = "b" : m(0, 1) = "c" : m(1, 1) = "d"
t = ""
For Each v In m
  t = t & v
Next
WriteLine t                 ' expect: abcd
Dim e()
For Each v In e
  WriteLine "never"
Next
arr = Array(1, 2)
For Each v In arr
  v = v * 10
Next
WriteLine arr(0)            ' expect: 1
For Each v In Array(1, 2, 3, 4)
  If v = 3 Then Exit For
  WriteLine v
Next
' expect: 1
' expect: 2
