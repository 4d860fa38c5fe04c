' An element passed ByRef aliases the array's storage while the call runs.
Sub SetBoth(whole, part)
  part = "via element"
  WriteLine whole(0)
  whole(1) = "via array"
End Sub
Dim a(1)
SetBoth a, a(0)               ' expect: via element
WriteLine a(0) & "|" & a(1)   ' expect: via element|via array
b = a
Sub Touch(x)
  x = "touched"
End Sub
Touch a(1)
WriteLine a(1) & "|" & b(1)   ' expect: touched|via array
Sub Shrink(arr, el)
  ReDim arr(0)
End Sub
Dim d()
ReDim d(2)
On Error Resume Next
Shrink d, d(1)
WriteLine Err.Number & " " & UBound(d)   ' expect: 10 2
