' Units of measure: chosen, read, converted, invented and refused.
Dim x, name
Set steam = CreateObject("Calvex32.ZvCalvex.3")

ok = steam.GetUserUnit("T", name)
Check "GetUserUnit succeeds", ok, 1, 0
Check "the unit before", name, "K", 0
ok = steam.GetUserUnitIndex(1, name)
Check "the unit by number", name, "MPa", 0

' 212 degrees Fahrenheit, the boiling point at 1 atm
ok = steam.SetUserUnit("Temperature", "F")
Check "SetUserUnit succeeds", ok, 1, 0
ok = steam.GetUserUnit("t", name)
Check "the unit after", name, "F", 0
ok = steam.SetUserUnitIndex(1, "bara")
Check "SetUserUnitIndex succeeds", ok, 1, 0
ok = steam.PSatT(x, 212)
Check "pressure of boiling water", x, 1.01325, 1E-3
ok = steam.TSatP(x, 1.01325)
Check "temperature of boiling water", x, 212, 1E-4
' the same saturated state as in K and MPa: 422.68 K, 0.46975345809 MPa
ok = steam.PSatT(x, (422.68 - 273.15) * 1.8 + 32)
Check "tabulated pressure", x, 4.6975345809, 1E-7
ok = steam.HPT(x, 9.934, (468.79 - 273.15) * 1.8 + 32)
Check "tabulated enthalpy", x, 2817.24632869232, 1E-7
Check "a constant in degrees Fahrenheit", steam.CritT, (647.126 - 273.15) * 1.8 + 32, 1E-9

' conversions need no chosen unit
ok = steam.Convert("P", "psig", "bara", 0, x)
Check "Convert succeeds", ok, 1, 0
Check "no gauge pressure", x, 1.01325, 1E-7
ok = steam.Convert("T", "C", "K", 25, x)
Check "25 degrees Celsius", x, 298.15, 1E-12

' superscripts are characters like any other
ok = steam.SetUserUnit("P", "N/m" & Chr(178))
Check "N/m2 with a superscript", ok, 1, 0
ok = steam.GetUserUnit("P", name)
Check "and back", name, "N/m" & Chr(178), 0
ok = steam.SetUserUnit("P", "bara")

' refusals leave unit and variable alone
ok = steam.SetUserUnit("temp", "C")
Check "unknown group", ok, 0, 0
Check "its reason", steam.LastError, "temp is not a defined unit group.", 0
ok = steam.SetUserUnit("P", "bar")
Check "unknown unit", ok, 0, 0
Check "its reason", steam.LastError, "bar is not a defined unit of P.", 0
ok = steam.SetUserUnitIndex(27, "K")
Check "unknown number", ok, 0, 0
Check "its reason", steam.LastError, "Illegal Units-Of-Measure group index.", 0
ok = steam.SetUserUnitIndex(0, "bara")
Check "unit of another group", steam.LastError, "bara is not a defined unit of group no. 0.", 0
x = "before"
ok = steam.Convert("P", "psia", "C", 1, x)
Check "no conversion", ok, 0, 0
Check "nothing written", x, "before", 0
Check "its reason", steam.LastError, "Cannot convert P from psia to C.", 0
ok = steam.GetUserUnit("P", name)
Check "the unit stays", name, "bara", 0

' units of the client's own, in units mode 3
steam.ClearTraceInfo
ok = steam.SetCustomUserUnitIndex(0, "dK", 0.1, -2731.5)
Check "not in this mode", ok, 0, 0
Check "without a word", steam.LastError, "", 0
steam.AppLevel = 3
ok = steam.SetCustomUserUnitIndex(0, "dK", 0.1, -2731.5)
Check "in mode 3", ok, 1, 0
ok = steam.GetUserUnit("T", name)
Check "its name", name, "dK", 0
ok = steam.HPT(x, 0.9934, 4687.9)
Check "tenths of a kelvin", x, 2817.24632869232, 1E-7

Finish 32
