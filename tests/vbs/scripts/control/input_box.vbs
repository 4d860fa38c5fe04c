' input: G01 X10
' input: 42
line = InputBox("Block?", "Macro", "G00")
WriteLine "[" & line & "]"
n = CInt(InputBox("Count?"))
WriteLine n + 1
WriteLine "[" & InputBox("Nothing left?") & "]"
' expect: Block?
' expect: [G01 X10]
' expect: Count?
' expect: 43
' expect: Nothing left?
' expect: []
