On Error Resume Next
Dim o
x = o.Foo
WriteLine Err.Number   ' expect: 424
Err.Clear
Set o = Nothing
x = o.Foo
WriteLine Err.Number   ' expect: 424
Err.Clear
Set y = 5
WriteLine Err.Number   ' expect: 424
Err.Clear
r = (5 Is Nothing)
WriteLine Err.Number   ' expect: 424
Err.Clear
z = 7
z = Nothing
WriteLine Err.Number & " " & z   ' expect: 91 7
Err.Clear
Set p = New NotAClass
WriteLine Err.Number   ' expect: 506
Err.Clear
Err.Foo
WriteLine Err.Number   ' expect: 438
