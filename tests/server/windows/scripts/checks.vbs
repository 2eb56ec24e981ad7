' Comes before each of the scripts: how they check and how they end.
Option Explicit
Dim steam, ok, passed, failed
passed = 0
failed = 0

Sub Check(name, got, expected, tolerance)
  Dim good
  If VarType(got) = vbString Or VarType(expected) = vbString Then
    good = VarType(got) = VarType(expected)
    If good Then good = got = expected
  Else
    good = Abs(got - expected) <= tolerance * Abs(expected)
  End If
  If good Then
    passed = passed + 1
  Else
    failed = failed + 1
    WScript.Echo "FAILED " & name & ": " & got & ", expected " & expected
  End If
End Sub

' A statement that an error skips checks nothing: the number of checks is part of the result.
Sub Finish(checks)
  If failed = 0 And passed = checks Then
    WScript.Echo passed & " checks passed"
    WScript.Quit 0
  End If
  WScript.Echo failed & " of " & checks & " checks failed, " & passed & " passed"
  WScript.Quit 1
End Sub

