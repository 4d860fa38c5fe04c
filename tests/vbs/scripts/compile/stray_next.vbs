x = 1
Next   ' expect error 1055 at 2:1
