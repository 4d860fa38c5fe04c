Function Renumber(text)
  Dim lines, i, re
  Set re = New RegExp
  re.Pattern = "^N\d+\s*"
  re.Global = True
  lines = Split(text, vbCrLf)
  For i = 0 To UBound(lines)
    lines(i) = "N" & CStr((i + 1) * 10) & " " & re.Replace(lines(i), "")
  Next
  Renumber = Join(lines, vbCrLf)
End Function

Class Tool
  Public Number, Offset
  Private Sub Class_Initialize() : Number = 1 : End Sub
  Public Property Get Name() : Name = "T" & Right("0" & Number, 2) : End Property
End Class

Sub Main()
  On Error Resume Next
  Dim t : Set t = New Tool
  MsgBox Renumber("G00 X0" & vbCrLf & "N5 G01 X1") & t.Name & FormatNumber(1234.5, 2) & Mid("abc", 0)
  Err.Raise 5
  x = InputBox("Value?", , "1") / 0
  Select Case TypeName(t)
    Case "Tool" : Execute "y = 1 + "
  End Select
End Sub
