With 5   ' expect error 424
End With
