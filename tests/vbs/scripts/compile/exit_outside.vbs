Exit For   ' expect error 1039 at 1:6
