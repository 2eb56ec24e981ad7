"""Every worksheet function against the command line."""
import pytest

from conftest import Sheet, answers, calvex
from office import until

NUM, MISSING, VALUE, NOT_AVAILABLE = 503, 511, 519, 32767


def argument(word):
    try:
        float(word)
        return word
    except ValueError:
        return f'"{word}"'


def formula(name, words):
    return f"={name}({';'.join(map(argument, words))})"


def test_every_member_that_computes_numbers_is_a_function(functions):
    members = calvex("members")[0]
    computing = {line.split()[0] for line in members.splitlines() if line.startswith("  ")}
    for other in ("units", "diagnostics", "settings"):
        section = members.split(f"\n{other}\n")[1].split("\n\n")[0]
        computing -= {line.split()[0] for line in section.splitlines()}
    assert computing == set(functions)


def test_each_answers_as_the_command_line_does_to_the_last_bit(functions, sheet):
    wrong = []
    for name, words in functions.items():
        expected = answers(name, words)
        is_table = isinstance(expected[0], list)
        rows = expected if is_table else [expected]
        target = sheet.sheet.getCellRangeByPosition(0, 0, len(rows[0]) - 1, len(rows) - 1)
        target.ArrayFormula = formula(name, words)
        got = [list(row) for row in target.DataArray]
        if got != [[None if value is None else value for value in row] for row in rows]:
            wrong.append((name, words, got, rows))
        if not is_table:
            cell = sheet.put("A9", formula(name, words))
            if cell.Value != expected[0]:
                wrong.append((name, "alone", cell.Value, expected[0]))
        target.clearContents(1023)
    assert not wrong
    assert len(functions) > 150


def test_ranges_answer_as_single_cells_do(functions, sheet):
    factors = (1.0, 0.999, 1.001, 1.002)
    wrong = []
    for name, words in functions.items():
        numbers = [float(word) for word in words if argument(word) == word]
        if not numbers:
            continue
        texts = [argument(word) for word in words if argument(word) != word]
        rows = [[numbers[0] * factor, *numbers[1:]] for factor in factors]
        last = sheet.sheet.getCellByPosition(len(numbers) - 1, 0).AbsoluteName.split("$")[2]
        sheet[f"A1:{last}{len(rows)}"].DataArray = tuple(map(tuple, rows))
        letters = [sheet.sheet.getCellByPosition(i, 0).AbsoluteName.split("$")[2]
                   for i in range(len(numbers))]
        ranges = [f"{letter}1:{letter}{len(rows)}" for letter in letters]
        together = sheet.sheet.getCellRangeByPosition(20, 0, 20, len(rows) - 1)
        together.ArrayFormula = f"={name}({';'.join(ranges + texts)})"
        values = 1 if texts else 0  # a table begins with labels
        for i, row in enumerate(rows):
            alone = sheet.sheet.getCellRangeByPosition(22, i, 22 + values, i)
            alone.ArrayFormula = formula(name, [repr(number) for number in row] +
                                         [word.strip('"') for word in texts])
            one, many = alone.getCellByPosition(values, 0), together.getCellByPosition(0, i)
            same = one.getError() == many.getError() and (
                one.getError() or abs(one.Value - many.Value) <= 1e-10 * max(1, abs(one.Value)))
            if not same:
                wrong.append((name, row, one.String, many.String))
        sheet["A1:AA9"].clearContents(1023)
    assert not wrong


def test_a_result_can_be_named(sheet):
    power, T, h, x = answers("TurbineA", "3374 10 1 0.8 5".split())
    call = "=TurbineA(3374;10;1;0.8;5;\"{}\")"
    assert sheet.put("A1", call.format("TOut")).Value == T
    assert sheet.put("A1", call.format("hout")).Value == h
    assert sheet.put("A1", call.format("nothing")).getError() == VALUE
    sheet.put("A2", "=CALVEX.WHY(A1)")
    assert "names no result" in sheet["A2"].String and "Power, TOut" in sheet["A2"].String
    assert sheet.array("B1:E1", "=TurbineA(3374;10;1;0.8;5)") == ((power, T, h, x),)


