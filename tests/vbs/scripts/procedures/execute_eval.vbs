x = 4
WriteLine Eval("x * 2 + 1")          ' expect: 9
WriteLine Eval("x = 4")              ' expect: True
ExecuteGlobal "Function Sq(n) : Sq = n * n : End Function"
WriteLine Sq(5)                      ' expect: 25
Execute "y = x + 1"
WriteLine y                          ' expect: 5
On Error Resume Next
ExecuteGlobal "z = (1 +"
WriteLine Err.Number & " " & Err.Source   ' expect: 1002 VBScript compilation error
