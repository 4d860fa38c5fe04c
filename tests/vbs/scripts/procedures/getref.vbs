Function Twice(n)
  Twice = n * 2
End Function
Sub Say(t)
  WriteLine "say " & t
End Sub
Set f = GetRef("twice")
WriteLine f(21)              ' expect: 42
Set s = GetRef("Say")
s "hello"                    ' expect: say hello
Call s("again")              ' expect: say again
WriteLine TypeName(f)        ' expect: Object
x = GetRef("NoSuchProc")     ' expect error 5
