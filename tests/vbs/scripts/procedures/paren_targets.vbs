' A parenthesised expression as the object of a member call and as a call target,
' as a statement, after Call and inside expressions.
Class Tool
  Public Number
  Public Sub Show(prefix)
    WriteLine prefix & Number
  End Sub
  Public Function Twice()
    Twice = Number * 2
  End Function
End Class
Function MakeTool(n)
  Set MakeTool = New Tool
  MakeTool.Number = n
End Function
Dim t
Set t = MakeTool(3)
(t).Show "T"                       ' expect: T3
(MakeTool(4)).Show "T"             ' expect: T4
(t).Show("T")                      ' expect: T3
Call (t).Show("T")                 ' expect: T3
Call (MakeTool(5)).Show("T")       ' expect: T5
x = (t).Twice + 1
WriteLine x                        ' expect: 7
x = (MakeTool(6)).Twice()
WriteLine x                        ' expect: 12
(t).Number = 8
WriteLine t.Number                 ' expect: 8
Set re = New RegExp
re.Pattern = "X(\d+)"
x = (re.Execute("G0 X12")).Item(0).SubMatches(0)
WriteLine x                        ' expect: 12
