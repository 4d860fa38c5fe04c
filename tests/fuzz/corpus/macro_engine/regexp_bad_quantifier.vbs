On Error Resume Next
Set re = New RegExp
re.Pattern = "*a" : x = re.Test("a") : WriteLine Err.Number : Err.Clear    ' expect: 5018
re.Pattern = "[ab" : x = re.Test("a") : WriteLine Err.Number : Err.Clear   ' expect: 5019
re.Pattern = "[z-a]" : x = re.Test("a") : WriteLine Err.Number : Err.Clear ' expect: 5021
re.Pattern = "a)" : x = re.Test("a") : WriteLine Err.Number : Err.Clear    ' expect: 5017
