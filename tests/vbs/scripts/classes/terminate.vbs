Class Tracker
  Public Tag
  Private Sub Class_Terminate()
    WriteLine "bye " & Tag
  End Sub
End Class
Set t = New Tracker
t.Tag = "one"
Set t = Nothing
' expect: bye one
Sub Scoped()
  Dim local
  Set local = New Tracker
  local.Tag = "two"
End Sub
Scoped
' expect: bye two
WriteLine "end"   ' expect: end
