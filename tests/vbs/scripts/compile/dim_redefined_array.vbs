Public lines()
Private lines(3)   ' expect error 1041 at 2:9
