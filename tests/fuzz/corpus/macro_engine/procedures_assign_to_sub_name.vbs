Sub S()
End Sub
S = 5   ' expect error 501
