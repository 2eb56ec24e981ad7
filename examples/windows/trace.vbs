' Who failed, where and why: the trace that a spreadsheet keeps. Ask for the dialog with
'
'   cscript //nologo trace.vbs show
Option Explicit

Dim steam, h, cell, unused
Set steam = CreateObject("Calvex32.ZvCalvex.3")

' The columns Book, Sheet and Cell. A reference holds for the next call.
steam.SetupExcelTracing
steam.SetCellRef "Plant.xlsx", "Boiler", "B7"
steam.GetCellRef cell
WScript.Echo "The next call is that of " & cell

unused = steam.HPT(h, 10, 3000)
WScript.Echo "HPT: " & steam.LastError
steam.GetCellRef cell
WScript.Echo "Afterwards the reference is [" & cell & "]"

' The next failure is another cell's.
steam.SetCellRef "Plant.xlsx", "Turbine", "C4"
unused = steam.XLTurbineA(3137.46, 5000, 0.1, 0.8, 10, "Pow", h)
WScript.Echo "XLTurbineA: " & steam.LastError

' Errors of your own stand beside those of the engine.
steam.SetCellRef "Plant.xlsx", "Header", "D2"
steam.AddExternalError "Header balance", "More steam leaves the header than enters it."
WScript.Echo "Own check: " & steam.LastError

If WScript.Arguments.Count > 0 Then steam.ShowTraceDlg

steam.ClearTraceInfo
WScript.Echo "Cleared: [" & steam.LastError & "]"
