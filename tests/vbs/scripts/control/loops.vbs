For i = 1 To 3 : s = s & i : Next
WriteLine s & " " & i                ' expect: 123 4
For i = 10 To 1 Step -3 : t = t & i & "," : Next
WriteLine t                          ' expect: 10,7,4,1,
For x = Empty To 3 : Next
WriteLine x                          ' expect: 4
n = 3
For i = 1 To n : n = 10 : c = c + 1 : Next
WriteLine c                          ' expect: 3
For i = 1 To 10
  If i = 4 Then Exit For
Next
WriteLine i                          ' expect: 4
For i = 1 To 5 : i = i + 1 : d = d + 1 : Next
WriteLine d                          ' expect: 3
For i = 0.5 To 1.6 Step 0.5 : e = e & i & ";" : Next
WriteLine e                          ' expect: 0.5;1;1.5;
For i = "1" To "3" : f = f + 1 : Next
WriteLine f                          ' expect: 3
k = 0
Do While k < 3 : k = k + 1 : Loop
WriteLine k                          ' expect: 3
Do Until k = 0 : k = k - 1 : Loop
WriteLine k                          ' expect: 0
Do : k = k + 1 : Loop While k < 5
WriteLine k                          ' expect: 5
Do : k = k + 1 : Loop Until True
WriteLine k                          ' expect: 6
Do
  k = k + 1
  If k = 10 Then Exit Do
Loop
WriteLine k                          ' expect: 10
While k > 7 : k = k - 1 : Wend
WriteLine k                          ' expect: 7
Do
  For j = 1 To 3
    If j = 2 Then Exit Do
  Next
Loop
WriteLine j                          ' expect: 2
