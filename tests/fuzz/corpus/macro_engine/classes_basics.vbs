Class Counter
  Private mCount
  Public Name
  Private Sub Class_Initialize()
    mCount = 0
    Name = "unnamed"
  End Sub
  Public Sub Add(n)
    mCount = mCount + n
  End Sub
  Public Property Get Count()
    Count = mCount
  End Property
  Public Property Let Count(v)
    mCount = v
  End Property
  Public Function Twice()
    Twice = mCount * 2
  End Function
  Function Describe()
    Describe = Name & "=" & Me.Count & "/" & Twice()
  End Function
End Class
Set c = New Counter
c.Add 3
c.Add(4)
WriteLine c.Count          ' expect: 7
c.Count = 10
WriteLine c.Twice()        ' expect: 20
c.Name = "k"
WriteLine c.Describe       ' expect: k=10/20
WriteLine TypeName(c)      ' expect: Counter
Set d = c
d.Add 1
WriteLine c.Count          ' expect: 11
WriteLine c Is d           ' expect: True
Class Bag
  Public Property Get Items()
    Items = Array("p", "q")
  End Property
End Class
Set sack = New Bag
WriteLine sack.Items(1)     ' expect: q
