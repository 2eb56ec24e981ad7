/// \file
/// The dialogs of the menu.
#pragma once

#include <com/sun/star/table/XCell.hpp>

#include "documents.h"

namespace calvex::calc {

/// Lets the user choose the document's units.
void showUnits(Document& document);

/// Shows why a cell has no value, and the calls in its formula as a tree.
void showRecord(Document& document, const Reference<css::table::XCell>& cell);

/// The URL of a file of the extension, by its path in it.
[[nodiscard]] rtl::OUString fileOfExtension(const char* path);

/// The document that is worked on; nullptr when it is no spreadsheet.
[[nodiscard]] Document* currentDocument();

}  // namespace calvex::calc
