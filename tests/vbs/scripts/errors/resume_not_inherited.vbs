Sub Fails()
  x = 1 / 0
  WriteLine "not reached"
End Sub
On Error Resume Next
Fails
WriteLine "caller resumes"   ' expect: caller resumes
On Error GoTo 0
Fails   ' expect error 11 at 2:3
