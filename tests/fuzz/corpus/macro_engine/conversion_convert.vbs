WriteLine CInt(2.5) & CInt(3.5) & CInt(-36.5) & " " & CInt(-36.75)   ' expect: 24-36 -37
WriteLine CLng("  42 ") + 1          ' expect: 43
WriteLine CInt("&HFF")               ' expect: 255
WriteLine CBool("True") & CBool("#FALSE#") & CBool(0.1) & CBool("0")   ' expect: TrueFalseTrueFalse
WriteLine CByte(255.4)               ' expect: 255
WriteLine CDbl("1e2") & " " & TypeName(CDbl(1))   ' expect: 100 Double
WriteLine CStr(True) & CStr(12.5)    ' expect: True12.5
WriteLine CDate("1/15/2024") = #1/15/2024#   ' expect: True
WriteLine CDate(1)                   ' expect: 12/31/1899
WriteLine TypeName(CSng(1)) & TypeName(CByte(1)) & VarType(CByte(1))   ' expect: SingleByte17
On Error Resume Next
x = CInt(32767.5)
WriteLine Err.Number : Err.Clear     ' expect: 6
x = CInt("")
WriteLine Err.Number : Err.Clear     ' expect: 13
x = CLng(Null)
WriteLine Err.Number : Err.Clear     ' expect: 94
x = CByte(-1)
WriteLine Err.Number : Err.Clear     ' expect: 6
x = CBool("yes")
WriteLine Err.Number : Err.Clear     ' expect: 13
x = CStr(Null)
WriteLine Err.Number : Err.Clear     ' expect: 94
WriteLine IsNumeric("44") & IsNumeric(" 5 ") & IsNumeric("1e2") & IsNumeric("&HFF")   ' expect: TrueTrueTrueTrue
WriteLine IsNumeric("abc") & IsNumeric(Null) & IsNumeric(Empty) & IsNumeric(True)   ' expect: FalseFalseTrueTrue
WriteLine IsDate("1/1/2000") & IsDate(5) & IsDate("hello")   ' expect: TrueFalseFalse
WriteLine IsObject(Nothing) & IsEmpty(Nothing) & IsArray(Array())   ' expect: TrueFalseTrue
WriteLine VarType(Empty) & VarType(Null) & VarType("s") & VarType(True)   ' expect: 01811
WriteLine VarType(1) & VarType(70000) & VarType(1.5) & VarType(Now)   ' expect: 2357
WriteLine TypeName(Err)            ' expect: ErrObject
