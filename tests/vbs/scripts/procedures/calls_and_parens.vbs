Sub Show(a)
  WriteLine "got " & a
End Sub
Sub Two(a, b)
  WriteLine a & "," & b
End Sub
Show 1                   ' expect: got 1
Show(2)                  ' expect: got 2
Show (10) + 5            ' expect: got 15
Two (2) * 8, 7           ' expect: 16,7
Call Two(3, 4)           ' expect: 3,4
Function Twice(n)
  Twice = n * 2
End Function
WriteLine Twice (2) * 3  ' expect: 12
x = Twice(5)
WriteLine x              ' expect: 10
Twice 4
Sub NoArgs()
  WriteLine "none"
End Sub
NoArgs                   ' expect: none
Call NoArgs              ' expect: none
NoArgs()                 ' expect: none
Sub OneLine() WriteLine "one line" End Sub
OneLine                  ' expect: one line
WriteLine Split("a;b", ";")(1)   ' expect: b
