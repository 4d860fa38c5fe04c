Function Kind(v)
  Select Case v
    Case 1, 2
      Kind = "small"
    Case "x"
      Kind = "letter"
    Case 3 Kind = "three"
    Case Else
      Kind = "other"
  End Select
End Function
WriteLine Kind(2)      ' expect: small
WriteLine Kind("x")    ' expect: letter
WriteLine Kind(3)      ' expect: three
WriteLine Kind(Null)   ' expect: other
WriteLine Kind("zz")   ' expect: other
n = 7
Select Case True
  Case n >= 1 And n <= 5 : WriteLine "low"
  Case n > 5 : WriteLine "high"
End Select
' expect: high
Function Count()
  c = c + 1
  WriteLine "case evaluated"
  Count = 99
End Function
Select Case 1
  Case 1: WriteLine "first"
  Case Count(): WriteLine "never"
End Select
' expect: first
