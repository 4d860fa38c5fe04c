x = .Foo   ' expect error 505
