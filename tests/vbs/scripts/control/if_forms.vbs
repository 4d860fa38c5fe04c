x = 3
If x = 3 Then WriteLine "one" : WriteLine "two" Else WriteLine "no"
' expect: one
' expect: two
If x = 4 Then WriteLine "no" Else WriteLine "else" : WriteLine "else2"
' expect: else
' expect: else2
If x > 5 Then
  WriteLine "big"
ElseIf x > 2 Then WriteLine "mid"
Else
  WriteLine "small"
End If
' expect: mid
If x = 1 Then
  WriteLine "a"
Else x = 9 End If
WriteLine x   ' expect: 9
If "0" Then WriteLine "no" Else WriteLine "zero text is false"   ' expect: zero text is false
If "True" Then WriteLine "text true"   ' expect: text true
If Empty Then WriteLine "no" Else WriteLine "empty false"   ' expect: empty false
If 0.1 Then WriteLine "fraction true"   ' expect: fraction true
If x = 9 Then If x > 1 Then WriteLine "nested" Else WriteLine "inner else"   ' expect: nested
