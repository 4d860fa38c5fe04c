x = 1
Option Explicit   ' expect error 1002 at 2:1
