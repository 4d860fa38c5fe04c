Function Down(n)
  Down = Down(n + 1)
End Function
On Error Resume Next
x = Down(0)
WriteLine Err.Number & " " & Err.Description   ' expect: 28 Out of stack space
