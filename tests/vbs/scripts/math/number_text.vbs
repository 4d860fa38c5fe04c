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
