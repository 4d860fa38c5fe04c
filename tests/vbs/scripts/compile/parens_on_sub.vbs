Sub S(a, b)
End Sub
S(1, 2)   ' expect error 1044 at 3:1
