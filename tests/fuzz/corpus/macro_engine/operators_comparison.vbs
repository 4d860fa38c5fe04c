WriteLine "10" < "9"              ' expect: True
WriteLine "a" > "B"               ' expect: True
WriteLine "10" > 9                ' expect: True
WriteLine Empty = 0               ' expect: True
WriteLine Empty = ""              ' expect: True
WriteLine IsNull(Null = Null)     ' expect: True
WriteLine "true" = True           ' expect: False
WriteLine "True" = True           ' expect: True
Dim n : n = 5
WriteLine "5" = n                 ' expect: False
WriteLine "5" > n                 ' expect: True
Dim d : d = 1.5
WriteLine "1.5" = d               ' expect: True
If Null Then WriteLine "no" Else WriteLine "else"   ' expect: else
If Null = Null Then WriteLine "no" Else WriteLine "else"   ' expect: else
Set o = Nothing
WriteLine o Is Nothing            ' expect: True
