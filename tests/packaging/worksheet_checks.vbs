' Checks of the macro module. Numbers are those of the tables in tests/data.
Dim checks, failures
checks = 0 : failures = 0

Sub Equal(what, got, expected)
  checks = checks + 1
  If got = expected And IsNumeric(got) = IsNumeric(expected) Then Exit Sub
  failures = failures + 1
  WScript.Echo what & ": " & got & " instead of " & expected
End Sub

Sub Near(what, got, expected)
  checks = checks + 1
  If VarType(got) = vbDouble Then
    If Abs(got - expected) <= 1e-8 * Abs(expected) Then Exit Sub
  End If
  failures = failures + 1
  WScript.Echo what & ": " & got & " instead of " & expected
End Sub

' The formula that follows stands in that cell of column A.
Sub At(row)
  Set Application.Caller = CellOf(Empty)
  Application.Caller.Row = row
End Sub

' What SteamWhy tells of a cell of the sheet that shows #N/A.
Function WhyAt(row, column)
  Dim cell
  Set cell = CellOf(NA)
  cell.Row = row
  cell.Column = column
  WhyAt = SteamWhy(cell)
End Function

' A script host that runs into an error would end without a word; this one goes on, and a check that
' was not made is missing from the count.
On Error Resume Next

Const NA = "error 2042"
Const unknown = "No function of Calvex has failed here, as the cell stands now. Ctrl+Alt+F9 calculates everything anew."

' Properties, in one function each and by name.
Near "SteamHPT", SteamHPT(3.2776, 635.28), 3137.45826150827
Near "SteamSPT", SteamSPT(3.2776, 635.28), 6.73948375976211
Near "cells are read", SteamHPT(CellOf(3.2776), CellOf(635.28)), 3137.45826150827
Near "by name", Steam("hpt", Array(3.2776, 635.28)), 3137.45826150827
Near "by the name in a cell", Steam(CellOf("SPT"), Array(3.2776, 635.28)), 6.73948375976211
Near "SteamTPH", SteamTPH(3.2776, 3137.45826150827), 635.28
Near "SteamTSatP", SteamTSatP(0.100206249895), 372.84
Near "SteamPSatT", SteamPSatT(372.84), 0.100206249895
Near "SteamHSatTQ", SteamHSatTQ(372.84, 1), 2675.23451875
Near "SteamXT", SteamXT(372.84), 0.0589775840945
Equal "constants are numbers", VarType(SteamCritT()), vbDouble
Near "the triple point's pressure boils at its temperature", SteamTSatP(SteamTripleP()), SteamTripleT()
Near "constants by name", Steam("CritT", Array()), SteamCritT()

' The saturation line decides, not its correlation, by which this is vapour.
Equal "above the boiling pressure", SteamPSatT(300) < 0.0035375, True
Near "is liquid", SteamVPT(0.0035375, 300), SteamVSatTQ(300, 0)

' Texts of numbers are read with the point, whatever the place of the machine.
Near "texts of numbers are numbers", SteamHPT("3.2776", " 635.28 "), 3137.45826150827
Near "with a power", SteamHPT("32776e-4", "+6.3528E+2"), 3137.45826150827
At 3
Equal "a comma is no point", SteamHPT("10,5", 500), NA
Equal "and says so", WhyAt(3, 1), "HPT: P is the text ""10,5"", which is no number with a point."
Equal "two points", SteamHPT("1.0.5", 500), NA
Equal "a unit behind it", SteamHPT("10 MPa", 500), NA
Equal "a sign alone", SteamHPT("-", 500), NA
Equal "a power alone", SteamHPT("e5", 500), NA
Equal "no power", SteamHPT("1e", 500), NA
Equal "a hexadecimal number", SteamHPT("&H10", 500), NA

' Several results make a row.
Dim row : row = SteamHVLTSat_PQ(0.100206249895, 0.25)
Near "saturated vapour in a row", row(1), 2675.23451875
Near "saturated liquid in a row", row(2), 417.755495099
Near "the wet enthalpy is between them", row(0), 0.25 * row(1) + 0.75 * row(2)
Near "boiling temperature in a row", row(3), 372.84

' A result array has the rows that its tokens name.
Dim table : table = SteamXLTurbineA(3137.45826150827, 3.2776, 0.100206249895, 0.8, 10, CellOf("Pow, H_Out"))
Equal "rows", UBound(table, 1), 1
Equal "columns", UBound(table, 2), 2
Equal "label", table(0, 0), "Turbine Power"
Near "the power is what the steam loses", table(0, 1), 10 * (3137.45826150827 - table(1, 1))
Equal "unit", table(1, 2), "kJ/kg"
table = Steam("XLTurbineA", Array(3137.45826150827, 3.2776, 0.100206249895, 0.8, 10, "H_Out"))
Equal "one row by name", UBound(table, 1), 0

