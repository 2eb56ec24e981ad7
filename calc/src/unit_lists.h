/// \file
/// What the dialog and the page of units offer.
#pragma once

#include <com/sun/star/uno/Sequence.hxx>
#include <rtl/ustring.hxx>
#include <string>

#include "documents.h"

namespace calvex::calc {

[[nodiscard]] int groupCount();

/// "Mass Specific Enthalpy"
[[nodiscard]] std::string groupName(int group);

/// A group's units, the model unit first.
[[nodiscard]] css::uno::Sequence<rtl::OUString> unitNames(int group);

/// Which units the document's cells set, in words; empty where they set none.
[[nodiscard]] std::string setByCells(const Document& document);

}  // namespace calvex::calc
