Class Point
  Public X, Y
  Public Inner
End Class
Set p = New Point
With p
  .X = 1
  .Y = .X + 1
  Set .Inner = New Point
  With .Inner
    .X = "inner"
  End With
  WriteLine .Y & p.Inner.X     ' expect: 2inner
End With
