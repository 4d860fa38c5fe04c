If "abc" Then WriteLine "no"   ' expect error 13
