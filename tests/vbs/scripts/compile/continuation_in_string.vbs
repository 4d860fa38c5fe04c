x = "abc _
def"   ' expect error 1033 at 1:5
