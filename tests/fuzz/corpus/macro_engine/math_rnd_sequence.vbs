' Without Randomize every run draws the same sequence.
WriteLine Rnd          ' expect: 0.7055475
WriteLine Rnd()        ' expect: 0.533424
WriteLine Rnd(0)       ' expect: 0.533424
x = Rnd(-1)
y = Rnd(-1)
WriteLine x = y        ' expect: True
' Rnd with a negative argument, then Randomize with a seed, repeats a sequence.
x = Rnd(-1) : Randomize 5 : a = Rnd
x = Rnd(-1) : Randomize 5
WriteLine a = Rnd      ' expect: True
WriteLine a >= 0 And a < 1   ' expect: True
