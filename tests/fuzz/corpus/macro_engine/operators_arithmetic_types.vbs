WriteLine TypeName(32767 + 1) & " " & (32767 + 1)        ' expect: Long 32768
WriteLine TypeName(200 * 200)                            ' expect: Long
WriteLine TypeName(2147483647 + 1) & " " & (2147483647 + 1)  ' expect: Double 2147483648
WriteLine TypeName(1 + 1)                                ' expect: Integer
WriteLine 3 / 2 & " " & TypeName(4 / 2)                  ' expect: 1.5 Double
WriteLine 4.6 \ 1.5 & " " & 4.6 \ 1.49                  ' expect: 2 5
WriteLine 11.6 Mod 5.5                                   ' expect: 0
WriteLine -7 \ 2 & " " & -7 Mod 2                        ' expect: -3 -1
WriteLine TypeName(7 \ 2) & TypeName(70000 \ 2)          ' expect: IntegerLong
WriteLine TypeName(2 ^ 2)                                ' expect: Double
WriteLine "1" + 2 & " " & TypeName("1" + 2)              ' expect: 3 Double
WriteLine "a" + "b"                                      ' expect: ab
WriteLine TypeName(Empty + Empty)                        ' expect: Integer
WriteLine True + True                                    ' expect: -2
WriteLine TypeName(-(-32768)) & " " & -(-32768)          ' expect: Long 32768
WriteLine 0.1 + 0.2                                      ' expect: 0.3
WriteLine TypeName(#1/1/2000# + 1) & " " & (#1/2/2000# - #1/1/2000#)   ' expect: Date 1
WriteLine IsNull(Null + 1) & IsNull(Null & Null)        ' expect: TrueTrue
WriteLine Null & "x"                                     ' expect: x
