On Error Resume Next
Err.Raise vbObjectError + 1, "MyMacro", "custom failure"
WriteLine Err.Number & "|" & Err.Source & "|" & Err.Description   ' expect: -2147221503|MyMacro|custom failure
Err.Clear
Err.Raise 1234
WriteLine Err.Description   ' expect: Unknown runtime error
Err.Clear
Err.Raise 13
WriteLine Err.Description   ' expect: Type mismatch
Err.Raise 9
WriteLine Err.Number & " " & Err.Description   ' expect: 9 Type mismatch
Err.Clear
Err.Raise 0
WriteLine Err.Number   ' expect: 5
e = Err
WriteLine e   ' expect: 5
