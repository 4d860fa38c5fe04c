Dim grid()
ReDim grid(3, )   ' expect error 1023 at 2:15
