' What a workbook has and the script host lacks; the macro module follows, then its checks.
Option Explicit

' A range of one cell.
Class Cell
  Public Value2
  Public Row
  Public Function Worksheet()
    Set Worksheet = theSheet
  End Function
  Public Function Address(absoluteRow, absoluteColumn)
    Address = "A" & Row
    If absoluteRow Or absoluteColumn Then Address = "$" & Address
  End Function
End Class

Class Named
  Public Name
  Public Parent
End Class

Class Host
  Public Name
  Public Caller
  Public Calculations
  Public Shown
  Public Sub CalculateFull()
    Calculations = Calculations + 1
  End Sub
  Public Function Range(reference)
    Range = "range " & reference
  End Function
  Public Sub GoTo_(target)
    Shown = target
  End Sub
End Class

' In the place of the server, for the dialogs.
Class Dialogs
  Public Answer
  Public Cleared
  Public Function ShowSelectUomDlg()
    ShowSelectUomDlg = Answer
  End Function
  Public Function ShowTraceDlg()
    ShowTraceDlg = Answer
  End Function
  Public Sub GetCellRef(reference)
    reference = "'[Plant.xlsx]Boiler'!B7"
  End Sub
  Public Sub ClearTraceInfo()
    Cleared = True
  End Sub
End Class

Dim Application, theSheet, said, serverName
serverName = "Calvex32.ZvCalvex.3"
Set Application = New Host
Set theSheet = New Named
Set theSheet.Parent = New Named
theSheet.Name = "Sheet1"
theSheet.Parent.Name = "Bob's plant.xlsx"
Application.Name = "a spreadsheet"
Application.Caller = "a button"
Application.Calculations = 0

Sub Say(text)
  said = text
End Sub
Function CVErr(number)
  CVErr = "error " & number
End Function

Function CellOf(content)
  Set CellOf = New Cell
  CellOf.Value2 = content
  CellOf.Row = 1
End Function
