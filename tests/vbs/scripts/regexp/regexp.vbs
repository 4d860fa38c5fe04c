Set re = New RegExp
re.Pattern = "X(-?\d+(\.\d+)?)"
WriteLine re.Test("G01 X12.5 Y3")          ' expect: True
WriteLine re.Test("G01 Y3")                ' expect: False
Set ms = re.Execute("G01 X12.5 X-3")
WriteLine ms.Count                         ' expect: 1
re.Global = True
Set ms = re.Execute("G01 X12.5 X-3")
WriteLine ms.Count & " " & ms(1).Value & " " & ms(1).FirstIndex & " " & ms(0).Length   ' expect: 2 X-3 10 5
WriteLine ms.Item(0).SubMatches(0)         ' expect: 12.5
For Each m In ms
  t = t & "[" & m & "]"
Next
WriteLine t                                ' expect: [X12.5][X-3]
WriteLine re.Replace("X1 X2", "Y$1$$")     ' expect: Y1$ Y2$
re.Pattern = "x"
re.IgnoreCase = True
WriteLine re.Replace("aXbx", "-")          ' expect: a-b-
re.Global = False
WriteLine re.Replace("aXbx", "<$&>")       ' expect: a<X>bx
re.Pattern = "^N\d+"
re.Multiline = True
re.Global = True
WriteLine re.Execute("N10 G0" & vbLf & "N20 G1").Count   ' expect: 2
re.Pattern = "a(?=b)"
WriteLine re.Replace("ab ac", "Z")         ' expect: Zb ac
Class RegExp
End Class
Set r2 = New RegExp
WriteLine TypeName(r2)                     ' expect: IRegExp2
