' Integer literals take the smallest type that holds them; hex and octal are bit patterns.
WriteLine TypeName(32767)        ' expect: Integer
WriteLine TypeName(32768)        ' expect: Long
WriteLine TypeName(2147483647)   ' expect: Long
WriteLine TypeName(2147483648)   ' expect: Double
WriteLine 010                    ' expect: 10
WriteLine &HFF                   ' expect: 255
WriteLine &HFFFF                 ' expect: -1
WriteLine &HFFFE                 ' expect: -2
WriteLine &HFFFF&                ' expect: 65535
WriteLine &HFFFFFFFF             ' expect: -1
WriteLine &H8000                 ' expect: -32768
WriteLine TypeName(&H8000)       ' expect: Long
WriteLine TypeName(&H10&)        ' expect: Integer
WriteLine &O17 & " " & &o17 & " " & &100   ' expect: 15 15 64
WriteLine &O177777               ' expect: -1
WriteLine &O200000               ' expect: 65536
WriteLine TypeName(1.5) & TypeName(1e0) & TypeName(10.)  ' expect: DoubleDoubleDouble
WriteLine .5 + 34e5 + 56.789e-2  ' expect: 3400001.06789
