d = #3/5/2024 14:07:09#
WriteLine Year(d) & " " & Month(d) & " " & Day(d)     ' expect: 2024 3 5
WriteLine Hour(d) & ":" & Minute(d) & ":" & Second(d) ' expect: 14:7:9
WriteLine Weekday(d) & " " & WeekdayName(Weekday(d)) & " " & MonthName(3, True)   ' expect: 3 Tuesday Mar
WriteLine DateSerial(2000, 14, 2)        ' expect: 2/2/2001
WriteLine DateSerial(24, 1, 1)           ' expect: 1/1/2024
WriteLine DateSerial(99, 1, 1)           ' expect: 1/1/1999
WriteLine TimeSerial(25, 2, 1)           ' expect: 12/31/1899 1:02:01 AM
WriteLine DateAdd("m", 1, #1/31/2024#)   ' expect: 2/29/2024
WriteLine DateAdd("d", -1, #3/1/2024#)   ' expect: 2/29/2024
WriteLine DateAdd("yyyy", 1, #2/29/2024#)   ' expect: 2/28/2025
WriteLine DateDiff("yyyy", #12/31/2023#, #1/1/2024#)   ' expect: 1
WriteLine DateDiff("d", #1/1/2024#, #3/1/2024#)        ' expect: 60
WriteLine DateDiff("h", #1/1/2024 10:00#, #1/1/2024 12:30#)   ' expect: 2
WriteLine DatePart("q", d) & DatePart("y", d)          ' expect: 165
WriteLine DateValue("1/2/2003 4:05 AM") & "|" & TimeValue("1/2/2003 4:05 AM")   ' expect: 1/2/2003|4:05:00 AM
WriteLine FormatDateTime(d, vbLongDate)  ' expect: Tuesday, March 5, 2024
WriteLine FormatDateTime(d, vbShortTime) ' expect: 14:07
WriteLine CDate(-1)                      ' expect: 12/29/1899
