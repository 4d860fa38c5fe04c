Class Grid
  Public Cells(2)
  Public Dyn()
  Public Sub Fill()
    ReDim Dyn(1)
    Dyn(1) = "d"
    Cells(2) = "c"
  End Sub
End Class
Set g = New Grid
g.Fill
WriteLine g.Cells(2) & g.Dyn(1)   ' expect: cd
g.Cells(0) = "x"
WriteLine g.Cells(0)               ' expect: x
Class Node
  Public NextNode, Value
End Class
Set a = New Node : a.Value = 1
Set b = New Node : b.Value = 2
Set a.NextNode = b
WriteLine a.NextNode.Value         ' expect: 2
