Function Acc(n)
  Acc = 1
  Acc = Acc + n        ' bare name reads the result so far
End Function
WriteLine Acc(4)       ' expect: 5
Function Fact(n)
  If n <= 1 Then
    Fact = 1
  Else
    Fact = n * Fact(n - 1)
  End If
End Function
WriteLine Fact(12)     ' expect: 479001600
Function Nothing1()
End Function
WriteLine IsEmpty(Nothing1())   ' expect: True
Function EarlyExit(n)
  EarlyExit = "before"
  If n > 0 Then Exit Function
  EarlyExit = "after"
End Function
WriteLine EarlyExit(1) & EarlyExit(0)  ' expect: beforeafter
