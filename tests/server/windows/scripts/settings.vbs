' Settings: what is accepted, what is refused, and that all objects share them.
Dim other
Set steam = CreateObject("Calvex32.ZvCalvex.3")

' the defaults
Check "SolverTol", steam.SolverTol, 1E-9, 0
Check "SolverIter", steam.SolverIter, 200, 0
Check "TraceLevel", steam.TraceLevel, 0, 0
Check "SatPolish", steam.SatPolish, 1, 0
Check "FunctionCallTracing", steam.FunctionCallTracing, 1, 0
Check "MaxTraceSize", steam.MaxTraceSize, 1000, 0
Check "ReturnModelUnits", steam.ReturnModelUnits, 1, 0
Check "ReturnThermoUnits", steam.ReturnThermoUnits, 1, 0
Check "ReturnModelTokens", steam.ReturnModelTokens, 1, 0
Check "AppLevel", steam.AppLevel, 2, 0
Check "AppName", steam.AppName, "ZvCalvex", 0
Check "AppHelpFile", steam.AppHelpFile, "", 0
Check "UomHelpContext", VarType(steam.UomHelpContext), vbLong, 0
Check "LastError", steam.LastError, "", 0
Check "VersionStr", steam.VersionStr, "@CALVEX_VERSION@", 0
Check "the window handle is nothing", VarType(steam.hWnd), vbEmpty, 0

' A refused value is no error of the script: the setting keeps its value and LastError tells.
steam.SolverTol = 1E-7
Check "tolerance accepted", steam.SolverTol, 1E-7, 0
steam.SolverTol = 1E-6
Check "tolerance too wide", steam.SolverTol, 1E-7, 0
Check "its reason", steam.LastError, "Invalid solver tolerance specified.", 0
steam.ClearTraceInfo
Check "no error after clearing", steam.LastError, "", 0
steam.SolverTol = 1E-14
Check "tolerance too narrow", steam.SolverTol, 1E-7, 0
Check "its reason", steam.LastError, "Invalid solver tolerance specified.", 0

steam.SolverIter = 51
Check "51 iterations", steam.SolverIter, 51, 0
steam.SolverIter = 50
Check "50 iterations", steam.SolverIter, 51, 0
Check "its reason", steam.LastError, "Invalid number of solver iterations specified..", 0
steam.SolverIter = 9998
Check "9998 iterations", steam.SolverIter, 9998, 0
steam.SolverIter = 9999
Check "9999 iterations", steam.SolverIter, 9998, 0

steam.TraceLevel = 2
Check "level 2", steam.TraceLevel, 2, 0
steam.TraceLevel = 3
Check "level 3", steam.TraceLevel, 2, 0
Check "its reason", steam.LastError, "Invalid reporting level.", 0
steam.TraceLevel = -1
Check "level -1", steam.TraceLevel, 2, 0

steam.MaxTraceSize = 2
Check "trace of 2", steam.MaxTraceSize, 2, 0
steam.MaxTraceSize = 1
Check "trace of 1", steam.MaxTraceSize, 2, 0
Check "its reason", steam.LastError, "Illegal function trace list size.", 0

steam.ClearTraceInfo
steam.AppLevel = 4
Check "units mode 4", steam.AppLevel, 2, 0
Check "without a word", steam.LastError, "", 0
steam.AppLevel = 3
Check "units mode 3", steam.AppLevel, 3, 0

' numbers and texts as scripts have them
steam.SolverIter = "300"
Check "a number as a text", steam.SolverIter, 300, 0
steam.SolverIter = 301.5
Check "halves round to even", steam.SolverIter, 302, 0
steam.AppName = "Cycle of " & Chr(167) & " 7"
Check "a text", steam.AppName, "Cycle of " & Chr(167) & " 7", 0

' without tracing an error is lost
steam.FunctionCallTracing = 0
steam.ClearTraceInfo
steam.TraceLevel = 7
Check "level 7", steam.TraceLevel, 2, 0
Check "no record", steam.LastError, "", 0

' one engine serves all objects
Set other = CreateObject("Calvex32.ZvCalvex.3")
Check "the other object sees the setting", other.SolverIter, 302, 0
other.SolverIter = 77
Check "and this one the other's", steam.SolverIter, 77, 0

Finish 44
