' Soft keywords are ordinary names outside their statements; a script may reuse built-in names.
Property = 1 : Step = 2 : Explicit = 3 : Error = 4 : Get = 5 : Default = 6
WriteLine Property + Step + Explicit + Error + Get + Default   ' expect: 21
Sub UsesDate()
  date = "mine"
  WriteLine date
End Sub
UsesDate                  ' expect: mine
WriteLine IsDate(Date)    ' expect: True
Dim Left
Left = "shadow"
WriteLine Left            ' expect: shadow
Class Kw
  Public Sub [Select]()
    WriteLine "select member"
  End Sub
  Public Function [End]()
    [End] = "end member"
  End Function
End Class
Set k = New Kw
k.Select                  ' expect: select member
WriteLine k.End           ' expect: end member
