"""What the menu inserts, and the templates."""
import pathlib
import zipfile

import pytest

from conftest import Sheet, answers
from office import until


@pytest.fixture
def shown(office):
    """The menu is for the document that is worked on."""
    document = office.new(hidden=False)
    yield document
    document.close(True)


def trigger(office, document, command, cell="A1"):
    sheet = document.CurrentController.ActiveSheet
    document.CurrentController.select(sheet.getCellRangeByName(cell))
    office.create("calvex.calc.Commands").trigger(command)


def errors(sheet, cells):
    return [name for name in cells if sheet.error(name)]


def test_a_saturation_table_follows_the_units(office, shown):
    sheet = Sheet(shown.Sheets[0])
    trigger(office, shown, "saturation", "B2")
    assert [cell for cell in sheet["B3:I3"].DataArray[0]][:2] == ["K", "MPa"]
    assert sheet["B4"].Value == pytest.approx(283.15)
    assert sheet["C4"].Value == answers("PSatT", ["283.15"])[0]
    assert sheet["I40"].Value == answers("SSatTQ", ["643.15", "1"])[0]
    assert not errors(sheet, (f"{letter}{row}" for letter in "BCDEFGHI" for row in range(2, 41)))
    sheet.put("A1", '=CALVEX.UNITS("T";"C";"P";"bara")')
    assert until(lambda: sheet["A1"].String and sheet["B3"].String == "C")
    assert sheet["B4"].Value == pytest.approx(10)
    assert sheet["C4"].Value == pytest.approx(10 * answers("PSatT", ["283.15"])[0])


def test_a_state_table_has_every_property(office, shown):
    sheet = Sheet(shown.Sheets[0])
    trigger(office, shown, "state")
    rows = {row[0]: row[1:] for row in sheet["A1:C21"].DataArray}
    assert rows["pressure"] == (10, "MPa") and rows["temperature"][0] == pytest.approx(773.15)
    for words, member in (("enthalpy", "HPT"), ("speed of sound", "WPT"),
                          ("dynamic viscosity", "MPT"), ("Prandtl number", "NPT")):
        assert rows[words][0] == answers(member, ["10", "773.15"])[0]
    assert len(rows) == 21 and not errors(sheet, (f"B{row}" for row in range(1, 22)))


def test_a_table_is_one_step_to_undo(office, shown):
    trigger(office, shown, "state")
    shown.UndoManager.undo()
    assert Sheet(shown.Sheets[0])["A1"].String == ""
    assert not shown.UndoManager.isUndoPossible()


def test_a_mollier_chart_is_a_chart_of_the_document(office, shown):
    trigger(office, shown, "mollier")
    trigger(office, shown, "mollier")
    assert shown.Sheets.ElementNames == ("Sheet1", "Mollier", "Mollier 2")
    sheet = Sheet(shown.Sheets[1])
    chart = shown.Sheets[1].Charts.getByIndex(0).EmbeddedObject
    assert chart.Diagram.DiagramType == "com.sun.star.chart.XYDiagram"
    assert sheet["B2"].String == "0.01 MPa" and sheet["A2"].String == "kJ/(kg.K)"
    assert sheet["A15"].Value == pytest.approx(3.5)
    # Two phases at 0.01 MPa: an isobar is a straight line there, of the slope T.
    slope = (sheet["B16"].Value - sheet["B15"].Value) / 0.25
    assert slope == pytest.approx(answers("TSatP", ["0.01"])[0], rel=1e-6)
    series = chart.FirstDiagram.CoordinateSystems[0].ChartTypes[0].DataSeries
    assert len(series) == 8
    names = [one.DataSequences[0].Label.getTextualData() for one in series]
    assert names[0] == ("0.01 MPa",) and names[7] == ("saturation",)


