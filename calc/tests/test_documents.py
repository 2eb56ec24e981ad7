"""Documents: their units, their files, the office without the extension."""
import pytest

from conftest import Sheet, answers
from office import Office, save, temporary_folder, until

STEAM = "=HPT(100;500)"
IN_BAR = answers("HPT", ["100bara", "500C"])[0]

def steam(sheet, value):
    """Looks at the cells, as a screen does: what nobody sees is not calculated."""
    return until(lambda: sheet["B1"].String is not None
                 and abs(sheet["A1"].Value - value) < 1e-9 * value)


@pytest.fixture
def plant(sheet):
    sheet.put("A1", STEAM)
    return sheet


MODEL = answers("HPT", ["100", "500"])[0]


def test_a_cell_sets_the_units_of_its_document(plant):
    assert steam(plant, MODEL)
    plant.put("B1", '=CALVEX.UNITS("T";"°C";"pressure";"bar")')
    assert steam(plant, IN_BAR)
    assert plant["B1"].String == "T=C; P=bara"
    plant.put("B1", '=CALVEX.UNITS("P";"bar")')
    assert steam(plant, answers("HPT", ["100bara", "500"])[0])
    plant.put("B1", "")
    assert steam(plant, MODEL)


def test_units_can_be_undone_and_redone(plant, document):
    plant.put("B1", '=CALVEX.UNITS("T";"°C";"P";"bar")')
    assert steam(plant, IN_BAR)
    document.UndoManager.undo()
    assert steam(plant, MODEL)
    document.UndoManager.redo()
    assert steam(plant, IN_BAR)


def test_units_may_stand_in_other_cells(plant):
    plant.put("C1", "°C")
    plant.put("B1", '=CALVEX.UNITS("T";C1;"P";"bar")')
    assert steam(plant, IN_BAR)
    plant.put("C1", "K")
    assert steam(plant, answers("HPT", ["100bara", "500"])[0])


def test_units_that_are_none_give_no_numbers(plant, document):
    plant.put("B1", '=CALVEX.UNITS("T";"°C";"P";"bra")')
    assert until(lambda: plant["B1"].getError() and plant["A1"].getError() == 519)
    assert "Sheet1.B1: " in plant.put("C1", "=CALVEX.WHY(A1)").String
    assert "bra" in plant["C1"].String
    plant.put("B1", '=CALVEX.UNITS("T";"°C";"P";"bar")')
    assert steam(plant, IN_BAR)
    plant.put("B1", "")
    document.NamedRanges.addNewByName("Calvex_Units", '"garbage"', plant["A1"].CellAddress, 0)
    assert until(lambda: plant["A1"].getError() == 519)
    assert "Calvex_Units" in plant.put("C1", "=CALVEX.WHY(A1)").String
    document.NamedRanges.getByName("Calvex_Units").Content = '"T=C; T=K"'
    assert until(lambda: "T is C and K: give it one unit" in plant["C1"].String)
    document.NamedRanges.removeByName("Calvex_Units")


def test_units_in_a_branch_that_does_not_count_are_not_set(plant):
    plant.put("B1", '=IF(1>2;CALVEX.UNITS("T";"C");CALVEX.UNITS("T";"°C";"P";"bar"))')
    assert steam(plant, IN_BAR)
    plant.put("B1", '=IF(1>2;CALVEX.UNITS("T";"C");"none")')
    assert steam(plant, MODEL)
    plant.put("B1", '=CALVEX.UNITS("T";"°C")&CALVEX.UNITS("P";"bar")')
    assert steam(plant, IN_BAR)


def test_a_cell_whose_units_another_overrules_says_so(plant):
    plant.put("B1", '=CALVEX.UNITS("P";"psia")')
    plant.put("B2", '=CALVEX.UNITS("T";"C";"P";"bar")')
    assert until(lambda: plant["B2"].String
                 and plant["B1"].String == "P=psia (P is bara by Sheet1.B2)")
    assert steam(plant, IN_BAR)
    assert plant["B2"].String == "T=C; P=bara"


def test_units_that_are_not_what_they_seem_say_so(plant):
    text = plant.put("B1", '=CALVEX.UNITS("V";"ft³/lb")').String
    assert "not the physical unit: its factor is a thousandth of a cubic foot" in text


def test_units_chosen_by_their_own_effect_end_in_errors(plant):
    plant.put("C1", '=IF(HPT(1;500)>3000;"K";"C")')
    plant.put("B1", '=CALVEX.UNITS("T";C1)')
    assert until(lambda: plant["B1"].String is not None and plant["C1"].String is not None
                 and plant["A1"].getError() == 519, 30)
    assert plant.put("D1", "=CALVEX.WHY(A1)").String.startswith("The units of this document ")
    plant.put("C1", "C")
    assert steam(plant, answers("HPT", ["100", "500C"])[0])


def test_two_documents_have_units_of_their_own(office, plant):
    other = office.new()
    try:
        second = Sheet(other.Sheets[0])
        second.put("A1", STEAM)
        second.put("B1", '=CALVEX.UNITS("T";"°C";"P";"bar")')
        assert steam(second, IN_BAR)
        plant.put("A2", STEAM)
        assert plant["A1"].Value == plant["A2"].Value == MODEL
    finally:
        other.close(True)


@pytest.mark.parametrize("kind", [".ods", ".xlsx"])
def test_a_file_keeps_formulas_units_and_values(kind, office, plant, document, folder):
    path = folder / f"plant{kind}"
    plant.put("B1", '=CALVEX.UNITS("T";"°C";"P";"bar")')
    plant.put("A2", "=HPT(100;9999)")
    plant.array("A4:A5", "=HPT(100;B4:B5+500)")
    assert steam(plant, IN_BAR)
    save(document, path)
    again = office.open(path)
    try:
        read = Sheet(again.Sheets[0])
        assert read["A1"].Value == pytest.approx(IN_BAR, rel=1e-14)
        assert read.error("A2") == 503
        again.calculateAll()
        assert read["A1"].Value == pytest.approx(IN_BAR, rel=1e-14)
        assert read["A4"].Value == pytest.approx(IN_BAR, rel=1e-10)
        assert read.put("A3", STEAM).Value == pytest.approx(IN_BAR, rel=1e-14)
        assert "2226.85 C" in read.put("A6", "=CALVEX.WHY(A2)").String
    finally:
        again.close(True)


@pytest.mark.parametrize("kind", [".ods", ".xlsx"])
def test_without_the_extension_a_file_shows_its_last_values(kind, plant, document, folder):
    path = folder / f"plant{kind}"
    plant.put("A2", "=A1*2")
    if kind == ".ods":  # Calc computes cells of such files anew unless they have a number format
        plant["A1:A2"].NumberFormat = 2
    assert plant["A2"].Value == 2 * MODEL
    save(document, path)
    with temporary_folder() as other, Office(other) as plain:
        opened = plain.open(path)
        read = Sheet(opened.Sheets[0])
        assert read["A1"].Value == pytest.approx(MODEL, rel=1e-14)
        assert read["A2"].Value == pytest.approx(2 * MODEL, rel=1e-14)
        assert "HPT" in read["A1"].Formula.upper()
        opened.close(True)
