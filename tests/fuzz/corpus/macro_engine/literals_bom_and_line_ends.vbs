WriteLine "bom skipped"   ' expect: bom skipped
WriteLine "cr only"' expect: cr only
x = 1' expect: 1
WriteLine x