def test_the_dialog_keeps_units_in_the_document(office, shown):
    """What its OK writes: a name of the document, which can be undone."""
    sheet = Sheet(shown.Sheets[0])
    sheet.put("A1", "=HPT(100;500)")
    model = sheet["A1"].Value
    origin = sheet["A1"].CellAddress
    shown.NamedRanges.addNewByName("Calvex_Units", '"T=C; P=bara"', origin, 0)
    steam = answers("HPT", ["100bara", "500C"])[0]
    assert until(lambda: sheet["A1"].Value == pytest.approx(steam, rel=1e-12))
    shown.UndoManager.undo()
    assert until(lambda: sheet["A1"].Value == model)


@pytest.mark.parametrize("name", ["turbine-expansion", "boiler-house", "steam-tables"])
def test_a_template_calculates_on_opening(name, office, extension, folder):
    path = pathlib.Path(zipfile.ZipFile(extension).extract(f"templates/Calvex/{name}.ots", folder))
    opened = office.open(path)
    try:
        sheet = Sheet(opened.Sheets[0])
        cells = [f"{letter}{row}" for letter in "ABCDEFGH" for row in range(1, 75)]
        assert not errors(sheet, cells)
        assert sheet["A3"].String.startswith("T=C; P=bara")
        if name == "turbine-expansion":
            inlet = answers("HPT", ["100bara", "500C"])[0]
            power, T, h, x = answers("TurbineA", [str(inlet), "10", "0.005", "0.85", "20"])
            assert sheet["B15"].Value == pytest.approx(power, rel=1e-9)
            assert sheet["F33"].Value == pytest.approx(power, rel=1e-9)
            assert sheet["A33"].Value == pytest.approx(0.05)
        elif name == "boiler-house":
            # What comes in goes out: feed water = steam + blowdown; water + steam = feed + vent.
            value = {row: sheet[f"B{row}"].Value for row in range(1, 34)}
            assert value[30] == pytest.approx(value[8] + value[31])
            assert value[19] + value[20] == pytest.approx(value[30] * (1 + value[16]))
            assert value[33] == pytest.approx(value[32] / value[29])
        else:
            assert sheet["C8"].String == "0.00100031"
            assert sheet["B17"].Value == pytest.approx(1.01322, rel=1e-5)  # 100 °C, IAPS 1984
            assert sheet["B48"].Value == answers("HPT", ["1bara", "320C"])[0]
    finally:
        opened.close(True)


def test_the_page_of_units_sets_those_of_the_document(office, shown, extension):
    sheet = Sheet(shown.Sheets[0])
    sheet.put("A1", "=HPT(100;500)")
    model = sheet["A1"].Value
    page = office.create("calvex.calc.UnitsPage")
    location = office.context.getByName(
        "/singletons/com.sun.star.deployment.PackageInformationProvider").getPackageLocation(
        "calvex.calc")
    provider = office.create("com.sun.star.awt.ContainerWindowProvider")
    window = provider.createContainerWindow(f"{location}/dialogs/page.xdl", "",
                                            shown.CurrentController.Frame.ContainerWindow, page)
    try:
        def tell(event):
            assert page.callHandlerMethod(window, event, "external_event")

        quantities, units = window.getControl("quantities"), window.getControl("units")

        def choose(group, unit):
            quantities.selectItemPos(group, True)
            units.selectItem(unit, True)

        def chosen():
            return quantities.Items[:2]

        # LibreOffice leaves a page this room.
        assert window.PosSize.Width <= 560 and window.PosSize.Height <= 380
        tell("initialize")
        assert chosen() == ("Temperature: K", "Pressure: MPa") and units.SelectedItem == "K"
        choose(0, "C")
        choose(1, "bara")
        assert chosen() == ("Temperature: C", "Pressure: bara") and units.SelectedItem == "bara"
        assert sheet["A1"].Value == model
        tell("ok")
        steam = answers("HPT", ["100bara", "500C"])[0]
        assert until(lambda: sheet["A1"].Value == pytest.approx(steam, rel=1e-12))
        choose(0, "F")
        tell("back")
        assert chosen() == ("Temperature: C", "Pressure: bara")
        shown.UndoManager.undo()
        assert until(lambda: sheet["A1"].Value == model)
        sheet.put("B1", '=CALVEX.UNITS("P";"psia")')
        assert until(lambda: sheet["B1"].String and sheet["A1"].Value != model)
        tell("back")
        assert chosen() == ("Temperature: K", "Pressure: psia") and units.isEnabled()
        quantities.selectItemPos(1, True)
        assert units.SelectedItem == "psia" and not units.isEnabled()
        assert window.getControl("cells").Text == "Set by cells of the document: P=psia"
        tell("ok")
        assert not shown.NamedRanges.hasByName("Calvex_Units")
        choose(0, "C")
        assert units.isEnabled()
        tell("ok")
        assert shown.NamedRanges.getByName("Calvex_Units").Content == '"T=C"'
        choose(0, "K")
        tell("ok")
        assert shown.NamedRanges.getByName("Calvex_Units").Content == '""'
    finally:
        window.dispose()


