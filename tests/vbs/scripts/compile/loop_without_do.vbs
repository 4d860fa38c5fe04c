Loop   ' expect error 1038 at 1:1
