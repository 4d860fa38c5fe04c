WriteLine IsNumeric("44") & IsNumeric(" 5 ") & IsNumeric("1e2") & IsNumeric("&HFF")   ' expect: TrueTrueTrueTrue
WriteLine IsNumeric("abc") & IsNumeric(Null) & IsNumeric(Empty) & IsNumeric(True)   ' expect: FalseFalseTrueTrue
WriteLine IsDate("1/1/2000") & IsDate(5) & IsDate("hello")   ' expect: TrueFalseFalse
WriteLine IsObject(Nothing) & IsEmpty(Nothing) & IsArray(Array())   ' expect: TrueFalseTrue
WriteLine VarType(Empty) & VarType(Null) & VarType("s") & VarType(True)   ' expect: 01811
WriteLine VarType(1) & VarType(70000) & VarType(1.5) & VarType(Now)   ' expect: 2357
WriteLine TypeName(Err)            ' expect: ErrObject
