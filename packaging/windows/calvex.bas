Attribute VB_Name = "Calvex"
' Calvex in Excel: properties of water and steam as worksheet functions.
'
' Import this file in the Visual Basic editor (Alt+F11; File, Import File). The server must have
' been registered; docs\windows.md says how. A cell whose function fails shows the reason,
' "#Calvex: ...".
Option Explicit

Private Const Mark As String = "#Calvex: "
Private theServer As Object

' The automation object, one for the workbook, for macros that call it themselves.
Public Function SteamServer() As Object
  If theServer Is Nothing Then
    Set theServer = CreateObject("Calvex32.ZvCalvex.3")
    theServer.AppName = Application.Name
    theServer.SetupExcelTracing
  End If
  Set SteamServer = theServer
End Function

' The same for a function of the worksheet: the trace is told which cell asks.
Private Function Asked() As Object
  Dim cell As Object
  Set Asked = SteamServer()
  If Not IsObject(Application.Caller) Then  ' a macro: the cell of an earlier call is not its own
    theServer.SetCellRef "", "", ""
    Exit Function
  End If
  Set cell = Application.Caller
  ' A quote in a name is doubled where the name itself stands in quotes, as it does in GetCellRef.
  theServer.SetCellRef Replace(cell.Worksheet.Parent.Name, "'", "''"), _
    Replace(cell.Worksheet.Name, "'", "''"), cell.Address(False, False)
End Function

' What a cell holds, or a value as it is.
Private Function Content(value)
  If IsObject(value) Then Content = value.Value2 Else Content = value
End Function

' A number that is given. An empty cell is none, and a cell that shows a reason hands it on.
Private Function Number(value, name)
  Dim given
  given = Content(value)
  If VarType(given) = vbString Then
    If Left(given, Len(Mark)) = Mark Then
      Err.Raise vbObjectError + 513, "Calvex", Mid(given, Len(Mark) + 1)
    End If
  End If
  If IsEmpty(given) Or VarType(given) = vbBoolean Or Not IsNumeric(given) Then
    Err.Raise vbObjectError + 513, "Calvex", name & " is not a number."
  End If
  Number = CDbl(given)
End Function

Private Function Text(value)
  Text = CStr(Content(value))
End Function

' The answer of a call, or the reason why there is none.
Private Function Outcome(ok, answer)
  If Err.Number <> 0 Then
    Outcome = Mark & Reason()
  ElseIf ok = 0 Then
    Outcome = Mark & theServer.LastError
  Else
    Outcome = answer
  End If
End Function

Private Function Reason()
  Reason = Err.Description
  If Err.Number = 429 Then Reason = "The server is not registered for this Excel. Run register.cmd."
  Err.Clear
End Function

' The number, or #N/A where a cell shows a reason: SUM, AVERAGE and their like skip texts.
Public Function SteamNumber(Value)
  Dim given
  given = Content(Value)
  If IsEmpty(given) Or VarType(given) = vbBoolean Or Not IsNumeric(given) Then
    SteamNumber = CVErr(2042)
  Else
    SteamNumber = CDbl(given)
  End If
End Function

' --- Units. They hold for all cells; a cell that was calculated before keeps its number until it is
' calculated again (Ctrl+Alt+F9).

Public Function SteamUnit(Group)
  Dim ok, unit
  On Error Resume Next
  ok = Asked().GetUserUnit(Text(Group), unit)
  SteamUnit = Outcome(ok, unit)
End Function

Public Function SteamSetUnit(Group, Unit)
  Dim ok, chosen
  On Error Resume Next
  chosen = Text(Unit)
  ok = Asked().SetUserUnit(Text(Group), chosen)
  SteamSetUnit = Outcome(ok, chosen)
End Function

Public Function SteamConvert(Value, Group, FromUnit, ToUnit)
  Dim ok, converted
  On Error Resume Next
  ok = Asked().Convert(Text(Group), Text(FromUnit), Text(ToUnit), Number(Value, "Value"), converted)
  SteamConvert = Outcome(ok, converted)
End Function

' --- Macros (Alt+F8).

Public Sub ChooseSteamUnits()
  Dim result
  On Error Resume Next
  result = SteamServer().ShowSelectUomDlg()
  If Err.Number <> 0 Then MsgBox Reason(): Exit Sub
  If result = 1 Then Application.CalculateFull
End Sub

' Shows the failed calls. A double click on one goes to its cell.
Public Sub ShowSteamTrace()
  Dim result, cell
  On Error Resume Next
  result = SteamServer().ShowTraceDlg()
  If result = 999 Then
    theServer.GetCellRef cell
    If cell <> "" Then Application.Goto Application.Range(cell)
  End If
  If Err.Number <> 0 Then MsgBox Reason()
End Sub

Public Sub ClearSteamTrace()
  On Error Resume Next
  SteamServer().ClearTraceInfo
  If Err.Number <> 0 Then MsgBox Reason()
End Sub

' From here on: Made by scripts/update-generated from the product's tables.

