' A class member defined twice is a compilation error, not a second body.
Class Counter
  Public Sub Add(n)
    total = total + n
  End Sub
  Public Sub Add(n)   ' expect error 1041
    total = n
  End Sub
End Class