def test_names_in_several_cells_give_a_result_each(sheet):
    power, T, h, x = answers("TurbineA", "3374 10 1 0.8 5".split())
    call = "=TurbineA(3374;10;1;0.8;5;A1:{})"
    for name, word in {"A1": "TOut", "A2": "Power", "B1": "Power"}.items():
        sheet[name].String = word
    assert sheet.array("D1:E1", call.format("B1")) == ((T, power),)
    assert sheet.array("D3:D4", call.format("A2")) == ((T,), (power,))
    sheet["A1"].String, sheet["B1"].String = "T", "weather"
    assert sheet.array("D6:E6", "=CALVEX.UNIT(A1:B1)")[0][0] == "K"
    assert sheet.error("E6") == VALUE


def test_results_stand_beside_columns_and_below_rows(sheet):
    expected = [answers("QT_PH", ["1", h]) for h in ("1770", "2500")]
    sheet["A1:A2"].DataArray = ((1770.0,), (2500.0,))
    sheet["A4:B4"].DataArray = ((1770.0, 2500.0),)
    beside = sheet.array("D1:E2", "=QT_PH(1;A1:A2)")
    below = sheet.array("D4:E5", "=QT_PH(1;A4:B4)")
    for i, (x, T) in enumerate(expected):
        assert beside[i] == pytest.approx((x, T))
        assert (below[0][i], below[1][i]) == pytest.approx((x, T))


def test_a_row_and_a_column_make_a_table(sheet):
    sheet["B1:C1"].DataArray = ((500.0, 800.0),)
    sheet["A2:A4"].DataArray = ((1.0,), (10.0,), (20.0,))
    table = sheet.array("B2:C4", "=HPT(A2:A4;B1:C1)")
    for i, P in enumerate(("1", "10", "20")):
        for j, T in enumerate(("500", "800")):
            assert table[i][j] == pytest.approx(answers("HPT", [P, T])[0], rel=1e-10)


def test_one_bad_row_does_not_spoil_the_column(sheet):
    sheet["A1:B5"].DataArray = ((10.0, 773.15), (10.0, 9999.0), ("text", 773.15), ("", 773.15),
                                (10.0, 773.15))
    sheet.array("C1:C5", "=HPT(A1:A5;B1:B5)")
    good = answers("HPT", ["10", "773.15"])[0]
    assert sheet["C1"].Value == pytest.approx(good, rel=1e-10)
    assert sheet["C5"].Value == sheet["C1"].Value
    assert [sheet.error(f"C{i}") for i in range(1, 6)] == [0, NUM, VALUE, NOT_AVAILABLE, 0]
    for i, words in ((2, "out of range"), (3, 'P is the text "text"'), (4, "P is an empty")):
        assert words in sheet.put(f"D{i}", f"=CALVEX.WHY(C{i})").String


def test_errors_in_a_range_of_inputs_can_be_left_out(sheet):
    sheet["A1:B3"].DataArray = ((10.0, 773.15), (10.0, 773.15), (10.0, 773.15))
    sheet.put("A2", "=HPT(1;9999)")
    sheet.array("C1:C3", '=HPT(IFERROR(A1:A3;"");B1:B3)')
    assert [sheet.error(f"C{i}") for i in (1, 2, 3)] == [0, NOT_AVAILABLE, 0]


