Option Explicit
Sub S()
  WriteLine undefinedName
End Sub
On Error Resume Next
S
WriteLine Err.Description   ' expect: Variable is undefined
