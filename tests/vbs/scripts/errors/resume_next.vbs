On Error Resume Next
x = 1 / 0
WriteLine Err.Number & " " & Err.Description & " " & Err.Source   ' expect: 11 Division by zero VBScript runtime error
WriteLine Err.Number     ' expect: 11
Err.Clear
WriteLine Err.Number     ' expect: 0
If 1 / 0 Then
  WriteLine "condition error enters the block"   ' expect: condition error enters the block
End If
Err.Clear
Select Case 1 / 0
  Case Else
    WriteLine "never"
End Select
WriteLine "after select " & Err.Number   ' expect: after select 11
Select Case 1
  Case 1 / 0
    WriteLine "error case selected"   ' expect: error case selected
End Select
On Error GoTo 0
WriteLine Err.Number     ' expect: 0
