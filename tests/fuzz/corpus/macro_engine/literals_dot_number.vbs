Sub Foo(x)
  WriteLine x
End Sub
Foo.5            ' expect: 0.5
Foo .25          ' expect: 0.25
