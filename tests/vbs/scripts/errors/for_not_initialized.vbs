On Error Resume Next
x = 7
For x = 1 To 1 / 0
  WriteLine "body once with " & x & " after " & Err.Number   ' expect: body once with 7 after 11
Next
WriteLine Err.Number & " " & Err.Description   ' expect: 92 For loop not initialized
