#include "formula.h"

#include <algorithm>
#include <com/sun/star/container/NoSuchElementException.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/sheet/XCellAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XFunctionAccess.hpp>
#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/CellContentType.hpp>
#include <map>

#include "errors.h"
#include "formula_text.h"
#include "texts.h"

namespace calvex::calc {

namespace {

using css::sheet::XSheetCellRange;
using css::table::XCell;
using css::uno::Sequence;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

constexpr std::string_view ownPrefix = "CALVEX.CALC.FUNCTIONS.";
constexpr int deepest = 200;  // of cells that read cells with errors

std::string upperCase(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

Reference<css::sheet::XSpreadsheet> sheetOf(const Reference<XCell>& cell) {
  return Reference<XSheetCellRange>(cell, UNO_QUERY_THROW)->getSpreadsheet();
}

std::string formulaOf(const Reference<XCell>& cell) { return toUtf8(cell->getFormula()); }

// Where in its array formula a cell stands.
Place placeInArray(const Reference<XCell>& cell) {
  const Reference<XSheetCellRange> range(cell, UNO_QUERY_THROW);
  const auto cursor = range->getSpreadsheet()->createCursorByRange(range);
  cursor->collapseToCurrentArray();
  const auto array =
      Reference<css::sheet::XCellRangeAddressable>(cursor, UNO_QUERY_THROW)->getRangeAddress();
  const auto own = Reference<css::sheet::XCellAddressable>(cell, UNO_QUERY_THROW)->getCellAddress();
  return {static_cast<std::size_t>(own.Row - array.StartRow),
          static_cast<std::size_t>(own.Column - array.StartColumn)};
}

// What cells have; an error is an error value, an empty cell the number 0 where it stands alone and
// a text without characters in a range, as functions are given them.
Any contentsOf(const Reference<css::table::XCellRange>& range) {
  Sequence<Sequence<Any>> cells =
      Reference<css::sheet::XCellRangeData>(range, UNO_QUERY_THROW)->getDataArray();
  for (sal_Int32 i = 0; i < cells.getLength(); ++i) {
    for (sal_Int32 j = 0; j < cells[i].getLength(); ++j) {
      if (cells[i][j].hasValue()) continue;
      const sal_Int32 error = range->getCellByPosition(j, i)->getError();
      cells.getArray()[i].getArray()[j] <<=
          errorValue(static_cast<CellError>(error != 0 ? error : 519));
    }
  }
  if (cells.getLength() != 1 || cells[0].getLength() != 1) return Any(cells);
  const bool isEmpty =
      range->getCellByPosition(0, 0)->getType() == css::table::CellContentType_EMPTY;
  return isEmpty ? Any(0.0) : cells[0][0];
}

// Functions that take an error for what it is; the office gives none to programs.
struct ErrorFunction {
  std::string_view name;
  Any (*compute)(const Any& value, const Any& other);
};

bool isNotAvailable(const Any& value) {
  return errorOf(value) == static_cast<std::uint32_t>(CellError::notAvailable);
}

constexpr ErrorFunction errorFunctions[] = {
    {"IFERROR", [](const Any& value, const Any& other) { return errorOf(value) ? other : value; }},
    {"IFNA",
     [](const Any& value, const Any& other) { return isNotAvailable(value) ? other : value; }},
    {"ISERROR", [](const Any& value, const Any&) { return Any(errorOf(value) ? 1.0 : 0.0); }},
    {"ISERR", [](const Any& value,
                 const Any&) { return Any(errorOf(value) && !isNotAvailable(value) ? 1.0 : 0.0); }},
    {"ISNA", [](const Any& value, const Any&) { return Any(isNotAvailable(value) ? 1.0 : 0.0); }},
};

const ErrorFunction* errorFunction(std::string_view name) {
  const auto* const found = std::ranges::find(errorFunctions, name, &ErrorFunction::name);
  return found == std::end(errorFunctions) ? nullptr : found;
}

Any otherFunction(const std::string& name, std::span<const Any> arguments) {
  if (const ErrorFunction* const known = errorFunction(name); known && !arguments.empty()) {
    return combine(arguments[0], arguments.size() > 1 ? arguments[1] : Any(), known->compute);
  }
  for (const Any& argument : arguments) {  // most functions pass errors on
    if (const auto failed = firstError(argument)) return elementOf(argument, *failed);
  }
  const Reference<css::sheet::XFunctionAccess> access(
      context()->getServiceManager()->createInstanceWithContext("com.sun.star.sheet.FunctionAccess",
                                                                context()),
      UNO_QUERY_THROW);
  try {
    const Any value = access->callFunction(
        toOffice(name), Sequence<Any>(arguments.data(), static_cast<sal_Int32>(arguments.size())));
    return value.hasValue() ? value : Any(errorValue(CellError::notAvailable));
  } catch (const css::container::NoSuchElementException&) {
    return Any(errorValue(CellError::name));
  } catch (const css::uno::Exception&) {
    throw NotFollowed("the function " + upperCase(name) +
                      " cannot be computed outside of its cell");
  }
}

using Model = Reference<css::beans::XPropertySet>;
using Sheet = Reference<css::sheet::XSpreadsheet>;
using Range = Reference<css::table::XCellRange>;

Range rangeIn(const Range& sheet, const std::string& address) {
  try {
    return sheet->getCellRangeByName(toOffice(address));
  } catch (const css::uno::Exception&) {
    return {};
  }
}

// "$'Sheet 2'.A1:B2" of a document; null when there is no such range.
Range rangeElsewhere(const Model& model, const std::string& address) {
  bool isQuoted = false;
  std::size_t point = 0;
  for (; point < address.size() && (isQuoted || address[point] != '.'); ++point) {
    if (address[point] == '\'') isQuoted = !isQuoted;
  }
  if (point == address.size()) return {};
  std::string name = address.substr(0, point);
  if (name.starts_with('$')) name.erase(0, 1);
  if (name.starts_with('\'')) {
    name = name.substr(1, name.size() - 2);
    for (std::size_t i = 0; (i = name.find("''", i)) != std::string::npos; ++i) name.erase(i, 1);
  }
  const auto sheets =
      Reference<css::sheet::XSpreadsheetDocument>(model, UNO_QUERY_THROW)->getSheets();
  if (!sheets->hasByName(toOffice(name))) return {};
  return rangeIn(Range(sheets->getByName(toOffice(name)), UNO_QUERY_THROW),
                 address.substr(point + 1));
}

// A range by its address or name, as a cell of the sheet means it; null when there is none.
Range rangeOf(const Model& model, const Sheet& sheet, const std::string& name) {
  const Range here = rangeIn(Range(sheet, UNO_QUERY_THROW), name);
  return here.is() ? here : rangeElsewhere(model, name);
}

// What a name of the document or of the sheet stands for; empty when there is none.
std::string namedFormula(const Model& model, const Sheet& sheet, const std::string& name) {
  for (const Model& place : {Model(sheet, UNO_QUERY_THROW), model}) {
    const Reference<css::container::XNameAccess> names(place->getPropertyValue("NamedRanges"),
                                                       UNO_QUERY_THROW);
    if (!names->hasByName(toOffice(name))) continue;
    const Reference<css::sheet::XNamedRange> found(names->getByName(toOffice(name)),
                                                   UNO_QUERY_THROW);
    return "=" + toUtf8(found->getContent());
  }
  return {};
}

// What is known of a document while one of its cells is explained.
struct Explanation {
  Model model;
  std::string fault;                           // of the units
  std::map<std::string, std::string> reasons;  // of cells, by their names
};

// The names in a cell's formula, with what becomes of the members' calls.
class Recalculation : public Meaning {
 public:
  Recalculation(Explanation& known, const Reference<XCell>& cell, Place place,
                calvex_engine* engine, calvex_engine* recording, int depth)
      : known_(known),
        sheet_(sheetOf(cell)),
        place_(place),
        engine_(engine),
        recording_(recording),
        depth_(depth) {}

  /// Empty when nothing has failed.
  [[nodiscard]] std::string reason() const { return notes_.empty() ? std::string() : notes_[0]; }

  Any reference(const std::string& name) override {
    const Range range = rangeOf(known_.model, sheet_, name);
    if (!range.is()) return named(name);
    const Any contents = contentsOf(range);
    if (const auto failed = firstError(contents)) {
      follow(range->getCellByPosition(static_cast<sal_Int32>(failed->column),
                                      static_cast<sal_Int32>(failed->row)));
    }
    return contents;
  }

  Any function(const std::string& name, std::span<const Any> arguments) override;

 private:
  Explanation& known_;
  Sheet sheet_;
  Place place_;
  calvex_engine* engine_;
  calvex_engine* recording_;
  int depth_;
  std::vector<std::string> notes_;

  void note(const std::string& reason) {
    if (!reason.empty()) notes_.push_back(reason);
  }
  // An error that a function takes for what it is needs no reason.
  void forget(std::span<const Any> arguments) {
    for (const Any& argument : arguments) {
      if (firstError(argument) && !notes_.empty()) notes_.pop_back();
    }
  }
  // Of an array what stands in this cell, or the first that has failed.
  [[nodiscard]] Place failedIn(const Any& value) const {
    if (errorOf(elementOf(value, place_)) != 0) return place_;
    return firstError(value).value_or(place_);
  }
  Any named(const std::string& name) {
    const std::string formula = namedFormula(known_.model, sheet_, name);
    if (depth_ < deepest && !formula.empty()) return computeFormula(formula, *this);
    note(name + " is the name of no cell, range or value");
    return Any(errorValue(CellError::name));
  }
  void follow(const Reference<XCell>& cell);
  Any units(std::span<const Any> arguments);
  Any member(const Signature& signature, std::span<const Any* const> arguments);
};

std::string whyOf(Explanation& known, const Reference<XCell>& cell, calvex_engine* engine,
                  calvex_engine* recording, int depth) {
  const std::string formula = formulaOf(cell);
  const bool isArray = formula.starts_with('{');
  Recalculation meaning(known, cell, isArray ? placeInArray(cell) : Place{}, engine, recording,
                        depth);
  std::string unfollowed;
  const auto error = static_cast<std::uint32_t>(cell->getError());
  if (error == static_cast<std::uint32_t>(CellError::circular)) return errorInWords(error);
  if (formula.starts_with('=') || isArray) {
    try {
      static_cast<void>(computeFormula(formula, meaning));
    } catch (const NotFollowed& fault) {
      unfollowed = fault.what();
    }
  }
  if (error == 0) return {};
  if (!meaning.reason().empty()) return meaning.reason();
  if (!known.fault.empty()) return known.fault;
  if (!unfollowed.empty()) return unfollowed + "; the error is " + errorInWords(error);
  return "No function of Calvex has failed here; the error is the spreadsheet's: " +
         errorInWords(error);
}

void Recalculation::follow(const Reference<XCell>& cell) {
  const std::string name = nameOf(cell);
  const auto [found, isNew] = known_.reasons.try_emplace(name, "the error comes from further away");
  if (isNew && depth_ < deepest) {
    const Engine aside;
    calvex_take_settings(aside.handle(), recording_);
    const std::string why = whyOf(known_, cell, aside.handle(), aside.handle(), depth_ + 1);
    known_.reasons[name] = why;
  }
  note(name + ": " + known_.reasons[name]);
}

Any Recalculation::units(std::span<const Any> arguments) {
  try {
    return Any(toOffice(unitsText(unitsOf(arguments))));
  } catch (const Error& fault) {
    note(std::string("CALVEX.UNITS: ") + fault.what());
    return Any(errorValue(CellError::value));
  }
}

Any Recalculation::function(const std::string& name, std::span<const Any> arguments) {
  const std::string upper = upperCase(name);
  if (!upper.starts_with(ownPrefix)) {
    if (errorFunction(upper) != nullptr) forget(arguments);
    const Any value = otherFunction(upper, arguments);
    if (errorOf(value) == static_cast<std::uint32_t>(CellError::name) && notes_.empty()) {
      note("there is no function " + upper);
    }
    return value;
  }
  const std::string own = upper.substr(ownPrefix.size());
  std::vector<const Any*> given;
  for (const Any& argument : arguments) given.push_back(&argument);
  if (own == "UNITS") return units(arguments);
  if (own == "CONVERT") {
    const Any value = convert(engine_, given);
    note(calc::reasonOfConversion(engine_, given, failedIn(value)));
    return value;
  }
  if (own == "UNIT") {
    const Any value = unitNames(engine_, arguments.empty() ? Any() : arguments[0]);
    if (firstError(value)) note("CALVEX.UNIT: that is not the name of a quantity");
    return value;
  }
  const Signature* const signature = findSignature(own);
  return signature == nullptr ? Any(OUString())  // texts about other cells
                              : member(*signature, given);
}

Any Recalculation::member(const Signature& signature, std::span<const Any* const> arguments) {
  for (const Any* argument : arguments) {
    const auto failed = firstError(*argument);
    const Place extent = extentOf(*argument);
    if (!failed || extent.row * extent.column == 1) continue;
    note(signature.name + ": a range among the inputs has " +
         shownError(errorOf(elementOf(*argument, *failed))) +
         ", and the spreadsheet calls no function with such a range. Give it as "
         "IFERROR(range;\"\"), which leaves only those rows without a value.");
  }
  const Any value = calculate(engine_, signature, arguments);
  note(calc::reason(recording_, signature, arguments, failedIn(value)));
  return value;
}

}  // namespace

CellCalls::CellCalls(Document& document, const Reference<XCell>& cell) {
  const Engine engine, recording;
  for (const Engine* own : {&engine, &recording}) {
    calvex_take_settings(own->handle(), document.engine());
  }
  Explanation known{document.model(), document.fault(), {}};
  reason_ = whyOf(known, cell, engine.handle(), recording.handle(), 0);
  record_ = worksheet::recordOf(recording.handle());
  if (record_.empty()) {
    record_.push_back({0, "note", reason_.empty() ? "no call of Calvex left a message" : reason_});
  }
}

std::vector<std::vector<Any>> unitCallsOf(const Model& model, const Reference<XCell>& cell) {
  class Finder : public Meaning {
   public:
    Finder(const Model& model, const Reference<XCell>& cell)
        : model_(model), sheet_(sheetOf(cell)) {}
    std::vector<std::vector<Any>> found;

    Any reference(const std::string& name) override {
      const Range range = rangeOf(model_, sheet_, name);
      if (range.is()) return contentsOf(range);
      const std::string formula = namedFormula(model_, sheet_, name);
      if (formula.empty()) throw NotFollowed("there is no " + name);
      return computeFormula(formula, *this);
    }
    Any function(const std::string& name, std::span<const Any> arguments) override {
      const std::string upper = upperCase(name);
      if (upper != std::string(ownPrefix) + "UNITS") return otherFunction(upper, arguments);
      found.emplace_back(arguments.begin(), arguments.end());
      return Any(OUString());
    }

   private:
    Model model_;
    Sheet sheet_;
  };
  Finder finder(model, cell);
  try {
    static_cast<void>(computeFormula(formulaOf(cell), finder));
  } catch (const NotFollowed& fault) {
    if (finder.found.empty()) throw Error(CALVEX_VALUE, fault.what());
  }
  return finder.found;
}

std::string nameOf(const Reference<css::uno::XInterface>& cell) {
  OUString name;
  Reference<css::beans::XPropertySet>(cell, UNO_QUERY_THROW)->getPropertyValue("AbsoluteName") >>=
      name;
  return toUtf8(name.replaceAll("$", ""));
}

}  // namespace calvex::calc