def test_the_menu_and_the_help_are_in_the_extension(functions, extension):
    archive = zipfile.ZipFile(extension)
    menu = archive.read("Addons.xcu").decode()
    for command in ("units", "record", "saturation", "state", "mollier", "help"):
        assert f"calvex.calc.Commands?{command}<" in menu
    page = archive.read("help/index.html").decode()
    assert [name for name in functions if f"<h3>{name}(" not in page] == []


def in_other_units(sheet, units, cells):
    """The cells in other units, their inputs converted."""
    sheet["A3"].Formula = f"=CALVEX.UNITS({units})"
    for name, quantity, old, new in cells:
        value = sheet[name].Value
        sheet[name].Value = float(answers("Convert", [quantity, old, new, repr(value)])[0])


def test_templates_hold_in_other_units(office, extension, folder):
    def opened(name):
        return office.open(zipfile.ZipFile(extension).extract(f"templates/Calvex/{name}.ots", folder))

    document = opened("turbine-expansion")
    try:
        sheet = Sheet(document.Sheets[0])
        in_other_units(sheet, '"P";"MPa";"flow";"kg/h";"H";"kcal/kg";"power";"MW"',
                       [("B6", "P", "bara", "MPa"), ("B7", "T", "C", "K"),
                        ("B8", "flow", "kg/s", "kg/h"), ("B13", "P", "bara", "MPa")])
        assert until(lambda: sheet["A3"].String and sheet["C15"].String == "MW")
        assert sheet["B15"].Value == pytest.approx(23.172, rel=1e-4)
        assert sheet["F33"].Value == pytest.approx(sheet["B15"].Value, rel=1e-9)
    finally:
        document.close(True)
    document = opened("steam-tables")
    try:
        sheet = Sheet(document.Sheets[0])
        enthalpy = sheet["F17"].Value  # of vapour at 100 °C
        assert enthalpy == pytest.approx(2675.7, rel=1e-4)
        in_other_units(sheet, '"T";"C";"P";"bara";"Q";"%"', [])
        assert until(lambda: sheet["A3"].String.endswith("%"))
        assert sheet["F17"].Value == pytest.approx(enthalpy, rel=1e-12)
    finally:
        document.close(True)


def test_tables_are_right_with_qualities_in_per_cent(office, shown):
    sheet = Sheet(shown.Sheets[0])
    sheet.put("A1", '=CALVEX.UNITS("Q";"%")')
    trigger(office, shown, "saturation", "B2")
    assert until(lambda: sheet["A1"].String == "Q=%")
    assert sheet["G4"].Value == pytest.approx(answers("HSatTQ", ["283.15", "1"])[0], rel=1e-12)


@pytest.mark.parametrize("command", ["saturation", "state"])
def test_a_table_is_written_only_where_there_is_room(command, office, shown):
    def run(cell):
        trigger(office, shown, command, cell)
        return Sheet(shown.Sheets[0])[cell].String

    sheet = Sheet(shown.Sheets[0])
    sheet["C9"].String = "mine"
    assert run("A1") == run("A1048570") == run("XFD1") == ""
    assert sheet["C9"].String == "mine"
    sheet["C9"].String = ""
    shown.Sheets[0].protect("")
    assert run("A1") == ""
    shown.Sheets[0].unprotect("")
    assert run("A1")
