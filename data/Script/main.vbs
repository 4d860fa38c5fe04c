' main.vbs: the macros loaded when Lathwick starts.
' Every Sub here appears in the Macro menu. LoadDoc runs after a document is
' created or loaded; SendTo runs from the send-to command.

Sub LoadDoc(FileName)
End Sub
