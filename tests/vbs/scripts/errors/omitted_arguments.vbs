' Leaving out what cannot be left out.
On Error Resume Next
x = Left(, 2)
WriteLine Err.Number                            ' expect: 450
Err.Clear
WriteLine InStr(2, "abc", , 1)
WriteLine Err.Number                            ' expect: 450
Err.Clear
Dim grid(2, 2)
grid(1, ) = 3
WriteLine Err.Number                            ' expect: 9
Err.Clear
Sub Two(a, b)
End Sub
Two 1, 2,
WriteLine Err.Number                            ' expect: 450
Err.Clear
Err.Raise , "Macro"
WriteLine Err.Number                            ' expect: 450
Err.Clear
Err.Raise 5, , "Tool not found"
WriteLine Err.Number & "|" & Err.Source & "|" & Err.Description   ' expect: 5|VBScript runtime error|Tool not found
Err.Raise vbObjectError + 7, "Macro",
WriteLine Err.Source & "|" & Err.Description    ' expect: Macro|Tool not found
