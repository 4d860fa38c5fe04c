On Error Resume Next
x = Mid("abc", 0)
WriteLine Err.Number : Err.Clear        ' expect: 5
x = Left("abc", -1)
WriteLine Err.Number : Err.Clear        ' expect: 5
x = InStrRev(Null, "a")
WriteLine Err.Number : Err.Clear        ' expect: 94
x = Replace("abc", Null, "x")
WriteLine Err.Number : Err.Clear        ' expect: 94
x = Asc("")
WriteLine Err.Number : Err.Clear        ' expect: 5
x = Chr(256)
WriteLine Err.Number : Err.Clear        ' expect: 5
x = Len()
WriteLine Err.Number : Err.Clear        ' expect: 450
x = Space(Null)
WriteLine Err.Number : Err.Clear        ' expect: 94
x = Join(Array(Array(1)))
WriteLine Err.Number : Err.Clear        ' expect: 13