' Ranges in, arrays out.
Dim many : many = SteamHPT(ColumnOf(Array(3.2776, 3.2776)), ColumnOf(Array(635.28, "635.28")))
Equal "as many rows", UBound(many, 1), 1
Equal "in one column", UBound(many, 2), 0
Near "the first", many(0, 0), 3137.45826150827
Near "the second", many(1, 0), 3137.45826150827
many = SteamHPT(ColumnOf(Array(3.2776, 1, 2)), Array(635.28, 700))
Equal "a column and a row: rows", UBound(many, 1), 2
Equal "a column and a row: columns", UBound(many, 2), 1
Near "their corner", many(0, 0), 3137.45826150827
Near "their other corner", many(2, 1), SteamHPT(2, 700)
At 10
many = SteamHPT(ColumnOf(Array(3.2776, -1, "ten", Empty, 3.2776)), 635.28)
Near "before a bad row", many(0, 0), 3137.45826150827
Equal "a bad row", many(1, 0), NA
Equal "a text", many(2, 0), NA
Equal "nothing", many(3, 0), NA
Near "behind a bad row", many(4, 0), 3137.45826150827
Equal "no reason for a good row", WhyAt(10, 1), unknown
Equal "the bad row's reason", InStr(WhyAt(11, 1), "HPT: Pressure"), 1
Equal "the text's reason", WhyAt(12, 1), "HPT: P is the text ""ten"", which is no number with a point."
Equal "the empty cell's reason", WhyAt(13, 1), "HPT: P is an empty cell."
many = SteamHVLTSat_PQ(ColumnOf(Array(0.100206249895, 0.1)), 0.25)
Equal "results beside a column", UBound(many, 2), 3
Near "of its first row", many(0, 1), 2675.23451875
Near "of its second", many(1, 3), SteamTSatP(0.1)
many = SteamHVLTSat_PQ(Array(0.100206249895, 2000), 0.25)
Equal "results below a row", UBound(many, 1), 3
Near "of its first column", many(1, 0), 2675.23451875
Equal "none of its second", many(3, 1), NA
Equal "that has a reason", InStr(WhyAt(13, 2), "HVLTSat_PQ: "), 1
Equal "several results of a table", SteamHVLTSat_PQ(ColumnOf(Array(0.1, 1)), Array(0.2, 0.3)), NA
many = SteamXLTurbineA(3137.45826150827, 3.2776, ColumnOf(Array(0.100206249895, 0.2)), 0.8, 10, "Pow, H_Out")
Near "result arrays of a column are numbers", many(0, 0), 10 * (3137.45826150827 - many(0, 1))

' A failed cell is an error value, and its reason is kept.
Const range = "HPT: Temperature parameter out of range (Valid range 260.00 to 2500.00 K)."
At 20
Equal "out of range", SteamHPT(10, 3000), NA
Equal "its reason", WhyAt(20, 1), range
Equal "another cell has none", WhyAt(21, 1), unknown
Equal "a cell with a value has none", SteamWhy(CellOf(12.5)), ""
Equal "an inner failure is the one that is told", SteamTPH(10, SteamHPT(10, 3000)), NA
Equal "its reason again", WhyAt(20, 1), range
Equal "the error of another cell goes on", SteamTPH(10, CellOf("error 2007")), "error 2007"
Equal "a success forgets its reason", VarType(SteamHPT(10, 500)), vbDouble
Equal "forgotten", WhyAt(20, 1), unknown
At 22
Application.Caller.Formula = "=SteamHPT(10,3000)"
Equal "a formula that fails", SteamHPT(10, 3000), NA
Equal "tells no reason of the formula that has come into its cell", WhyAt(22, 1), unknown
Equal "nor of an error that is gone", SteamWhy(Application.Caller), ""
Application.Caller.Value2 = NA
Equal "its own while the cell shows the error", SteamWhy(Application.Caller), range
At 20
Equal "no result array", SteamXLTurbineA(3137, 3, 0.1, 0.8, 10, "Eff"), NA
Equal "its reason too", WhyAt(20, 1), "XLTurbineA: Invalid Token!"
Equal "no row", SteamHVLTSat_PQ(0.1, 2), NA
Equal "the row's reason", WhyAt(20, 1), _
  "HVLTSat_PQ: Quality parameter out of range (Valid range 0.00 to 1.00 Fraction)."
