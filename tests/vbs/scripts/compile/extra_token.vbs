x = 1 2   ' expect error 1025 at 1:7
