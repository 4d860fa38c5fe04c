Class C
  Private Sub Class_Initialize(x)   ' expect error 1053
  End Sub
End Class
