' A string compared with a numeric literal must convert.
x = "abc"
If x = 5 Then WriteLine "no"      ' expect error 13 at 3:1
