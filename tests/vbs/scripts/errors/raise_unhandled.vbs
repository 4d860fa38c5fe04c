x = 1
Err.Raise 1001 + 1000, "Tool", "bad tool number"   ' expect error 2001 at 2:1
