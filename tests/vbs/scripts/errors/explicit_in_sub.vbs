Option Explicit
Sub S()
  Dim ok
  ok = 1
  WriteLine "runs until the undeclared name"   ' expect: runs until the undeclared name
  missing = ok
End Sub
S   ' expect error 500 at 6:3
