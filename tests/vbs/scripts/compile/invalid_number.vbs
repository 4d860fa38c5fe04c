x = 1e999   ' expect error 1031 at 1:5
