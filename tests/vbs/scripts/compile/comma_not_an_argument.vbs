x = , 1   ' expect error 1023
