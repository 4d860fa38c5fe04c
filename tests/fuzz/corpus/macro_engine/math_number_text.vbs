WriteLine 1E+20            ' expect: 1E+20
WriteLine 1E15             ' expect: 1E+15
WriteLine 123456789012345  ' expect: 123456789012345
WriteLine 0.00001          ' expect: 0.00001
WriteLine 1 / 3            ' expect: 0.333333333333333
WriteLine 123456789012345678   ' expect: 1.23456789012346E+17
WriteLine CSng("0.01") + 0.01  ' expect: 1.99999997764826E-02
WriteLine -2.5             ' expect: -2.5
WriteLine 1.5E-20          ' expect: 1.5E-20
WriteLine CSng(1) / 3      ' expect: 0.3333333
WriteLine 0.000001                ' expect: 0.000001
WriteLine 123456789.123456789     ' expect: 123456789.123457
WriteLine 2 ^ 53                  ' expect: 9.00719925474099E+15
WriteLine 1 / 3 * 0.00001         ' expect: 3.33333333333333E-06
WriteLine -0.5 * 2                ' expect: -1
WriteLine CStr(CSng(1.1))         ' expect: 1.1
WriteLine 100 * 1.1               ' expect: 110
WriteLine Hex(-2147483648) & " " & Oct(-1)   ' expect: 80000000 177777
WriteLine CLng("&HFFFFFFFF") & " " & CLng("&O17")   ' expect: -1 15
WriteLine 7 Mod -3 & " " & -7 Mod 3           ' expect: 1 -1
