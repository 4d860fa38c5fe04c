WriteLine (False And Null)        ' expect: False
WriteLine IsNull(True And Null)   ' expect: True
WriteLine (True Or Null)          ' expect: True
WriteLine IsNull(False Or Null)   ' expect: True
WriteLine IsNull(Not Null)        ' expect: True
WriteLine (False Imp Null)        ' expect: True
WriteLine (Null Imp True)         ' expect: True
WriteLine IsNull(True Imp Null)   ' expect: True
WriteLine (Not Empty) & " " & TypeName(Not Empty)' expect: -1 Long
WriteLine Not 0                   ' expect: -1
WriteLine 12 And 10               ' expect: 8
WriteLine TypeName(True And True) ' expect: Boolean
WriteLine TypeName(True And 1)    ' expect: Integer
