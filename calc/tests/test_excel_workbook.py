"""The example workbook for Excel: another program than made it opens it, and calculates its formulas
to the values that are kept in it."""
import pytest

from conftest import ROOT

WORKBOOK = ROOT / "examples/excel/steam-plant.xlsx"


def used(sheet):
    cursor = sheet.createCursor()
    cursor.gotoEndOfUsedArea(False)
    cursor.gotoStartOfUsedArea(True)
    return cursor


def test_its_formulas_give_the_values_that_it_keeps(office):
    document = office.open(WORKBOOK)
    try:
        sheets = [used(sheet) for sheet in document.Sheets]
        kept = [sheet.DataArray for sheet in sheets]
        # Calc has the functions of .xlsx files under longer names; typed in, it knows them. The
        # cells with the units come first.
        for sheet in sheets:
            for row in range(len(sheet.DataArray)):
                for column in range(len(sheet.DataArray[0])):
                    cell = sheet.getCellByPosition(column, row)
                    if cell.Formula.startswith("="):
                        cell.Formula = cell.Formula
        document.calculateAll()
        numbers = 0
        for sheet, rows in zip(sheets, kept):
            for row, row_now in zip(rows, sheet.DataArray):
                for value, value_now in zip(row, row_now):
                    if isinstance(value, float):
                        numbers += 1
                        assert value_now == pytest.approx(value, rel=1e-10)
        assert numbers > 400
        for sheet in sheets:
            assert sheet.getCellByPosition(0, 2).String == "T=C; P=bara; Flow Rate=kg/s"
    finally:
        document.close(True)
