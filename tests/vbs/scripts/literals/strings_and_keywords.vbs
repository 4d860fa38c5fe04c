WriteLine "say ""hi"""          ' expect: say "hi"
WriteLine Len("")               ' expect: 0
WriteLine True & " " & False    ' expect: True False
WriteLine CInt(True)            ' expect: -1
WriteLine TypeName(Empty) & TypeName(Null) & TypeName(Nothing)  ' expect: EmptyNullNothing
Rem a Rem comment is skipped
x = 1 : Rem also after a colon
WriteLine x                     ' expect: 1
x =_
  3
WriteLine x                     ' expect: 3
WRITELINE "case" ' expect: case
WriteLine [My Var]               ' expect:
