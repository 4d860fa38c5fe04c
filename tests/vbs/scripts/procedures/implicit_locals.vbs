Sub MakeLocal()
  z = 10
End Sub
MakeLocal
WriteLine IsEmpty(z)      ' expect: True
g = 1
Sub UseGlobal()
  g = g + 1
End Sub
UseGlobal
WriteLine g               ' expect: 2
