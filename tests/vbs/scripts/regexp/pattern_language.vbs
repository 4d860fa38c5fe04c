Function Hits(pattern, text)
  Set re = New RegExp
  re.Pattern = pattern
  re.Global = True
  Dim out
  For Each x In re.Execute(text)
    out = out & "[" & x.Value & "@" & x.FirstIndex & "]"
  Next
  Hits = out
End Function
WriteLine Hits("G0[0-3]", "G00 G01 G04 G03")        ' expect: [G00@0][G01@4][G03@12]
WriteLine Hits("cat|dog", "dog cat bird")           ' expect: [dog@0][cat@4]
WriteLine Hits("<.+?>", "<a><bb>")                  ' expect: [<a>@0][<bb>@3]
WriteLine Hits("<.+>", "<a><bb>")                   ' expect: [<a><bb>@0]
WriteLine Hits("(\w)\1", "aabccd")                  ' expect: [aa@0][cc@3]
WriteLine Hits("\bX\d+", "X1 AX2 X33")              ' expect: [X1@0][X33@7]
WriteLine Hits("[^ ]+", "a bc")                     ' expect: [a@0][bc@2]
WriteLine Hits("\d{2,3}", "1 12 1234")              ' expect: [12@2][123@5]
WriteLine Hits("^\s*$", "")                         ' expect: [@0]
WriteLine Hits("N\d+(?!\d|0)", "N10 N2")            ' expect: [N10@0][N2@4]
WriteLine Hits("a{2}", "aaaaa")                     ' expect: [aa@0][aa@2]
WriteLine Hits("[\d.-]+", "X-1.5Y2")                ' expect: [-1.5@1][2@6]
WriteLine Hits("\(([^)]*)\)", "G1 (note) X1")       ' expect: [(note)@3]
WriteLine Hits("x*", "ab")                          ' expect: [@0][@1][@2]
Set re = New RegExp
re.Pattern = "(a)|(b)"
Set m = re.Execute("b")(0)
WriteLine IsEmpty(m.SubMatches(0)) & " " & m.SubMatches(1) & " " & m.SubMatches.Count   ' expect: True b 2
re.Pattern = "b"
WriteLine re.Replace("abc", "[$`|$']")           ' expect: a[a|c]c
re.Pattern = "(\d+)\.(\d+)"
WriteLine re.Replace("X1.25", "$2.$1 $3")        ' expect: X25.1 $3
re.Pattern = "g01"
re.IgnoreCase = True
WriteLine re.Test("N10 G01 X1")                  ' expect: True
re.Pattern = "[^g]+"
WriteLine re.Execute("xGy")(0).Value             ' expect: x
re.Pattern = "[a-c]+"
WriteLine re.Execute("xABCy")(0).Value           ' expect: ABC
