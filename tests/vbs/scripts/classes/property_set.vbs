Class Holder
  Private mObj
  Public Property Set Obj(o)
    Set mObj = o
  End Property
  Public Property Get Obj()
    Set Obj = mObj
  End Property
End Class
Class Thing
  Public Label
End Class
Set h = New Holder
Set t = New Thing
t.Label = "held"
Set h.Obj = t
WriteLine h.Obj.Label   ' expect: held
WriteLine IsObject(h.Obj)   ' expect: True
