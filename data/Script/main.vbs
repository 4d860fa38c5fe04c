' main.vbs: the macros loaded when Lathwick starts.
' A Sub whose name holds "V_" is listed by Macro > Execute (Ctrl+L); the letter after "V_"
' becomes its access key. LoadDoc runs after a document is created or loaded; SendTo runs from
' the send-to command with an array of the program's path and the document's file name.

Sub LoadDoc(FileName)
End Sub

Sub SendTo(Target)
End Sub

' The document's lines (the last one may be empty).
Function DocLines()
  DocLines = Split(Text, vbCrLf)
End Function

' True when the character is a digit.
Function IsDigit(c)
  IsDigit = (c >= "0" And c <= "9")
End Function

' The line without a leading sequence number ("N120 G01 X1" -> "G01 X1").
Function StripNumber(lineText)
  Dim i, s
  s = LTrim(lineText)
  If UCase(Left(s, 1)) <> "N" Then StripNumber = lineText : Exit Function
  i = 2
  Do While i <= Len(s)
    If Not IsDigit(Mid(s, i, 1)) Then Exit Do
    i = i + 1
  Loop
  If i = 2 Then StripNumber = lineText : Exit Function
  StripNumber = LTrim(Mid(s, i))
End Function

' Strip sequence numbers: removes the N word at the start of every line.
Sub V_StripNumbers()
  Dim lines, i
  lines = DocLines()
  For i = 0 To UBound(lines)
    lines(i) = StripNumber(lines(i))
  Next
  Text = Join(lines, vbCrLf)
End Sub

' Every value of the given address letters multiplied by factor, written with 4 decimals at
' most; text in parentheses (comments) is left alone.
Function ScaleWords(lineText, letters, factor)
  Dim out, i, c, j, number, inComment
  i = 1
  Do While i <= Len(lineText)
    c = Mid(lineText, i, 1)
    If c = "(" Then inComment = True
    If c = ")" Then inComment = False
    out = out & c
    i = i + 1
    If Not inComment And InStr(letters, UCase(c)) > 0 Then
      j = i
      If Mid(lineText, j, 1) = "-" Or Mid(lineText, j, 1) = "+" Then j = j + 1
      Do While j <= Len(lineText)
        If Not (IsDigit(Mid(lineText, j, 1)) Or Mid(lineText, j, 1) = ".") Then Exit Do
        j = j + 1
      Loop
      number = Mid(lineText, i, j - i)
      If IsNumeric(number) Then
        out = out & Fmt(CDbl(number) * factor, "##0.0###")
        i = j
      End If
    End If
  Loop
  ScaleWords = out
End Function

Sub ScaleDocument(letters, factor)
  Dim lines, i
  lines = DocLines()
  For i = 0 To UBound(lines)
    lines(i) = ScaleWords(lines(i), letters, factor)
  Next
  Text = Join(lines, vbCrLf)
End Sub

' Inch to millimetre: X, Y, Z, I, J, K, R and F values times 25.4, and G20 made G21.
Sub V_InchToMm()
  ScaleDocument "XYZIJKRF", 25.4
  Text = Replace(Text, "G20", "G21")
End Sub

' Mirror X: every X and I value changes its sign (arcs then turn the other way: G02 and G03
' are swapped too).
Sub V_MirrorX()
  ScaleDocument "XI", -1
  Text = Replace(Replace(Replace(Text, "G02", "G0#"), "G03", "G02"), "G0#", "G03")
End Sub

' The line without its comments (text in parentheses), upper-cased.
Function CodePart(lineText)
  Dim i, c, inComment, out
  For i = 1 To Len(lineText)
    c = Mid(lineText, i, 1)
    If c = "(" Then inComment = True
    If Not inComment Then out = out & c
    If c = ")" Then inComment = False
  Next
  CodePart = UCase(out)
End Function

' The tools used (T words outside comments, in order of first use), as a comment at the top.
Sub V_ListTools()
  Dim lines, code, i, j, c, tool, tools, block
  tools = " "
  lines = DocLines()
  For i = 0 To UBound(lines)
    code = CodePart(lines(i))
    j = InStr(code, "T")
    Do While j > 0
      tool = "T"
      Do While j + Len(tool) <= Len(code)
        c = Mid(code, j + Len(tool), 1)
        If Not IsDigit(c) Then Exit Do
        tool = tool & c
      Loop
      If Len(tool) > 1 And InStr(tools, " " & tool & " ") = 0 Then tools = tools & tool & " "
      j = InStr(j + 1, code, "T")
    Loop
  Next
  block = "(TOOLS USED:" & RTrim(tools) & ")" & vbCrLf
  SelStart = 0
  SelLength = 0
  SelText = block
End Sub
