x = 1
NoSuchThing 1, 2   ' expect error 13 at 2:1
