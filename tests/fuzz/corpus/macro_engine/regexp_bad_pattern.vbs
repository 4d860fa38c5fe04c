Set re = New RegExp
re.Pattern = "(ab"
x = re.Test("ab")   ' expect error 5020 at 3:1
