x = 5
For Each v In x   ' expect error 451
Next
