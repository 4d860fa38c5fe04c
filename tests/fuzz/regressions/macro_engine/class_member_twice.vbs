Class C
  Public Sub Add(n)
    x = y
  End Sub
  Public Sub Add(n)
    x = n
  End Sub
End Class