' What a member answers, by its name: =Steam("HPT", A1, B1).
Public Function Steam(Member, ParamArray X() As Variant)
  Dim inputs
  Select Case UCase(Text(Member))
  Case "MOLWEIGHT"
    If UBound(X) = -1 Then Steam = SteamMolWeight(): Exit Function
    inputs = "no inputs"
  Case "CRITT"
    If UBound(X) = -1 Then Steam = SteamCritT(): Exit Function
    inputs = "no inputs"
  Case "CRITP"
    If UBound(X) = -1 Then Steam = SteamCritP(): Exit Function
    inputs = "no inputs"
  Case "CRITV"
    If UBound(X) = -1 Then Steam = SteamCritV(): Exit Function
    inputs = "no inputs"
  Case "CRITR"
    If UBound(X) = -1 Then Steam = SteamCritR(): Exit Function
    inputs = "no inputs"
  Case "CRITZ"
    If UBound(X) = -1 Then Steam = SteamCritZ(): Exit Function
    inputs = "no inputs"
  Case "TRIPLET"
    If UBound(X) = -1 Then Steam = SteamTripleT(): Exit Function
    inputs = "no inputs"
  Case "TRIPLEP"
    If UBound(X) = -1 Then Steam = SteamTripleP(): Exit Function
    inputs = "no inputs"
  Case "PSATT"
    If UBound(X) = 0 Then Steam = SteamPSatT(X(0)): Exit Function
    inputs = "T"
  Case "TSATP"
    If UBound(X) = 0 Then Steam = SteamTSatP(X(0)): Exit Function
    inputs = "P"
  Case "HSATTQ"
    If UBound(X) = 1 Then Steam = SteamHSatTQ(X(0), X(1)): Exit Function
    inputs = "T, Q"
  Case "HSATPQ"
    If UBound(X) = 1 Then Steam = SteamHSatPQ(X(0), X(1)): Exit Function
    inputs = "P, Q"
  Case "SSATTQ"
    If UBound(X) = 1 Then Steam = SteamSSatTQ(X(0), X(1)): Exit Function
    inputs = "T, Q"
  Case "SSATPQ"
    If UBound(X) = 1 Then Steam = SteamSSatPQ(X(0), X(1)): Exit Function
    inputs = "P, Q"
  Case "USATTQ"
    If UBound(X) = 1 Then Steam = SteamUSatTQ(X(0), X(1)): Exit Function
    inputs = "T, Q"
  Case "USATPQ"
    If UBound(X) = 1 Then Steam = SteamUSatPQ(X(0), X(1)): Exit Function
    inputs = "P, Q"
  Case "RSATTQ"
    If UBound(X) = 1 Then Steam = SteamRSatTQ(X(0), X(1)): Exit Function
    inputs = "T, Q"
  Case "RSATPQ"
    If UBound(X) = 1 Then Steam = SteamRSatPQ(X(0), X(1)): Exit Function
    inputs = "P, Q"
  Case "PTH"
    If UBound(X) = 1 Then Steam = SteamPTH(X(0), X(1)): Exit Function
    inputs = "T, H"
  Case "PTS"
    If UBound(X) = 1 Then Steam = SteamPTS(X(0), X(1)): Exit Function
    inputs = "T, S"
  Case "PTU"
    If UBound(X) = 1 Then Steam = SteamPTU(X(0), X(1)): Exit Function
    inputs = "T, U"
  Case "PTR"
    If UBound(X) = 1 Then Steam = SteamPTR(X(0), X(1)): Exit Function
    inputs = "T, R"
  Case "PTV"
    If UBound(X) = 1 Then Steam = SteamPTV(X(0), X(1)): Exit Function
    inputs = "T, V"
  Case "TPH"
    If UBound(X) = 1 Then Steam = SteamTPH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "TPS"
    If UBound(X) = 1 Then Steam = SteamTPS(X(0), X(1)): Exit Function
    inputs = "P, S"
  Case "TPU"
    If UBound(X) = 1 Then Steam = SteamTPU(X(0), X(1)): Exit Function
    inputs = "P, U"
  Case "TPR"
    If UBound(X) = 1 Then Steam = SteamTPR(X(0), X(1)): Exit Function
    inputs = "P, R"
  Case "TPV"
    If UBound(X) = 1 Then Steam = SteamTPV(X(0), X(1)): Exit Function
    inputs = "P, V"
  Case "HPT"
    If UBound(X) = 1 Then Steam = SteamHPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "HPTQ"
    If UBound(X) = 2 Then Steam = SteamHPTQ(X(0), X(1), X(2)): Exit Function
    inputs = "P, T, Q"
  Case "HPS"
    If UBound(X) = 1 Then Steam = SteamHPS(X(0), X(1)): Exit Function
    inputs = "P, S"
  Case "HPU"
    If UBound(X) = 1 Then Steam = SteamHPU(X(0), X(1)): Exit Function
    inputs = "P, U"
  Case "HPR"
    If UBound(X) = 1 Then Steam = SteamHPR(X(0), X(1)): Exit Function
    inputs = "P, R"
  Case "HPV"
    If UBound(X) = 1 Then Steam = SteamHPV(X(0), X(1)): Exit Function
    inputs = "P, V"
  Case "HTS"
    If UBound(X) = 1 Then Steam = SteamHTS(X(0), X(1)): Exit Function
    inputs = "T, S"
  Case "HTU"
    If UBound(X) = 1 Then Steam = SteamHTU(X(0), X(1)): Exit Function
    inputs = "T, U"
  Case "HTR"
    If UBound(X) = 1 Then Steam = SteamHTR(X(0), X(1)): Exit Function
    inputs = "T, R"
  Case "HTV"
    If UBound(X) = 1 Then Steam = SteamHTV(X(0), X(1)): Exit Function
    inputs = "T, V"
  Case "SPT"
    If UBound(X) = 1 Then Steam = SteamSPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "SPH"
    If UBound(X) = 1 Then Steam = SteamSPH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "SPU"
    If UBound(X) = 1 Then Steam = SteamSPU(X(0), X(1)): Exit Function
    inputs = "P, U"
  Case "SPR"
    If UBound(X) = 1 Then Steam = SteamSPR(X(0), X(1)): Exit Function
    inputs = "P, R"
  Case "SPV"
    If UBound(X) = 1 Then Steam = SteamSPV(X(0), X(1)): Exit Function
    inputs = "P, V"
  Case "STH"
    If UBound(X) = 1 Then Steam = SteamSTH(X(0), X(1)): Exit Function
    inputs = "T, H"
  Case "STU"
    If UBound(X) = 1 Then Steam = SteamSTU(X(0), X(1)): Exit Function
    inputs = "T, U"
  Case "STR"
    If UBound(X) = 1 Then Steam = SteamSTR(X(0), X(1)): Exit Function
    inputs = "T, R"
  Case "STV"
    If UBound(X) = 1 Then Steam = SteamSTV(X(0), X(1)): Exit Function
    inputs = "T, V"
  Case "UPT"
    If UBound(X) = 1 Then Steam = SteamUPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "UPH"
    If UBound(X) = 1 Then Steam = SteamUPH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "UPS"
    If UBound(X) = 1 Then Steam = SteamUPS(X(0), X(1)): Exit Function
    inputs = "P, S"
  Case "UPR"
    If UBound(X) = 1 Then Steam = SteamUPR(X(0), X(1)): Exit Function
    inputs = "P, R"
  Case "UPV"
    If UBound(X) = 1 Then Steam = SteamUPV(X(0), X(1)): Exit Function
    inputs = "P, V"
  Case "UTH"
    If UBound(X) = 1 Then Steam = SteamUTH(X(0), X(1)): Exit Function
    inputs = "T, H"
  Case "UTS"
    If UBound(X) = 1 Then Steam = SteamUTS(X(0), X(1)): Exit Function
    inputs = "T, S"
  Case "UTR"
    If UBound(X) = 1 Then Steam = SteamUTR(X(0), X(1)): Exit Function
    inputs = "T, R"
  Case "UTV"
    If UBound(X) = 1 Then Steam = SteamUTV(X(0), X(1)): Exit Function
    inputs = "T, V"
  Case "RPT"
    If UBound(X) = 1 Then Steam = SteamRPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "RPH"
    If UBound(X) = 1 Then Steam = SteamRPH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "RPS"
    If UBound(X) = 1 Then Steam = SteamRPS(X(0), X(1)): Exit Function
    inputs = "P, S"
  Case "RPU"
    If UBound(X) = 1 Then Steam = SteamRPU(X(0), X(1)): Exit Function
    inputs = "P, U"
  Case "RTH"
    If UBound(X) = 1 Then Steam = SteamRTH(X(0), X(1)): Exit Function
    inputs = "T, H"
  Case "RTS"
    If UBound(X) = 1 Then Steam = SteamRTS(X(0), X(1)): Exit Function
    inputs = "T, S"
  Case "RTU"
    If UBound(X) = 1 Then Steam = SteamRTU(X(0), X(1)): Exit Function
    inputs = "T, U"
  Case "VPT"
    If UBound(X) = 1 Then Steam = SteamVPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "VPH"
    If UBound(X) = 1 Then Steam = SteamVPH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "VPS"
    If UBound(X) = 1 Then Steam = SteamVPS(X(0), X(1)): Exit Function
    inputs = "P, S"
  Case "VPU"
    If UBound(X) = 1 Then Steam = SteamVPU(X(0), X(1)): Exit Function
    inputs = "P, U"
  Case "VTH"
    If UBound(X) = 1 Then Steam = SteamVTH(X(0), X(1)): Exit Function
    inputs = "T, H"
  Case "VTS"
    If UBound(X) = 1 Then Steam = SteamVTS(X(0), X(1)): Exit Function
    inputs = "T, S"
  Case "VTU"
    If UBound(X) = 1 Then Steam = SteamVTU(X(0), X(1)): Exit Function
    inputs = "T, U"
  Case "QPH"
    If UBound(X) = 1 Then Steam = SteamQPH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "QPS"
    If UBound(X) = 1 Then Steam = SteamQPS(X(0), X(1)): Exit Function
    inputs = "P, S"
  Case "QPU"
    If UBound(X) = 1 Then Steam = SteamQPU(X(0), X(1)): Exit Function
    inputs = "P, U"
  Case "QPR"
    If UBound(X) = 1 Then Steam = SteamQPR(X(0), X(1)): Exit Function
    inputs = "P, R"
  Case "QPV"
    If UBound(X) = 1 Then Steam = SteamQPV(X(0), X(1)): Exit Function
    inputs = "P, V"
  Case "QTH"
    If UBound(X) = 1 Then Steam = SteamQTH(X(0), X(1)): Exit Function
    inputs = "T, H"
  Case "QTS"
    If UBound(X) = 1 Then Steam = SteamQTS(X(0), X(1)): Exit Function
    inputs = "T, S"
  Case "QTU"
    If UBound(X) = 1 Then Steam = SteamQTU(X(0), X(1)): Exit Function
    inputs = "T, U"
  Case "QTR"
    If UBound(X) = 1 Then Steam = SteamQTR(X(0), X(1)): Exit Function
    inputs = "T, R"
  Case "QTV"
    If UBound(X) = 1 Then Steam = SteamQTV(X(0), X(1)): Exit Function
    inputs = "T, V"
  Case "APT"
    If UBound(X) = 1 Then Steam = SteamAPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "APH"
    If UBound(X) = 1 Then Steam = SteamAPH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "APS"
    If UBound(X) = 1 Then Steam = SteamAPS(X(0), X(1)): Exit Function
    inputs = "P, S"
  Case "APU"
    If UBound(X) = 1 Then Steam = SteamAPU(X(0), X(1)): Exit Function
    inputs = "P, U"
  Case "APR"
    If UBound(X) = 1 Then Steam = SteamAPR(X(0), X(1)): Exit Function
    inputs = "P, R"
  Case "APV"
    If UBound(X) = 1 Then Steam = SteamAPV(X(0), X(1)): Exit Function
    inputs = "P, V"
  Case "ATH"
    If UBound(X) = 1 Then Steam = SteamATH(X(0), X(1)): Exit Function
    inputs = "T, H"
  Case "ATS"
    If UBound(X) = 1 Then Steam = SteamATS(X(0), X(1)): Exit Function
    inputs = "T, S"
  Case "ATU"
    If UBound(X) = 1 Then Steam = SteamATU(X(0), X(1)): Exit Function
    inputs = "T, U"
  Case "ATR"
    If UBound(X) = 1 Then Steam = SteamATR(X(0), X(1)): Exit Function
    inputs = "T, R"
  Case "ATV"
    If UBound(X) = 1 Then Steam = SteamATV(X(0), X(1)): Exit Function
    inputs = "T, V"
  Case "GPT"
    If UBound(X) = 1 Then Steam = SteamGPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "GPH"
    If UBound(X) = 1 Then Steam = SteamGPH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "GPS"
    If UBound(X) = 1 Then Steam = SteamGPS(X(0), X(1)): Exit Function
    inputs = "P, S"
  Case "GPU"
    If UBound(X) = 1 Then Steam = SteamGPU(X(0), X(1)): Exit Function
    inputs = "P, U"
  Case "GPR"
    If UBound(X) = 1 Then Steam = SteamGPR(X(0), X(1)): Exit Function
    inputs = "P, R"
  Case "GPV"
    If UBound(X) = 1 Then Steam = SteamGPV(X(0), X(1)): Exit Function
    inputs = "P, V"
  Case "GTH"
    If UBound(X) = 1 Then Steam = SteamGTH(X(0), X(1)): Exit Function
    inputs = "T, H"
  Case "GTS"
    If UBound(X) = 1 Then Steam = SteamGTS(X(0), X(1)): Exit Function
    inputs = "T, S"
  Case "GTU"
    If UBound(X) = 1 Then Steam = SteamGTU(X(0), X(1)): Exit Function
    inputs = "T, U"
  Case "GTR"
    If UBound(X) = 1 Then Steam = SteamGTR(X(0), X(1)): Exit Function
    inputs = "T, R"
  Case "GTV"
    If UBound(X) = 1 Then Steam = SteamGTV(X(0), X(1)): Exit Function
    inputs = "T, V"
  Case "MPT"
    If UBound(X) = 1 Then Steam = SteamMPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "KPT"
    If UBound(X) = 1 Then Steam = SteamKPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "CPT"
    If UBound(X) = 1 Then Steam = SteamCPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "DPT"
    If UBound(X) = 1 Then Steam = SteamDPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "ZPT"
    If UBound(X) = 1 Then Steam = SteamZPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "WPT"
    If UBound(X) = 1 Then Steam = SteamWPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "NPT"
    If UBound(X) = 1 Then Steam = SteamNPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "EPT"
    If UBound(X) = 1 Then Steam = SteamEPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "IPT"
    If UBound(X) = 1 Then Steam = SteamIPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "JPT"
    If UBound(X) = 1 Then Steam = SteamJPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "BPT"
    If UBound(X) = 1 Then Steam = SteamBPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "LPT"
    If UBound(X) = 1 Then Steam = SteamLPT(X(0), X(1)): Exit Function
    inputs = "P, T"
  Case "XT"
    If UBound(X) = 0 Then Steam = SteamXT(X(0)): Exit Function
    inputs = "T"
  Case "TURBINEA"
    If UBound(X) = 4 Then Steam = SteamTurbineA(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "HIn, PIn, POut, Eff, MIn"
  Case "TURBINEB"
    If UBound(X) = 4 Then Steam = SteamTurbineB(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "HIn, PIn, POut, Eff, Power"
  Case "TURBINEA2"
    If UBound(X) = 7 Then Steam = SteamTurbineA2(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1"
  Case "TURBINEB2"
    If UBound(X) = 7 Then Steam = SteamTurbineB2(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1"
  Case "TURBINEA3"
    If UBound(X) = 10 Then Steam = SteamTurbineA3(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8), X(9), X(10)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2"
  Case "TURBINEB3"
    If UBound(X) = 10 Then Steam = SteamTurbineB3(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8), X(9), X(10)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2"
  Case "COMPRESSORA"
    If UBound(X) = 4 Then Steam = SteamCompressorA(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "HIn, PIn, POut, Eff, MIn"
  Case "COMPRESSORB"
    If UBound(X) = 4 Then Steam = SteamCompressorB(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "HIn, PIn, POut, Eff, Power"
  Case "COMPRESSORA2"
    If UBound(X) = 7 Then Steam = SteamCompressorA2(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1"
  Case "COMPRESSORB2"
    If UBound(X) = 7 Then Steam = SteamCompressorB2(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1"
  Case "DEAERATOR"
    If UBound(X) = 4 Then Steam = SteamDeAerator(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "POp, Hs, Tw, Md, MRatio"
  Case "DESUPERHEATER"
    If UBound(X) = 4 Then Steam = SteamDeSuperHeater(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "HIn, Hw, POp, TOp, MIn"
  Case "LETDOWNVALVE"
    If UBound(X) = 2 Then Steam = SteamLetDownValve(X(0), X(1), X(2)): Exit Function
    inputs = "HIn, PIn, POut"
  Case "BOILER"
    If UBound(X) = 4 Then Steam = SteamBoiler(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "HIn, Mout, TOut, POut, BRatio"
  Case "FLASHVESSEL"
    If UBound(X) = 2 Then Steam = SteamFlashVessel(X(0), X(1), X(2)): Exit Function
    inputs = "MIn, HIn, POp"
  Case "XLTURBINEA"
    If UBound(X) = 5 Then Steam = SteamXLTurbineA(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, PIn, POut, Eff, MIn, strTokens"
  Case "XLTURBINEB"
    If UBound(X) = 5 Then Steam = SteamXLTurbineB(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, PIn, POut, Eff, Power, strTokens"
  Case "XLTURBINEA2"
    If UBound(X) = 8 Then Steam = SteamXLTurbineA2(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1, strTokens"
  Case "XLTURBINEB2"
    If UBound(X) = 8 Then Steam = SteamXLTurbineB2(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1, strTokens"
  Case "XLTURBINEA3"
    If UBound(X) = 11 Then Steam = SteamXLTurbineA3(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8), X(9), X(10), X(11)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2, strTokens"
  Case "XLTURBINEB3"
    If UBound(X) = 11 Then Steam = SteamXLTurbineB3(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8), X(9), X(10), X(11)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2, strTokens"
  Case "XLCOMPRESSORA"
    If UBound(X) = 5 Then Steam = SteamXLCompressorA(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, PIn, POut, Eff, MIn, strTokens"
  Case "XLCOMPRESSORB"
    If UBound(X) = 5 Then Steam = SteamXLCompressorB(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, PIn, POut, Eff, Power, strTokens"
  Case "XLCOMPRESSORA2"
    If UBound(X) = 8 Then Steam = SteamXLCompressorA2(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1, strTokens"
  Case "XLCOMPRESSORB2"
    If UBound(X) = 8 Then Steam = SteamXLCompressorB2(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8)): Exit Function
    inputs = "HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1, strTokens"
  Case "XLDEAERATOR"
    If UBound(X) = 5 Then Steam = SteamXLDeAerator(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "POp, Hs, Tw, Md, MRatio, strTokens"
  Case "XLDESUPERHEATER"
    If UBound(X) = 5 Then Steam = SteamXLDeSuperHeater(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, Hw, POp, TOp, MIn, strTokens"
  Case "XLLETDOWNVALVE"
    If UBound(X) = 3 Then Steam = SteamXLLetDownValve(X(0), X(1), X(2), X(3)): Exit Function
    inputs = "HIn, PIn, POut, strTokens"
  Case "XLBOILER"
    If UBound(X) = 5 Then Steam = SteamXLBoiler(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, Mout, TOut, POut, BRatio, strTokens"
  Case "XLFLASHVESSEL"
    If UBound(X) = 3 Then Steam = SteamXLFlashVessel(X(0), X(1), X(2), X(3)): Exit Function
    inputs = "MIn, HIn, POp, strTokens"
  Case "XLGASTURBINEA"
    If UBound(X) = 10 Then Steam = SteamXLGasTurbineA(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8), X(9), X(10)): Exit Function
    inputs = "GTPower, FPRatio, AirTemp, ExhaustTemp, SteamPress, SteamTemp, BFWTemp, SteamDemand, DTMin, MinO2Stack, strTokens"
  Case "XLTHERMOCOMPRESSORA"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompressorA(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "MSP, MST, MSF, SSP, SST, SSF, strTokens"
  Case "XLTHERMOCOMPRESSORB"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompressorB(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "MSP, MST, SSP, SST, DSP, HXDuty, strTokens"
  Case "XLTHERMOCOMPRESSORC"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompressorC(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "MSP, MST, SSP, SST, DSP, DSF, strTokens"
  Case "XLTHERMOCOMPRESSORD"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompressorD(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "MSP, MST, SSP, SST, DSP, SSF, strTokens"
  Case "XLTHERMOCOMPRESSORE"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompressorE(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "MSP, MST, SSP, SST, DSP, MSF, strTokens"
  Case "XLTHERMOCOMPRESSORF"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompressorF(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "MSP, MST, SSP, SST, SSF, HXDuty, strTokens"
  Case "XLTHERMOCOMPRESSORG"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompressorG(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "MSP, MST, SSP, SST, MSF, HXDuty, strTokens"
  Case "XLHEATEXCHANGERA"
    If UBound(X) = 13 Then Steam = SteamXLHeatExchangerA(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8), X(9), X(10), X(11), X(12), X(13)): Exit Function
    inputs = "ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, ColdTempOut, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut, strTokens"
  Case "XLHEATEXCHANGERB"
    If UBound(X) = 13 Then Steam = SteamXLHeatExchangerB(X(0), X(1), X(2), X(3), X(4), X(5), X(6), X(7), X(8), X(9), X(10), X(11), X(12), X(13)): Exit Function
    inputs = "ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, HXDuty, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut, strTokens"
  Case "QT_PH"
    If UBound(X) = 1 Then Steam = SteamQT_PH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "HVLTSAT_PQ"
    If UBound(X) = 1 Then Steam = SteamHVLTSat_PQ(X(0), X(1)): Exit Function
    inputs = "P, Q"
  Case "QTS_PH"
    If UBound(X) = 1 Then Steam = SteamQTS_PH(X(0), X(1)): Exit Function
    inputs = "P, H"
  Case "DESUPERHEATERB"
    If UBound(X) = 4 Then Steam = SteamDeSuperHeaterB(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "HIn, Hw, POp, TOp, Mout"
  Case "XLDESUPERHEATERB"
    If UBound(X) = 5 Then Steam = SteamXLDeSuperHeaterB(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, Hw, POp, TOp, Mout, strTokens"
  Case "TURBINEE"
    If UBound(X) = 5 Then Steam = SteamTurbineE(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, PIn, POut, Eff, MIn, SIn"
  Case "XLTURBINEE"
    If UBound(X) = 6 Then Steam = SteamXLTurbineE(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "HIn, PIn, POut, Eff, MIn, SIn, strTokens"
  Case "SOLVEPOLY5"
    If UBound(X) = 6 Then Steam = SteamSolvePoly5(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "a, b, c, d, e, f, T1"
  Case "WATERPUMP"
    If UBound(X) = 4 Then Steam = SteamWaterPump(X(0), X(1), X(2), X(3), X(4)): Exit Function
    inputs = "HIn, PIn, POut, m, Eff"
  Case "XLWATERPUMP"
    If UBound(X) = 5 Then Steam = SteamXLWaterPump(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, PIn, POut, m, Eff, strTokens"
  Case "XLTHERMOCOMPA"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompA(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "Hms, pMs, Hss, Pss, Pds, Rs, strTokens"
  Case "XLTHERMOCOMPB"
    If UBound(X) = 6 Then Steam = SteamXLThermoCompB(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "Hms, pMs, Hss, Pss, Pds, PF, strTokens"
  Case "BOILER_B"
    If UBound(X) = 5 Then Steam = SteamBoiler_B(X(0), X(1), X(2), X(3), X(4), X(5)): Exit Function
    inputs = "HIn, Mout, TOut, POut, BRatio, Eff"
  Case "XLBOILER_B"
    If UBound(X) = 6 Then Steam = SteamXLBoiler_B(X(0), X(1), X(2), X(3), X(4), X(5), X(6)): Exit Function
    inputs = "HIn, Mout, TOut, POut, BRatio, Eff, strTokens"
  Case "VSATTQ"
    If UBound(X) = 1 Then Steam = SteamVSatTQ(X(0), X(1)): Exit Function
    inputs = "T, Q"
  Case "VSATPQ"
    If UBound(X) = 1 Then Steam = SteamVSatPQ(X(0), X(1)): Exit Function
    inputs = "P, Q"
  Case Else
    Steam = Mark & "there is no function " & Text(Member)
    Exit Function
  End Select
  Steam = Mark & Text(Member) & " takes " & inputs
End Function

' pVal (Molecular Weight)
Public Function SteamMolWeight()
  Dim ok, pVal
  On Error Resume Next
  pVal = Asked().MolWeight()
  SteamMolWeight = Outcome(1, pVal)
End Function

' pVal (Temperature)
Public Function SteamCritT()
  Dim ok, pVal
  On Error Resume Next
  pVal = Asked().CritT()
  SteamCritT = Outcome(1, pVal)
End Function

' pVal (Pressure)
Public Function SteamCritP()
  Dim ok, pVal
  On Error Resume Next
  pVal = Asked().CritP()
  SteamCritP = Outcome(1, pVal)
End Function

' pVal (Mass Specific Volume)
Public Function SteamCritV()
  Dim ok, pVal
  On Error Resume Next
  pVal = Asked().CritV()
  SteamCritV = Outcome(1, pVal)
End Function

' pVal (Density)
Public Function SteamCritR()
  Dim ok, pVal
  On Error Resume Next
  pVal = Asked().CritR()
  SteamCritR = Outcome(1, pVal)
End Function

' pVal
Public Function SteamCritZ()
  Dim ok, pVal
  On Error Resume Next
  pVal = Asked().CritZ()
  SteamCritZ = Outcome(1, pVal)
End Function

' pVal (Temperature)
Public Function SteamTripleT()
  Dim ok, pVal
  On Error Resume Next
  pVal = Asked().TripleT()
  SteamTripleT = Outcome(1, pVal)
End Function

' pVal (Pressure)
Public Function SteamTripleP()
  Dim ok, pVal
  On Error Resume Next
  pVal = Asked().TripleP()
  SteamTripleP = Outcome(1, pVal)
End Function

' pP (Pressure) from T (Temperature)
Public Function SteamPSatT(T)
  Dim ok, pP
  On Error Resume Next
  ok = Asked().PSatT(pP, Number(T, "T"))
  SteamPSatT = Outcome(ok, pP)
End Function

' pT (Temperature) from P (Pressure)
Public Function SteamTSatP(P)
  Dim ok, pT
  On Error Resume Next
  ok = Asked().TSatP(pT, Number(P, "P"))
  SteamTSatP = Outcome(ok, pT)
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), Q (Quality)
Public Function SteamHSatTQ(T, Q)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HSatTQ(pH, Number(T, "T"), Number(Q, "Q"))
  SteamHSatTQ = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), Q (Quality)
Public Function SteamHSatPQ(P, Q)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HSatPQ(pH, Number(P, "P"), Number(Q, "Q"))
  SteamHSatPQ = Outcome(ok, pH)
End Function

' pS (Mass Specific Entropy) from T (Temperature), Q (Quality)
Public Function SteamSSatTQ(T, Q)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().SSatTQ(pS, Number(T, "T"), Number(Q, "Q"))
  SteamSSatTQ = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from P (Pressure), Q (Quality)
Public Function SteamSSatPQ(P, Q)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().SSatPQ(pS, Number(P, "P"), Number(Q, "Q"))
  SteamSSatPQ = Outcome(ok, pS)
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), Q (Quality)
Public Function SteamUSatTQ(T, Q)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().USatTQ(pU, Number(T, "T"), Number(Q, "Q"))
  SteamUSatTQ = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), Q (Quality)
Public Function SteamUSatPQ(P, Q)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().USatPQ(pU, Number(P, "P"), Number(Q, "Q"))
  SteamUSatPQ = Outcome(ok, pU)
End Function

' pR (Density) from T (Temperature), Q (Quality)
Public Function SteamRSatTQ(T, Q)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RSatTQ(pR, Number(T, "T"), Number(Q, "Q"))
  SteamRSatTQ = Outcome(ok, pR)
End Function

' pR (Density) from P (Pressure), Q (Quality)
Public Function SteamRSatPQ(P, Q)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RSatPQ(pR, Number(P, "P"), Number(Q, "Q"))
  SteamRSatPQ = Outcome(ok, pR)
End Function

' pP (Pressure) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamPTH(T, H)
  Dim ok, pP
  On Error Resume Next
  ok = Asked().PTH(pP, Number(T, "T"), Number(H, "H"))
  SteamPTH = Outcome(ok, pP)
End Function

' pP (Pressure) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamPTS(T, S)
  Dim ok, pP
  On Error Resume Next
  ok = Asked().PTS(pP, Number(T, "T"), Number(S, "S"))
  SteamPTS = Outcome(ok, pP)
End Function

' pP (Pressure) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamPTU(T, U)
  Dim ok, pP
  On Error Resume Next
  ok = Asked().PTU(pP, Number(T, "T"), Number(U, "U"))
  SteamPTU = Outcome(ok, pP)
End Function

' pP (Pressure) from T (Temperature), R (Density)
Public Function SteamPTR(T, R)
  Dim ok, pP
  On Error Resume Next
  ok = Asked().PTR(pP, Number(T, "T"), Number(R, "R"))
  SteamPTR = Outcome(ok, pP)
End Function

' pP (Pressure) from T (Temperature), V (Mass Specific Volume)
Public Function SteamPTV(T, V)
  Dim ok, pP
  On Error Resume Next
  ok = Asked().PTV(pP, Number(T, "T"), Number(V, "V"))
  SteamPTV = Outcome(ok, pP)
End Function

' pT (Temperature) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamTPH(P, H)
  Dim ok, pT
  On Error Resume Next
  ok = Asked().TPH(pT, Number(P, "P"), Number(H, "H"))
  SteamTPH = Outcome(ok, pT)
End Function

' pT (Temperature) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamTPS(P, S)
  Dim ok, pT
  On Error Resume Next
  ok = Asked().TPS(pT, Number(P, "P"), Number(S, "S"))
  SteamTPS = Outcome(ok, pT)
End Function

' pT (Temperature) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamTPU(P, U)
  Dim ok, pT
  On Error Resume Next
  ok = Asked().TPU(pT, Number(P, "P"), Number(U, "U"))
  SteamTPU = Outcome(ok, pT)
End Function

' pT (Temperature) from P (Pressure), R (Density)
Public Function SteamTPR(P, R)
  Dim ok, pT
  On Error Resume Next
  ok = Asked().TPR(pT, Number(P, "P"), Number(R, "R"))
  SteamTPR = Outcome(ok, pT)
End Function

' pT (Temperature) from P (Pressure), V (Mass Specific Volume)
Public Function SteamTPV(P, V)
  Dim ok, pT
  On Error Resume Next
  ok = Asked().TPV(pT, Number(P, "P"), Number(V, "V"))
  SteamTPV = Outcome(ok, pT)
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), T (Temperature)
Public Function SteamHPT(P, T)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HPT(pH, Number(P, "P"), Number(T, "T"))
  SteamHPT = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), T (Temperature), Q (Quality)
Public Function SteamHPTQ(P, T, Q)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HPTQ(pH, Number(P, "P"), Number(T, "T"), Number(Q, "Q"))
  SteamHPTQ = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamHPS(P, S)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HPS(pH, Number(P, "P"), Number(S, "S"))
  SteamHPS = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamHPU(P, U)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HPU(pH, Number(P, "P"), Number(U, "U"))
  SteamHPU = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), R (Density)
Public Function SteamHPR(P, R)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HPR(pH, Number(P, "P"), Number(R, "R"))
  SteamHPR = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamHPV(P, V)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HPV(pH, Number(P, "P"), Number(V, "V"))
  SteamHPV = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamHTS(T, S)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HTS(pH, Number(T, "T"), Number(S, "S"))
  SteamHTS = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamHTU(T, U)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HTU(pH, Number(T, "T"), Number(U, "U"))
  SteamHTU = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), R (Density)
Public Function SteamHTR(T, R)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HTR(pH, Number(T, "T"), Number(R, "R"))
  SteamHTR = Outcome(ok, pH)
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamHTV(T, V)
  Dim ok, pH
  On Error Resume Next
  ok = Asked().HTV(pH, Number(T, "T"), Number(V, "V"))
  SteamHTV = Outcome(ok, pH)
End Function

' pS (Mass Specific Entropy) from P (Pressure), T (Temperature)
Public Function SteamSPT(P, T)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().SPT(pS, Number(P, "P"), Number(T, "T"))
  SteamSPT = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamSPH(P, H)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().SPH(pS, Number(P, "P"), Number(H, "H"))
  SteamSPH = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamSPU(P, U)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().SPU(pS, Number(P, "P"), Number(U, "U"))
  SteamSPU = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from P (Pressure), R (Density)
Public Function SteamSPR(P, R)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().SPR(pS, Number(P, "P"), Number(R, "R"))
  SteamSPR = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamSPV(P, V)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().SPV(pS, Number(P, "P"), Number(V, "V"))
  SteamSPV = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamSTH(T, H)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().STH(pS, Number(T, "T"), Number(H, "H"))
  SteamSTH = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamSTU(T, U)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().STU(pS, Number(T, "T"), Number(U, "U"))
  SteamSTU = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from T (Temperature), R (Density)
Public Function SteamSTR(T, R)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().STR(pS, Number(T, "T"), Number(R, "R"))
  SteamSTR = Outcome(ok, pS)
End Function

' pS (Mass Specific Entropy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamSTV(T, V)
  Dim ok, pS
  On Error Resume Next
  ok = Asked().STV(pS, Number(T, "T"), Number(V, "V"))
  SteamSTV = Outcome(ok, pS)
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), T (Temperature)
Public Function SteamUPT(P, T)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UPT(pU, Number(P, "P"), Number(T, "T"))
  SteamUPT = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamUPH(P, H)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UPH(pU, Number(P, "P"), Number(H, "H"))
  SteamUPH = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamUPS(P, S)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UPS(pU, Number(P, "P"), Number(S, "S"))
  SteamUPS = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), R (Density)
Public Function SteamUPR(P, R)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UPR(pU, Number(P, "P"), Number(R, "R"))
  SteamUPR = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamUPV(P, V)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UPV(pU, Number(P, "P"), Number(V, "V"))
  SteamUPV = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamUTH(T, H)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UTH(pU, Number(T, "T"), Number(H, "H"))
  SteamUTH = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamUTS(T, S)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UTS(pU, Number(T, "T"), Number(S, "S"))
  SteamUTS = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), R (Density)
Public Function SteamUTR(T, R)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UTR(pU, Number(T, "T"), Number(R, "R"))
  SteamUTR = Outcome(ok, pU)
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamUTV(T, V)
  Dim ok, pU
  On Error Resume Next
  ok = Asked().UTV(pU, Number(T, "T"), Number(V, "V"))
  SteamUTV = Outcome(ok, pU)
End Function

' pR (Density) from P (Pressure), T (Temperature)
Public Function SteamRPT(P, T)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RPT(pR, Number(P, "P"), Number(T, "T"))
  SteamRPT = Outcome(ok, pR)
End Function

' pR (Density) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamRPH(P, H)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RPH(pR, Number(P, "P"), Number(H, "H"))
  SteamRPH = Outcome(ok, pR)
End Function

' pR (Density) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamRPS(P, S)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RPS(pR, Number(P, "P"), Number(S, "S"))
  SteamRPS = Outcome(ok, pR)
End Function

' pR (Density) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamRPU(P, U)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RPU(pR, Number(P, "P"), Number(U, "U"))
  SteamRPU = Outcome(ok, pR)
End Function

' pR (Density) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamRTH(T, H)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RTH(pR, Number(T, "T"), Number(H, "H"))
  SteamRTH = Outcome(ok, pR)
End Function

' pR (Density) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamRTS(T, S)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RTS(pR, Number(T, "T"), Number(S, "S"))
  SteamRTS = Outcome(ok, pR)
End Function

' pR (Density) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamRTU(T, U)
  Dim ok, pR
  On Error Resume Next
  ok = Asked().RTU(pR, Number(T, "T"), Number(U, "U"))
  SteamRTU = Outcome(ok, pR)
End Function

' pV (Mass Specific Volume) from P (Pressure), T (Temperature)
Public Function SteamVPT(P, T)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VPT(pV, Number(P, "P"), Number(T, "T"))
  SteamVPT = Outcome(ok, pV)
End Function

' pV (Mass Specific Volume) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamVPH(P, H)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VPH(pV, Number(P, "P"), Number(H, "H"))
  SteamVPH = Outcome(ok, pV)
End Function

' pV (Mass Specific Volume) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamVPS(P, S)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VPS(pV, Number(P, "P"), Number(S, "S"))
  SteamVPS = Outcome(ok, pV)
End Function

' pV (Mass Specific Volume) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamVPU(P, U)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VPU(pV, Number(P, "P"), Number(U, "U"))
  SteamVPU = Outcome(ok, pV)
End Function

' pV (Mass Specific Volume) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamVTH(T, H)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VTH(pV, Number(T, "T"), Number(H, "H"))
  SteamVTH = Outcome(ok, pV)
End Function

' pV (Mass Specific Volume) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamVTS(T, S)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VTS(pV, Number(T, "T"), Number(S, "S"))
  SteamVTS = Outcome(ok, pV)
End Function

' pV (Mass Specific Volume) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamVTU(T, U)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VTU(pV, Number(T, "T"), Number(U, "U"))
  SteamVTU = Outcome(ok, pV)
End Function

' pQ (Quality) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamQPH(P, H)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QPH(pQ, Number(P, "P"), Number(H, "H"))
  SteamQPH = Outcome(ok, pQ)
End Function

' pQ (Quality) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamQPS(P, S)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QPS(pQ, Number(P, "P"), Number(S, "S"))
  SteamQPS = Outcome(ok, pQ)
End Function

' pQ (Quality) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamQPU(P, U)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QPU(pQ, Number(P, "P"), Number(U, "U"))
  SteamQPU = Outcome(ok, pQ)
End Function

' pQ (Quality) from P (Pressure), R (Density)
Public Function SteamQPR(P, R)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QPR(pQ, Number(P, "P"), Number(R, "R"))
  SteamQPR = Outcome(ok, pQ)
End Function

' pQ (Quality) from P (Pressure), V (Mass Specific Volume)
Public Function SteamQPV(P, V)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QPV(pQ, Number(P, "P"), Number(V, "V"))
  SteamQPV = Outcome(ok, pQ)
End Function

' pQ (Quality) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamQTH(T, H)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QTH(pQ, Number(T, "T"), Number(H, "H"))
  SteamQTH = Outcome(ok, pQ)
End Function

' pQ (Quality) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamQTS(T, S)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QTS(pQ, Number(T, "T"), Number(S, "S"))
  SteamQTS = Outcome(ok, pQ)
End Function

' pQ (Quality) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamQTU(T, U)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QTU(pQ, Number(T, "T"), Number(U, "U"))
  SteamQTU = Outcome(ok, pQ)
End Function

' pQ (Quality) from T (Temperature), R (Density)
Public Function SteamQTR(T, R)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QTR(pQ, Number(T, "T"), Number(R, "R"))
  SteamQTR = Outcome(ok, pQ)
End Function

' pQ (Quality) from T (Temperature), V (Mass Specific Volume)
Public Function SteamQTV(T, V)
  Dim ok, pQ
  On Error Resume Next
  ok = Asked().QTV(pQ, Number(T, "T"), Number(V, "V"))
  SteamQTV = Outcome(ok, pQ)
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), T (Temperature)
Public Function SteamAPT(P, T)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().APT(pA, Number(P, "P"), Number(T, "T"))
  SteamAPT = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamAPH(P, H)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().APH(pA, Number(P, "P"), Number(H, "H"))
  SteamAPH = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamAPS(P, S)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().APS(pA, Number(P, "P"), Number(S, "S"))
  SteamAPS = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamAPU(P, U)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().APU(pA, Number(P, "P"), Number(U, "U"))
  SteamAPU = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), R (Density)
Public Function SteamAPR(P, R)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().APR(pA, Number(P, "P"), Number(R, "R"))
  SteamAPR = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamAPV(P, V)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().APV(pA, Number(P, "P"), Number(V, "V"))
  SteamAPV = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamATH(T, H)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().ATH(pA, Number(T, "T"), Number(H, "H"))
  SteamATH = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamATS(T, S)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().ATS(pA, Number(T, "T"), Number(S, "S"))
  SteamATS = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamATU(T, U)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().ATU(pA, Number(T, "T"), Number(U, "U"))
  SteamATU = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), R (Density)
Public Function SteamATR(T, R)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().ATR(pA, Number(T, "T"), Number(R, "R"))
  SteamATR = Outcome(ok, pA)
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamATV(T, V)
  Dim ok, pA
  On Error Resume Next
  ok = Asked().ATV(pA, Number(T, "T"), Number(V, "V"))
  SteamATV = Outcome(ok, pA)
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), T (Temperature)
Public Function SteamGPT(P, T)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GPT(pG, Number(P, "P"), Number(T, "T"))
  SteamGPT = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamGPH(P, H)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GPH(pG, Number(P, "P"), Number(H, "H"))
  SteamGPH = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamGPS(P, S)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GPS(pG, Number(P, "P"), Number(S, "S"))
  SteamGPS = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamGPU(P, U)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GPU(pG, Number(P, "P"), Number(U, "U"))
  SteamGPU = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), R (Density)
Public Function SteamGPR(P, R)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GPR(pG, Number(P, "P"), Number(R, "R"))
  SteamGPR = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamGPV(P, V)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GPV(pG, Number(P, "P"), Number(V, "V"))
  SteamGPV = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamGTH(T, H)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GTH(pG, Number(T, "T"), Number(H, "H"))
  SteamGTH = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamGTS(T, S)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GTS(pG, Number(T, "T"), Number(S, "S"))
  SteamGTS = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamGTU(T, U)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GTU(pG, Number(T, "T"), Number(U, "U"))
  SteamGTU = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), R (Density)
Public Function SteamGTR(T, R)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GTR(pG, Number(T, "T"), Number(R, "R"))
  SteamGTR = Outcome(ok, pG)
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamGTV(T, V)
  Dim ok, pG
  On Error Resume Next
  ok = Asked().GTV(pG, Number(T, "T"), Number(V, "V"))
  SteamGTV = Outcome(ok, pG)
End Function

' pM (Dynamic Viscosity) from P (Pressure), T (Temperature)
Public Function SteamMPT(P, T)
  Dim ok, pM
  On Error Resume Next
  ok = Asked().MPT(pM, Number(P, "P"), Number(T, "T"))
  SteamMPT = Outcome(ok, pM)
End Function

' pK (Thermal Conductivity) from P (Pressure), T (Temperature)
Public Function SteamKPT(P, T)
  Dim ok, pK
  On Error Resume Next
  ok = Asked().KPT(pK, Number(P, "P"), Number(T, "T"))
  SteamKPT = Outcome(ok, pK)
End Function

' pC (Mass Specific Heat) from P (Pressure), T (Temperature)
Public Function SteamCPT(P, T)
  Dim ok, pC
  On Error Resume Next
  ok = Asked().CPT(pC, Number(P, "P"), Number(T, "T"))
  SteamCPT = Outcome(ok, pC)
End Function

' pD (Mass Specific Heat) from P (Pressure), T (Temperature)
Public Function SteamDPT(P, T)
  Dim ok, pD
  On Error Resume Next
  ok = Asked().DPT(pD, Number(P, "P"), Number(T, "T"))
  SteamDPT = Outcome(ok, pD)
End Function

' pZ from P (Pressure), T (Temperature)
Public Function SteamZPT(P, T)
  Dim ok, pZ
  On Error Resume Next
  ok = Asked().ZPT(pZ, Number(P, "P"), Number(T, "T"))
  SteamZPT = Outcome(ok, pZ)
End Function

' pW (Velocity) from P (Pressure), T (Temperature)
Public Function SteamWPT(P, T)
  Dim ok, pW
  On Error Resume Next
  ok = Asked().WPT(pW, Number(P, "P"), Number(T, "T"))
  SteamWPT = Outcome(ok, pW)
End Function

' pN from P (Pressure), T (Temperature)
Public Function SteamNPT(P, T)
  Dim ok, pN
  On Error Resume Next
  ok = Asked().NPT(pN, Number(P, "P"), Number(T, "T"))
  SteamNPT = Outcome(ok, pN)
End Function

' pE from P (Pressure), T (Temperature)
Public Function SteamEPT(P, T)
  Dim ok, pE
  On Error Resume Next
  ok = Asked().EPT(pE, Number(P, "P"), Number(T, "T"))
  SteamEPT = Outcome(ok, pE)
End Function

' pI (Isothermal Joule-Thomson Coefficient) from P (Pressure), T (Temperature)
Public Function SteamIPT(P, T)
  Dim ok, pI
  On Error Resume Next
  ok = Asked().IPT(pI, Number(P, "P"), Number(T, "T"))
  SteamIPT = Outcome(ok, pI)
End Function

' pJ (Joule-Thomson Coefficient) from P (Pressure), T (Temperature)
Public Function SteamJPT(P, T)
  Dim ok, pJ
  On Error Resume Next
  ok = Asked().JPT(pJ, Number(P, "P"), Number(T, "T"))
  SteamJPT = Outcome(ok, pJ)
End Function

' pB (Coefficient of Thermal Expansion) from P (Pressure), T (Temperature)
Public Function SteamBPT(P, T)
  Dim ok, pB
  On Error Resume Next
  ok = Asked().BPT(pB, Number(P, "P"), Number(T, "T"))
  SteamBPT = Outcome(ok, pB)
End Function

' pL (Isothermal Compressibility) from P (Pressure), T (Temperature)
Public Function SteamLPT(P, T)
  Dim ok, pL
  On Error Resume Next
  ok = Asked().LPT(pL, Number(P, "P"), Number(T, "T"))
  SteamLPT = Outcome(ok, pL)
End Function

' pX (Surface Tension) from T (Temperature)
Public Function SteamXT(T)
  Dim ok, pX
  On Error Resume Next
  ok = Asked().XT(pX, Number(T, "T"))
  SteamXT = Outcome(ok, pX)
End Function

' pPower (Power), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate)
Public Function SteamTurbineA(HIn, PIn, POut, Eff, MIn)
  Dim ok, pPower, pTOut, pHOut, pQOut
  On Error Resume Next
  ok = Asked().TurbineA(pPower, pTOut, pHOut, pQOut, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(MIn, "MIn"))
  SteamTurbineA = Outcome(ok, Array(pPower, pTOut, pHOut, pQOut))
End Function

' pMIn (Mass Flow Rate), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), Power (Power)
Public Function SteamTurbineB(HIn, PIn, POut, Eff, Power)
  Dim ok, pMIn, pTOut, pHOut, pQOut
  On Error Resume Next
  ok = Asked().TurbineB(pMIn, pTOut, pHOut, pQOut, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(Power, "Power"))
  SteamTurbineB = Outcome(ok, Array(pMIn, pTOut, pHOut, pQOut))
End Function

' pPower (Power), pTOut1 (Temperature), pTOut2 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate)
Public Function SteamTurbineA2(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1)
  Dim ok, pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2
  On Error Resume Next
  ok = Asked().TurbineA2(pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(MIn, "MIn"), Number(MOut1, "MOut1"))
  SteamTurbineA2 = Outcome(ok, Array(pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2))
End Function

' pMOut2 (Mass Flow Rate), pTOut1 (Temperature), pTOut2 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Power (Power), MOut1 (Mass Flow Rate)
Public Function SteamTurbineB2(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1)
  Dim ok, pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2
  On Error Resume Next
  ok = Asked().TurbineB2(pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(Power, "Power"), Number(MOut1, "MOut1"))
  SteamTurbineB2 = Outcome(ok, Array(pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2))
End Function

' pPower (Power), pTOut1 (Temperature), pTOut2 (Temperature), pTOut3 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pHOut3 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality), pQOut3 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), POut3 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Eff3 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate), MOut2 (Mass Flow Rate)
Public Function SteamTurbineA3(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2)
  Dim ok, pPower, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3
  On Error Resume Next
  ok = Asked().TurbineA3(pPower, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(POut3, "POut3"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(Eff3, "Eff3"), Number(MIn, "MIn"), Number(MOut1, "MOut1"), Number(MOut2, "MOut2"))
  SteamTurbineA3 = Outcome(ok, Array(pPower, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3))
End Function

' pMOut3 (Mass Flow Rate), pTOut1 (Temperature), pTOut2 (Temperature), pTOut3 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pHOut3 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality), pQOut3 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), POut3 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Eff3 (Efficiency), Power (Power), MOut1 (Mass Flow Rate), MOut2 (Mass Flow Rate)
Public Function SteamTurbineB3(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2)
  Dim ok, pMOut3, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3
  On Error Resume Next
  ok = Asked().TurbineB3(pMOut3, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(POut3, "POut3"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(Eff3, "Eff3"), Number(Power, "Power"), Number(MOut1, "MOut1"), Number(MOut2, "MOut2"))
  SteamTurbineB3 = Outcome(ok, Array(pMOut3, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3))
End Function

' pPower (Power), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate)
Public Function SteamCompressorA(HIn, PIn, POut, Eff, MIn)
  Dim ok, pPower, pTOut, pHOut, pQOut
  On Error Resume Next
  ok = Asked().CompressorA(pPower, pTOut, pHOut, pQOut, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(MIn, "MIn"))
  SteamCompressorA = Outcome(ok, Array(pPower, pTOut, pHOut, pQOut))
End Function

' pMIn (Mass Flow Rate), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), Power (Power)
Public Function SteamCompressorB(HIn, PIn, POut, Eff, Power)
  Dim ok, pMIn, pTOut, pHOut, pQOut
  On Error Resume Next
  ok = Asked().CompressorB(pMIn, pTOut, pHOut, pQOut, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(Power, "Power"))
  SteamCompressorB = Outcome(ok, Array(pMIn, pTOut, pHOut, pQOut))
End Function

' pPower (Power), pTOut1 (Temperature), pTOut2 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate)
Public Function SteamCompressorA2(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1)
  Dim ok, pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2
  On Error Resume Next
  ok = Asked().CompressorA2(pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(MIn, "MIn"), Number(MOut1, "MOut1"))
  SteamCompressorA2 = Outcome(ok, Array(pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2))
End Function

' pMOut2 (Mass Flow Rate), pTOut1 (Temperature), pTOut2 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Power (Power), MOut1 (Mass Flow Rate)
Public Function SteamCompressorB2(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1)
  Dim ok, pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2
  On Error Resume Next
  ok = Asked().CompressorB2(pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(Power, "Power"), Number(MOut1, "MOut1"))
  SteamCompressorB2 = Outcome(ok, Array(pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2))
End Function

' pHd (Mass Specific Enthalpy), pTd (Temperature), pMw (Mass Flow Rate), pMs (Mass Flow Rate) from POp (Pressure), Hs (Mass Specific Enthalpy), Tw (Temperature), Md (Mass Flow Rate), MRatio (Ratio)
Public Function SteamDeAerator(POp, Hs, Tw, Md, MRatio)
  Dim ok, pHd, pTd, pMw, pMs
  On Error Resume Next
  ok = Asked().DeAerator(pHd, pTd, pMw, pMs, Number(POp, "POp"), Number(Hs, "Hs"), Number(Tw, "Tw"), Number(Md, "Md"), Number(MRatio, "MRatio"))
  SteamDeAerator = Outcome(ok, Array(pHd, pTd, pMw, pMs))
End Function

' pHs (Mass Specific Enthalpy), pMw (Mass Flow Rate), pMs (Mass Flow Rate) from HIn (Mass Specific Enthalpy), Hw (Mass Specific Enthalpy), POp (Pressure), TOp (Temperature), MIn (Mass Flow Rate)
Public Function SteamDeSuperHeater(HIn, Hw, POp, TOp, MIn)
  Dim ok, pHs, pMw, pMs
  On Error Resume Next
  ok = Asked().DeSuperHeater(pHs, pMw, pMs, Number(HIn, "HIn"), Number(Hw, "Hw"), Number(POp, "POp"), Number(TOp, "TOp"), Number(MIn, "MIn"))
  SteamDeSuperHeater = Outcome(ok, Array(pHs, pMw, pMs))
End Function

' pTOut (Temperature), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure)
Public Function SteamLetDownValve(HIn, PIn, POut)
  Dim ok, pTOut, pQOut
  On Error Resume Next
  ok = Asked().LetDownValve(pTOut, pQOut, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"))
  SteamLetDownValve = Outcome(ok, Array(pTOut, pQOut))
End Function

' pMBd (Mass Flow Rate), pDeltaH (Heat Duty), pHOut (Mass Specific Enthalpy), pHBd (Mass Specific Enthalpy), pMIn (Mass Flow Rate) from HIn (Mass Specific Enthalpy), Mout (Mass Flow Rate), TOut (Temperature), POut (Pressure), BRatio (Ratio)
Public Function SteamBoiler(HIn, Mout, TOut, POut, BRatio)
  Dim ok, pMBd, pDeltaH, pHOut, pHBd, pMIn
  On Error Resume Next
  ok = Asked().Boiler(pMBd, pDeltaH, pHOut, pHBd, pMIn, Number(HIn, "HIn"), Number(Mout, "Mout"), Number(TOut, "TOut"), Number(POut, "POut"), Number(BRatio, "BRatio"))
  SteamBoiler = Outcome(ok, Array(pMBd, pDeltaH, pHOut, pHBd, pMIn))
End Function

' pTOut (Temperature), pMVap (Mass Flow Rate), pMLiq (Mass Flow Rate), pHVap (Mass Specific Enthalpy), pHLiq (Mass Specific Enthalpy) from MIn (Mass Flow Rate), HIn (Mass Specific Enthalpy), POp (Pressure)
Public Function SteamFlashVessel(MIn, HIn, POp)
  Dim ok, pTOut, pMVap, pMLiq, pHVap, pHLiq
  On Error Resume Next
  ok = Asked().FlashVessel(pTOut, pMVap, pMLiq, pHVap, pHLiq, Number(MIn, "MIn"), Number(HIn, "HIn"), Number(POp, "POp"))
  SteamFlashVessel = Outcome(ok, Array(pTOut, pMVap, pMLiq, pHVap, pHLiq))
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate), strTokens
Public Function SteamXLTurbineA(HIn, PIn, POut, Eff, MIn, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLTurbineA(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(MIn, "MIn"), Text(strTokens), pRetArray)
  SteamXLTurbineA = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), Power (Power), strTokens
Public Function SteamXLTurbineB(HIn, PIn, POut, Eff, Power, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLTurbineB(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(Power, "Power"), Text(strTokens), pRetArray)
  SteamXLTurbineB = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate), strTokens
Public Function SteamXLTurbineA2(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLTurbineA2(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(MIn, "MIn"), Number(MOut1, "MOut1"), Text(strTokens), pRetArray)
  SteamXLTurbineA2 = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Power (Power), MOut1 (Mass Flow Rate), strTokens
Public Function SteamXLTurbineB2(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLTurbineB2(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(Power, "Power"), Number(MOut1, "MOut1"), Text(strTokens), pRetArray)
  SteamXLTurbineB2 = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), POut3 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Eff3 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate), MOut2 (Mass Flow Rate), strTokens
Public Function SteamXLTurbineA3(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLTurbineA3(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(POut3, "POut3"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(Eff3, "Eff3"), Number(MIn, "MIn"), Number(MOut1, "MOut1"), Number(MOut2, "MOut2"), Text(strTokens), pRetArray)
  SteamXLTurbineA3 = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), POut3 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Eff3 (Efficiency), Power (Power), MOut1 (Mass Flow Rate), MOut2 (Mass Flow Rate), strTokens
Public Function SteamXLTurbineB3(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLTurbineB3(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(POut3, "POut3"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(Eff3, "Eff3"), Number(Power, "Power"), Number(MOut1, "MOut1"), Number(MOut2, "MOut2"), Text(strTokens), pRetArray)
  SteamXLTurbineB3 = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate), strTokens
Public Function SteamXLCompressorA(HIn, PIn, POut, Eff, MIn, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLCompressorA(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(MIn, "MIn"), Text(strTokens), pRetArray)
  SteamXLCompressorA = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), Power (Power), strTokens
Public Function SteamXLCompressorB(HIn, PIn, POut, Eff, Power, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLCompressorB(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(Power, "Power"), Text(strTokens), pRetArray)
  SteamXLCompressorB = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate), strTokens
Public Function SteamXLCompressorA2(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLCompressorA2(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(MIn, "MIn"), Number(MOut1, "MOut1"), Text(strTokens), pRetArray)
  SteamXLCompressorA2 = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Power (Power), MOut1 (Mass Flow Rate), strTokens
Public Function SteamXLCompressorB2(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLCompressorB2(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut1, "POut1"), Number(POut2, "POut2"), Number(Eff1, "Eff1"), Number(Eff2, "Eff2"), Number(Power, "Power"), Number(MOut1, "MOut1"), Text(strTokens), pRetArray)
  SteamXLCompressorB2 = Outcome(ok, pRetArray)
End Function

' pRetArray from POp (Pressure), Hs (Mass Specific Enthalpy), Tw (Temperature), Md (Mass Flow Rate), MRatio (Ratio), strTokens
Public Function SteamXLDeAerator(POp, Hs, Tw, Md, MRatio, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLDeAerator(Number(POp, "POp"), Number(Hs, "Hs"), Number(Tw, "Tw"), Number(Md, "Md"), Number(MRatio, "MRatio"), Text(strTokens), pRetArray)
  SteamXLDeAerator = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), Hw (Mass Specific Enthalpy), POp (Pressure), TOp (Temperature), MIn (Mass Flow Rate), strTokens
Public Function SteamXLDeSuperHeater(HIn, Hw, POp, TOp, MIn, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLDeSuperHeater(Number(HIn, "HIn"), Number(Hw, "Hw"), Number(POp, "POp"), Number(TOp, "TOp"), Number(MIn, "MIn"), Text(strTokens), pRetArray)
  SteamXLDeSuperHeater = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), strTokens
Public Function SteamXLLetDownValve(HIn, PIn, POut, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLLetDownValve(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Text(strTokens), pRetArray)
  SteamXLLetDownValve = Outcome(ok, pRetArray)
End Function

' pRetArray from HIn (Mass Specific Enthalpy), Mout (Mass Flow Rate), TOut (Temperature), POut (Pressure), BRatio (Ratio), strTokens
Public Function SteamXLBoiler(HIn, Mout, TOut, POut, BRatio, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLBoiler(Number(HIn, "HIn"), Number(Mout, "Mout"), Number(TOut, "TOut"), Number(POut, "POut"), Number(BRatio, "BRatio"), Text(strTokens), pRetArray)
  SteamXLBoiler = Outcome(ok, pRetArray)
End Function

' pRetArray from MIn (Mass Flow Rate), HIn (Mass Specific Enthalpy), POp (Pressure), strTokens
Public Function SteamXLFlashVessel(MIn, HIn, POp, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLFlashVessel(Number(MIn, "MIn"), Number(HIn, "HIn"), Number(POp, "POp"), Text(strTokens), pRetArray)
  SteamXLFlashVessel = Outcome(ok, pRetArray)
End Function

' pRetArray from GTPower (Power), FPRatio, AirTemp (Temperature), ExhaustTemp (Temperature), SteamPress (Pressure), SteamTemp (Temperature), BFWTemp (Temperature), SteamDemand (Mass Flow Rate), DTMin (Temperature Difference), MinO2Stack, strTokens
Public Function SteamXLGasTurbineA(GTPower, FPRatio, AirTemp, ExhaustTemp, SteamPress, SteamTemp, BFWTemp, SteamDemand, DTMin, MinO2Stack, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLGasTurbineA(Number(GTPower, "GTPower"), Number(FPRatio, "FPRatio"), Number(AirTemp, "AirTemp"), Number(ExhaustTemp, "ExhaustTemp"), Number(SteamPress, "SteamPress"), Number(SteamTemp, "SteamTemp"), Number(BFWTemp, "BFWTemp"), Number(SteamDemand, "SteamDemand"), Number(DTMin, "DTMin"), Number(MinO2Stack, "MinO2Stack"), Text(strTokens), pRetArray)
  SteamXLGasTurbineA = Outcome(ok, pRetArray)
End Function

' pRetArray from MSP (Pressure), MST (Temperature), MSF (Mass Flow Rate), SSP (Pressure), SST (Temperature), SSF (Mass Flow Rate), strTokens
Public Function SteamXLThermoCompressorA(MSP, MST, MSF, SSP, SST, SSF, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompressorA(Number(MSP, "MSP"), Number(MST, "MST"), Number(MSF, "MSF"), Number(SSP, "SSP"), Number(SST, "SST"), Number(SSF, "SSF"), Text(strTokens), pRetArray)
  SteamXLThermoCompressorA = Outcome(ok, pRetArray)
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), DSP (Pressure), HXDuty (Heat Duty), strTokens
Public Function SteamXLThermoCompressorB(MSP, MST, SSP, SST, DSP, HXDuty, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompressorB(Number(MSP, "MSP"), Number(MST, "MST"), Number(SSP, "SSP"), Number(SST, "SST"), Number(DSP, "DSP"), Number(HXDuty, "HXDuty"), Text(strTokens), pRetArray)
  SteamXLThermoCompressorB = Outcome(ok, pRetArray)
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), DSP (Pressure), DSF (Mass Flow Rate), strTokens
Public Function SteamXLThermoCompressorC(MSP, MST, SSP, SST, DSP, DSF, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompressorC(Number(MSP, "MSP"), Number(MST, "MST"), Number(SSP, "SSP"), Number(SST, "SST"), Number(DSP, "DSP"), Number(DSF, "DSF"), Text(strTokens), pRetArray)
  SteamXLThermoCompressorC = Outcome(ok, pRetArray)
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), DSP (Pressure), SSF (Mass Flow Rate), strTokens
Public Function SteamXLThermoCompressorD(MSP, MST, SSP, SST, DSP, SSF, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompressorD(Number(MSP, "MSP"), Number(MST, "MST"), Number(SSP, "SSP"), Number(SST, "SST"), Number(DSP, "DSP"), Number(SSF, "SSF"), Text(strTokens), pRetArray)
  SteamXLThermoCompressorD = Outcome(ok, pRetArray)
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), DSP (Pressure), MSF (Mass Flow Rate), strTokens
Public Function SteamXLThermoCompressorE(MSP, MST, SSP, SST, DSP, MSF, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompressorE(Number(MSP, "MSP"), Number(MST, "MST"), Number(SSP, "SSP"), Number(SST, "SST"), Number(DSP, "DSP"), Number(MSF, "MSF"), Text(strTokens), pRetArray)
  SteamXLThermoCompressorE = Outcome(ok, pRetArray)
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), SSF (Mass Flow Rate), HXDuty (Heat Duty), strTokens
Public Function SteamXLThermoCompressorF(MSP, MST, SSP, SST, SSF, HXDuty, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompressorF(Number(MSP, "MSP"), Number(MST, "MST"), Number(SSP, "SSP"), Number(SST, "SST"), Number(SSF, "SSF"), Number(HXDuty, "HXDuty"), Text(strTokens), pRetArray)
  SteamXLThermoCompressorF = Outcome(ok, pRetArray)
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), MSF (Mass Flow Rate), HXDuty (Heat Duty), strTokens
Public Function SteamXLThermoCompressorG(MSP, MST, SSP, SST, MSF, HXDuty, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompressorG(Number(MSP, "MSP"), Number(MST, "MST"), Number(SSP, "SSP"), Number(SST, "SST"), Number(MSF, "MSF"), Number(HXDuty, "HXDuty"), Text(strTokens), pRetArray)
  SteamXLThermoCompressorG = Outcome(ok, pRetArray)
End Function

' pRetArray from ColdFlowIn (Mass Flow Rate), ColdPressureIn (Pressure), ColdDP (Pressure Difference), ColdTempIn (Temperature), ColdTempOut (Temperature), ColdQualityIn (Quality), ColdQualityOut (Quality), HotPressureIn (Pressure), HotDP (Pressure Difference), HotTempIn (Temperature), HotTempOut (Temperature), HotQualityIn (Quality), HotQualityOut (Quality), strTokens
Public Function SteamXLHeatExchangerA(ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, ColdTempOut, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLHeatExchangerA(Number(ColdFlowIn, "ColdFlowIn"), Number(ColdPressureIn, "ColdPressureIn"), Number(ColdDP, "ColdDP"), Number(ColdTempIn, "ColdTempIn"), Number(ColdTempOut, "ColdTempOut"), Number(ColdQualityIn, "ColdQualityIn"), Number(ColdQualityOut, "ColdQualityOut"), Number(HotPressureIn, "HotPressureIn"), Number(HotDP, "HotDP"), Number(HotTempIn, "HotTempIn"), Number(HotTempOut, "HotTempOut"), Number(HotQualityIn, "HotQualityIn"), Number(HotQualityOut, "HotQualityOut"), Text(strTokens), pRetArray)
  SteamXLHeatExchangerA = Outcome(ok, pRetArray)
End Function

' pRetArray from ColdFlowIn (Mass Flow Rate), ColdPressureIn (Pressure), ColdDP (Pressure Difference), ColdTempIn (Temperature), HXDuty (Heat Duty), ColdQualityIn (Quality), ColdQualityOut (Quality), HotPressureIn (Pressure), HotDP (Pressure Difference), HotTempIn (Temperature), HotTempOut (Temperature), HotQualityIn (Quality), HotQualityOut (Quality), strTokens
Public Function SteamXLHeatExchangerB(ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, HXDuty, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLHeatExchangerB(Number(ColdFlowIn, "ColdFlowIn"), Number(ColdPressureIn, "ColdPressureIn"), Number(ColdDP, "ColdDP"), Number(ColdTempIn, "ColdTempIn"), Number(HXDuty, "HXDuty"), Number(ColdQualityIn, "ColdQualityIn"), Number(ColdQualityOut, "ColdQualityOut"), Number(HotPressureIn, "HotPressureIn"), Number(HotDP, "HotDP"), Number(HotTempIn, "HotTempIn"), Number(HotTempOut, "HotTempOut"), Number(HotQualityIn, "HotQualityIn"), Number(HotQualityOut, "HotQualityOut"), Text(strTokens), pRetArray)
  SteamXLHeatExchangerB = Outcome(ok, pRetArray)
End Function

' pQ (Quality), pT (Temperature) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamQT_PH(P, H)
  Dim ok, pQ, pT
  On Error Resume Next
  ok = Asked().QT_PH(pQ, pT, Number(P, "P"), Number(H, "H"))
  SteamQT_PH = Outcome(ok, Array(pQ, pT))
End Function

' pH (Mass Specific Enthalpy), pHVap (Mass Specific Enthalpy), pHLiq (Mass Specific Enthalpy), pTSat (Temperature) from P (Pressure), Q (Quality)
Public Function SteamHVLTSat_PQ(P, Q)
  Dim ok, pH, pHVap, pHLiq, pTSat
  On Error Resume Next
  ok = Asked().HVLTSat_PQ(pH, pHVap, pHLiq, pTSat, Number(P, "P"), Number(Q, "Q"))
  SteamHVLTSat_PQ = Outcome(ok, Array(pH, pHVap, pHLiq, pTSat))
End Function

' pQ (Quality), pT (Temperature), pS (Mass Specific Entropy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamQTS_PH(P, H)
  Dim ok, pQ, pT, pS
  On Error Resume Next
  ok = Asked().QTS_PH(pQ, pT, pS, Number(P, "P"), Number(H, "H"))
  SteamQTS_PH = Outcome(ok, Array(pQ, pT, pS))
End Function

' pHs (Mass Specific Enthalpy), pMw (Mass Flow Rate), pMs (Mass Flow Rate) from HIn (Mass Specific Enthalpy), Hw (Mass Specific Enthalpy), POp (Pressure), TOp (Temperature), Mout (Mass Flow Rate)
Public Function SteamDeSuperHeaterB(HIn, Hw, POp, TOp, Mout)
  Dim ok, pHs, pMw, pMs
  On Error Resume Next
  ok = Asked().DeSuperHeaterB(pHs, pMw, pMs, Number(HIn, "HIn"), Number(Hw, "Hw"), Number(POp, "POp"), Number(TOp, "TOp"), Number(Mout, "Mout"))
  SteamDeSuperHeaterB = Outcome(ok, Array(pHs, pMw, pMs))
End Function

' pRetArray from HIn (Mass Specific Enthalpy), Hw (Mass Specific Enthalpy), POp (Pressure), TOp (Temperature), Mout (Mass Flow Rate), strTokens
Public Function SteamXLDeSuperHeaterB(HIn, Hw, POp, TOp, Mout, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLDeSuperHeaterB(Number(HIn, "HIn"), Number(Hw, "Hw"), Number(POp, "POp"), Number(TOp, "TOp"), Number(Mout, "Mout"), Text(strTokens), pRetArray)
  SteamXLDeSuperHeaterB = Outcome(ok, pRetArray)
End Function

' pPower (Power), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality), pSOut (Mass Specific Entropy) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate), SIn (Mass Specific Entropy)
Public Function SteamTurbineE(HIn, PIn, POut, Eff, MIn, SIn)
  Dim ok, pPower, pTOut, pHOut, pQOut, pSOut
  On Error Resume Next
  ok = Asked().TurbineE(pPower, pTOut, pHOut, pQOut, pSOut, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(MIn, "MIn"), Number(SIn, "SIn"))
  SteamTurbineE = Outcome(ok, Array(pPower, pTOut, pHOut, pQOut, pSOut))
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate), SIn (Mass Specific Entropy), strTokens
Public Function SteamXLTurbineE(HIn, PIn, POut, Eff, MIn, SIn, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLTurbineE(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(Eff, "Eff"), Number(MIn, "MIn"), Number(SIn, "SIn"), Text(strTokens), pRetArray)
  SteamXLTurbineE = Outcome(ok, pRetArray)
End Function

' T2 from a, b, c, d, e, f, T1
Public Function SteamSolvePoly5(a, b, c, d, e, f, T1)
  Dim ok, T2
  On Error Resume Next
  ok = Asked().SolvePoly5(T2, Number(a, "a"), Number(b, "b"), Number(c, "c"), Number(d, "d"), Number(e, "e"), Number(f, "f"), Number(T1, "T1"))
  SteamSolvePoly5 = Outcome(ok, T2)
End Function

' pHOut (Mass Specific Enthalpy), pPower (Power) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), m (Mass Flow Rate), Eff (Efficiency)
Public Function SteamWaterPump(HIn, PIn, POut, m, Eff)
  Dim ok, pHOut, pPower
  On Error Resume Next
  ok = Asked().WaterPump(pHOut, pPower, Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(m, "m"), Number(Eff, "Eff"))
  SteamWaterPump = Outcome(ok, Array(pHOut, pPower))
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), m (Mass Flow Rate), Eff (Efficiency), strTokens
Public Function SteamXLWaterPump(HIn, PIn, POut, m, Eff, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLWaterPump(Number(HIn, "HIn"), Number(PIn, "PIn"), Number(POut, "POut"), Number(m, "m"), Number(Eff, "Eff"), Text(strTokens), pRetArray)
  SteamXLWaterPump = Outcome(ok, pRetArray)
End Function

' pRetArray from Hms (Mass Specific Enthalpy), pMs (Pressure), Hss (Mass Specific Enthalpy), Pss (Pressure), Pds (Pressure), Rs (Ratio), strTokens
Public Function SteamXLThermoCompA(Hms, pMs, Hss, Pss, Pds, Rs, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompA(Number(Hms, "Hms"), Number(pMs, "pMs"), Number(Hss, "Hss"), Number(Pss, "Pss"), Number(Pds, "Pds"), Number(Rs, "Rs"), Text(strTokens), pRetArray)
  SteamXLThermoCompA = Outcome(ok, pRetArray)
End Function

' pRetArray from Hms (Mass Specific Enthalpy), pMs (Pressure), Hss (Mass Specific Enthalpy), Pss (Pressure), Pds (Pressure), PF (Ratio), strTokens
Public Function SteamXLThermoCompB(Hms, pMs, Hss, Pss, Pds, PF, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLThermoCompB(Number(Hms, "Hms"), Number(pMs, "pMs"), Number(Hss, "Hss"), Number(Pss, "Pss"), Number(Pds, "Pds"), Number(PF, "PF"), Text(strTokens), pRetArray)
  SteamXLThermoCompB = Outcome(ok, pRetArray)
End Function

' pMBd (Mass Flow Rate), pDuty (Heat Duty), pHOut (Mass Specific Enthalpy), pHBd (Mass Specific Enthalpy), pMIn (Mass Flow Rate), pQFired (Heat Duty) from HIn (Mass Specific Enthalpy), Mout (Mass Flow Rate), TOut (Temperature), POut (Pressure), BRatio (Ratio), Eff (Efficiency)
Public Function SteamBoiler_B(HIn, Mout, TOut, POut, BRatio, Eff)
  Dim ok, pMBd, pDuty, pHOut, pHBd, pMIn, pQFired
  On Error Resume Next
  ok = Asked().Boiler_B(pMBd, pDuty, pHOut, pHBd, pMIn, pQFired, Number(HIn, "HIn"), Number(Mout, "Mout"), Number(TOut, "TOut"), Number(POut, "POut"), Number(BRatio, "BRatio"), Number(Eff, "Eff"))
  SteamBoiler_B = Outcome(ok, Array(pMBd, pDuty, pHOut, pHBd, pMIn, pQFired))
End Function

' pRetArray from HIn (Mass Specific Enthalpy), Mout (Mass Flow Rate), TOut (Temperature), POut (Pressure), BRatio (Ratio), Eff (Efficiency), strTokens
Public Function SteamXLBoiler_B(HIn, Mout, TOut, POut, BRatio, Eff, strTokens)
  Dim ok, pRetArray
  On Error Resume Next
  ok = Asked().XLBoiler_B(Number(HIn, "HIn"), Number(Mout, "Mout"), Number(TOut, "TOut"), Number(POut, "POut"), Number(BRatio, "BRatio"), Number(Eff, "Eff"), Text(strTokens), pRetArray)
  SteamXLBoiler_B = Outcome(ok, pRetArray)
End Function

' pV (Mass Specific Volume) from T (Temperature), Q (Quality)
Public Function SteamVSatTQ(T, Q)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VSatTQ(pV, Number(T, "T"), Number(Q, "Q"))
  SteamVSatTQ = Outcome(ok, pV)
End Function

' pV (Mass Specific Volume) from P (Pressure), Q (Quality)
Public Function SteamVSatPQ(P, Q)
  Dim ok, pV
  On Error Resume Next
  ok = Asked().VSatPQ(pV, Number(P, "P"), Number(Q, "Q"))
  SteamVSatPQ = Outcome(ok, pV)
End Function
