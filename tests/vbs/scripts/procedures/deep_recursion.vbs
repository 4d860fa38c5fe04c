Function Down(n)
  Down = Down(n + 1)
End Function
x = Down(0)   ' expect error 28
