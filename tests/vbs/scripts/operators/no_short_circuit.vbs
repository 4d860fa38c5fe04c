Function Side(v)
  WriteLine "called " & v
  Side = v
End Function
If Side(False) And Side(True) Then WriteLine "both"
' expect: called False
' expect: called True
If Side(True) Or Side(False) Then WriteLine "yes"
' expect: called True
' expect: called False
' expect: yes
