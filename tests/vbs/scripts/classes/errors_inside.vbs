Class Fragile
  Public Tag
  Private Sub Class_Initialize()
    Tag = "made"
  End Sub
  Public Function Boom()
    Boom = 1 / 0
  End Function
  Public Property Let OnlyLet(v)
    Tag = v
  End Property
End Class
Set f = New Fragile
On Error Resume Next
x = f.Boom()
WriteLine Err.Number            ' expect: 11
Err.Clear
x = f.OnlyLet
WriteLine Err.Number            ' expect: 438
Err.Clear
Set f.OnlyLet = f
WriteLine Err.Number            ' expect: 438
Err.Clear
f.OnlyLet = "let works"
WriteLine f.Tag                 ' expect: let works
Set n = Nothing
With n
  WriteLine "with Nothing is accepted"   ' expect: with Nothing is accepted
  y = .Tag
  WriteLine Err.Number          ' expect: 424
End With
Err.Clear
Set g = New Fragile
Set g2 = g
WriteLine (g Is g2) & (g Is f) & (Nothing Is Nothing)   ' expect: TrueFalseTrue
WriteLine IsObject(g) & VarType(g) & TypeName(Nothing)   ' expect: True9Nothing
