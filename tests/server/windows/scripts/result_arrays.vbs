' The spreadsheet members: arrays of label, value and unit.
Dim a, b, i
Const inletH = 2817.24632869232
Dim ideal, outletH
ideal = 417.755495099 + (6.67459716871144 - 1.30337902873) / (7.358198854 - 1.30337902873) * (2675.23451875 - 417.755495099)
outletH = inletH - 0.8 * (inletH - ideal)
Set steam = CreateObject("Calvex32.ZvCalvex.3")

ok = steam.XLTurbineA(inletH, 0.9934, 0.100206249895, 0.8, 10, "Pow, t_out; H_Out", a)
Check "XLTurbineA succeeds", ok, 1, 0
Check "an array of variants", VarType(a), vbArray + vbVariant, 0
Check "first row", LBound(a, 1), 0, 0
Check "last row", UBound(a, 1), 2, 0
Check "first column", LBound(a, 2), 0, 0
Check "last column", UBound(a, 2), 2, 0
Check "label 0", a(0, 0), "Turbine Power", 0
Check "value 0", a(0, 1), 10 * (inletH - outletH), 1E-6
Check "unit 0", a(0, 2), "kW", 0
Check "label 1", a(1, 0), "Outlet Temperature", 0
Check "value 1", a(1, 1), 372.84, 1E-8
Check "unit 1", a(1, 2), "K", 0
Check "label 2", a(2, 0), "Outlet Enthalpy", 0
Check "value 2", a(2, 1), outletH, 1E-7
Check "unit 2", a(2, 2), "kJ/kg", 0
Check "a value is a double", VarType(a(0, 1)), vbDouble, 0

' in the user's units, and of another length into the same variable
ok = steam.SetUserUnit("T", "C")
ok = steam.XLFlashVessel(5, 1000, 0.46975345809, "T_Vap", a)
Check "XLFlashVessel succeeds", ok, 1, 0
Check "one row", UBound(a, 1), 0, 0
Check "its temperature", a(0, 1), 422.68 - 273.15, 1E-7
Check "its unit", a(0, 2), "C", 0

' without labels and units there is a column of values
steam.ReturnModelTokens = 0
ok = steam.XLFlashVessel(5, 1000, 0.46975345809, "T_Vap T_Vap", a)
Check "two rows", UBound(a, 1), 1, 0
Check "two columns", UBound(a, 2), 1, 0
Check "value first", a(1, 0), 422.68 - 273.15, 1E-7
Check "then the unit", a(1, 1), "C", 0
steam.ReturnModelUnits = 0
ok = steam.XLFlashVessel(5, 1000, 0.46975345809, "T_Vap", a)
Check "one column", UBound(a, 2), 0, 0
Check "of the value", a(0, 0), 422.68 - 273.15, 1E-7

' a failure keeps the old array
ok = steam.XLFlashVessel(5, 1000, 0.46975345809, "T_Vap, Nonsense", a)
Check "an unknown token", ok, 0, 0
Check "its reason", steam.LastError, "Invalid Token!", 0
Check "the old array", a(0, 0), 422.68 - 273.15, 1E-7
ok = steam.XLFlashVessel(5, 1000, 0.46975345809, " ,;:", a)
Check "no tokens", ok, 0, 0
Check "its reason", steam.LastError, "No return tokens specified!", 0
b = "before"
ok = steam.XLFlashVessel(5, 1000, -1, "T_Vap", b)
Check "a model that fails", ok, 0, 0
Check "keeps what the variable held", b, "before", 0

' every token that separates rows by quantity, through a machine of two outlets
steam.ReturnModelTokens = 1
steam.ReturnModelUnits = 1
ok = steam.SetUserUnit("T", "K")
ok = steam.XLTurbineA2(inletH, 0.9934, 0.100206249895, 0.100206249895, 0.8, 0.7, 6, 4, "H_Out1,T_Out2,Pow", a)
Check "outlet 1", a(0, 0), "Outlet 1 Enthalpy", 0
Check "its enthalpy", a(0, 1), outletH, 1E-7
Check "outlet 2", a(1, 0), "Outlet 2 Temperature", 0
Check "its temperature", a(1, 1), 372.84, 1E-7
Check "power", a(2, 1), 10 * (inletH - outletH), 1E-6

' the alarms are the same at any time
b = steam.GetAlarms(a)
Check "alarm rows", UBound(a, 1), 2, 0
Check "alarm columns", UBound(a, 2), 1, 0
For i = 0 To 2
  Check "alarm name", a(i, 0), "Alarm Name" & i, 0
  Check "alarm message", a(i, 1), "Alarm Message", 0
Next

Finish 46
