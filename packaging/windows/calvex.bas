Attribute VB_Name = "Calvex"
' Calvex in Excel: properties of water and steam as worksheet functions.
'
' Import this file in the Visual Basic editor (Alt+F11; File, Import File). The server must have
' been registered; docs\windows.html says how. A cell whose function fails shows #N/A, and
' =SteamWhy(A1) tells the reason.
Option Explicit

Private Const UnitsName = "Calvex_Units"  ' of a workbook: "T=C; P=bara"
Private theServer As Object
Private theWanted As Object   ' the units of all quantities, by the text that a workbook has
Private theReasons As Object  ' why cells fail, by cell

' The call of a function that is being made.
Private theCell As Object     ' with the formula; Nothing in a macro
Private theMember As String
Private theFault As String    ' why no element can be computed
Private theNames, theGiven    ' the inputs
Private theRows, theColumns   ' of the inputs together
Private theX, theAnswers, theWhys  ' numbers of the element; of all elements

' The automation object, one for the workbook, for macros that call it themselves: in the units of
' the active workbook.
Public Function SteamServer() As Object
  Connect
  UseUnits ActiveWorkbook
  Set SteamServer = theServer
End Function

Private Sub Connect()
  If theServer Is Nothing Then
    Set theServer = CreateObject("Calvex32.ZvCalvex.3")
    theServer.SatPolish = 2  ' the exact saturation line, as the add-in
    theServer.AppName = Application.Name
    theServer.SetupExcelTracing
  End If
End Sub

Private Function Dictionary(known)
  If Not known Is Nothing Then Set Dictionary = known Else Set Dictionary = CreateObject("Scripting.Dictionary")
End Function

' Whoever calls: the units are those of its workbook.
Private Sub Asked()
  Set theCell = Nothing
  If IsObject(Application.Caller) Then Set theCell = Application.Caller
  Connect
  If theCell Is Nothing Then UseUnits ActiveWorkbook Else UseUnits theCell.Worksheet.Parent
End Sub

' Tells the trace which cell asks; it holds for one call.
Private Sub NameCell()
  If theCell Is Nothing Then  ' a macro: the cell of an earlier call is not its own
    theServer.SetCellRef "", "", ""
  Else
    ' A quote in a name is doubled where the name itself stands in quotes, as it does in GetCellRef.
    theServer.SetCellRef Replace(theCell.Worksheet.Parent.Name, "'", "''"), _
      Replace(theCell.Worksheet.Name, "'", "''"), theCell.Address(False, False)
  End If
End Sub

' --- Units. A workbook keeps them in its name Calvex_Units; without it they are those of the model.
' The server has one set of units for all that use it in this program, and forgets them when its last
' object goes: before each call they are compared with what the workbook wants.

Private Function KeptUnits(book)
  Dim name, text
  On Error Resume Next
  KeptUnits = ""
  Set name = book.Names.Item(UnitsName)
  If Err.Number <> 0 Then Err.Clear: Exit Function
  text = name.RefersTo
  If Left(text, 2) = "=""" Then
    KeptUnits = Mid(text, 3, Len(text) - 3)
  Else  ' it refers to a cell
    KeptUnits = "?"
    KeptUnits = name.RefersToRange.Value2 & ""
    If KeptUnits = "" Then KeptUnits = "?"
    Err.Clear
  End If
End Function

Private Sub UseUnits(book)
  Dim text, wanted, unit, i
  Set theWanted = Dictionary(theWanted)
  text = KeptUnits(book)
  If Not theWanted.Exists(text) Then theWanted.Add text, Chosen(text)
  wanted = theWanted(text)
  For i = 0 To UBound(wanted)
    theServer.GetUserUnitIndex i, unit
    If unit <> wanted(i) Then Demand theServer.SetUserUnitIndex(i, wanted(i))
  Next
End Sub

Private Sub Demand(ok)
  If ok = 0 Then Err.Raise vbObjectError + 513, "Calvex", UnitsName & ": " & theServer.LastError
End Sub

