WriteLine #1/15/2024#               ' expect: 1/15/2024
WriteLine #2024-01-15#              ' expect: 1/15/2024
WriteLine # 1/1/2011 #              ' expect: 1/1/2011
WriteLine #1/1/2000 10:30:00 AM#    ' expect: 1/1/2000 10:30:00 AM
WriteLine TypeName(#1/1/2000#)      ' expect: Date
WriteLine CDbl(#12/31/1899#)        ' expect: 1
WriteLine #10:30 PM#                ' expect: 10:30:00 PM
