Property Get P()   ' expect error 1048 at 1:1
End Property
