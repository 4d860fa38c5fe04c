WriteLine Abs(-5) & " " & TypeName(Abs(-32769)) & " " & TypeName(Abs("-1"))   ' expect: 5 Long Double
WriteLine Sgn(-3) & Sgn(0) & Sgn(2.5)            ' expect: -101
WriteLine Int(-1.99) & " " & Fix(-1.99) & " " & Int(1.99)   ' expect: -2 -1 1
WriteLine Round(2.5) & Round(3.5) & Round(-3.5)  ' expect: 24-4
WriteLine Round(1.2345, 2) & " " & Round(0.125, 2)   ' expect: 1.23 0.12
WriteLine Sqr(16) & " " & Exp(0) & " " & Log(1)  ' expect: 4 1 0
WriteLine Round(Sin(0) + Cos(0) + Atn(1) * 4, 5) ' expect: 4.14159
WriteLine Hex(255) & " " & Hex(-1) & " " & Hex(-32768) & " " & Oct(8)   ' expect: FF FFFF FFFF8000 10
WriteLine Hex(Empty) & IsNull(Hex(Null))         ' expect: 0True
WriteLine RGB(1, 2, 3) & " " & RGB(300, 0, 0)    ' expect: 197121 255
Randomize 1
a = Rnd
WriteLine a >= 0 And a < 1                       ' expect: True
WriteLine Rnd(0) = a                             ' expect: True
WriteLine TypeName(Rnd)                          ' expect: Single
