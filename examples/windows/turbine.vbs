' A steam turbine: 10 kg/s from 3.2776 MPa and 635.28 K down to 0.100206249895 MPa at 80 %.
'
'   cscript //nologo turbine.vbs
Option Explicit

Dim steam, hIn, results, row
Set steam = CreateObject("Calvex32.ZvCalvex.3")

If steam.HPT(hIn, 3.2776, 635.28) = 0 Then Fail

' The XL members answer what their tokens name, one row each: label, value and unit.
If steam.XLTurbineA(hIn, 3.2776, 0.100206249895, 0.8, 10, "Pow, H_Out, T_Out, Q_Out", results) = 0 Then Fail
For row = 0 To UBound(results, 1)
  WScript.Echo results(row, 0) & ": " & Six(results(row, 1)) & " " & results(row, 2)
Next

' A token that the turbine does not have: no results at all, the array stays as it was.
If steam.XLTurbineA(hIn, 3.2776, 0.100206249895, 0.8, 10, "Pow, Eff", results) = 0 Then
  WScript.Echo "Pow, Eff: " & steam.LastError
  WScript.Echo "still " & UBound(results, 1) + 1 & " rows"
End If

Sub Fail()
  WScript.Echo steam.LastError
  WScript.Quit 1
End Sub

' Rounded to six decimals.
Function Six(value)
  Six = Int(value * 1000000 + 0.5) / 1000000
End Function
