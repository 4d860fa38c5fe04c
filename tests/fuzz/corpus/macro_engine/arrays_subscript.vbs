Dim a(2)
x = a(3)   ' expect error 9 at 2:1
