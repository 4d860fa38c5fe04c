' Arguments left out between commas or at the end of the list.
MsgBox "Saved", , "Renumber"                    ' expect: Saved
r = MsgBox("Continue?", , "Operate")            ' expect: Continue?
WriteLine r                                     ' expect: 1
r = MsgBox("Again?", vbYesNo, )                 ' expect: Again?
WriteLine r                                     ' expect: 6
WriteLine InStr(, "G01 X1", "X")                ' expect: 5
WriteLine Mid("N100", 2, )                      ' expect: 100
WriteLine Replace("X1 X2 X3", "X", "Y", , 2)    ' expect: Y1 Y2 X3
WriteLine UBound(Split("a b c", , 2))           ' expect: 1
WriteLine FormatNumber(1234.5, , , , 0)         ' expect: 1234.50
WriteLine UBound(Array(1, , 3))                 ' expect: 2
WriteLine IsEmpty(Array(1, , 3)(1))             ' expect: True
Sub Show(a, b, c)
  WriteLine TypeName(b) & " " & a & c
End Sub
Show 1, , 3                                     ' expect: Empty 13
Call Show(1, , 3)                               ' expect: Empty 13
Show "a", "b",                                  ' expect: String a
Show , , "c"                                    ' expect: Empty c
' An omitted ByRef argument is the procedure's own: assigning it leaves nothing behind.
Sub Fill(x, y)
  WriteLine IsEmpty(x) & " " & y
  x = 5
End Sub
Fill , 1                                        ' expect: True 1
Fill , 2                                        ' expect: True 2
Function Pick(a, b)
  Pick = IsEmpty(a) & "/" & b
End Function
WriteLine Pick(, "z")                           ' expect: True/z
