WriteLine -3 ^ 2              ' expect: 9
WriteLine 2 ^ 3 ^ 2           ' expect: 64
WriteLine 2 + 3 * 4           ' expect: 14
WriteLine 7 \ 2 * 3           ' expect: 1
WriteLine 10 Mod 4 + 1        ' expect: 3
WriteLine 1 + 2 & 3 + 4       ' expect: 37
WriteLine Not 1 > 2           ' expect: True
WriteLine 1 = 1 < 0           ' expect: True
WriteLine 1 > Not 5 > 3       ' expect: True
WriteLine True Or False And False   ' expect: True
WriteLine (5 => 5) & (5 =< 4) & (4 >< 4)' expect: TrueFalseFalse
WriteLine 3 Xor 5             ' expect: 6
WriteLine True Eqv False      ' expect: False
WriteLine False Imp True      ' expect: True
