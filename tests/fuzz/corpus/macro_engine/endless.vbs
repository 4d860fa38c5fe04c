' Loops that only the interrupt ends, and a string that doubles.
Sub Forever()
  Dim n
  Do
    n = n + 1
  Loop
End Sub

Sub Doubling()
  Dim s
  s = "G01 X1 "
  Do
    s = s & s
  Loop
End Sub

Function Deep(n)
  Deep = Deep(n + 1)
End Function

Sub Arrays(a, b)
  ReDim x(100000)
  x(5) = a & b
  a = UBound(x)
End Sub
