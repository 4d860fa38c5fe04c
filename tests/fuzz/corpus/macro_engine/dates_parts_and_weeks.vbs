d = #1/1/2025#                                  ' a Wednesday
WriteLine Weekday(d) & Weekday(d, vbMonday)     ' expect: 43
WriteLine WeekdayName(1, True, vbMonday)        ' expect: Mon
WriteLine DatePart("ww", #1/5/2025#)            ' expect: 2
WriteLine DateDiff("ww", #1/1/2025#, #1/12/2025#)   ' expect: 2
WriteLine DateDiff("w", #1/1/2025#, #1/12/2025#)    ' expect: 1
WriteLine DateDiff("m", #1/31/2025#, #2/1/2025#)    ' expect: 1
WriteLine DateDiff("d", #1/2/2025#, #1/1/2025#)     ' expect: -1
WriteLine DateAdd("h", 25, #1/1/2025#)          ' expect: 1/2/2025 1:00:00 AM
WriteLine DateAdd("q", 1, #11/30/2024#)         ' expect: 2/28/2025
WriteLine CDate("March 5, 2024")                ' expect: 3/5/2024
WriteLine CDate("14:30")                        ' expect: 2:30:00 PM
WriteLine IsDate("2/30/2024") & IsDate("13/1/2024") & IsDate("12:61")   ' expect: FalseFalseFalse
WriteLine Year(45000) & "-" & Month("2024-02-29")   ' expect: 2023-2
WriteLine IsNull(Year(Null)) & IsNull(DateAdd("d", 1, Null))   ' expect: TrueTrue
On Error Resume Next
x = DateAdd("zz", 1, Now)
WriteLine Err.Number                            ' expect: 5
