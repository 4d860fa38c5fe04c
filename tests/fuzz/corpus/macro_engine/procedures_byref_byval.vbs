Sub Inc(x)
  x = x + 1
End Sub
Sub IncVal(ByVal x)
  x = x + 1
End Sub
Dim a : a = 1
Inc a : WriteLine a            ' expect: 2
Inc (a) : WriteLine a          ' expect: 2
Call Inc(a) : WriteLine a      ' expect: 3
Call Inc((a)) : WriteLine a    ' expect: 3
IncVal a : WriteLine a         ' expect: 3
Inc a + 0 : WriteLine a        ' expect: 3
Dim arr(2)
arr(0) = 5
Inc arr(0) : WriteLine arr(0)  ' expect: 6
Const K = 7
Inc K : WriteLine K            ' expect: 7
Sub Grow(v)
  ReDim Preserve v(3)
  v(3) = "new"
End Sub
Dim dyn()
ReDim dyn(1)
Grow dyn
WriteLine UBound(dyn) & dyn(3) ' expect: 3new
Sub SetArr(ByVal v)
  v(0) = "changed"
End Sub
Dim b(0) : b(0) = "orig"
SetArr b : WriteLine b(0)      ' expect: orig
Function AddTo(x)
  x = x & "!"
  AddTo = x
End Function
s = "hi"
WriteLine AddTo(s) & s         ' expect: hi!hi!
