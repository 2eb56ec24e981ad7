' What a workbook has and the script host lacks; the macro module follows, then its checks.
Option Explicit

' A range: of one cell, or of several by their values.
Class Cell
  Public Value2
  Public Formula
  Public Row
  Public Column
  Public Sheet
  Public Function Cells(down, right)
    Set Cells = Me
  End Function
  Public Function Worksheet()
    If IsObject(Sheet) Then Set Worksheet = Sheet Else Set Worksheet = theSheet
  End Function
  Public Function Address(absoluteRow, absoluteColumn)
    Address = Chr(64 + Column)
    If absoluteColumn Then Address = "$" & Address
    If absoluteRow Then Address = Address & "$"
    Address = Address & Row
  End Function
  Public Function Offset(down, right)
    Dim key
    key = (Row + down) & "," & (Column + right)
    If Not written.Exists(key) Then
      written.Add key, New Cell
      written(key).Row = Row + down
      written(key).Column = Column + right
    End If
    Set Offset = written(key)
  End Function
End Class

Class Named
  Public Name
  Public Parent
End Class

' The names of a workbook; a name is a text, or a cell.
Class NameList
  Private kept
  Private Sub Class_Initialize()
    Set kept = CreateObject("Scripting.Dictionary")
  End Sub
  Public Function Item(name)
    If Not kept.Exists(name) Then Err.Raise 1004, "a spreadsheet", "there is no such name"
    Set Item = kept(name)
  End Function
  Public Sub Add(name, refersTo)
    Dim added
    Set added = New DefinedName
    added.RefersTo = refersTo
    If kept.Exists(name) Then kept.Remove name
    kept.Add name, added
  End Sub
  Public Sub Refer(name, cell)
    Add name, "=Sheet1!$A$1"
    Set kept(name).RefersToRange = cell
  End Sub
End Class

Class DefinedName
  Public RefersTo
  Public RefersToRange
End Class

Class Book
  Public Name
  Public Names
  Private Sub Class_Initialize()
    Set Names = New NameList
  End Sub
End Class

Class Control
  Public Caption
  Public OnAction
  Public Controls
  Private Sub Class_Initialize()
    Set Controls = New ControlList
  End Sub
  Public Sub Delete()
    Err.Raise 5, "a spreadsheet", "there is no such control"
  End Sub
End Class

Class ControlList
  Public Added
  Public Count
  Public Function Add(kind, isTemporary)
    Set Added = New Control
    Set Add = Added
    Count = Count + 1
  End Function
  Public Function Item(name)
    Set Item = New Control
  End Function
End Class

Class BarList
  Public Bar
  Public Function Item(name)
    Set Item = Bar
  End Function
End Class

Class Host
  Public Name
  Public Caller
  Public Calculations
  Public Shown
  Public CommandBars
  Public Described
  Public Sub CalculateFull()
    Calculations = Calculations + 1
  End Sub
  Public Function Range(reference)
    Range = "range " & reference
  End Function
  Public Sub GoTo_(target)
    Shown = target
  End Sub
  Public Sub KeepOptions(macro, text, category, arguments)
    If Not IsObject(Described) Then Set Described = CreateObject("Scripting.Dictionary")
    Described.Add macro, Array(text, category, arguments)
  End Sub
End Class

' In the place of the server, for the dialogs.
Class Dialogs
  Public Answer
  Public Cleared
  Public Unit
  Public Function GetUserUnitIndex(number, unit_)
    Dim units
    units = ModelUnits()
    unit_ = units(number)
    If number = 0 And Unit <> "" Then unit_ = Unit
    GetUserUnitIndex = 1
  End Function
  Public Function SetUserUnitIndex(number, unit_)
    If number = 0 Then Unit = unit_
    SetUserUnitIndex = 1
  End Function
  Public Function ShowSelectUomDlg()
    If Answer = 1 Then Unit = "F"
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

Dim Application, ActiveWorkbook, ActiveCell, theSheet, said, serverName, written
serverName = "Calvex32.ZvCalvex.3"
Set written = CreateObject("Scripting.Dictionary")
Set Application = New Host
Set theSheet = New Named
Set theSheet.Parent = New Book
theSheet.Name = "Sheet1"
theSheet.Parent.Name = "Bob's plant.xlsx"
Set ActiveWorkbook = theSheet.Parent
Application.Name = "a spreadsheet"
Application.Caller = "a button"
Application.Calculations = 0
Set Application.CommandBars = New BarList
Set Application.CommandBars.Bar = New Control

Sub Say(text)
  said = text
End Sub
Function CVErr(number)
  CVErr = "error " & number
End Function
Function IsError(value)
  IsError = False
  If VarType(value) = vbString Then IsError = Left(value, 6) = "error "
End Function
Function Val(text)
  Val = CDbl(text)
End Function

Function CellOf(content)
  Set CellOf = New Cell
  CellOf.Value2 = content
  CellOf.Row = 1
  CellOf.Column = 1
End Function

' Values below each other, as a range has them: counted from 1.
Function ColumnOf(values)
  Dim rows, i
  ReDim rows(UBound(values), 0)
  For i = 0 To UBound(values)
    rows(i, 0) = values(i)
  Next
  Set ColumnOf = CellOf(rows)
End Function
