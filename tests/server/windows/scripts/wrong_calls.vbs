' Calls that the server cannot take are errors of the script, with automation's numbers.
Dim x, object
Set steam = CreateObject("Calvex32.ZvCalvex.3")
Check "the version's object", IsObject(steam), True, 0

' Automation's numbers reach a script as the numbers of its own errors.
Sub CheckError(name, number)
  Check name, Err.Number, number, 0
  Err.Clear
End Sub

On Error Resume Next
x = steam.HPX
CheckError "no such member", 438
ok = steam.HPT(x, 10)
CheckError "an argument too few", 450
ok = steam.HPT(x, 10, 773.15, 1)
CheckError "an argument too many", 450
x = "before"
ok = steam.HPT(x, "ten", 773.15)
CheckError "a text that is no number", 13
Check "nothing written", x, "before", 0
ok = steam.HPT(x, steam, 773.15)
CheckError "an object that is no number", 13
steam.SolverIter = "many"
CheckError "a text that is no number, put", 13
steam.SolverIter = 40000
CheckError "a number that does not fit", 6
Check "the setting stays", steam.SolverIter, 200, 0
steam.VersionStr = "5"
CheckError "a put of what is read only", 438
steam.HPT = 5
CheckError "a put of a method", 438
Check "no word of the engine about all that", steam.LastError, "", 0
ok = steam.hpt(x, "10", "773.15")
CheckError "texts that are numbers", 0
Check "work", x, 3374, 2E-5
ok = steam.HPT(x, 10, Empty)
Check "an empty variable is the number 0, no kelvin", ok, 0, 0

Finish 16
