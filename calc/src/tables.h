/// \file
/// Tables and a chart for a document, made of formulas: they follow the document's units.
#pragma once

#include <com/sun/star/table/XCellRange.hpp>

#include "documents.h"

namespace calvex::calc {

/// The saturation line from 10 to 370 °C, from a cell on downwards and to the right.
void insertSaturationTable(const Reference<css::table::XCellRange>& sheet, sal_Int32 column,
                           sal_Int32 row);
/// All properties of the state of a pressure and a temperature, which stand above them.
void insertStateTable(const Reference<css::table::XCellRange>& sheet, sal_Int32 column,
                      sal_Int32 row);
/// A new sheet with isobars and the saturation line, and their chart of enthalpy over entropy.
void insertMollierChart(const Document& document);

}  // namespace calvex::calc
