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

' A script host that runs into an error would end without a word; this one goes on, and a check that
' was not made is missing from the count.
On Error Resume Next

' Properties, in one function each and by name.
Near "SteamHPT", SteamHPT(3.2776, 635.28), 3137.45826150827
Near "SteamSPT", SteamSPT(3.2776, 635.28), 6.73948375976211
Near "cells are read", SteamHPT(CellOf(3.2776), CellOf(635.28)), 3137.45826150827
Near "texts of numbers are numbers", SteamHPT("3.2776", "635.28"), 3137.45826150827
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
table = Empty

' Failures are texts that say why.
Const range = "#Calvex: Temperature parameter out of range (Valid range 260.00 to 2500.00 K)."
Equal "out of range", SteamHPT(10, 3000), range
Equal "a reason goes on from cell to cell", SteamHPT(10, CellOf(SteamTPH(10, CellOf(SteamHPT(10, 3000))))), range
Equal "a reason that ended is forgotten", VarType(SteamHPT(10, 500)), vbDouble
Equal "no result array", SteamXLTurbineA(3137, 3, 0.1, 0.8, 10, "Eff"), "#Calvex: Invalid Token!"
Equal "no row", SteamHVLTSat_PQ(0.1, 2), _
  "#Calvex: Quality parameter out of range (Valid range 0.00 to 1.00 Fraction)."
Equal "a text", SteamHPT("ten", 500), "#Calvex: P is not a number."
Equal "an empty cell", SteamHPT(10, CellOf(Empty)), "#Calvex: T is not a number."
Equal "several cells", SteamHPT(CellOf(Array(1, 2)), 500), "#Calvex: P is not a number."
Equal "an unknown name", Steam("HTP", Array(1, 2)), "#Calvex: there is no function HTP"
Equal "too few inputs", Steam("HPT", Array(10)), "#Calvex: HPT takes P, T"
Equal "too many inputs", Steam("CritT", Array(10)), "#Calvex: CritT takes no inputs"
Near "SteamNumber of a number", SteamNumber(CellOf(12.5)), 12.5
Equal "SteamNumber of a reason", SteamNumber(CellOf(range)), "error 2042"
Equal "SteamNumber of nothing", SteamNumber(CellOf(Empty)), "error 2042"

' Units.
Equal "a unit", SteamUnit("T"), "K"
Equal "another unit", SteamSetUnit(CellOf("Temperature"), CellOf("C")), "C"
Equal "it is the unit", SteamUnit("T"), "C"
Near "it counts", SteamHPT(3.2776, 635.28 - 273.15), 3137.45826150827
Equal "and back", SteamSetUnit("T", "K"), "K"
Equal "no unit", SteamSetUnit("P", "bar"), "#Calvex: bar is not a defined unit of P."
Near "conversion", SteamConvert(100, "P", "psia", "bara"), 6.89476751
Equal "no conversion", SteamConvert(100, "P", "psia", "K"), "#Calvex: Cannot convert P from psia to K."

' The trace learns which cell calls, in names that a reference can hold.
Dim reference
Set Application.Caller = CellOf(1)
Application.Caller.Row = 7
Asked
Equal "the reference is set", SteamServer().GetCellRef(reference), Empty
Equal "the reference", reference, "'[Bob''s plant.xlsx]Sheet1'!A7"
Near "the call is made", SteamHPT(3.2776, 635.28), 3137.45826150827
SteamServer().GetCellRef reference
Equal "the reference was for that call", reference, ""
Application.Caller = "a button"
Asked
SteamServer().GetCellRef reference
Equal "a macro is no cell", reference, ""
Equal "the application is named", SteamServer().AppName, "a spreadsheet"

' The macros.
Set theServer = New Dialogs
theServer.Answer = 2
ChooseSteamUnits
Equal "cancelled: nothing is calculated", Application.Calculations, 0
theServer.Answer = 1
ChooseSteamUnits
Equal "chosen: everything is", Application.Calculations, 1
ShowSteamTrace
Equal "closed: stay", Application.Shown, Empty
theServer.Answer = 999
ShowSteamTrace
Equal "a call chosen: go to its cell", Application.Shown, "range '[Plant.xlsx]Boiler'!B7"
ClearSteamTrace
Equal "cleared", theServer.Cleared, True
Equal "nothing to say", said, Empty

' No server.
Set theServer = Nothing
serverName = "Nothing.There"
Const missing = "The server is not registered for this Excel. Run register.cmd."
Equal "a cell without a server", SteamHPT(10, 500), "#Calvex: " & missing
Equal "a constant without a server", SteamCritT(), "#Calvex: " & missing
Equal "a unit without a server", SteamUnit("T"), "#Calvex: " & missing
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
