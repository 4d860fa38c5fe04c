' One script-level name, a local of the same name, and ReDim of a declared array.
Dim total, parts()
Sub Count()
  Dim total
  total = 99
End Sub
total = 1
Count
WriteLine total          ' expect: 1
ReDim parts(2)
ReDim parts(4)
WriteLine UBound(parts)  ' expect: 4