' The units of all quantities that a workbook's text stands for.
Private Function Chosen(text)
  Dim units, part, sign, unit, i
  units = ModelUnits()
  For i = 0 To UBound(units)
    Demand theServer.SetUserUnitIndex(i, units(i))
  Next
  For Each part In Split(text, ";")
    sign = InStr(part, "=")
    If Trim(part) <> "" Then
      If sign = 0 Then
        Err.Raise vbObjectError + 513, "Calvex", UnitsName & ": """ & Trim(part) & _
          """ is not a quantity, a sign = and a unit."
      End If
      Demand theServer.SetUserUnit(Trim(Left(part, sign - 1)), Trim(Mid(part, sign + 1)))
    End If
  Next
  For i = 0 To UBound(units)
    theServer.GetUserUnitIndex i, unit
    units(i) = unit
  Next
  Chosen = units
End Function

' Keeps the server's units in a workbook, and calculates all of it in them.
Private Sub KeepUnits(book)
  Dim text, unit, model, groups, i
  model = ModelUnits()
  groups = Keywords()
  For i = 0 To UBound(model)
    theServer.GetUserUnitIndex i, unit
    If unit <> model(i) Then
      If text <> "" Then text = text & "; "
      text = text & groups(i) & "=" & unit
    End If
  Next
  If text = "" Then text = groups(0) & "=" & model(0)
  book.Names.Add UnitsName, "=""" & text & """"
  Application.CalculateFull
End Sub

' The unit of a quantity.
Public Function SteamUnit(Group)
  Dim i, ok, unit
  On Error Resume Next
  For i = 0 To Opened("SteamUnit", "", Array())
    If Ready(i) Then ok = theServer.GetUserUnit(Text(Group), unit): Keep i, ok, unit
  Next
  SteamUnit = Closed()
End Function

Public Function SteamConvert(Value, Group, FromUnit, ToUnit)
  Dim i, ok, converted
  On Error Resume Next
  For i = 0 To Opened("SteamConvert", "Value", Array(Value))
    If Ready(i) Then ok = theServer.Convert(Text(Group), Text(FromUnit), Text(ToUnit), theX(0), converted): Keep i, ok, converted
  Next
  SteamConvert = Closed()
End Function

' --- Cells and calls.

' What cells hold, or a value as it is.
Private Function Content(value)
  If IsObject(value) Then Content = value.Value2 Else Content = value
End Function

Private Function Text(value)
  Text = CStr(Content(value))
End Function

Private Function RowsOf(value)
  RowsOf = 1
  If IsArray(value) Then
    If IsTable(value) Then RowsOf = UBound(value, 1) - LBound(value, 1) + 1
  End If
End Function

Private Function ColumnsOf(value)
  ColumnsOf = 1
  If IsArray(value) Then
    If IsTable(value) Then ColumnsOf = UBound(value, 2) - LBound(value, 2) + 1 Else ColumnsOf = UBound(value) - LBound(value) + 1
  End If
End Function

' Whether an array has rows and columns.
Private Function IsTable(value)
  Dim last
  On Error Resume Next
  last = UBound(value, 2)
  IsTable = Err.Number = 0
  Err.Clear
End Function

' What stands in a row and a column; a single one goes on without an end.
Private Function Element(value, row, column)
  Dim r, c
  r = row
  c = column
  If RowsOf(value) = 1 Then r = 0
  If ColumnsOf(value) = 1 Then c = 0
  If r >= RowsOf(value) Or c >= ColumnsOf(value) Then
    Element = CVErr(2042)
  ElseIf Not IsArray(value) Then
    Element = value
  ElseIf IsTable(value) Then
    Element = value(LBound(value, 1) + r, LBound(value, 2) + c)
  Else
    Element = value(LBound(value) + c)
  End If
End Function

' A text as a number, written with a point wherever in the world: "10.5", "-1e-3". Empty for any
' other; "10,5" is none.
Private Function NumberIn(text)
  Dim place, letter, digits, hasPoint, hasPower
  NumberIn = Empty
  For place = 1 To Len(Trim(text))
    letter = Mid(Trim(text), place, 1)
    If InStr("0123456789", letter) > 0 Then
      digits = digits + 1
    ElseIf letter = "." Then
      If hasPoint Or hasPower Then Exit Function
      hasPoint = True
    ElseIf letter = "e" Or letter = "E" Then
      If hasPower Or digits = 0 Then Exit Function
      hasPower = True
      digits = 0
    ElseIf letter = "+" Or letter = "-" Then
      If place > 1 Then
        If UCase(Mid(Trim(text), place - 1, 1)) <> "E" Then Exit Function
      End If
    Else
      Exit Function
    End If
  Next
  If digits > 0 Then NumberIn = Val(Trim(text))
End Function

' Begins a call: its inputs by name, and what stands in them. Answers the number of the last element.
Private Function Opened(member, names, given)
  Dim k
  On Error Resume Next
  theMember = member
  theFault = ""
  theRows = 1
  theColumns = 1
  theNames = Split(names, " ")
  theGiven = given
  For k = 0 To UBound(theGiven)
    theGiven(k) = Content(given(k))
    If RowsOf(theGiven(k)) > theRows Then theRows = RowsOf(theGiven(k))
    If ColumnsOf(theGiven(k)) > theColumns Then theColumns = ColumnsOf(theGiven(k))
  Next
  ReDim theX(UBound(theGiven) + 1)
  ReDim theAnswers(theRows * theColumns - 1)
  ReDim theWhys(theRows * theColumns - 1)
  Set theReasons = Dictionary(theReasons)
  Err.Clear
  Asked
  If Err.Number <> 0 Then theFault = Reason()
  Opened = theRows * theColumns - 1
End Function

' Reads the numbers of an element; False where one is none.
Private Function Ready(i)
  Dim k, given
  Ready = False
  If theFault <> "" Then Refuse i, theFault: Exit Function
  For k = 0 To UBound(theGiven)
    given = Element(theGiven(k), i \ theColumns, i Mod theColumns)
    If IsError(given) Then
      Refuse i, theNames(k) & " is an error itself, or has no element here."
      theAnswers(i) = given
      Exit Function
    ElseIf IsEmpty(given) Then
      Refuse i, theNames(k) & " is an empty cell."
      Exit Function
    ElseIf VarType(given) = vbString Then
      theX(k) = NumberIn(given)
      If IsEmpty(theX(k)) Then Refuse i, theNames(k) & " is the text """ & given & """, which is no number with a point.": Exit Function
    ElseIf VarType(given) = vbBoolean Or Not IsNumeric(given) Then
      Refuse i, theNames(k) & " is not a number."
      Exit Function
    Else
      theX(k) = CDbl(given)
    End If
  Next
  NameCell
  Ready = True
End Function

Private Sub Refuse(i, why)
  theAnswers(i) = CVErr(2042)
  theWhys(i) = theMember & ": " & why
End Sub

' Keeps the answer to an element, or why there is none.
Private Sub Keep(i, ok, answer)
  If Err.Number <> 0 Then
    Refuse i, Reason()
  ElseIf ok = 0 Then
    Refuse i, theServer.LastError
  ElseIf IsEmpty(answer) Then
    Refuse i, "there is no such result of these inputs."
  Else
    theAnswers(i) = answer
  End If
End Sub

Private Function Reason()
  Reason = Err.Description
  If Err.Number = 429 Then Reason = "The server is not registered for this Excel. Install Calvex for all users, or run register.cmd of the ZIP."
  Err.Clear
End Function

' The result of a call: of one element as it is, of several in their places. Several results of each
' stand beside their inputs, or below them where these are a row.
Private Function Closed()
  Dim answer, result, width, i, k
  If theRows * theColumns = 1 Then
    answer = theAnswers(0)
    width = 1
    If IsArray(answer) Then
      If IsTable(answer) Then width = 0 Else width = UBound(answer) + 1
    End If
    Remember 0, 0, width, 1
    Closed = Whole(answer)
    Exit Function
  End If
  width = 1
  For i = 0 To UBound(theAnswers)
    theAnswers(i) = Values(theAnswers(i))
    If IsArray(theAnswers(i)) Then
      If UBound(theAnswers(i)) + 1 > width Then width = UBound(theAnswers(i)) + 1
    End If
  Next
  If width > 1 And theRows > 1 And theColumns > 1 Then
    Refuse 0, "several results of a table have no place."
    Remember 0, 0, 1, 1
    Closed = CVErr(2042)
    Exit Function
  End If
  If theColumns = 1 Then
    ReDim result(theRows - 1, width - 1)
  Else
    ReDim result(theRows * width - 1, theColumns - 1)
  End If
  For i = 0 To UBound(theAnswers)
    For k = 0 To width - 1
      answer = theAnswers(i)
      If IsArray(answer) Then answer = answer(k)
      If IsEmpty(answer) Then answer = CVErr(2042)
      If theColumns = 1 Then
        result(i, k) = answer
      Else
        result(i \ theColumns + k, i Mod theColumns) = answer
      End If
    Next
    If theColumns = 1 Then Remember i, 0, width, 1 Else Remember i \ theColumns, i Mod theColumns, 1, width
  Next
  Closed = result
End Function

' A row of results without gaps: what a member leaves out is not available.
Private Function Whole(answer)
  Dim k
  If IsArray(answer) Then
    If Not IsTable(answer) Then
      For k = 0 To UBound(answer)
        If IsEmpty(answer(k)) Then answer(k) = CVErr(2042)
      Next
    End If
  End If
  Whole = answer
End Function

' The numbers of a result array: they stand behind the labels where there are such.
Private Function Values(answer)
  Dim numbers, column, k
  Values = answer
  If Not IsArray(answer) Then Exit Function
  If Not IsTable(answer) Then Exit Function
  column = 0
  If VarType(answer(0, 0)) = vbString And UBound(answer, 2) > 0 Then column = 1
  ReDim numbers(UBound(answer, 1))
  For k = 0 To UBound(answer, 1)
    numbers(k) = answer(k, column)
  Next
  Values = numbers
End Function

' --- Reasons.

' A cell with its formula: what another one has left there is no reason of this one's.
Private Function KeyOf(cell, down, right)
  KeyOf = "[" & cell.Worksheet.Parent.Name & "]" & cell.Worksheet.Name & "!" & _
    (cell.Row + down) & "," & (cell.Column + right) & FormulaOf(cell)
End Function

Private Function FormulaOf(cell)
  On Error Resume Next
  FormulaOf = cell.Cells(1, 1).Formula
  FormulaOf = cell.SpillParent.Formula  ' an error where no result has spilled to
  Err.Clear
End Function

' Keeps why the cells of an element fail. One that only passes an error on leaves what an inner
' function of the same formula has said, and one that succeeds forgets its own reason only.
Private Sub Remember(down, right, wide, high)
  Dim key, why, known, own, r, c
  If theCell Is Nothing Then Exit Sub
  why = theWhys(down * theColumns + right)
  If why = "" And theReasons.Count = 0 Then Exit Sub
  For r = down To down + high - 1
    For c = right To right + wide - 1
      key = KeyOf(theCell, r, c)
      known = ""
      If theReasons.Exists(key) Then known = theReasons(key)
      own = known = "" Or Left(known, Len(theMember) + 2) = theMember & ": "
      If why = "" Then
        If own And known <> "" Then theReasons.Remove key
      ElseIf own Or InStr(why, "is an error itself") = 0 Then
        theReasons(key) = why
      End If
    Next
  Next
End Sub

' A function that is refused before it calls a member.
Private Function Refused(member, why)
  Dim last
  On Error Resume Next
  last = Opened(member, "", Array())
  Refuse 0, why
  Refused = Closed()
End Function

' Why a cell has no value; empty for one that has.
Public Function SteamWhy(Cell)
  Dim given
  On Error Resume Next
  SteamWhy = ""
  given = Element(Content(Cell), 0, 0)
  If Not IsError(given) Then Exit Function
  SteamWhy = "No function of Calvex has failed here, as the cell stands now. Ctrl+Alt+F9 calculates everything anew."
  Set theReasons = Dictionary(theReasons)
  If theReasons.Exists(KeyOf(Cell, 0, 0)) Then SteamWhy = theReasons(KeyOf(Cell, 0, 0))
End Function

' --- Macros (Alt+F8, or the menu Calvex under Add-ins).

' What Excel runs when the workbook is opened: the menu, and what the function wizard shows.
Public Sub Auto_Open()
  On Error Resume Next
  DescribeAll
  AddMenu
  Err.Clear
End Sub

Public Sub Auto_Close()
  On Error Resume Next
  Application.CommandBars.Item("Worksheet Menu Bar").Controls.Item("Calvex").Delete
  Err.Clear
End Sub

Private Sub Describe(name, category, description, arguments)
  On Error Resume Next  ' Excel before 2010 has no texts for arguments, an add-in none at all
  Application.MacroOptions Macro:=name, Description:=description, Category:=category, ArgumentDescriptions:=arguments
End Sub

Private Sub AddMenu()
  Dim menu
  Auto_Close
  Set menu = Application.CommandBars.Item("Worksheet Menu Bar").Controls.Add(Type:=10, Temporary:=True)
  menu.Caption = "Calvex"
  AddCommand menu, "&Units of This Workbook...", "ChooseSteamUnits"
  AddCommand menu, "&Record of Failed Calls...", "ShowSteamTrace"
  AddCommand menu, "&Clear the Record", "ClearSteamTrace"
  AddCommand menu, "Insert &Saturation Table", "InsertSaturationTable"
  AddCommand menu, "Insert State &Table", "InsertStateTable"
End Sub

Private Sub AddCommand(menu, caption, macro)
  Dim command
  Set command = menu.Controls.Add(Type:=1, Temporary:=True)
  command.Caption = caption
  command.OnAction = macro
End Sub

' The dialog for the units of the active workbook.
Public Sub ChooseSteamUnits()
  Dim result
  On Error Resume Next
  result = SteamServer().ShowSelectUomDlg()
  If Err.Number = 0 And result = 1 Then KeepUnits ActiveWorkbook
  If Err.Number <> 0 Then MsgBox Reason()
End Sub

' For macros: chooses a unit of the active workbook, which keeps it.
Public Sub SteamSetUnit(Group, Unit)
  Dim server
  Set server = SteamServer()
  If server.SetUserUnit(Group, Unit) = 0 Then Err.Raise vbObjectError + 513, "Calvex", server.LastError
  KeepUnits ActiveWorkbook
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

' A value of the model in the workbook's unit, as a formula.
Private Function InUnits(value, group, unit)
  InUnits = "=SteamConvert(" & value & ",""" & group & """,""" & unit & """,SteamUnit(""" & group & """))"
End Function

' Writes formulas at the active cell: the saturation line from 10 to 370 degrees C.
Public Sub InsertSaturationTable()
  Dim heads, groups, formulas, at, row, k
  Set at = ActiveCell
  heads = Split("temperature|pressure|volume, liquid|volume, vapour|enthalpy, liquid|enthalpy, vapour|entropy, liquid|entropy, vapour", "|")
  groups = Split("T|P|V|V|H|H|S|S", "|")
  ' Q is 1 as a fraction and 100 in per cent.
  formulas = Split("|SteamPSatT(#)|SteamVSatTQ(#,0)|SteamVSatTQ(#,Q)|SteamHSatTQ(#,0)|SteamHSatTQ(#,Q)|SteamSSatTQ(#,0)|SteamSSatTQ(#,Q)", "|")
  If Not HasRoom(at, 39, UBound(heads) + 1) Then Exit Sub
  For k = 0 To UBound(heads)
    at.Offset(0, k).Value2 = heads(k)
    at.Offset(1, k).Formula = "=SteamUnit(""" & groups(k) & """)"
  Next
  For row = 2 To 38
    at.Offset(row, 0).Formula = InUnits(10 * (row - 1), "T", "C")
    For k = 1 To UBound(heads)
      at.Offset(row, k).Formula = "=" & Replace(Replace(formulas(k), "#", at.Offset(row, 0).Address(False, True)), ",Q)", "," & Mid(InUnits(1, "Q", "Fraction"), 2) & ")")
    Next
  Next
End Sub

' What a macro writes over cannot be undone.
Private Function HasRoom(at, rows, columns)
  Dim row, column
  On Error Resume Next  ' behind the sheet's end there are no cells
  HasRoom = True
  For row = 0 To rows - 1
    For column = 0 To columns - 1
      If Not IsEmpty(at.Offset(row, column).Value2) Then HasRoom = False
      If Err.Number <> 0 Then HasRoom = False
    Next
  Next
  If Not HasRoom Then MsgBox "Select a cell with " & rows & " empty rows and " & columns & " empty columns from there on."
End Function

' The same for everything about one state, of a pressure and a temperature to be overwritten.
Public Sub InsertStateTable()
  Dim rows, at, state, k
  Set at = ActiveCell
  If Not HasRoom(at, 12, 3) Then Exit Sub
  at.Value2 = "pressure"
  at.Offset(0, 1).Formula = InUnits(10, "P", "MPa")
  at.Offset(0, 2).Formula = "=SteamUnit(""P"")"
  at.Offset(1, 0).Value2 = "temperature"
  at.Offset(1, 1).Formula = InUnits(500, "T", "C")
  at.Offset(1, 2).Formula = "=SteamUnit(""T"")"
  state = "(" & at.Offset(0, 1).Address(False, False) & "," & at.Offset(1, 1).Address(False, False) & ")"
  rows = Split("enthalpy H|entropy S|internal energy U|specific volume V|density R|heat capacity, constant pressure C|heat capacity, constant volume D|speed of sound W|viscosity M|thermal conductivity K", "|")
  For k = 0 To UBound(rows)
    at.Offset(k + 2, 0).Value2 = Left(rows(k), Len(rows(k)) - 2)
    at.Offset(k + 2, 1).Formula = "=Steam" & Right(rows(k), 1) & "PT" & state
    at.Offset(k + 2, 2).Formula = "=SteamUnit(""" & Right(rows(k), 1) & """)"
  Next
End Sub

' From here on: Made by scripts/update-generated from the product's tables.

Private Function Keywords()
  Keywords = Split("T|P|R|V|S|H|U|Q|C|Flow Rate|Heat Duty|Efficiency|Ratio|M|K|X|W|I|J|B|L|Molecular Weight|Power|A|G|DT|DP", "|")
End Function

Private Function ModelUnits()
  ModelUnits = Split("K|MPa|kg/m^3|m^3/kg|kJ/(kg.K)|kJ/kg|kJ/kg|Fraction|kJ/(kg.K)|kg/s|kW|Fraction|Fraction|Pa.s|W/(K.m)|N/m|m/s|kJ/(kg.MPa)|K/MPa|1/K|1/MPa|kg/kg-mol|kW|kJ/kg|kJ/kg|K|MPa", "|")
End Function

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
    Steam = Refused("Steam", "there is no function " & Text(Member))
    Exit Function
  End Select
  Steam = Refused("Steam", Text(Member) & " takes " & inputs)
End Function

' pVal (Molecular Weight)
Public Function SteamMolWeight()
  Dim i, pVal
  On Error Resume Next
  For i = 0 To Opened("MolWeight", "", Array())
    If Ready(i) Then pVal = Empty: pVal = theServer.MolWeight(): Keep i, 1, pVal
  Next
  SteamMolWeight = Closed()
End Function

' pVal (Temperature)
Public Function SteamCritT()
  Dim i, pVal
  On Error Resume Next
  For i = 0 To Opened("CritT", "", Array())
    If Ready(i) Then pVal = Empty: pVal = theServer.CritT(): Keep i, 1, pVal
  Next
  SteamCritT = Closed()
End Function

' pVal (Pressure)
Public Function SteamCritP()
  Dim i, pVal
  On Error Resume Next
  For i = 0 To Opened("CritP", "", Array())
    If Ready(i) Then pVal = Empty: pVal = theServer.CritP(): Keep i, 1, pVal
  Next
  SteamCritP = Closed()
End Function

' pVal (Mass Specific Volume)
Public Function SteamCritV()
  Dim i, pVal
  On Error Resume Next
  For i = 0 To Opened("CritV", "", Array())
    If Ready(i) Then pVal = Empty: pVal = theServer.CritV(): Keep i, 1, pVal
  Next
  SteamCritV = Closed()
End Function

' pVal (Density)
Public Function SteamCritR()
  Dim i, pVal
  On Error Resume Next
  For i = 0 To Opened("CritR", "", Array())
    If Ready(i) Then pVal = Empty: pVal = theServer.CritR(): Keep i, 1, pVal
  Next
  SteamCritR = Closed()
End Function

' pVal
Public Function SteamCritZ()
  Dim i, pVal
  On Error Resume Next
  For i = 0 To Opened("CritZ", "", Array())
    If Ready(i) Then pVal = Empty: pVal = theServer.CritZ(): Keep i, 1, pVal
  Next
  SteamCritZ = Closed()
End Function

' pVal (Temperature)
Public Function SteamTripleT()
  Dim i, pVal
  On Error Resume Next
  For i = 0 To Opened("TripleT", "", Array())
    If Ready(i) Then pVal = Empty: pVal = theServer.TripleT(): Keep i, 1, pVal
  Next
  SteamTripleT = Closed()
End Function

' pVal (Pressure)
Public Function SteamTripleP()
  Dim i, pVal
  On Error Resume Next
  For i = 0 To Opened("TripleP", "", Array())
    If Ready(i) Then pVal = Empty: pVal = theServer.TripleP(): Keep i, 1, pVal
  Next
  SteamTripleP = Closed()
End Function

' pP (Pressure) from T (Temperature)
Public Function SteamPSatT(T)
  Dim i, ok, pP
  On Error Resume Next
  For i = 0 To Opened("PSatT", "T", Array(T))
    If Ready(i) Then pP = Empty: ok = theServer.PSatT(pP, theX(0)): Keep i, ok, pP
  Next
  SteamPSatT = Closed()
End Function

' pT (Temperature) from P (Pressure)
Public Function SteamTSatP(P)
  Dim i, ok, pT
  On Error Resume Next
  For i = 0 To Opened("TSatP", "P", Array(P))
    If Ready(i) Then pT = Empty: ok = theServer.TSatP(pT, theX(0)): Keep i, ok, pT
  Next
  SteamTSatP = Closed()
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), Q (Quality)
Public Function SteamHSatTQ(T, Q)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HSatTQ", "T Q", Array(T, Q))
    If Ready(i) Then pH = Empty: ok = theServer.HSatTQ(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHSatTQ = Closed()
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), Q (Quality)
Public Function SteamHSatPQ(P, Q)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HSatPQ", "P Q", Array(P, Q))
    If Ready(i) Then pH = Empty: ok = theServer.HSatPQ(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHSatPQ = Closed()
End Function

' pS (Mass Specific Entropy) from T (Temperature), Q (Quality)
Public Function SteamSSatTQ(T, Q)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("SSatTQ", "T Q", Array(T, Q))
    If Ready(i) Then pS = Empty: ok = theServer.SSatTQ(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSSatTQ = Closed()
End Function

' pS (Mass Specific Entropy) from P (Pressure), Q (Quality)
Public Function SteamSSatPQ(P, Q)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("SSatPQ", "P Q", Array(P, Q))
    If Ready(i) Then pS = Empty: ok = theServer.SSatPQ(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSSatPQ = Closed()
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), Q (Quality)
Public Function SteamUSatTQ(T, Q)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("USatTQ", "T Q", Array(T, Q))
    If Ready(i) Then pU = Empty: ok = theServer.USatTQ(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUSatTQ = Closed()
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), Q (Quality)
Public Function SteamUSatPQ(P, Q)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("USatPQ", "P Q", Array(P, Q))
    If Ready(i) Then pU = Empty: ok = theServer.USatPQ(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUSatPQ = Closed()
End Function

' pR (Density) from T (Temperature), Q (Quality)
Public Function SteamRSatTQ(T, Q)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RSatTQ", "T Q", Array(T, Q))
    If Ready(i) Then pR = Empty: ok = theServer.RSatTQ(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRSatTQ = Closed()
End Function

' pR (Density) from P (Pressure), Q (Quality)
Public Function SteamRSatPQ(P, Q)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RSatPQ", "P Q", Array(P, Q))
    If Ready(i) Then pR = Empty: ok = theServer.RSatPQ(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRSatPQ = Closed()
End Function

' pP (Pressure) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamPTH(T, H)
  Dim i, ok, pP
  On Error Resume Next
  For i = 0 To Opened("PTH", "T H", Array(T, H))
    If Ready(i) Then pP = Empty: ok = theServer.PTH(pP, theX(0), theX(1)): Keep i, ok, pP
  Next
  SteamPTH = Closed()
End Function

' pP (Pressure) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamPTS(T, S)
  Dim i, ok, pP
  On Error Resume Next
  For i = 0 To Opened("PTS", "T S", Array(T, S))
    If Ready(i) Then pP = Empty: ok = theServer.PTS(pP, theX(0), theX(1)): Keep i, ok, pP
  Next
  SteamPTS = Closed()
End Function

' pP (Pressure) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamPTU(T, U)
  Dim i, ok, pP
  On Error Resume Next
  For i = 0 To Opened("PTU", "T U", Array(T, U))
    If Ready(i) Then pP = Empty: ok = theServer.PTU(pP, theX(0), theX(1)): Keep i, ok, pP
  Next
  SteamPTU = Closed()
End Function

' pP (Pressure) from T (Temperature), R (Density)
Public Function SteamPTR(T, R)
  Dim i, ok, pP
  On Error Resume Next
  For i = 0 To Opened("PTR", "T R", Array(T, R))
    If Ready(i) Then pP = Empty: ok = theServer.PTR(pP, theX(0), theX(1)): Keep i, ok, pP
  Next
  SteamPTR = Closed()
End Function

' pP (Pressure) from T (Temperature), V (Mass Specific Volume)
Public Function SteamPTV(T, V)
  Dim i, ok, pP
  On Error Resume Next
  For i = 0 To Opened("PTV", "T V", Array(T, V))
    If Ready(i) Then pP = Empty: ok = theServer.PTV(pP, theX(0), theX(1)): Keep i, ok, pP
  Next
  SteamPTV = Closed()
End Function

' pT (Temperature) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamTPH(P, H)
  Dim i, ok, pT
  On Error Resume Next
  For i = 0 To Opened("TPH", "P H", Array(P, H))
    If Ready(i) Then pT = Empty: ok = theServer.TPH(pT, theX(0), theX(1)): Keep i, ok, pT
  Next
  SteamTPH = Closed()
End Function

' pT (Temperature) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamTPS(P, S)
  Dim i, ok, pT
  On Error Resume Next
  For i = 0 To Opened("TPS", "P S", Array(P, S))
    If Ready(i) Then pT = Empty: ok = theServer.TPS(pT, theX(0), theX(1)): Keep i, ok, pT
  Next
  SteamTPS = Closed()
End Function

' pT (Temperature) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamTPU(P, U)
  Dim i, ok, pT
  On Error Resume Next
  For i = 0 To Opened("TPU", "P U", Array(P, U))
    If Ready(i) Then pT = Empty: ok = theServer.TPU(pT, theX(0), theX(1)): Keep i, ok, pT
  Next
  SteamTPU = Closed()
End Function

' pT (Temperature) from P (Pressure), R (Density)
Public Function SteamTPR(P, R)
  Dim i, ok, pT
  On Error Resume Next
  For i = 0 To Opened("TPR", "P R", Array(P, R))
    If Ready(i) Then pT = Empty: ok = theServer.TPR(pT, theX(0), theX(1)): Keep i, ok, pT
  Next
  SteamTPR = Closed()
End Function

' pT (Temperature) from P (Pressure), V (Mass Specific Volume)
Public Function SteamTPV(P, V)
  Dim i, ok, pT
  On Error Resume Next
  For i = 0 To Opened("TPV", "P V", Array(P, V))
    If Ready(i) Then pT = Empty: ok = theServer.TPV(pT, theX(0), theX(1)): Keep i, ok, pT
  Next
  SteamTPV = Closed()
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), T (Temperature)
Public Function SteamHPT(P, T)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HPT", "P T", Array(P, T))
    If Ready(i) Then pH = Empty: ok = theServer.HPT(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHPT = Closed()
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), T (Temperature), Q (Quality)
Public Function SteamHPTQ(P, T, Q)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HPTQ", "P T Q", Array(P, T, Q))
    If Ready(i) Then pH = Empty: ok = theServer.HPTQ(pH, theX(0), theX(1), theX(2)): Keep i, ok, pH
  Next
  SteamHPTQ = Closed()
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamHPS(P, S)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HPS", "P S", Array(P, S))
    If Ready(i) Then pH = Empty: ok = theServer.HPS(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHPS = Closed()
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamHPU(P, U)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HPU", "P U", Array(P, U))
    If Ready(i) Then pH = Empty: ok = theServer.HPU(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHPU = Closed()
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), R (Density)
Public Function SteamHPR(P, R)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HPR", "P R", Array(P, R))
    If Ready(i) Then pH = Empty: ok = theServer.HPR(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHPR = Closed()
End Function

' pH (Mass Specific Enthalpy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamHPV(P, V)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HPV", "P V", Array(P, V))
    If Ready(i) Then pH = Empty: ok = theServer.HPV(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHPV = Closed()
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamHTS(T, S)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HTS", "T S", Array(T, S))
    If Ready(i) Then pH = Empty: ok = theServer.HTS(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHTS = Closed()
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamHTU(T, U)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HTU", "T U", Array(T, U))
    If Ready(i) Then pH = Empty: ok = theServer.HTU(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHTU = Closed()
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), R (Density)
Public Function SteamHTR(T, R)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HTR", "T R", Array(T, R))
    If Ready(i) Then pH = Empty: ok = theServer.HTR(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHTR = Closed()
End Function

' pH (Mass Specific Enthalpy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamHTV(T, V)
  Dim i, ok, pH
  On Error Resume Next
  For i = 0 To Opened("HTV", "T V", Array(T, V))
    If Ready(i) Then pH = Empty: ok = theServer.HTV(pH, theX(0), theX(1)): Keep i, ok, pH
  Next
  SteamHTV = Closed()
End Function

' pS (Mass Specific Entropy) from P (Pressure), T (Temperature)
Public Function SteamSPT(P, T)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("SPT", "P T", Array(P, T))
    If Ready(i) Then pS = Empty: ok = theServer.SPT(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSPT = Closed()
End Function

' pS (Mass Specific Entropy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamSPH(P, H)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("SPH", "P H", Array(P, H))
    If Ready(i) Then pS = Empty: ok = theServer.SPH(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSPH = Closed()
End Function

' pS (Mass Specific Entropy) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamSPU(P, U)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("SPU", "P U", Array(P, U))
    If Ready(i) Then pS = Empty: ok = theServer.SPU(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSPU = Closed()
End Function

' pS (Mass Specific Entropy) from P (Pressure), R (Density)
Public Function SteamSPR(P, R)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("SPR", "P R", Array(P, R))
    If Ready(i) Then pS = Empty: ok = theServer.SPR(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSPR = Closed()
End Function

' pS (Mass Specific Entropy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamSPV(P, V)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("SPV", "P V", Array(P, V))
    If Ready(i) Then pS = Empty: ok = theServer.SPV(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSPV = Closed()
End Function

' pS (Mass Specific Entropy) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamSTH(T, H)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("STH", "T H", Array(T, H))
    If Ready(i) Then pS = Empty: ok = theServer.STH(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSTH = Closed()
End Function

' pS (Mass Specific Entropy) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamSTU(T, U)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("STU", "T U", Array(T, U))
    If Ready(i) Then pS = Empty: ok = theServer.STU(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSTU = Closed()
End Function

' pS (Mass Specific Entropy) from T (Temperature), R (Density)
Public Function SteamSTR(T, R)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("STR", "T R", Array(T, R))
    If Ready(i) Then pS = Empty: ok = theServer.STR(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSTR = Closed()
End Function

' pS (Mass Specific Entropy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamSTV(T, V)
  Dim i, ok, pS
  On Error Resume Next
  For i = 0 To Opened("STV", "T V", Array(T, V))
    If Ready(i) Then pS = Empty: ok = theServer.STV(pS, theX(0), theX(1)): Keep i, ok, pS
  Next
  SteamSTV = Closed()
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), T (Temperature)
Public Function SteamUPT(P, T)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UPT", "P T", Array(P, T))
    If Ready(i) Then pU = Empty: ok = theServer.UPT(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUPT = Closed()
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamUPH(P, H)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UPH", "P H", Array(P, H))
    If Ready(i) Then pU = Empty: ok = theServer.UPH(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUPH = Closed()
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamUPS(P, S)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UPS", "P S", Array(P, S))
    If Ready(i) Then pU = Empty: ok = theServer.UPS(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUPS = Closed()
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), R (Density)
Public Function SteamUPR(P, R)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UPR", "P R", Array(P, R))
    If Ready(i) Then pU = Empty: ok = theServer.UPR(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUPR = Closed()
End Function

' pU (Mass Specific Internal Energy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamUPV(P, V)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UPV", "P V", Array(P, V))
    If Ready(i) Then pU = Empty: ok = theServer.UPV(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUPV = Closed()
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamUTH(T, H)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UTH", "T H", Array(T, H))
    If Ready(i) Then pU = Empty: ok = theServer.UTH(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUTH = Closed()
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamUTS(T, S)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UTS", "T S", Array(T, S))
    If Ready(i) Then pU = Empty: ok = theServer.UTS(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUTS = Closed()
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), R (Density)
Public Function SteamUTR(T, R)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UTR", "T R", Array(T, R))
    If Ready(i) Then pU = Empty: ok = theServer.UTR(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUTR = Closed()
End Function

' pU (Mass Specific Internal Energy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamUTV(T, V)
  Dim i, ok, pU
  On Error Resume Next
  For i = 0 To Opened("UTV", "T V", Array(T, V))
    If Ready(i) Then pU = Empty: ok = theServer.UTV(pU, theX(0), theX(1)): Keep i, ok, pU
  Next
  SteamUTV = Closed()
End Function

' pR (Density) from P (Pressure), T (Temperature)
Public Function SteamRPT(P, T)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RPT", "P T", Array(P, T))
    If Ready(i) Then pR = Empty: ok = theServer.RPT(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRPT = Closed()
End Function

' pR (Density) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamRPH(P, H)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RPH", "P H", Array(P, H))
    If Ready(i) Then pR = Empty: ok = theServer.RPH(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRPH = Closed()
End Function

' pR (Density) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamRPS(P, S)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RPS", "P S", Array(P, S))
    If Ready(i) Then pR = Empty: ok = theServer.RPS(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRPS = Closed()
End Function

' pR (Density) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamRPU(P, U)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RPU", "P U", Array(P, U))
    If Ready(i) Then pR = Empty: ok = theServer.RPU(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRPU = Closed()
End Function

' pR (Density) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamRTH(T, H)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RTH", "T H", Array(T, H))
    If Ready(i) Then pR = Empty: ok = theServer.RTH(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRTH = Closed()
End Function

' pR (Density) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamRTS(T, S)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RTS", "T S", Array(T, S))
    If Ready(i) Then pR = Empty: ok = theServer.RTS(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRTS = Closed()
End Function

' pR (Density) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamRTU(T, U)
  Dim i, ok, pR
  On Error Resume Next
  For i = 0 To Opened("RTU", "T U", Array(T, U))
    If Ready(i) Then pR = Empty: ok = theServer.RTU(pR, theX(0), theX(1)): Keep i, ok, pR
  Next
  SteamRTU = Closed()
End Function

' pV (Mass Specific Volume) from P (Pressure), T (Temperature)
Public Function SteamVPT(P, T)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VPT", "P T", Array(P, T))
    If Ready(i) Then pV = Empty: ok = theServer.VPT(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVPT = Closed()
End Function

' pV (Mass Specific Volume) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamVPH(P, H)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VPH", "P H", Array(P, H))
    If Ready(i) Then pV = Empty: ok = theServer.VPH(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVPH = Closed()
End Function

' pV (Mass Specific Volume) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamVPS(P, S)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VPS", "P S", Array(P, S))
    If Ready(i) Then pV = Empty: ok = theServer.VPS(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVPS = Closed()
End Function

' pV (Mass Specific Volume) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamVPU(P, U)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VPU", "P U", Array(P, U))
    If Ready(i) Then pV = Empty: ok = theServer.VPU(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVPU = Closed()
End Function

' pV (Mass Specific Volume) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamVTH(T, H)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VTH", "T H", Array(T, H))
    If Ready(i) Then pV = Empty: ok = theServer.VTH(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVTH = Closed()
End Function

' pV (Mass Specific Volume) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamVTS(T, S)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VTS", "T S", Array(T, S))
    If Ready(i) Then pV = Empty: ok = theServer.VTS(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVTS = Closed()
End Function

' pV (Mass Specific Volume) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamVTU(T, U)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VTU", "T U", Array(T, U))
    If Ready(i) Then pV = Empty: ok = theServer.VTU(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVTU = Closed()
End Function

' pQ (Quality) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamQPH(P, H)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QPH", "P H", Array(P, H))
    If Ready(i) Then pQ = Empty: ok = theServer.QPH(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQPH = Closed()
End Function

' pQ (Quality) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamQPS(P, S)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QPS", "P S", Array(P, S))
    If Ready(i) Then pQ = Empty: ok = theServer.QPS(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQPS = Closed()
End Function

' pQ (Quality) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamQPU(P, U)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QPU", "P U", Array(P, U))
    If Ready(i) Then pQ = Empty: ok = theServer.QPU(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQPU = Closed()
End Function

' pQ (Quality) from P (Pressure), R (Density)
Public Function SteamQPR(P, R)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QPR", "P R", Array(P, R))
    If Ready(i) Then pQ = Empty: ok = theServer.QPR(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQPR = Closed()
End Function

' pQ (Quality) from P (Pressure), V (Mass Specific Volume)
Public Function SteamQPV(P, V)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QPV", "P V", Array(P, V))
    If Ready(i) Then pQ = Empty: ok = theServer.QPV(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQPV = Closed()
End Function

' pQ (Quality) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamQTH(T, H)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QTH", "T H", Array(T, H))
    If Ready(i) Then pQ = Empty: ok = theServer.QTH(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQTH = Closed()
End Function

' pQ (Quality) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamQTS(T, S)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QTS", "T S", Array(T, S))
    If Ready(i) Then pQ = Empty: ok = theServer.QTS(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQTS = Closed()
End Function

' pQ (Quality) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamQTU(T, U)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QTU", "T U", Array(T, U))
    If Ready(i) Then pQ = Empty: ok = theServer.QTU(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQTU = Closed()
End Function

' pQ (Quality) from T (Temperature), R (Density)
Public Function SteamQTR(T, R)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QTR", "T R", Array(T, R))
    If Ready(i) Then pQ = Empty: ok = theServer.QTR(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQTR = Closed()
End Function

' pQ (Quality) from T (Temperature), V (Mass Specific Volume)
Public Function SteamQTV(T, V)
  Dim i, ok, pQ
  On Error Resume Next
  For i = 0 To Opened("QTV", "T V", Array(T, V))
    If Ready(i) Then pQ = Empty: ok = theServer.QTV(pQ, theX(0), theX(1)): Keep i, ok, pQ
  Next
  SteamQTV = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), T (Temperature)
Public Function SteamAPT(P, T)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("APT", "P T", Array(P, T))
    If Ready(i) Then pA = Empty: ok = theServer.APT(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamAPT = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamAPH(P, H)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("APH", "P H", Array(P, H))
    If Ready(i) Then pA = Empty: ok = theServer.APH(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamAPH = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamAPS(P, S)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("APS", "P S", Array(P, S))
    If Ready(i) Then pA = Empty: ok = theServer.APS(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamAPS = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamAPU(P, U)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("APU", "P U", Array(P, U))
    If Ready(i) Then pA = Empty: ok = theServer.APU(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamAPU = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), R (Density)
Public Function SteamAPR(P, R)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("APR", "P R", Array(P, R))
    If Ready(i) Then pA = Empty: ok = theServer.APR(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamAPR = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamAPV(P, V)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("APV", "P V", Array(P, V))
    If Ready(i) Then pA = Empty: ok = theServer.APV(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamAPV = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamATH(T, H)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("ATH", "T H", Array(T, H))
    If Ready(i) Then pA = Empty: ok = theServer.ATH(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamATH = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamATS(T, S)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("ATS", "T S", Array(T, S))
    If Ready(i) Then pA = Empty: ok = theServer.ATS(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamATS = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamATU(T, U)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("ATU", "T U", Array(T, U))
    If Ready(i) Then pA = Empty: ok = theServer.ATU(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamATU = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), R (Density)
Public Function SteamATR(T, R)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("ATR", "T R", Array(T, R))
    If Ready(i) Then pA = Empty: ok = theServer.ATR(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamATR = Closed()
End Function

' pA (Mass Specific Helmholtz Energy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamATV(T, V)
  Dim i, ok, pA
  On Error Resume Next
  For i = 0 To Opened("ATV", "T V", Array(T, V))
    If Ready(i) Then pA = Empty: ok = theServer.ATV(pA, theX(0), theX(1)): Keep i, ok, pA
  Next
  SteamATV = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), T (Temperature)
Public Function SteamGPT(P, T)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GPT", "P T", Array(P, T))
    If Ready(i) Then pG = Empty: ok = theServer.GPT(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGPT = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamGPH(P, H)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GPH", "P H", Array(P, H))
    If Ready(i) Then pG = Empty: ok = theServer.GPH(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGPH = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), S (Mass Specific Entropy)
Public Function SteamGPS(P, S)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GPS", "P S", Array(P, S))
    If Ready(i) Then pG = Empty: ok = theServer.GPS(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGPS = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), U (Mass Specific Internal Energy)
Public Function SteamGPU(P, U)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GPU", "P U", Array(P, U))
    If Ready(i) Then pG = Empty: ok = theServer.GPU(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGPU = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), R (Density)
Public Function SteamGPR(P, R)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GPR", "P R", Array(P, R))
    If Ready(i) Then pG = Empty: ok = theServer.GPR(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGPR = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from P (Pressure), V (Mass Specific Volume)
Public Function SteamGPV(P, V)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GPV", "P V", Array(P, V))
    If Ready(i) Then pG = Empty: ok = theServer.GPV(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGPV = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), H (Mass Specific Enthalpy)
Public Function SteamGTH(T, H)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GTH", "T H", Array(T, H))
    If Ready(i) Then pG = Empty: ok = theServer.GTH(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGTH = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), S (Mass Specific Entropy)
Public Function SteamGTS(T, S)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GTS", "T S", Array(T, S))
    If Ready(i) Then pG = Empty: ok = theServer.GTS(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGTS = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), U (Mass Specific Internal Energy)
Public Function SteamGTU(T, U)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GTU", "T U", Array(T, U))
    If Ready(i) Then pG = Empty: ok = theServer.GTU(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGTU = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), R (Density)
Public Function SteamGTR(T, R)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GTR", "T R", Array(T, R))
    If Ready(i) Then pG = Empty: ok = theServer.GTR(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGTR = Closed()
End Function

' pG (Mass Specific Gibbs Energy) from T (Temperature), V (Mass Specific Volume)
Public Function SteamGTV(T, V)
  Dim i, ok, pG
  On Error Resume Next
  For i = 0 To Opened("GTV", "T V", Array(T, V))
    If Ready(i) Then pG = Empty: ok = theServer.GTV(pG, theX(0), theX(1)): Keep i, ok, pG
  Next
  SteamGTV = Closed()
End Function

' pM (Dynamic Viscosity) from P (Pressure), T (Temperature)
Public Function SteamMPT(P, T)
  Dim i, ok, pM
  On Error Resume Next
  For i = 0 To Opened("MPT", "P T", Array(P, T))
    If Ready(i) Then pM = Empty: ok = theServer.MPT(pM, theX(0), theX(1)): Keep i, ok, pM
  Next
  SteamMPT = Closed()
End Function

' pK (Thermal Conductivity) from P (Pressure), T (Temperature)
Public Function SteamKPT(P, T)
  Dim i, ok, pK
  On Error Resume Next
  For i = 0 To Opened("KPT", "P T", Array(P, T))
    If Ready(i) Then pK = Empty: ok = theServer.KPT(pK, theX(0), theX(1)): Keep i, ok, pK
  Next
  SteamKPT = Closed()
End Function

' pC (Mass Specific Heat) from P (Pressure), T (Temperature)
Public Function SteamCPT(P, T)
  Dim i, ok, pC
  On Error Resume Next
  For i = 0 To Opened("CPT", "P T", Array(P, T))
    If Ready(i) Then pC = Empty: ok = theServer.CPT(pC, theX(0), theX(1)): Keep i, ok, pC
  Next
  SteamCPT = Closed()
End Function

' pD (Mass Specific Heat) from P (Pressure), T (Temperature)
Public Function SteamDPT(P, T)
  Dim i, ok, pD
  On Error Resume Next
  For i = 0 To Opened("DPT", "P T", Array(P, T))
    If Ready(i) Then pD = Empty: ok = theServer.DPT(pD, theX(0), theX(1)): Keep i, ok, pD
  Next
  SteamDPT = Closed()
End Function

' pZ from P (Pressure), T (Temperature)
Public Function SteamZPT(P, T)
  Dim i, ok, pZ
  On Error Resume Next
  For i = 0 To Opened("ZPT", "P T", Array(P, T))
    If Ready(i) Then pZ = Empty: ok = theServer.ZPT(pZ, theX(0), theX(1)): Keep i, ok, pZ
  Next
  SteamZPT = Closed()
End Function

' pW (Velocity) from P (Pressure), T (Temperature)
Public Function SteamWPT(P, T)
  Dim i, ok, pW
  On Error Resume Next
  For i = 0 To Opened("WPT", "P T", Array(P, T))
    If Ready(i) Then pW = Empty: ok = theServer.WPT(pW, theX(0), theX(1)): Keep i, ok, pW
  Next
  SteamWPT = Closed()
End Function

' pN from P (Pressure), T (Temperature)
Public Function SteamNPT(P, T)
  Dim i, ok, pN
  On Error Resume Next
  For i = 0 To Opened("NPT", "P T", Array(P, T))
    If Ready(i) Then pN = Empty: ok = theServer.NPT(pN, theX(0), theX(1)): Keep i, ok, pN
  Next
  SteamNPT = Closed()
End Function

' pE from P (Pressure), T (Temperature)
Public Function SteamEPT(P, T)
  Dim i, ok, pE
  On Error Resume Next
  For i = 0 To Opened("EPT", "P T", Array(P, T))
    If Ready(i) Then pE = Empty: ok = theServer.EPT(pE, theX(0), theX(1)): Keep i, ok, pE
  Next
  SteamEPT = Closed()
End Function

' pI (Isothermal Joule-Thomson Coefficient) from P (Pressure), T (Temperature)
Public Function SteamIPT(P, T)
  Dim i, ok, pI
  On Error Resume Next
  For i = 0 To Opened("IPT", "P T", Array(P, T))
    If Ready(i) Then pI = Empty: ok = theServer.IPT(pI, theX(0), theX(1)): Keep i, ok, pI
  Next
  SteamIPT = Closed()
End Function

' pJ (Joule-Thomson Coefficient) from P (Pressure), T (Temperature)
Public Function SteamJPT(P, T)
  Dim i, ok, pJ
  On Error Resume Next
  For i = 0 To Opened("JPT", "P T", Array(P, T))
    If Ready(i) Then pJ = Empty: ok = theServer.JPT(pJ, theX(0), theX(1)): Keep i, ok, pJ
  Next
  SteamJPT = Closed()
End Function

' pB (Coefficient of Thermal Expansion) from P (Pressure), T (Temperature)
Public Function SteamBPT(P, T)
  Dim i, ok, pB
  On Error Resume Next
  For i = 0 To Opened("BPT", "P T", Array(P, T))
    If Ready(i) Then pB = Empty: ok = theServer.BPT(pB, theX(0), theX(1)): Keep i, ok, pB
  Next
  SteamBPT = Closed()
End Function

' pL (Isothermal Compressibility) from P (Pressure), T (Temperature)
Public Function SteamLPT(P, T)
  Dim i, ok, pL
  On Error Resume Next
  For i = 0 To Opened("LPT", "P T", Array(P, T))
    If Ready(i) Then pL = Empty: ok = theServer.LPT(pL, theX(0), theX(1)): Keep i, ok, pL
  Next
  SteamLPT = Closed()
End Function

' pX (Surface Tension) from T (Temperature)
Public Function SteamXT(T)
  Dim i, ok, pX
  On Error Resume Next
  For i = 0 To Opened("XT", "T", Array(T))
    If Ready(i) Then pX = Empty: ok = theServer.XT(pX, theX(0)): Keep i, ok, pX
  Next
  SteamXT = Closed()
End Function

' pPower (Power), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate)
Public Function SteamTurbineA(HIn, PIn, POut, Eff, MIn)
  Dim i, ok, pPower, pTOut, pHOut, pQOut
  On Error Resume Next
  For i = 0 To Opened("TurbineA", "HIn PIn POut Eff MIn", Array(HIn, PIn, POut, Eff, MIn))
    If Ready(i) Then pPower = Empty: pTOut = Empty: pHOut = Empty: pQOut = Empty: ok = theServer.TurbineA(pPower, pTOut, pHOut, pQOut, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pPower, pTOut, pHOut, pQOut)
  Next
  SteamTurbineA = Closed()
End Function

' pMIn (Mass Flow Rate), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), Power (Power)
Public Function SteamTurbineB(HIn, PIn, POut, Eff, Power)
  Dim i, ok, pMIn, pTOut, pHOut, pQOut
  On Error Resume Next
  For i = 0 To Opened("TurbineB", "HIn PIn POut Eff Power", Array(HIn, PIn, POut, Eff, Power))
    If Ready(i) Then pMIn = Empty: pTOut = Empty: pHOut = Empty: pQOut = Empty: ok = theServer.TurbineB(pMIn, pTOut, pHOut, pQOut, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pMIn, pTOut, pHOut, pQOut)
  Next
  SteamTurbineB = Closed()
End Function

' pPower (Power), pTOut1 (Temperature), pTOut2 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate)
Public Function SteamTurbineA2(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1)
  Dim i, ok, pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2
  On Error Resume Next
  For i = 0 To Opened("TurbineA2", "HIn PIn POut1 POut2 Eff1 Eff2 MIn MOut1", Array(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1))
    If Ready(i) Then pPower = Empty: pTOut1 = Empty: pTOut2 = Empty: pHOut1 = Empty: pHOut2 = Empty: pQOut1 = Empty: pQOut2 = Empty: ok = theServer.TurbineA2(pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7)): Keep i, ok, Array(pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2)
  Next
  SteamTurbineA2 = Closed()
End Function

' pMOut2 (Mass Flow Rate), pTOut1 (Temperature), pTOut2 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Power (Power), MOut1 (Mass Flow Rate)
Public Function SteamTurbineB2(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1)
  Dim i, ok, pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2
  On Error Resume Next
  For i = 0 To Opened("TurbineB2", "HIn PIn POut1 POut2 Eff1 Eff2 Power MOut1", Array(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1))
    If Ready(i) Then pMOut2 = Empty: pTOut1 = Empty: pTOut2 = Empty: pHOut1 = Empty: pHOut2 = Empty: pQOut1 = Empty: pQOut2 = Empty: ok = theServer.TurbineB2(pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7)): Keep i, ok, Array(pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2)
  Next
  SteamTurbineB2 = Closed()
End Function

' pPower (Power), pTOut1 (Temperature), pTOut2 (Temperature), pTOut3 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pHOut3 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality), pQOut3 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), POut3 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Eff3 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate), MOut2 (Mass Flow Rate)
Public Function SteamTurbineA3(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2)
  Dim i, ok, pPower, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3
  On Error Resume Next
  For i = 0 To Opened("TurbineA3", "HIn PIn POut1 POut2 POut3 Eff1 Eff2 Eff3 MIn MOut1 MOut2", Array(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2))
    If Ready(i) Then pPower = Empty: pTOut1 = Empty: pTOut2 = Empty: pTOut3 = Empty: pHOut1 = Empty: pHOut2 = Empty: pHOut3 = Empty: pQOut1 = Empty: pQOut2 = Empty: pQOut3 = Empty: ok = theServer.TurbineA3(pPower, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), theX(8), theX(9), theX(10)): Keep i, ok, Array(pPower, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3)
  Next
  SteamTurbineA3 = Closed()
End Function

' pMOut3 (Mass Flow Rate), pTOut1 (Temperature), pTOut2 (Temperature), pTOut3 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pHOut3 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality), pQOut3 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), POut3 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Eff3 (Efficiency), Power (Power), MOut1 (Mass Flow Rate), MOut2 (Mass Flow Rate)
Public Function SteamTurbineB3(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2)
  Dim i, ok, pMOut3, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3
  On Error Resume Next
  For i = 0 To Opened("TurbineB3", "HIn PIn POut1 POut2 POut3 Eff1 Eff2 Eff3 Power MOut1 MOut2", Array(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2))
    If Ready(i) Then pMOut3 = Empty: pTOut1 = Empty: pTOut2 = Empty: pTOut3 = Empty: pHOut1 = Empty: pHOut2 = Empty: pHOut3 = Empty: pQOut1 = Empty: pQOut2 = Empty: pQOut3 = Empty: ok = theServer.TurbineB3(pMOut3, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), theX(8), theX(9), theX(10)): Keep i, ok, Array(pMOut3, pTOut1, pTOut2, pTOut3, pHOut1, pHOut2, pHOut3, pQOut1, pQOut2, pQOut3)
  Next
  SteamTurbineB3 = Closed()
End Function

' pPower (Power), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate)
Public Function SteamCompressorA(HIn, PIn, POut, Eff, MIn)
  Dim i, ok, pPower, pTOut, pHOut, pQOut
  On Error Resume Next
  For i = 0 To Opened("CompressorA", "HIn PIn POut Eff MIn", Array(HIn, PIn, POut, Eff, MIn))
    If Ready(i) Then pPower = Empty: pTOut = Empty: pHOut = Empty: pQOut = Empty: ok = theServer.CompressorA(pPower, pTOut, pHOut, pQOut, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pPower, pTOut, pHOut, pQOut)
  Next
  SteamCompressorA = Closed()
End Function

' pMIn (Mass Flow Rate), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), Power (Power)
Public Function SteamCompressorB(HIn, PIn, POut, Eff, Power)
  Dim i, ok, pMIn, pTOut, pHOut, pQOut
  On Error Resume Next
  For i = 0 To Opened("CompressorB", "HIn PIn POut Eff Power", Array(HIn, PIn, POut, Eff, Power))
    If Ready(i) Then pMIn = Empty: pTOut = Empty: pHOut = Empty: pQOut = Empty: ok = theServer.CompressorB(pMIn, pTOut, pHOut, pQOut, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pMIn, pTOut, pHOut, pQOut)
  Next
  SteamCompressorB = Closed()
End Function

' pPower (Power), pTOut1 (Temperature), pTOut2 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate)
Public Function SteamCompressorA2(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1)
  Dim i, ok, pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2
  On Error Resume Next
  For i = 0 To Opened("CompressorA2", "HIn PIn POut1 POut2 Eff1 Eff2 MIn MOut1", Array(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1))
    If Ready(i) Then pPower = Empty: pTOut1 = Empty: pTOut2 = Empty: pHOut1 = Empty: pHOut2 = Empty: pQOut1 = Empty: pQOut2 = Empty: ok = theServer.CompressorA2(pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7)): Keep i, ok, Array(pPower, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2)
  Next
  SteamCompressorA2 = Closed()
End Function

' pMOut2 (Mass Flow Rate), pTOut1 (Temperature), pTOut2 (Temperature), pHOut1 (Mass Specific Enthalpy), pHOut2 (Mass Specific Enthalpy), pQOut1 (Quality), pQOut2 (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Power (Power), MOut1 (Mass Flow Rate)
Public Function SteamCompressorB2(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1)
  Dim i, ok, pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2
  On Error Resume Next
  For i = 0 To Opened("CompressorB2", "HIn PIn POut1 POut2 Eff1 Eff2 Power MOut1", Array(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1))
    If Ready(i) Then pMOut2 = Empty: pTOut1 = Empty: pTOut2 = Empty: pHOut1 = Empty: pHOut2 = Empty: pQOut1 = Empty: pQOut2 = Empty: ok = theServer.CompressorB2(pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7)): Keep i, ok, Array(pMOut2, pTOut1, pTOut2, pHOut1, pHOut2, pQOut1, pQOut2)
  Next
  SteamCompressorB2 = Closed()
End Function

' pHd (Mass Specific Enthalpy), pTd (Temperature), pMw (Mass Flow Rate), pMs (Mass Flow Rate) from POp (Pressure), Hs (Mass Specific Enthalpy), Tw (Temperature), Md (Mass Flow Rate), MRatio (Ratio)
Public Function SteamDeAerator(POp, Hs, Tw, Md, MRatio)
  Dim i, ok, pHd, pTd, pMw, pMs
  On Error Resume Next
  For i = 0 To Opened("DeAerator", "POp Hs Tw Md MRatio", Array(POp, Hs, Tw, Md, MRatio))
    If Ready(i) Then pHd = Empty: pTd = Empty: pMw = Empty: pMs = Empty: ok = theServer.DeAerator(pHd, pTd, pMw, pMs, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pHd, pTd, pMw, pMs)
  Next
  SteamDeAerator = Closed()
End Function

' pHs (Mass Specific Enthalpy), pMw (Mass Flow Rate), pMs (Mass Flow Rate) from HIn (Mass Specific Enthalpy), Hw (Mass Specific Enthalpy), POp (Pressure), TOp (Temperature), MIn (Mass Flow Rate)
Public Function SteamDeSuperHeater(HIn, Hw, POp, TOp, MIn)
  Dim i, ok, pHs, pMw, pMs
  On Error Resume Next
  For i = 0 To Opened("DeSuperHeater", "HIn Hw POp TOp MIn", Array(HIn, Hw, POp, TOp, MIn))
    If Ready(i) Then pHs = Empty: pMw = Empty: pMs = Empty: ok = theServer.DeSuperHeater(pHs, pMw, pMs, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pHs, pMw, pMs)
  Next
  SteamDeSuperHeater = Closed()
End Function

' pTOut (Temperature), pQOut (Quality) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure)
Public Function SteamLetDownValve(HIn, PIn, POut)
  Dim i, ok, pTOut, pQOut
  On Error Resume Next
  For i = 0 To Opened("LetDownValve", "HIn PIn POut", Array(HIn, PIn, POut))
    If Ready(i) Then pTOut = Empty: pQOut = Empty: ok = theServer.LetDownValve(pTOut, pQOut, theX(0), theX(1), theX(2)): Keep i, ok, Array(pTOut, pQOut)
  Next
  SteamLetDownValve = Closed()
End Function

' pMBd (Mass Flow Rate), pDeltaH (Heat Duty), pHOut (Mass Specific Enthalpy), pHBd (Mass Specific Enthalpy), pMIn (Mass Flow Rate) from HIn (Mass Specific Enthalpy), Mout (Mass Flow Rate), TOut (Temperature), POut (Pressure), BRatio (Ratio)
Public Function SteamBoiler(HIn, Mout, TOut, POut, BRatio)
  Dim i, ok, pMBd, pDeltaH, pHOut, pHBd, pMIn
  On Error Resume Next
  For i = 0 To Opened("Boiler", "HIn Mout TOut POut BRatio", Array(HIn, Mout, TOut, POut, BRatio))
    If Ready(i) Then pMBd = Empty: pDeltaH = Empty: pHOut = Empty: pHBd = Empty: pMIn = Empty: ok = theServer.Boiler(pMBd, pDeltaH, pHOut, pHBd, pMIn, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pMBd, pDeltaH, pHOut, pHBd, pMIn)
  Next
  SteamBoiler = Closed()
End Function

' pTOut (Temperature), pMVap (Mass Flow Rate), pMLiq (Mass Flow Rate), pHVap (Mass Specific Enthalpy), pHLiq (Mass Specific Enthalpy) from MIn (Mass Flow Rate), HIn (Mass Specific Enthalpy), POp (Pressure)
Public Function SteamFlashVessel(MIn, HIn, POp)
  Dim i, ok, pTOut, pMVap, pMLiq, pHVap, pHLiq
  On Error Resume Next
  For i = 0 To Opened("FlashVessel", "MIn HIn POp", Array(MIn, HIn, POp))
    If Ready(i) Then pTOut = Empty: pMVap = Empty: pMLiq = Empty: pHVap = Empty: pHLiq = Empty: ok = theServer.FlashVessel(pTOut, pMVap, pMLiq, pHVap, pHLiq, theX(0), theX(1), theX(2)): Keep i, ok, Array(pTOut, pMVap, pMLiq, pHVap, pHLiq)
  Next
  SteamFlashVessel = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate), strTokens
Public Function SteamXLTurbineA(HIn, PIn, POut, Eff, MIn, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLTurbineA", "HIn PIn POut Eff MIn", Array(HIn, PIn, POut, Eff, MIn))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLTurbineA(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLTurbineA = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), Power (Power), strTokens
Public Function SteamXLTurbineB(HIn, PIn, POut, Eff, Power, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLTurbineB", "HIn PIn POut Eff Power", Array(HIn, PIn, POut, Eff, Power))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLTurbineB(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLTurbineB = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate), strTokens
Public Function SteamXLTurbineA2(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLTurbineA2", "HIn PIn POut1 POut2 Eff1 Eff2 MIn MOut1", Array(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLTurbineA2(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLTurbineA2 = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Power (Power), MOut1 (Mass Flow Rate), strTokens
Public Function SteamXLTurbineB2(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLTurbineB2", "HIn PIn POut1 POut2 Eff1 Eff2 Power MOut1", Array(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLTurbineB2(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLTurbineB2 = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), POut3 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Eff3 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate), MOut2 (Mass Flow Rate), strTokens
Public Function SteamXLTurbineA3(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLTurbineA3", "HIn PIn POut1 POut2 POut3 Eff1 Eff2 Eff3 MIn MOut1 MOut2", Array(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLTurbineA3(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), theX(8), theX(9), theX(10), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLTurbineA3 = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), POut3 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Eff3 (Efficiency), Power (Power), MOut1 (Mass Flow Rate), MOut2 (Mass Flow Rate), strTokens
Public Function SteamXLTurbineB3(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLTurbineB3", "HIn PIn POut1 POut2 POut3 Eff1 Eff2 Eff3 Power MOut1 MOut2", Array(HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLTurbineB3(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), theX(8), theX(9), theX(10), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLTurbineB3 = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate), strTokens
Public Function SteamXLCompressorA(HIn, PIn, POut, Eff, MIn, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLCompressorA", "HIn PIn POut Eff MIn", Array(HIn, PIn, POut, Eff, MIn))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLCompressorA(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLCompressorA = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), Power (Power), strTokens
Public Function SteamXLCompressorB(HIn, PIn, POut, Eff, Power, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLCompressorB", "HIn PIn POut Eff Power", Array(HIn, PIn, POut, Eff, Power))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLCompressorB(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLCompressorB = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), MIn (Mass Flow Rate), MOut1 (Mass Flow Rate), strTokens
Public Function SteamXLCompressorA2(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLCompressorA2", "HIn PIn POut1 POut2 Eff1 Eff2 MIn MOut1", Array(HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLCompressorA2(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLCompressorA2 = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut1 (Pressure), POut2 (Pressure), Eff1 (Efficiency), Eff2 (Efficiency), Power (Power), MOut1 (Mass Flow Rate), strTokens
Public Function SteamXLCompressorB2(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLCompressorB2", "HIn PIn POut1 POut2 Eff1 Eff2 Power MOut1", Array(HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLCompressorB2(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLCompressorB2 = Closed()
End Function

' pRetArray from POp (Pressure), Hs (Mass Specific Enthalpy), Tw (Temperature), Md (Mass Flow Rate), MRatio (Ratio), strTokens
Public Function SteamXLDeAerator(POp, Hs, Tw, Md, MRatio, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLDeAerator", "POp Hs Tw Md MRatio", Array(POp, Hs, Tw, Md, MRatio))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLDeAerator(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLDeAerator = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), Hw (Mass Specific Enthalpy), POp (Pressure), TOp (Temperature), MIn (Mass Flow Rate), strTokens
Public Function SteamXLDeSuperHeater(HIn, Hw, POp, TOp, MIn, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLDeSuperHeater", "HIn Hw POp TOp MIn", Array(HIn, Hw, POp, TOp, MIn))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLDeSuperHeater(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLDeSuperHeater = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), strTokens
Public Function SteamXLLetDownValve(HIn, PIn, POut, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLLetDownValve", "HIn PIn POut", Array(HIn, PIn, POut))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLLetDownValve(theX(0), theX(1), theX(2), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLLetDownValve = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), Mout (Mass Flow Rate), TOut (Temperature), POut (Pressure), BRatio (Ratio), strTokens
Public Function SteamXLBoiler(HIn, Mout, TOut, POut, BRatio, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLBoiler", "HIn Mout TOut POut BRatio", Array(HIn, Mout, TOut, POut, BRatio))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLBoiler(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLBoiler = Closed()
End Function

' pRetArray from MIn (Mass Flow Rate), HIn (Mass Specific Enthalpy), POp (Pressure), strTokens
Public Function SteamXLFlashVessel(MIn, HIn, POp, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLFlashVessel", "MIn HIn POp", Array(MIn, HIn, POp))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLFlashVessel(theX(0), theX(1), theX(2), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLFlashVessel = Closed()
End Function

' pRetArray from GTPower (Power), FPRatio, AirTemp (Temperature), ExhaustTemp (Temperature), SteamPress (Pressure), SteamTemp (Temperature), BFWTemp (Temperature), SteamDemand (Mass Flow Rate), DTMin (Temperature Difference), MinO2Stack, strTokens
Public Function SteamXLGasTurbineA(GTPower, FPRatio, AirTemp, ExhaustTemp, SteamPress, SteamTemp, BFWTemp, SteamDemand, DTMin, MinO2Stack, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLGasTurbineA", "GTPower FPRatio AirTemp ExhaustTemp SteamPress SteamTemp BFWTemp SteamDemand DTMin MinO2Stack", Array(GTPower, FPRatio, AirTemp, ExhaustTemp, SteamPress, SteamTemp, BFWTemp, SteamDemand, DTMin, MinO2Stack))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLGasTurbineA(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), theX(8), theX(9), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLGasTurbineA = Closed()
End Function

' pRetArray from MSP (Pressure), MST (Temperature), MSF (Mass Flow Rate), SSP (Pressure), SST (Temperature), SSF (Mass Flow Rate), strTokens
Public Function SteamXLThermoCompressorA(MSP, MST, MSF, SSP, SST, SSF, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompressorA", "MSP MST MSF SSP SST SSF", Array(MSP, MST, MSF, SSP, SST, SSF))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompressorA(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompressorA = Closed()
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), DSP (Pressure), HXDuty (Heat Duty), strTokens
Public Function SteamXLThermoCompressorB(MSP, MST, SSP, SST, DSP, HXDuty, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompressorB", "MSP MST SSP SST DSP HXDuty", Array(MSP, MST, SSP, SST, DSP, HXDuty))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompressorB(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompressorB = Closed()
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), DSP (Pressure), DSF (Mass Flow Rate), strTokens
Public Function SteamXLThermoCompressorC(MSP, MST, SSP, SST, DSP, DSF, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompressorC", "MSP MST SSP SST DSP DSF", Array(MSP, MST, SSP, SST, DSP, DSF))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompressorC(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompressorC = Closed()
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), DSP (Pressure), SSF (Mass Flow Rate), strTokens
Public Function SteamXLThermoCompressorD(MSP, MST, SSP, SST, DSP, SSF, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompressorD", "MSP MST SSP SST DSP SSF", Array(MSP, MST, SSP, SST, DSP, SSF))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompressorD(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompressorD = Closed()
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), DSP (Pressure), MSF (Mass Flow Rate), strTokens
Public Function SteamXLThermoCompressorE(MSP, MST, SSP, SST, DSP, MSF, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompressorE", "MSP MST SSP SST DSP MSF", Array(MSP, MST, SSP, SST, DSP, MSF))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompressorE(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompressorE = Closed()
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), SSF (Mass Flow Rate), HXDuty (Heat Duty), strTokens
Public Function SteamXLThermoCompressorF(MSP, MST, SSP, SST, SSF, HXDuty, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompressorF", "MSP MST SSP SST SSF HXDuty", Array(MSP, MST, SSP, SST, SSF, HXDuty))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompressorF(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompressorF = Closed()
End Function

' pRetArray from MSP (Pressure), MST (Temperature), SSP (Pressure), SST (Temperature), MSF (Mass Flow Rate), HXDuty (Heat Duty), strTokens
Public Function SteamXLThermoCompressorG(MSP, MST, SSP, SST, MSF, HXDuty, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompressorG", "MSP MST SSP SST MSF HXDuty", Array(MSP, MST, SSP, SST, MSF, HXDuty))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompressorG(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompressorG = Closed()
End Function

' pRetArray from ColdFlowIn (Mass Flow Rate), ColdPressureIn (Pressure), ColdDP (Pressure Difference), ColdTempIn (Temperature), ColdTempOut (Temperature), ColdQualityIn (Quality), ColdQualityOut (Quality), HotPressureIn (Pressure), HotDP (Pressure Difference), HotTempIn (Temperature), HotTempOut (Temperature), HotQualityIn (Quality), HotQualityOut (Quality), strTokens
Public Function SteamXLHeatExchangerA(ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, ColdTempOut, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLHeatExchangerA", "ColdFlowIn ColdPressureIn ColdDP ColdTempIn ColdTempOut ColdQualityIn ColdQualityOut HotPressureIn HotDP HotTempIn HotTempOut HotQualityIn HotQualityOut", Array(ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, ColdTempOut, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLHeatExchangerA(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), theX(8), theX(9), theX(10), theX(11), theX(12), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLHeatExchangerA = Closed()
End Function

' pRetArray from ColdFlowIn (Mass Flow Rate), ColdPressureIn (Pressure), ColdDP (Pressure Difference), ColdTempIn (Temperature), HXDuty (Heat Duty), ColdQualityIn (Quality), ColdQualityOut (Quality), HotPressureIn (Pressure), HotDP (Pressure Difference), HotTempIn (Temperature), HotTempOut (Temperature), HotQualityIn (Quality), HotQualityOut (Quality), strTokens
Public Function SteamXLHeatExchangerB(ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, HXDuty, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLHeatExchangerB", "ColdFlowIn ColdPressureIn ColdDP ColdTempIn HXDuty ColdQualityIn ColdQualityOut HotPressureIn HotDP HotTempIn HotTempOut HotQualityIn HotQualityOut", Array(ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, HXDuty, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLHeatExchangerB(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6), theX(7), theX(8), theX(9), theX(10), theX(11), theX(12), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLHeatExchangerB = Closed()
End Function

' pQ (Quality), pT (Temperature) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamQT_PH(P, H)
  Dim i, ok, pQ, pT
  On Error Resume Next
  For i = 0 To Opened("QT_PH", "P H", Array(P, H))
    If Ready(i) Then pQ = Empty: pT = Empty: ok = theServer.QT_PH(pQ, pT, theX(0), theX(1)): Keep i, ok, Array(pQ, pT)
  Next
  SteamQT_PH = Closed()
End Function

' pH (Mass Specific Enthalpy), pHVap (Mass Specific Enthalpy), pHLiq (Mass Specific Enthalpy), pTSat (Temperature) from P (Pressure), Q (Quality)
Public Function SteamHVLTSat_PQ(P, Q)
  Dim i, ok, pH, pHVap, pHLiq, pTSat
  On Error Resume Next
  For i = 0 To Opened("HVLTSat_PQ", "P Q", Array(P, Q))
    If Ready(i) Then pH = Empty: pHVap = Empty: pHLiq = Empty: pTSat = Empty: ok = theServer.HVLTSat_PQ(pH, pHVap, pHLiq, pTSat, theX(0), theX(1)): Keep i, ok, Array(pH, pHVap, pHLiq, pTSat)
  Next
  SteamHVLTSat_PQ = Closed()
End Function

' pQ (Quality), pT (Temperature), pS (Mass Specific Entropy) from P (Pressure), H (Mass Specific Enthalpy)
Public Function SteamQTS_PH(P, H)
  Dim i, ok, pQ, pT, pS
  On Error Resume Next
  For i = 0 To Opened("QTS_PH", "P H", Array(P, H))
    If Ready(i) Then pQ = Empty: pT = Empty: pS = Empty: ok = theServer.QTS_PH(pQ, pT, pS, theX(0), theX(1)): Keep i, ok, Array(pQ, pT, pS)
  Next
  SteamQTS_PH = Closed()
End Function

' pHs (Mass Specific Enthalpy), pMw (Mass Flow Rate), pMs (Mass Flow Rate) from HIn (Mass Specific Enthalpy), Hw (Mass Specific Enthalpy), POp (Pressure), TOp (Temperature), Mout (Mass Flow Rate)
Public Function SteamDeSuperHeaterB(HIn, Hw, POp, TOp, Mout)
  Dim i, ok, pHs, pMw, pMs
  On Error Resume Next
  For i = 0 To Opened("DeSuperHeaterB", "HIn Hw POp TOp Mout", Array(HIn, Hw, POp, TOp, Mout))
    If Ready(i) Then pHs = Empty: pMw = Empty: pMs = Empty: ok = theServer.DeSuperHeaterB(pHs, pMw, pMs, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pHs, pMw, pMs)
  Next
  SteamDeSuperHeaterB = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), Hw (Mass Specific Enthalpy), POp (Pressure), TOp (Temperature), Mout (Mass Flow Rate), strTokens
Public Function SteamXLDeSuperHeaterB(HIn, Hw, POp, TOp, Mout, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLDeSuperHeaterB", "HIn Hw POp TOp Mout", Array(HIn, Hw, POp, TOp, Mout))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLDeSuperHeaterB(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLDeSuperHeaterB = Closed()
End Function

' pPower (Power), pTOut (Temperature), pHOut (Mass Specific Enthalpy), pQOut (Quality), pSOut (Mass Specific Entropy) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate), SIn (Mass Specific Entropy)
Public Function SteamTurbineE(HIn, PIn, POut, Eff, MIn, SIn)
  Dim i, ok, pPower, pTOut, pHOut, pQOut, pSOut
  On Error Resume Next
  For i = 0 To Opened("TurbineE", "HIn PIn POut Eff MIn SIn", Array(HIn, PIn, POut, Eff, MIn, SIn))
    If Ready(i) Then pPower = Empty: pTOut = Empty: pHOut = Empty: pQOut = Empty: pSOut = Empty: ok = theServer.TurbineE(pPower, pTOut, pHOut, pQOut, pSOut, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5)): Keep i, ok, Array(pPower, pTOut, pHOut, pQOut, pSOut)
  Next
  SteamTurbineE = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), Eff (Efficiency), MIn (Mass Flow Rate), SIn (Mass Specific Entropy), strTokens
Public Function SteamXLTurbineE(HIn, PIn, POut, Eff, MIn, SIn, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLTurbineE", "HIn PIn POut Eff MIn SIn", Array(HIn, PIn, POut, Eff, MIn, SIn))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLTurbineE(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLTurbineE = Closed()
End Function

' T2 from a, b, c, d, e, f, T1
Public Function SteamSolvePoly5(a, b, c, d, e, f, T1)
  Dim i, ok, T2
  On Error Resume Next
  For i = 0 To Opened("SolvePoly5", "a b c d e f T1", Array(a, b, c, d, e, f, T1))
    If Ready(i) Then T2 = Empty: ok = theServer.SolvePoly5(T2, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), theX(6)): Keep i, ok, T2
  Next
  SteamSolvePoly5 = Closed()
End Function

' pHOut (Mass Specific Enthalpy), pPower (Power) from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), m (Mass Flow Rate), Eff (Efficiency)
Public Function SteamWaterPump(HIn, PIn, POut, m, Eff)
  Dim i, ok, pHOut, pPower
  On Error Resume Next
  For i = 0 To Opened("WaterPump", "HIn PIn POut m Eff", Array(HIn, PIn, POut, m, Eff))
    If Ready(i) Then pHOut = Empty: pPower = Empty: ok = theServer.WaterPump(pHOut, pPower, theX(0), theX(1), theX(2), theX(3), theX(4)): Keep i, ok, Array(pHOut, pPower)
  Next
  SteamWaterPump = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), PIn (Pressure), POut (Pressure), m (Mass Flow Rate), Eff (Efficiency), strTokens
Public Function SteamXLWaterPump(HIn, PIn, POut, m, Eff, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLWaterPump", "HIn PIn POut m Eff", Array(HIn, PIn, POut, m, Eff))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLWaterPump(theX(0), theX(1), theX(2), theX(3), theX(4), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLWaterPump = Closed()
End Function

' pRetArray from Hms (Mass Specific Enthalpy), pMs (Pressure), Hss (Mass Specific Enthalpy), Pss (Pressure), Pds (Pressure), Rs (Ratio), strTokens
Public Function SteamXLThermoCompA(Hms, pMs, Hss, Pss, Pds, Rs, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompA", "Hms pMs Hss Pss Pds Rs", Array(Hms, pMs, Hss, Pss, Pds, Rs))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompA(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompA = Closed()
End Function

' pRetArray from Hms (Mass Specific Enthalpy), pMs (Pressure), Hss (Mass Specific Enthalpy), Pss (Pressure), Pds (Pressure), PF (Ratio), strTokens
Public Function SteamXLThermoCompB(Hms, pMs, Hss, Pss, Pds, PF, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLThermoCompB", "Hms pMs Hss Pss Pds PF", Array(Hms, pMs, Hss, Pss, Pds, PF))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLThermoCompB(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLThermoCompB = Closed()
End Function

' pMBd (Mass Flow Rate), pDuty (Heat Duty), pHOut (Mass Specific Enthalpy), pHBd (Mass Specific Enthalpy), pMIn (Mass Flow Rate), pQFired (Heat Duty) from HIn (Mass Specific Enthalpy), Mout (Mass Flow Rate), TOut (Temperature), POut (Pressure), BRatio (Ratio), Eff (Efficiency)
Public Function SteamBoiler_B(HIn, Mout, TOut, POut, BRatio, Eff)
  Dim i, ok, pMBd, pDuty, pHOut, pHBd, pMIn, pQFired
  On Error Resume Next
  For i = 0 To Opened("Boiler_B", "HIn Mout TOut POut BRatio Eff", Array(HIn, Mout, TOut, POut, BRatio, Eff))
    If Ready(i) Then pMBd = Empty: pDuty = Empty: pHOut = Empty: pHBd = Empty: pMIn = Empty: pQFired = Empty: ok = theServer.Boiler_B(pMBd, pDuty, pHOut, pHBd, pMIn, pQFired, theX(0), theX(1), theX(2), theX(3), theX(4), theX(5)): Keep i, ok, Array(pMBd, pDuty, pHOut, pHBd, pMIn, pQFired)
  Next
  SteamBoiler_B = Closed()
End Function

' pRetArray from HIn (Mass Specific Enthalpy), Mout (Mass Flow Rate), TOut (Temperature), POut (Pressure), BRatio (Ratio), Eff (Efficiency), strTokens
Public Function SteamXLBoiler_B(HIn, Mout, TOut, POut, BRatio, Eff, strTokens)
  Dim i, ok, pRetArray
  On Error Resume Next
  For i = 0 To Opened("XLBoiler_B", "HIn Mout TOut POut BRatio Eff", Array(HIn, Mout, TOut, POut, BRatio, Eff))
    If Ready(i) Then pRetArray = Empty: ok = theServer.XLBoiler_B(theX(0), theX(1), theX(2), theX(3), theX(4), theX(5), Text(strTokens), pRetArray): Keep i, ok, pRetArray
  Next
  SteamXLBoiler_B = Closed()
End Function

' pV (Mass Specific Volume) from T (Temperature), Q (Quality)
Public Function SteamVSatTQ(T, Q)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VSatTQ", "T Q", Array(T, Q))
    If Ready(i) Then pV = Empty: ok = theServer.VSatTQ(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVSatTQ = Closed()
End Function

' pV (Mass Specific Volume) from P (Pressure), Q (Quality)
Public Function SteamVSatPQ(P, Q)
  Dim i, ok, pV
  On Error Resume Next
  For i = 0 To Opened("VSatPQ", "P Q", Array(P, Q))
    If Ready(i) Then pV = Empty: ok = theServer.VSatPQ(pV, theX(0), theX(1)): Keep i, ok, pV
  Next
  SteamVSatPQ = Closed()
End Function

Private Sub Describe1()
  Describe "SteamMolWeight", "Calvex", _
    "Molar mass of water.", Array()
  Describe "SteamCritT", "Calvex", _
    "Critical temperature.", Array()
  Describe "SteamCritP", "Calvex", _
    "Critical pressure.", Array()
  Describe "SteamCritV", "Calvex", _
    "Critical specific volume.", Array()
  Describe "SteamCritR", "Calvex", _
    "Critical density.", Array()
  Describe "SteamCritZ", "Calvex", _
    "Compressibility factor at the critical point.", Array()
  Describe "SteamTripleT", "Calvex", _
    "Temperature of the triple point.", Array()
  Describe "SteamTripleP", "Calvex", _
    "Pressure of the triple point.", Array()
  Describe "SteamPSatT", "Calvex", _
    "Saturation pressure from temperature.", Array( _
    "Temperature, from 273.16 to 647.126 K, or in the unit of the workbook.")
  Describe "SteamTSatP", "Calvex", _
    "Saturation temperature from pressure.", Array( _
    "Pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.")
  Describe "SteamHSatTQ", "Calvex", _
    "Saturated enthalpy from temperature and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 273.16 to 647.126 K, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamHSatPQ", "Calvex", _
    "Saturated enthalpy from pressure and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamSSatTQ", "Calvex", _
    "Saturated entropy from temperature and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 273.16 to 647.126 K, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamSSatPQ", "Calvex", _
    "Saturated entropy from pressure and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamUSatTQ", "Calvex", _
    "Saturated internal energy from temperature and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 273.16 to 647.126 K, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamUSatPQ", "Calvex", _
    "Saturated internal energy from pressure and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamRSatTQ", "Calvex", _
    "Saturated density from temperature and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 273.16 to 647.126 K, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamRSatPQ", "Calvex", _
    "Saturated density from pressure and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamPTH", "Calvex", _
    "Pressure from temperature and enthalpy. Between the enthalpies of saturated liquid and vapour the state is a mixture, although compressed liquid can have both values, too.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamPTS", "Calvex", _
    "Pressure from temperature and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
End Sub

Private Sub Describe2()
  Describe "SteamPTU", "Calvex", _
    "Pressure from temperature and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamPTR", "Calvex", _
    "Pressure from temperature and density. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamPTV", "Calvex", _
    "Pressure from temperature and specific volume. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamTPH", "Calvex", _
    "Temperature from pressure and enthalpy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamTPS", "Calvex", _
    "Temperature from pressure and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamTPU", "Calvex", _
    "Temperature from pressure and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamTPR", "Calvex", _
    "Temperature from pressure and density. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamTPV", "Calvex", _
    "Temperature from pressure and specific volume. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamHPT", "Calvex", _
    "Enthalpy from pressure and temperature. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamHPTQ", "Calvex", _
    "Enthalpy from pressure, temperature and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour. The quality counts only where the temperature is the saturation temperature at the pressure.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamHPS", "Calvex", _
    "Enthalpy from pressure and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamHPU", "Calvex", _
    "Enthalpy from pressure and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamHPR", "Calvex", _
    "Enthalpy from pressure and density. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamHPV", "Calvex", _
    "Enthalpy from pressure and specific volume. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamHTS", "Calvex", _
    "Enthalpy from temperature and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamHTU", "Calvex", _
    "Enthalpy from temperature and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamHTR", "Calvex", _
    "Enthalpy from temperature and density. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamHTV", "Calvex", _
    "Enthalpy from temperature and specific volume. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamSPT", "Calvex", _
    "Entropy from pressure and temperature. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamSPH", "Calvex", _
    "Entropy from pressure and enthalpy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
End Sub

Private Sub Describe3()
  Describe "SteamSPU", "Calvex", _
    "Entropy from pressure and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamSPR", "Calvex", _
    "Entropy from pressure and density. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamSPV", "Calvex", _
    "Entropy from pressure and specific volume. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamSTH", "Calvex", _
    "Entropy from temperature and enthalpy. Between the enthalpies of saturated liquid and vapour the state is a mixture, although compressed liquid can have both values, too.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamSTU", "Calvex", _
    "Entropy from temperature and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamSTR", "Calvex", _
    "Entropy from temperature and density. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamSTV", "Calvex", _
    "Entropy from temperature and specific volume. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamUPT", "Calvex", _
    "Internal energy from pressure and temperature. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamUPH", "Calvex", _
    "Internal energy from pressure and enthalpy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamUPS", "Calvex", _
    "Internal energy from pressure and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamUPR", "Calvex", _
    "Internal energy from pressure and density. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamUPV", "Calvex", _
    "Internal energy from pressure and specific volume. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamUTH", "Calvex", _
    "Internal energy from temperature and enthalpy. Between the enthalpies of saturated liquid and vapour the state is a mixture, although compressed liquid can have both values, too.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamUTS", "Calvex", _
    "Internal energy from temperature and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamUTR", "Calvex", _
    "Internal energy from temperature and density. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamUTV", "Calvex", _
    "Internal energy from temperature and specific volume. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamRPT", "Calvex", _
    "Density from pressure and temperature. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamRPH", "Calvex", _
    "Density from pressure and enthalpy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamRPS", "Calvex", _
    "Density from pressure and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamRPU", "Calvex", _
    "Density from pressure and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
End Sub

Private Sub Describe4()
  Describe "SteamRTH", "Calvex", _
    "Density from temperature and enthalpy. Between the enthalpies of saturated liquid and vapour the state is a mixture, although compressed liquid can have both values, too.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamRTS", "Calvex", _
    "Density from temperature and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamRTU", "Calvex", _
    "Density from temperature and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamVPT", "Calvex", _
    "Specific volume from pressure and temperature. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamVPH", "Calvex", _
    "Specific volume from pressure and enthalpy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamVPS", "Calvex", _
    "Specific volume from pressure and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamVPU", "Calvex", _
    "Specific volume from pressure and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamVTH", "Calvex", _
    "Specific volume from temperature and enthalpy. Between the enthalpies of saturated liquid and vapour the state is a mixture, although compressed liquid can have both values, too.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamVTS", "Calvex", _
    "Specific volume from temperature and entropy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamVTU", "Calvex", _
    "Specific volume from temperature and internal energy. Also for mixtures of liquid and vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamQPH", "Calvex", _
    "Quality from pressure and enthalpy. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamQPS", "Calvex", _
    "Quality from pressure and entropy. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamQPU", "Calvex", _
    "Quality from pressure and internal energy. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamQPR", "Calvex", _
    "Quality from pressure and density. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamQPV", "Calvex", _
    "Quality from pressure and specific volume. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamQTH", "Calvex", _
    "Quality from temperature and enthalpy. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour. Between the enthalpies of saturated liquid and vapour the state is a mixture, although compressed liquid can have both values, too.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamQTS", "Calvex", _
    "Quality from temperature and entropy. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamQTU", "Calvex", _
    "Quality from temperature and internal energy. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamQTR", "Calvex", _
    "Quality from temperature and density. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamQTV", "Calvex", _
    "Quality from temperature and specific volume. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
End Sub

Private Sub Describe5()
  Describe "SteamAPT", "Calvex", _
    "Helmholtz energy from pressure and temperature. The Helmholtz energy is u - T s. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamAPH", "Calvex", _
    "Helmholtz energy from pressure and enthalpy. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamAPS", "Calvex", _
    "Helmholtz energy from pressure and entropy. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamAPU", "Calvex", _
    "Helmholtz energy from pressure and internal energy. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamAPR", "Calvex", _
    "Helmholtz energy from pressure and density. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamAPV", "Calvex", _
    "Helmholtz energy from pressure and specific volume. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamATH", "Calvex", _
    "Helmholtz energy from temperature and enthalpy. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamATS", "Calvex", _
    "Helmholtz energy from temperature and entropy. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamATU", "Calvex", _
    "Helmholtz energy from temperature and internal energy. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamATR", "Calvex", _
    "Helmholtz energy from temperature and density. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamATV", "Calvex", _
    "Helmholtz energy from temperature and specific volume. The Helmholtz energy is u - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamGPT", "Calvex", _
    "Gibbs energy from pressure and temperature. The Gibbs energy is h - T s. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamGPH", "Calvex", _
    "Gibbs energy from pressure and enthalpy. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamGPS", "Calvex", _
    "Gibbs energy from pressure and entropy. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamGPU", "Calvex", _
    "Gibbs energy from pressure and internal energy. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamGPR", "Calvex", _
    "Gibbs energy from pressure and density. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamGPV", "Calvex", _
    "Gibbs energy from pressure and specific volume. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamGTH", "Calvex", _
    "Gibbs energy from temperature and enthalpy. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamGTS", "Calvex", _
    "Gibbs energy from temperature and entropy. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamGTU", "Calvex", _
    "Gibbs energy from temperature and internal energy. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Internal energy, from 0 kJ/kg, or in the unit of the workbook.")
End Sub

Private Sub Describe6()
  Describe "SteamGTR", "Calvex", _
    "Gibbs energy from temperature and density. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Density, above 0 kg/m^3, or in the unit of the workbook.")
  Describe "SteamGTV", "Calvex", _
    "Gibbs energy from temperature and specific volume. The Gibbs energy is h - T s. A mixture of liquid and vapour has no answer.", Array( _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Specific volume, above 0 m^3/kg, or in the unit of the workbook.")
  Describe "SteamMPT", "Calvex", _
    "Dynamic viscosity from pressure and temperature. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 1000 MPa, or in the unit of the workbook.", _
    "Temperature, from 273.15 to 1073.15 K, or in the unit of the workbook.")
  Describe "SteamKPT", "Calvex", _
    "Thermal conductivity from pressure and temperature. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 100 MPa, or in the unit of the workbook.", _
    "Temperature, from 273.15 to 1073.15 K, or in the unit of the workbook.")
  Describe "SteamCPT", "Calvex", _
    "Isobaric heat capacity from pressure and temperature. The isobaric heat capacity cp is that at constant pressure.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamDPT", "Calvex", _
    "Isochoric heat capacity from pressure and temperature. The isochoric heat capacity cv is that at constant volume.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamZPT", "Calvex", _
    "Compressibility factor from pressure and temperature. The compressibility factor is P v / (R T), 1 in an ideal gas.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamWPT", "Calvex", _
    "Speed of sound from pressure and temperature. On the saturation line pressure and temperature do not determine the state: there the quality is needed (HPTQ, HSatPQ and their like) or another pair.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamNPT", "Calvex", _
    "Prandtl number from pressure and temperature. The Prandtl number is cp times the dynamic viscosity over the thermal conductivity.", Array( _
    "Pressure, above 0 to 100 MPa, or in the unit of the workbook.", _
    "Temperature, from 273.15 to 1073.15 K, or in the unit of the workbook.")
  Describe "SteamEPT", "Calvex", _
    "Dielectric constant from pressure and temperature. The static dielectric constant is the permittivity relative to that of the vacuum.", Array( _
    "Pressure, above 0 to 500 MPa, or in the unit of the workbook.", _
    "Temperature, from 273.15 to 823.15 K, or in the unit of the workbook.")
  Describe "SteamIPT", "Calvex", _
    "Isothermal throttling coefficient from pressure and temperature. The isothermal throttling coefficient is dh/dP at constant temperature.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamJPT", "Calvex", _
    "Joule-Thomson coefficient from pressure and temperature. The Joule-Thomson coefficient is dT/dP at constant enthalpy.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamBPT", "Calvex", _
    "Thermal expansion coefficient from pressure and temperature. The thermal expansion coefficient is (dv/dT)/v at constant pressure.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamLPT", "Calvex", _
    "Isothermal compressibility from pressure and temperature. The isothermal compressibility is -(dv/dP)/v at constant temperature.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Temperature, from 260 to 2500 K, or in the unit of the workbook.")
  Describe "SteamXT", "Calvex", _
    "Surface tension from temperature. The surface tension is that of saturated liquid against its vapour.", Array( _
    "Temperature, from 273.16 to 647.126 K, or in the unit of the workbook.")
  Describe "SteamTurbineA", "Calvex equipment", _
    "Power of a steam turbine from its flow.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Inlet flow, kg/s, or in the unit of the workbook.")
  Describe "SteamTurbineB", "Calvex equipment", _
    "Flow of a steam turbine from its power. At equal pressures there is no work, and the flow is infinite.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.")
  Describe "SteamTurbineA2", "Calvex equipment", _
    "Power of a steam turbine with two outlets from its flows. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 2, kg/s, or in the unit of the workbook.")
  Describe "SteamTurbineB2", "Calvex equipment", _
    "Last flow of a steam turbine with two outlets from its power. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.")
  Describe "SteamTurbineA3", "Calvex equipment", _
    "Power of a steam turbine with three outlets from its flows. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 3, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 2 to outlet 3, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 2, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 3, kg/s, or in the unit of the workbook.")
End Sub

Private Sub Describe7()
  Describe "SteamTurbineB3", "Calvex equipment", _
    "Last flow of a steam turbine with three outlets from its power. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 3, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 2 to outlet 3, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 2, kg/s, or in the unit of the workbook.")
  Describe "SteamCompressorA", "Calvex equipment", _
    "Power of a steam compressor from its flow.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Inlet flow, kg/s, or in the unit of the workbook.")
  Describe "SteamCompressorB", "Calvex equipment", _
    "Flow of a steam compressor from its power. At equal pressures there is no work, and the flow is infinite.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.")
  Describe "SteamCompressorA2", "Calvex equipment", _
    "Power of a steam compressor with two outlets from its flows. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 2, kg/s, or in the unit of the workbook.")
  Describe "SteamCompressorB2", "Calvex equipment", _
    "Last flow of a steam compressor with two outlets from its power. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.")
  Describe "SteamDeAerator", "Calvex equipment", _
    "Steam and make-up water for a deaerator. The deaerated water leaves as saturated liquid at the operating pressure, the vent as saturated vapour.", Array( _
    "Operating pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Enthalpy of the heating steam, from 0 kJ/kg, or in the unit of the workbook.", _
    "Temperature of the make-up water, from 273.16 to 647.126 K, or in the unit of the workbook.", _
    "Flow of deaerated water, kg/s, or in the unit of the workbook.", _
    "Vent flow per flow of deaerated water, plausibly 0 to 1, Fraction, or in the unit of the workbook.")
  Describe "SteamDeSuperHeater", "Calvex equipment", _
    "Spray water that cools steam, from the inlet flow. On the saturation line the outlet is dry saturated steam.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Enthalpy of the spray water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Operating pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Inlet flow, kg/s, or in the unit of the workbook.")
  Describe "SteamLetDownValve", "Calvex equipment", _
    "Temperature and quality behind a let-down valve. The enthalpy stays what it is.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, from 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.")
  Describe "SteamBoiler", "Calvex equipment", _
    "Feed water, blowdown and duty of a boiler. The blowdown is saturated liquid; at the saturation temperature the steam is dry saturated.", Array( _
    "Enthalpy of the feed water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Flow of steam, kg/s, or in the unit of the workbook.", _
    "Temperature of the steam, from 260 to 2500 K, or in the unit of the workbook.", _
    "Pressure of the steam, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Blowdown flow per steam flow, plausibly 0 to 1, Fraction, or in the unit of the workbook.")
  Describe "SteamFlashVessel", "Calvex equipment", _
    "Vapour and liquid of a stream that is flashed. The flows come in the unit of the inlet flow.", Array( _
    "Inlet flow, kg/s, or in the unit of the workbook.", _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Operating pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.")
  Describe "SteamXLTurbineA", "Calvex equipment", _
    "Power of a steam turbine from its flow, as an array of results.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Inlet flow, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: Pow, T_Out, H_Out, Q_Out; all without it.")
  Describe "SteamXLTurbineB", "Calvex equipment", _
    "Flow of a steam turbine from its power, as an array of results. At equal pressures there is no work, and the flow is infinite.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.", _
    "Which results, one or more of: M_In, M, T_Out, H_Out, Q_Out; all without it.")
  Describe "SteamXLTurbineA2", "Calvex equipment", _
    "Power of a steam turbine with two outlets from its flows, as an array of results. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 2, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: Pow, H_Out1, T_Out1, Q_Out1, H_Out2, T_Out2, Q_Out2; all without it.")
  Describe "SteamXLTurbineB2", "Calvex equipment", _
    "Last flow of a steam turbine with two outlets from its power, as an array of results. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: M_Out2, H_Out1, T_Out1, Q_Out1, H_Out2, T_Out2, Q_Out2; all without it.")
  Describe "SteamXLTurbineA3", "Calvex equipment", _
    "Power of a steam turbine with three outlets from its flows, as an array of results. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 3, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 2 to outlet 3, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 2, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 3, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: Pow, H_Out1, T_Out1, Q_Out1, H_Out2, T_Out2, Q_Out2, H_Out3, T_Out3, Q_Out3; all without it.")
  Describe "SteamXLTurbineB3", "Calvex equipment", _
    "Last flow of a steam turbine with three outlets from its power, as an array of results. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 3, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 2 to outlet 3, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 2, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: M_Out3, H_Out1, T_Out1, Q_Out1, H_Out2, T_Out2, Q_Out2, H_Out3, T_Out3, Q_Out3; all without it.")
  Describe "SteamXLCompressorA", "Calvex equipment", _
    "Power of a steam compressor from its flow, as an array of results.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Inlet flow, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: Pow, T_Out, H_Out, Q_Out; all without it.")
  Describe "SteamXLCompressorB", "Calvex equipment", _
    "Flow of a steam compressor from its power, as an array of results. At equal pressures there is no work, and the flow is infinite.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.", _
    "Which results, one or more of: M, M_In, T_Out, H_Out, Q_Out; all without it.")
  Describe "SteamXLCompressorA2", "Calvex equipment", _
    "Power of a steam compressor with two outlets from its flows, as an array of results. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Flow that leaves at outlet 2, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: Pow, H_Out1, T_Out1, Q_Out1, H_Out2, T_Out2, Q_Out2; all without it.")
  Describe "SteamXLCompressorB2", "Calvex equipment", _
    "Last flow of a steam compressor with two outlets from its power, as an array of results. The flows are those that leave at each outlet: all of them pass the first stage.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 1, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure at outlet 2, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency to outlet 1, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Isentropic efficiency from outlet 1 to outlet 2, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Shaft power, kW, or in the unit of the workbook.", _
    "Flow that leaves at outlet 1, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: M_Out2, H_Out1, T_Out1, Q_Out1, H_Out2, T_Out2, Q_Out2; all without it.")
End Sub

Private Sub Describe8()
  Describe "SteamXLDeAerator", "Calvex equipment", _
    "Steam and make-up water for a deaerator, as an array of results. The deaerated water leaves as saturated liquid at the operating pressure, the vent as saturated vapour.", Array( _
    "Operating pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Enthalpy of the heating steam, from 0 kJ/kg, or in the unit of the workbook.", _
    "Temperature of the make-up water, from 273.16 to 647.126 K, or in the unit of the workbook.", _
    "Flow of deaerated water, kg/s, or in the unit of the workbook.", _
    "Vent flow per flow of deaerated water, plausibly 0 to 1, Fraction, or in the unit of the workbook.", _
    "Which results, one or more of: M_Water, M_Steam, H_Out, T_Out; all without it.")
  Describe "SteamXLDeSuperHeater", "Calvex equipment", _
    "Spray water that cools steam, from the inlet flow, as an array of results. On the saturation line the outlet is dry saturated steam.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Enthalpy of the spray water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Operating pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Inlet flow, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: M_Water, M_Out, H_Out; all without it.")
  Describe "SteamXLLetDownValve", "Calvex equipment", _
    "Temperature and quality behind a let-down valve, as an array of results. The enthalpy stays what it is.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, from 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Which results, one or more of: T_Out, Q_Out; all without it.")
  Describe "SteamXLBoiler", "Calvex equipment", _
    "Feed water, blowdown and duty of a boiler, as an array of results. The blowdown is saturated liquid; at the saturation temperature the steam is dry saturated.", Array( _
    "Enthalpy of the feed water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Flow of steam, kg/s, or in the unit of the workbook.", _
    "Temperature of the steam, from 260 to 2500 K, or in the unit of the workbook.", _
    "Pressure of the steam, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Blowdown flow per steam flow, plausibly 0 to 1, Fraction, or in the unit of the workbook.", _
    "Which results, one or more of: M_In, M_Bd, H_Out, Q_Abs, H_delta, H_Bd; all without it.")
  Describe "SteamXLFlashVessel", "Calvex equipment", _
    "Vapour and liquid of a stream that is flashed, as an array of results. The flows come in the unit of the inlet flow.", Array( _
    "Inlet flow, kg/s, or in the unit of the workbook.", _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Operating pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Which results, one or more of: M_Vap, M_Liq, T_Vap, H_Vap, H_Liq; all without it.")
  Describe "SteamXLGasTurbineA", "Calvex equipment", _
    "Gas turbine with a heat-recovery boiler and its firing. What the exhaust raises alone is the base load; more steam is made by firing into the exhaust. A demand below the base load gives a negative fuel duty.", Array( _
    "Power of the gas turbine, kW, or in the unit of the workbook.", _
    "Power of the gas turbine per heat of its fuel, such as 0.3.", _
    "Temperature of the air, K, or in the unit of the workbook.", _
    "Temperature of the turbine's exhaust, K, or in the unit of the workbook.", _
    "Steam pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Temperature of the boiler feed water, from 260 to 2500 K, or in the unit of the workbook.", _
    "Steam flow that is wanted, kg/s, or in the unit of the workbook.", _
    "Least temperature difference of gas and water, K, or in the unit of the workbook.", _
    "Oxygen that firing must leave in the stack, mole fraction such as 0.03.", _
    "Which results, one or more of: T_Whb, D_WhbFuel, T_DewPtActual, T_DewPtMax, R_ExhaustO2, D_GTFuel, R_HeatUtil, M_BaseLoad, M_Actual, D_HeatLoss; all without it.")
  Describe "SteamXLThermoCompressorA", "Calvex equipment", _
    "Discharge of a thermocompressor (steam ejector) from both flows. Motive steam draws suction steam and discharges the mixture at a pressure between, by a performance chart of expansion ratio (MSP/SSP), compression ratio (DSP/SSP) and flow ratio (MSF/SSF).", Array( _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Motive steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Motive steam flow, kg/s, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Suction steam flow, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: P_Out, T_Out, M_Out, D_Hx; all without it.")
  Describe "SteamXLThermoCompressorB", "Calvex equipment", _
    "Flows of a thermocompressor (steam ejector) from the duty. Motive steam draws suction steam and discharges the mixture at a pressure between, by a performance chart of expansion ratio (MSP/SSP), compression ratio (DSP/SSP) and flow ratio (MSF/SSF).", Array( _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Motive steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Discharge pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Heat given up by condensing the discharge, kW, or in the unit of the workbook.", _
    "Which results, one or more of: M_Out, T_Out, M_Motive, M_Suction; all without it.")
  Describe "SteamXLThermoCompressorC", "Calvex equipment", _
    "Flows of a thermocompressor (steam ejector) from the discharge flow.", Array( _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Motive steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Discharge pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Discharge flow, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: T_Out, D_Hx, M_Motive, M_Suction; all without it.")
  Describe "SteamXLThermoCompressorD", "Calvex equipment", _
    "Flows of a thermocompressor (steam ejector) from the suction flow.", Array( _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Motive steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Discharge pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Suction steam flow, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: T_Out, D_Hx, M_Out, M_Motive; all without it.")
  Describe "SteamXLThermoCompressorE", "Calvex equipment", _
    "Flows of a thermocompressor (steam ejector) from the motive flow.", Array( _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Motive steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Discharge pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Motive steam flow, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: T_Out, D_Hx, M_Out, M_Suction; all without it.")
  Describe "SteamXLThermoCompressorF", "Calvex equipment", _
    "Discharge pressure of a thermocompressor (steam ejector) from duty and suction flow.", Array( _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Motive steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Suction steam flow, kg/s, or in the unit of the workbook.", _
    "Heat given up by condensing the discharge, kW, or in the unit of the workbook.", _
    "Which results, one or more of: T_Out, P_Out, M_Out, M_Motive; all without it.")
  Describe "SteamXLThermoCompressorG", "Calvex equipment", _
    "Discharge pressure of a thermocompressor (steam ejector) from duty and motive flow.", Array( _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Motive steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Motive steam flow, kg/s, or in the unit of the workbook.", _
    "Heat given up by condensing the discharge, kW, or in the unit of the workbook.", _
    "Which results, one or more of: T_Out, P_Out, M_Out, M_Suction; all without it.")
  Describe "SteamXLHeatExchangerA", "Calvex equipment", _
    "Duty and hot flow of a heat exchanger from its temperatures. A quality counts only where its temperature is the saturation temperature at the stream's pressure. Streams whose temperatures cross are warned of.", Array( _
    "Flow of the cold stream, kg/s, or in the unit of the workbook.", _
    "Inlet pressure of the cold stream, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure drop of the cold stream, MPa, or in the unit of the workbook.", _
    "Inlet temperature of the cold stream, from 260 to 2500 K, or in the unit of the workbook.", _
    "Outlet temperature of the cold stream, from 260 to 2500 K, or in the unit of the workbook.", _
    "Inlet quality of the cold stream, where it is on the saturation line, from 0 to 1 Fraction, or in the unit of the workbook.", _
    "Outlet quality of the cold stream, where it is on the saturation line, from 0 to 1 Fraction, or in the unit of the workbook.", _
    "Inlet pressure of the hot stream, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure drop of the hot stream, MPa, or in the unit of the workbook.", _
    "Inlet temperature of the hot stream, from 260 to 2500 K, or in the unit of the workbook.", _
    "Outlet temperature of the hot stream, from 260 to 2500 K, or in the unit of the workbook.", _
    "Inlet quality of the hot stream, where it is on the saturation line, from 0 to 1 Fraction, or in the unit of the workbook.", _
    "Outlet quality of the hot stream, where it is on the saturation line, from 0 to 1 Fraction, or in the unit of the workbook.", _
    "Which results, one or more of: H_HOut, D_Hx, H_CIn, H_COut, H_HIn, M_HOut; all without it.")
  Describe "SteamXLHeatExchangerB", "Calvex equipment", _
    "Outlet temperature and hot flow of a heat exchanger from its duty. A quality counts only where its temperature is the saturation temperature at the stream's pressure; ColdQualityOut is not used. Streams whose temperatures cross are warned of.", Array( _
    "Flow of the cold stream, kg/s, or in the unit of the workbook.", _
    "Inlet pressure of the cold stream, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure drop of the cold stream, MPa, or in the unit of the workbook.", _
    "Inlet temperature of the cold stream, from 260 to 2500 K, or in the unit of the workbook.", _
    "Heat from the hot to the cold stream, kW, or in the unit of the workbook.", _
    "Inlet quality of the cold stream, where it is on the saturation line, from 0 to 1 Fraction, or in the unit of the workbook.", _
    "Outlet quality of the cold stream, where it is on the saturation line, Fraction, or in the unit of the workbook.", _
    "Inlet pressure of the hot stream, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Pressure drop of the hot stream, MPa, or in the unit of the workbook.", _
    "Inlet temperature of the hot stream, from 260 to 2500 K, or in the unit of the workbook.", _
    "Outlet temperature of the hot stream, from 260 to 2500 K, or in the unit of the workbook.", _
    "Inlet quality of the hot stream, where it is on the saturation line, from 0 to 1 Fraction, or in the unit of the workbook.", _
    "Outlet quality of the hot stream, where it is on the saturation line, from 0 to 1 Fraction, or in the unit of the workbook.", _
    "Which results, one or more of: H_HOut, T_COut, H_CIn, H_COut, H_HIn, M_HOut; all without it.")
  Describe "SteamQT_PH", "Calvex", _
    "Quality and temperature from pressure and enthalpy. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamHVLTSat_PQ", "Calvex", _
    "Enthalpy, vapour enthalpy, liquid enthalpy and saturation temperature from pressure and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour. The vapour's enthalpy less the liquid's is the latent heat, the heat of evaporation.", Array( _
    "Pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamQTS_PH", "Calvex", _
    "Quality, temperature and entropy from pressure and enthalpy. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Enthalpy, from 0 kJ/kg, or in the unit of the workbook.")
  Describe "SteamDeSuperHeaterB", "Calvex equipment", _
    "Spray water that cools steam, from the outlet flow. On the saturation line the outlet is dry saturated steam.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Enthalpy of the spray water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Operating pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Flow of cooled steam, kg/s, or in the unit of the workbook.")
  Describe "SteamXLDeSuperHeaterB", "Calvex equipment", _
    "Spray water that cools steam, from the outlet flow, as an array of results. On the saturation line the outlet is dry saturated steam.", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Enthalpy of the spray water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Operating pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet temperature, from 260 to 2500 K, or in the unit of the workbook.", _
    "Flow of cooled steam, kg/s, or in the unit of the workbook.", _
    "Which results, one or more of: M_Water, M_in, H_Out; all without it.")
End Sub

Private Sub Describe9()
  Describe "SteamTurbineE", "Calvex equipment", _
    "Power of a steam turbine, its inlet entropy given. The entropy must be that of the inlet enthalpy and pressure (SPH).", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Inlet flow, kg/s, or in the unit of the workbook.", _
    "Inlet entropy, from 0 kJ/(kg.K), or in the unit of the workbook.")
  Describe "SteamXLTurbineE", "Calvex equipment", _
    "Power of a steam turbine, its inlet entropy given, as an array of results. The entropy must be that of the inlet enthalpy and pressure (SPH).", Array( _
    "Inlet enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Isentropic efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Inlet flow, kg/s, or in the unit of the workbook.", _
    "Inlet entropy, from 0 kJ/(kg.K), or in the unit of the workbook.", _
    "Which results, one or more of: Pow, S_Out, T_Out, H_Out, Q_Out; all without it.")
  Describe "SteamSolvePoly5", "Calvex equipment", _
    "Root of a polynomial of the fifth degree. The polynomial is a + b T + c T^2 + d T^3 + e T^4 + f T^5. The answer is where the search ends, also when the polynomial has no root.", Array( _
    "Constant term.", _
    "Factor of T.", _
    "Factor of T^2.", _
    "Factor of T^3.", _
    "Factor of T^4.", _
    "Factor of T^5.", _
    "Where the search starts.")
  Describe "SteamWaterPump", "Calvex equipment", _
    "Power of a pump for liquid water. Water that is no liquid is refused.", Array( _
    "Enthalpy of the water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Flow, kg/s, or in the unit of the workbook.", _
    "Efficiency, above 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamXLWaterPump", "Calvex equipment", _
    "Power of a pump for liquid water, as an array of results. Water that is no liquid is refused.", Array( _
    "Enthalpy of the water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Inlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Outlet pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Flow, kg/s, or in the unit of the workbook.", _
    "Efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Which results, one or more of: Pow, H_Out; all without it.")
  Describe "SteamXLThermoCompA", "Calvex equipment", _
    "Performance factor of a thermocompressor (steam ejector) from its flow ratio. Motive steam draws suction steam and discharges the mixture at a pressure between, by balances of momentum and energy.", Array( _
    "Motive steam enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Discharge pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Motive flow per suction flow, from 0 Fraction, or in the unit of the workbook.", _
    "Which results, one or more of: PerfF, H_Out, E_Ratio, C_Ratio; all without it.")
  Describe "SteamXLThermoCompB", "Calvex equipment", _
    "Flow ratio of a thermocompressor (steam ejector) from its performance factor. Motive steam draws suction steam and discharges the mixture at a pressure between, by balances of momentum and energy.", Array( _
    "Motive steam enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Motive steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Suction steam enthalpy, from 0 kJ/kg, or in the unit of the workbook.", _
    "Suction steam pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Discharge pressure, above 0 to 3000 MPa, or in the unit of the workbook.", _
    "Performance factor, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Which results, one or more of: Rs_Out, H_Out, E_Ratio, C_Ratio; all without it.")
  Describe "SteamBoiler_B", "Calvex equipment", _
    "Feed water, blowdown, duty and firing of a boiler. The blowdown is saturated liquid; at the saturation temperature the steam is dry saturated.", Array( _
    "Enthalpy of the feed water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Flow of steam, kg/s, or in the unit of the workbook.", _
    "Temperature of the steam, from 260 to 2500 K, or in the unit of the workbook.", _
    "Pressure of the steam, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Blowdown flow per steam flow, plausibly 0 to 1, Fraction, or in the unit of the workbook.", _
    "Firing efficiency, above 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamXLBoiler_B", "Calvex equipment", _
    "Feed water, blowdown, duty and firing of a boiler, as an array of results. The blowdown is saturated liquid; at the saturation temperature the steam is dry saturated.", Array( _
    "Enthalpy of the feed water, from 0 kJ/kg, or in the unit of the workbook.", _
    "Flow of steam, kg/s, or in the unit of the workbook.", _
    "Temperature of the steam, from 260 to 2500 K, or in the unit of the workbook.", _
    "Pressure of the steam, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Blowdown flow per steam flow, plausibly 0 to 1, Fraction, or in the unit of the workbook.", _
    "Firing efficiency, above 0 to 1 Fraction, or in the unit of the workbook.", _
    "Which results, one or more of: Q_Fired, M_In, M_Bd, H_Out, Q_Abs, H_delta, H_Bd; all without it.")
  Describe "SteamVSatTQ", "Calvex", _
    "Saturated specific volume from temperature and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Temperature, from 273.16 to 647.126 K, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
  Describe "SteamVSatPQ", "Calvex", _
    "Saturated specific volume from pressure and quality. Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.", Array( _
    "Pressure, from 0.00061173 to 22.055 MPa, or in the unit of the workbook.", _
    "Quality, from 0 to 1 Fraction, or in the unit of the workbook.")
End Sub

Private Sub DescribeAll()
  Describe1
  Describe2
  Describe3
  Describe4
  Describe5
  Describe6
  Describe7
  Describe8
  Describe9
End Sub
