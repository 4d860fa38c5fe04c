Class C
  Public Default Property Let P(v)   ' expect error 1058
  End Property
End Class