def test_wrong_inputs_are_errors_with_reasons(sheet, document):
    sheet.put("A1", "text")
    sheet.put("A2", "=1/0")
    sheets = document.Sheets
    sheets.insertNewByName("Other", 1)
    sheets.insertNewByName("An other's", 2)
    Sheet(sheets[1]).put("A1", "=TPH(10;-1)")
    Sheet(sheets[2]).put("A1", "=1/0")
    origin = sheet["A1"].CellAddress
    document.NamedRanges.addNewByName("Const", "773.15", origin, 0)
    document.NamedRanges.addNewByName("Twice", "2*Const", origin, 0)
    for call, error, words in (
            ("HPT(10;3000)", NUM, "Temperature parameter out of range (Valid range 260.00 to 2500.00 K)."),
            ("HPT(A1;300)", VALUE, 'P is the text "text"'),
            ("HPT(10)", MISSING, "T is missing. It takes P (MPa), T (K)"),
            ("HPT(10;)", MISSING, "T is missing"),
            ("HPT(Z9;300)", NUM, "Pressure must be above 0"),
            ("HPT(A2;300)", 532, "Sheet1.A2: No function of Calvex has failed here; the error is "
                                 "the spreadsheet's: #DIV/0!, a division by zero"),
            ("HPT(NA();300)", NOT_AVAILABLE, "P is itself #N/A"),
            ("HPT(10;773.15;3)", 504, "3 inputs are given, not 2. It takes P (MPa), T (K)"),
            ('TurbineA(3374;10;1;0.8;5;"Powr")', VALUE, '"Powr" names no result'),
            ('TurbineB(3374;10;10;0.8;500;"MIn")', NUM, "MIn is infinite here"),
            ("TurbineB(3374;10;10;0.8;5000)", NUM, "MIn is infinite here"),
            ('DeSuperHeaterB(2852;2852;1;500;1.3;"Mw")', NUM, "Mw is infinite here"),
            ('SUM(XLTurbineB(3374;10;10;0.8;5000;"M_In"))', NUM, "M_In is infinite here"),
            ("SUM(A1:A2)", 532, "Sheet1.A2: "),
            ("HPTT(1;2)", 525, "there is no function HPTT"),
            ("nix", 525, "nix is the name of no cell, range or value"),
            ("HPT(10;$Other.A1)", NUM, "Other.A1: TPH: "),
            ("HPT(10;$'An other''s'.A1)", 532, "An other"),
            ("HPT(Const;3000)", NUM, "Temperature parameter out of range"),
            ("HPT(Twice;3000)", NUM, "Temperature parameter out of range"),
            ('CALVEX.CONVERT("T";"C";"K")', MISSING, "the value is missing"),
            ('CALVEX.CONVERT("P";"barr";"Pa";1)', VALUE, "'barr' is not a unit of Pressure; did you mean bara"),
            ('CALVEX.CONVERT("P";"MPa";"Pa";1E+308)', NUM, "the value is too large to be a number of Pa"),
            ("B1", 522, "the cell reads itself"),
            ("HPT(TPH(10;-1);300)", NUM, "TPH: "),
            ("SUM(1;HPT(10;3000))", NUM, "HPT: Temperature parameter out of range"),
            ('CALVEX.UNITS("T";"parsec")', VALUE, "CALVEX.UNITS: "),
            ('CALVEX.UNITS("T")', VALUE, "come in pairs"),
            ('CALVEX.CONVERT("T";"C";"bar";1)', VALUE, "CALVEX.CONVERT: ")):
        assert sheet.put("B1", f"={call}").getError() == error, call
        assert words in sheet.put("B2", "=CALVEX.WHY(B1)").String, call
    sheet.put("B1", "=HPT(10;773.15)")
    # The units that were wrong above are read again in the office's own time.
    assert until(lambda: sheet["B2"].String == "" and sheet.error("B2") == 0)


def test_a_reason_passes_through_the_cells_that_read_the_failed_one(sheet):
    sheet.put("A1", "=HPT(10;3000)")
    sheet.put("A2", "=A1*2+1")
    sheet.put("A3", '=IF(1>0;SQRT(A2);"no")')
    assert sheet.put("A4", "=CALVEX.WHY(A3)").String.startswith(
        "Sheet1.A2: Sheet1.A1: HPT: Temperature parameter out of range")


def test_a_reason_is_found_far_up_and_once(sheet):
    sheet.put("A1", "=HPT(10;3000)")
    for row in range(2, 101):
        sheet.put(f"A{row}", f"=A{row - 1}+A{row - 1}")
    assert "HPT: Temperature parameter out of range" in sheet.put("B1", "=CALVEX.WHY(A100)").String
    sheet.put("C1", '=CALVEX.WHY(C1)&CALVEX.WHY(C1)&CALVEX.WHY(C1)&CALVEX.WHY(C1)')
    assert "Err:522, the cell reads itself" in sheet["C1"].String


