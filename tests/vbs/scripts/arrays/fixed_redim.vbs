Dim f(3)
ReDim f(5)   ' expect error 10 at 2:1
