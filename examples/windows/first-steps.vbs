' A property, a property from another pair, a saturation value, and the reason of a failure.
'
'   cscript //nologo first-steps.vbs
Option Explicit

Dim steam, h, s, t, hDry
Set steam = CreateObject("Calvex32.ZvCalvex.3")
WScript.Echo "Calvex " & steam.VersionStr

' A member's results come first, into variables of yours. The call itself answers 1, or 0 when there
' is no result. Inputs are in MPa and K until you choose other units.
Tell steam.HPT(h, 3.2776, 635.28), "Enthalpy at 3.2776 MPa and 635.28 K", h, "kJ/kg"
Tell steam.SPT(s, 3.2776, 635.28), "Entropy there", s, "kJ/(kg.K)"
Tell steam.TPH(t, 3.2776, h), "Temperature from pressure and enthalpy", t, "K"

Tell steam.TSatP(t, 0.100206249895), "Boiling temperature at 0.100206249895 MPa", t, "K"
Tell steam.HSatTQ(hDry, 372.84, 1), "Enthalpy of dry steam at 372.84 K", hDry, "kJ/kg"

' Here is no state of water: the call answers 0 and LastError says why.
Tell steam.HPT(h, 10, 3000), "Enthalpy at 10 MPa and 3000 K", h, "kJ/kg"

Sub Tell(succeeded, what, value, unit)
  If succeeded = 1 Then
    WScript.Echo what & ": " & Six(value) & " " & unit
  Else
    WScript.Echo what & ": " & steam.LastError
  End If
End Sub

' Rounded to six decimals.
Function Six(value)
  Six = Int(value * 1000000 + 0.5) / 1000000
End Function
