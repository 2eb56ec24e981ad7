' Units of your own: every input and every result of a quantity is in the unit that is chosen.
'
'   cscript //nologo units.vbs
Option Explicit

Dim steam, h, unit, pressure
Set steam = CreateObject("Calvex32.ZvCalvex.3")

' A quantity goes by its name or its letter.
Tell steam.SetUserUnit("Temperature", "C"), "Temperatures in", "C"
Tell steam.SetUserUnit("P", "bara"), "Pressures in", "bara"
Tell steam.HPT(h, 9.934, 195.64), "Enthalpy at 9.934 bara and 195.64 C, kJ/kg", h

Tell steam.SetUserUnit("Enthalpy", "Btu/lb"), "Enthalpies in", "Btu/lb"
Tell steam.HPT(h, 9.934, 195.64), "The same, Btu/lb", h

Tell steam.GetUserUnit("T", unit), "The unit of temperatures", unit
Tell steam.Convert("Pressure", "psia", "bara", 100, pressure), "100 psia in bara", pressure

' Messages speak the chosen unit, too. A unit that is not there is refused.
Tell steam.HPT(h, 10, 3000), "Enthalpy at 3000 C", h
Tell steam.SetUserUnit("P", "bar"), "Pressures in", "bar"

Sub Tell(succeeded, what, value)
  If succeeded = 1 Then
    WScript.Echo what & ": " & Shown(value)
  Else
    WScript.Echo what & ": " & steam.LastError
  End If
End Sub

' A number rounded to six decimals.
Function Shown(value)
  Shown = value
  If IsNumeric(value) Then Shown = Int(value * 1000000 + 0.5) / 1000000
End Function
