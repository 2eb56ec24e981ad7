' Cell references, columns of the trace, errors of the client's own.
Dim text, x
Set steam = CreateObject("Calvex32.ZvCalvex.3")

' Before there are columns there is nothing to set: refused without an error of the script.
steam.SetCustomTraceText 0, "lost"
text = "before"
steam.GetCustomTraceText 0, text
Check "no column 0", text, "before", 0
steam.GetCellRef text
Check "no cell reference", text, "before", 0

steam.AddCustomTraceTitle "Case"
steam.AddCustomTraceTitle "Step"
steam.GetCustomTraceText 1, text
Check "a new column is empty", text, "", 0
steam.SetCustomTraceText 1, "seven"
steam.GetCustomTraceText 1, text
Check "column 1", text, "seven", 0
text = "before"
steam.GetCustomTraceText 2, text
Check "no column 2", text, "before", 0
steam.GetCustomTraceText -1, text
Check "no column -1", text, "before", 0
ok = steam.HPT(x, 10, 773.15)
steam.GetCustomTraceText 1, text
Check "a call takes the texts with it", text, "", 0

' two columns are no cell reference, three are
steam.SetCellRef "Book1.xls", "Sheet1", "A1"
text = "before"
steam.GetCellRef text
Check "two columns only", text, "before", 0
steam.SetupExcelTracing
steam.GetCellRef text
Check "no cell yet", text, "", 0
steam.SetCellRef "Book1.xls", "Sheet1", "A1"
steam.GetCellRef text
Check "the cell", text, "'[Book1.xls]Sheet1'!A1", 0
steam.GetCustomTraceText 2, text
Check "its third column", text, "A1", 0
ok = steam.HPT(x, 10, 773.15)
steam.GetCellRef text
Check "a call takes the cell with it", text, "", 0
steam.SetCellRef "Book1.xls", "", "A1"
steam.GetCellRef text
Check "no sheet, no cell", text, "", 0
steam.AddCustomTraceTitle "Fourth"
text = "before"
steam.GetCellRef text
Check "four columns", text, "before", 0

' errors
steam.AddExternalError "Pump P-101", "Suction is dry."
Check "an error of the client's own", steam.LastError, "Suction is dry.", 0
ok = steam.HPT(x, 10, 100)
Check "an error of the engine", steam.LastError, "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).", 0
ok = steam.HPT(x, 10, 773.15)
Check "stays after a success", steam.LastError, "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).", 0
steam.ClearTraceInfo
Check "until it is cleared", steam.LastError, "", 0
steam.FunctionCallTracing = 0
ok = steam.HPT(x, 10, 100)
Check "untraced errors are lost", steam.LastError, "", 0
steam.AddExternalError "Pump P-101", "Suction is dry."
Check "those of the client are not", steam.LastError, "Suction is dry.", 0

Finish 20
