Class Secret
  Private hidden
End Class
Set s = New Secret
x = s.hidden   ' expect error 438 at 5:1