Equal "an empty cell", SteamHPT(10, CellOf(Empty)), NA
Equal "says so", WhyAt(20, 1), "HPT: T is an empty cell."
Equal "a truth", SteamHPT(True, 500), NA
Equal "is no number", WhyAt(20, 1), "HPT: P is not a number."
Equal "an unknown name", Steam("HTP", Array(1, 2)), NA
Equal "its reason as well", WhyAt(20, 1), "Steam: there is no function HTP"
Equal "too few inputs", Steam("HPT", Array(10)), NA
Equal "which there must be", WhyAt(20, 1), "Steam: HPT takes P, T"
Equal "too many inputs", Steam("CritT", Array(10)), NA
Equal "where there are none", WhyAt(20, 1), "Steam: CritT takes no inputs"

' Units belong to a workbook.
Equal "a unit", SteamUnit("T"), "K"
theSheet.Parent.Names.Add "Calvex_Units", "=""T=C; P=bara"""
Equal "it is the unit", SteamUnit("T"), "C"
Near "it counts", SteamHPT(32.776, 635.28 - 273.15), 3137.45826150827
Equal "a reason has it", SteamHPT(1, 3000), NA
Equal "here", WhyAt(20, 1), "HPT: Temperature parameter out of range (Valid range -13.15 to 2226.85 C)."
Dim other : Set other = New Named
Set other.Parent = New Book
other.Parent.Name = "Other.xlsx"
other.Name = "Sheet1"
Set Application.Caller.Sheet = other
Near "another workbook has its own", SteamHPT(3.2776, 635.28), 3137.45826150827
Equal "those of the model", SteamUnit("P"), "MPa"
Equal "its cell has no reason of the first's", WhyAt(99, 1), unknown
At 20
Near "and the first has its own again", SteamHPT(32.776, 635.28 - 273.15), 3137.45826150827
Equal "somebody else in this program", theServer.SetUserUnit("P", "psia"), 1
Near "chooses for himself", SteamHPT(32.776, 635.28 - 273.15), 3137.45826150827
theServer.SetUserUnit "T", "K"
Set theServer = Nothing
Near "a server made anew has them", SteamHPT(32.776, 635.28 - 273.15), 3137.45826150827
theSheet.Parent.Names.Refer "Calvex_Units", CellOf("T=C")
Near "the name may refer to a cell", SteamHPT(3.2776, 635.28 - 273.15), 3137.45826150827
theSheet.Parent.Names.Refer "Calvex_Units", CellOf(Empty)
Equal "an empty one has none", SteamHPT(3.2776, 635.28), NA
Equal "which is said", WhyAt(20, 1), "HPT: Calvex_Units: ""?"" is not a quantity, a sign = and a unit."
theSheet.Parent.Names.Add "Calvex_Units", "=""T=furlong"""
Equal "no unit is not the model's", SteamHPT(3.2776, 635.28), NA
Equal "as it says", WhyAt(20, 1), "HPT: Calvex_Units: furlong is not a defined unit of T."
Set theSheet.Parent.Names = New NameList
Near "without the name the model's", SteamHPT(3.2776, 635.28), 3137.45826150827
Near "conversion", SteamConvert(100, "P", "psia", "bara"), 6.89476751
Near "conversion of a text", SteamConvert("100", "P", "psia", "bara"), 6.89476751
Equal "no conversion", SteamConvert(100, "P", "psia", "K"), NA
Equal "and why", WhyAt(20, 1), "SteamConvert: Cannot convert P from psia to K."
Equal "no quantity", SteamUnit("weather"), NA

' The trace learns which cell calls, in names that a reference can hold.
Dim reference
At 7
Near "a call by a cell", SteamHPT(3.2776, 635.28), 3137.45826150827
NameCell
Equal "the reference is set", theServer.GetCellRef(reference), Empty
Equal "the reference", reference, "'[Bob''s plant.xlsx]Sheet1'!A7"
Near "the call is made", SteamHPT(3.2776, 635.28), 3137.45826150827
theServer.GetCellRef reference
Equal "the reference was for that call", reference, ""
Application.Caller = "a button"
Near "a call by a macro", SteamHPT(3.2776, 635.28), 3137.45826150827
NameCell
theServer.GetCellRef reference
Equal "a macro is no cell", reference, ""
Equal "the application is named", SteamServer().AppName, "a spreadsheet"

