Sub Inner()
  WriteLine "inner start"
  x = 1 / 0
  WriteLine "inner never"
End Sub
Sub Outer()
  On Error Resume Next
  Inner
  WriteLine "outer continues " & Err.Number
End Sub
Outer
' expect: inner start
' expect: outer continues 11
Sub Normal()
End Sub
On Error Resume Next
y = 1 / 0
Normal
WriteLine Err.Number     ' expect: 11
