' The in-place append must respect constants like any assignment.
Const C = "a"
WriteLine C & "b"   ' expect: ab
C = C & "b"   ' expect error 501 at 4:1