' The macros.
SteamSetUnit "T", "C"
Equal "a unit is kept", ActiveWorkbook.Names.Item("Calvex_Units").RefersTo, "=""T=C"""
Equal "and counts", SteamUnit("T"), "C"
SteamSetUnit "Flow Rate", "te/h"
Equal "with the others", ActiveWorkbook.Names.Item("Calvex_Units").RefersTo, "=""T=C; Flow Rate=te/h"""
SteamSetUnit "T", "furlong"
Equal "an unknown one is an error", InStr(Err.Description, "furlong") > 0, True
Err.Clear
Set ActiveWorkbook.Names = New NameList
Application.Calculations = 0
Set theServer = New Dialogs
theServer.Answer = 2
ChooseSteamUnits
Equal "cancelled: nothing is calculated", Application.Calculations, 0
theServer.Answer = 1
ChooseSteamUnits
Equal "chosen: everything is", Application.Calculations, 1
Equal "and is kept", ActiveWorkbook.Names.Item("Calvex_Units").RefersTo, "=""T=F"""
Set ActiveWorkbook.Names = New NameList
ShowSteamTrace
Equal "closed: stay", Application.Shown, Empty
theServer.Answer = 999
ShowSteamTrace
Equal "a call chosen: go to its cell", Application.Shown, "range '[Plant.xlsx]Boiler'!B7"
ClearSteamTrace
Equal "cleared", theServer.Cleared, True
Equal "nothing to say", said, Empty
Set theServer = Nothing

' What is there when the workbook is opened.
Auto_Open
Equal "the menu", Application.CommandBars.Bar.Controls.Added.Caption, "Calvex"
Equal "its commands", Application.CommandBars.Bar.Controls.Added.Controls.Count, 5
Equal "the last of them", Application.CommandBars.Bar.Controls.Added.Controls.Added.OnAction, "InsertStateTable"
Dim described, inputs
described = Application.Described.Item("SteamHPT")
inputs = described(2)
Equal "texts for the wizard", Left(described(0), 39), "Enthalpy from pressure and temperature."
Equal "and for its inputs", inputs(1), _
  "Temperature, from 260 to 2500 K, or in the unit of the workbook."
described = Application.Described.Item("SteamTurbineA")
Equal "in a category", described(1), "Calvex equipment"
Equal "of all functions", Application.Described.Count > 150, True

' Tables.
Set ActiveCell = CellOf(Empty)
InsertSaturationTable
Equal "a formula of the table", ActiveCell.Offset(2, 1).Formula, "=SteamPSatT($A3)"
Equal "the last one", ActiveCell.Offset(38, 7).Formula, _
  "=SteamSSatTQ($A39,SteamConvert(1,""Q"",""Fraction"",SteamUnit(""Q"")))"
Equal "a temperature", ActiveCell.Offset(38, 0).Formula, "=SteamConvert(370,""T"",""C"",SteamUnit(""T""))"
Set written = CreateObject("Scripting.Dictionary")
ActiveCell.Offset(11, 2).Value2 = "mine"
said = Empty
InsertStateTable
Equal "no room for a table", Left(said, 46), "Select a cell with 12 empty rows and 3 empty c"
Equal "so nothing is written", IsEmpty(ActiveCell.Offset(2, 1).Formula), True
Set written = CreateObject("Scripting.Dictionary")
InsertStateTable
Equal "a formula of the state", ActiveCell.Offset(2, 1).Formula, "=SteamHPT(B1,B2)"
Equal "its unit", ActiveCell.Offset(2, 2).Formula, "=SteamUnit(""H"")"
Equal "its name", ActiveCell.Offset(2, 0).Value2, "enthalpy"

' No server.
At 30
Set theServer = Nothing
serverName = "Nothing.There"
Const missing = "The server is not registered for this Excel. Install Calvex for all users, or run register.cmd of the ZIP."
Equal "a cell without a server", SteamHPT(10, 500), NA
Equal "knows why", WhyAt(30, 1), "HPT: " & missing
Equal "a constant without a server", SteamCritT(), NA
Equal "a unit without a server", SteamUnit("T"), NA
ChooseSteamUnits
Equal "units without a server", said, missing
said = Empty
ShowSteamTrace
Equal "trace without a server", said, missing
said = Empty
ClearSteamTrace
Equal "clearing without a server", said, missing
Equal "the last error is dealt with", Err.Number, 0

If failures = 0 Then WScript.Echo checks & " checks passed" Else WScript.Quit 1
