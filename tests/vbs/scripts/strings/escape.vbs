WriteLine Escape("G01 X1.5;@*_+-./")      ' expect: G01%20X1.5%3B@*_+-./
WriteLine Unescape("G01%20X1.5%3b")       ' expect: G01 X1.5;
WriteLine Unescape("100%") & Unescape("%zz")   ' expect: 100%%zz
WriteLine Len(Unescape("%u00E9")) & Len(Unescape("%u20AC"))   ' expect: 13
