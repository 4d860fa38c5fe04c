x = &O8   ' expect error 1002 at 1:5
