Class List
  Private items(9)
  Private n
  Public Default Property Get Item(i)
    Item = items(i)
  End Property
  Public Property Let Item(i, v)
    items(i) = v
  End Property
  Public Sub Push(v)
    items(n) = v
    n = n + 1
  End Sub
End Class
Class Box
  Public Default Function Value()
    Value = 42
  End Function
End Class
Set l = New List
l.Push "a"
l.Push "b"
WriteLine l(1) & l.Item(0)   ' expect: ba
l(2) = "c"
WriteLine l(2)               ' expect: c
Set b = New Box
x = b
WriteLine x + 1              ' expect: 43
WriteLine "v" & b            ' expect: v42