def test_a_branch_that_does_not_count_is_no_reason(sheet):
    sheet.put("A1", "=IF(1>2;HPT(10;3000);TPH(10;-1))")
    assert sheet.put("B1", "=CALVEX.WHY(A1)").String.startswith("TPH: ")


def test_reasons_of_a_range_stand_beside_it(sheet):
    sheet["A1:A3"].FormulaArray = (("=HPT(10;773.15)",), ("=HPT(10;3000)",), ("=1/0",))
    reasons = [row[0] for row in sheet.array("B1:B3", "=CALVEX.WHY(A1:A3)")]
    assert reasons[0] == "" and reasons[1].startswith("HPT: ") and "#DIV/0!" in reasons[2]


def test_an_error_in_a_range_of_inputs_is_explained(sheet):
    sheet["A1:B3"].DataArray = ((10.0, 773.15), (10.0, 773.15), (10.0, 773.15))
    sheet.put("A2", "=1/0")
    sheet.array("C1:C3", "=HPT(A1:A3;B1:B3)")
    assert sheet.error("C1") == 504
    why = sheet.put("D1", "=CALVEX.WHY(C1)").String
    assert "Sheet1.A2: " in why or 'IFERROR(range;"")' in why


def test_the_record_of_a_cell_is_rows(sheet):
    assert sheet.array("B1:D1", "=CALVEX.TRACE(A9)") == (
        (0.0, "note", "no call of Calvex left a message"),)
    sheet.array("B1:D1", "")
    sheet.put("A1", "=HPT(10;3000)")
    assert sheet.array("B1:D2", "=CALVEX.TRACE(A1)") == (
        (0.0, "call", "HPT"),
        (1.0, "error", "Temperature parameter out of range (Valid range 260.00 to 2500.00 K)."))


def test_the_record_is_of_the_cell_alone(sheet):
    sheet.put("A1", "=TPH(10;-1)")
    sheet.put("A2", "=IFERROR(A1;500)+HPT(1;9999)")
    texts = [row[2] for row in sheet.array("B1:D3", "=CALVEX.TRACE(A2)")]
    assert texts[0] == "HPT" and "out of range" in texts[1] and texts[2] is None


def test_whole_columns_are_understood(sheet):
    sheet["A1:B2"].DataArray = ((10.0, 773.15), (10.0, 800.0))
    assert sheet.put("C1", "=SUM(IFERROR(HPT(A:A;B:B);0))").getError() == 0
    sheet["C1"].Formula = ""
    sheet.array("C1:C1", "=SUM(IFERROR(HPT(A:A;B:B);0))")
    expected = sum(answers("HPT", ["10", T])[0] for T in ("773.15", "800"))
    assert sheet["C1"].Value == pytest.approx(expected, rel=1e-10)


def test_conversion(sheet):
    cell = sheet.put("A1", '=CALVEX.CONVERT("T";"C";"K";20)')
    assert cell.Value == pytest.approx(293.15, rel=1e-14)  # 0 °C is 273.15 K
    assert sheet.put("A1", '=CALVEX.CONVERT("P";"psia";"bara";100)').Value == answers(
        "Convert", ["P", "psia", "bara", "100"])[0]
    sheet["B1:B2"].DataArray = ((0.0,), (100.0,))
    assert sheet.array("C1:C2", '=CALVEX.CONVERT("T";"C";"K";B1:B2)') == (
        (pytest.approx(273.15),), (pytest.approx(373.15),))
    sheet.array("C1:C2", "")
    sheet["E1:F1"].DataArray = (("K", "F"),)
    assert sheet.array("C1:D2", '=CALVEX.CONVERT("T";"C";E1:F1;B1:B2)') == (
        (pytest.approx(273.15), pytest.approx(32)), (pytest.approx(373.15), pytest.approx(212)))
