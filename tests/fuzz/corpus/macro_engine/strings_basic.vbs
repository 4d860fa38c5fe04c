WriteLine Len("hello") & Len(12345) & Len(Empty)      ' expect: 550
WriteLine IsNull(Len(Null))                           ' expect: True
WriteLine Left("hello", 2) & "|" & Right("hello", 3) & "|" & Left("hi", 10)   ' expect: he|llo|hi
WriteLine Mid("hello", 2, 3) & "|" & Mid("hello", 4) & "|" & Mid("hello", 9) & "|"   ' expect: ell|lo||
WriteLine Left("hello", 1.5)                          ' expect: he
WriteLine "[" & Space(2.5) & "]"                      ' expect: [  ]
WriteLine Chr(119.5)                                  ' expect: x
WriteLine UCase("abc") & LCase("DEF")                 ' expect: ABCdef
WriteLine "[" & Trim("  a b  ") & "][" & LTrim("  a") & "][" & RTrim("a  ") & "]"   ' expect: [a b][a][a]
WriteLine Len(Trim(vbTab & "x" & vbTab))              ' expect: 3
WriteLine String(3, "ab") & String(2, 65)             ' expect: aaaAA
WriteLine StrReverse("abc")                           ' expect: cba
WriteLine Asc("A") & " " & Chr(66) & " " & AscW("a") ' expect: 65 B 97
WriteLine Len(vbCrLf) & Len(vbNewLine) & Asc(vbNewLine)   ' expect: 2213
WriteLine vbNullString = ""                           ' expect: True
WriteLine Escape("G01 X1.5;@*_+-./")      ' expect: G01%20X1.5%3B@*_+-./
WriteLine Unescape("G01%20X1.5%3b")       ' expect: G01 X1.5;
WriteLine Unescape("100%") & Unescape("%zz")   ' expect: 100%%zz
WriteLine Len(Unescape("%u00E9")) & Len(Unescape("%u20AC"))   ' expect: 13
