WriteLine Replace("xx testxx(xx)", "xx", "!", 2)   ' expect: x test!(!)
WriteLine Replace("aaaa", "a", "b", 1, 2)          ' expect: bbaa
WriteLine Replace("AbA", "a", "x", 1, -1, 1)       ' expect: xbx
WriteLine Replace("abc", "", "x")                  ' expect: abc
p = Split("a,b,,c", ",")
WriteLine UBound(p) & "[" & p(2) & "]" & p(3)      ' expect: 3[]c
q = Split("a b c")
WriteLine UBound(q)                                ' expect: 2
r = Split("a,b,c,d", ",", 2)
WriteLine r(1)                                     ' expect: b,c,d
WriteLine UBound(Split("abc", ""))                 ' expect: 0
WriteLine UBound(Split("1x2X3", "x", -1, 1))       ' expect: 2
WriteLine Join(Array("a", "b", "c"), "-")          ' expect: a-b-c
WriteLine Join(Array("a", Empty, 3))               ' expect: a  3
f = Filter(Array("apple", "pear", "grape"), "ap")
WriteLine Join(f, ",")                             ' expect: apple,grape
g = Filter(Array("apple", "pear"), "ap", False)
WriteLine Join(g, ",")                             ' expect: pear
WriteLine UBound(Filter(Array("a"), "z"))          ' expect: -1
