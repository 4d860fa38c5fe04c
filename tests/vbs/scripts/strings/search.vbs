WriteLine InStr("abcabc", "c")             ' expect: 3
WriteLine InStr(4, "abcabc", "c")          ' expect: 6
WriteLine InStr("abc", "z")                ' expect: 0
WriteLine InStr(4, "abcdef", "")           ' expect: 4
WriteLine InStr(20, "abcdef", "")          ' expect: 0
WriteLine InStr("", "a")                   ' expect: 0
WriteLine InStr(1, "ABC", "b", 1)          ' expect: 2
WriteLine InStr(1, "ABC", "b", vbBinaryCompare)   ' expect: 0
WriteLine IsNull(InStr(Null, "a"))         ' expect: True
WriteLine InStr("a1b", 1)                  ' expect: 2
WriteLine InStrRev("abcabc", "b")          ' expect: 5
WriteLine InStrRev("abcabc", "b", 4)       ' expect: 2
WriteLine InStrRev("abc", "")              ' expect: 3
WriteLine InStrRev("abc", "c", 10)         ' expect: 0
WriteLine StrComp("a", "B") & StrComp("a", "B", 1) & StrComp("x", "x")   ' expect: 1-10
