For i = 1 To 2 : Next
WriteLine TypeName(i)         ' expect: Integer
For i = 32766 To 32767 : Next
WriteLine TypeName(i) & " " & i   ' expect: Long 32768
For i = 1 To 2 Step 0.5 : Next
WriteLine TypeName(i) & " " & i   ' expect: Double 2.5
For i = 1 To 3
  If i = 2 Then i = 10
  n = n + 1
Next
WriteLine n & " " & i         ' expect: 2 11
For i = 5 To 1 : m = m + 1 : Next
WriteLine IsEmpty(m) & " " & i   ' expect: True 5
