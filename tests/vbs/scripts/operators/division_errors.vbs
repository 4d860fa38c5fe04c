On Error Resume Next
x = 1 / 0 : WriteLine Err.Number   ' expect: 11
Err.Clear
x = 0 / 0 : WriteLine Err.Number   ' expect: 6
Err.Clear
x = 5 \ 0 : WriteLine Err.Number   ' expect: 11
Err.Clear
x = 5 Mod 0 : WriteLine Err.Number ' expect: 11
Err.Clear
x = 1.5 / 0 : WriteLine Err.Number ' expect: 11
Err.Clear
x = "" & Nothing : WriteLine Err.Number ' expect: 91
