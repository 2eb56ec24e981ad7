#include "formula.h"

#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/sheet/XCellAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XFunctionAccess.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/table/CellContentType.hpp>

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
constexpr int deepest = 8;  // of cells that read cells with errors

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

Any otherFunction(const std::string& name, std::span<const Any> arguments) {
  if (name == "IFERROR" && arguments.size() == 2) {  // the office takes no errors from outside
    return combine(arguments[0], arguments[1], [](const Any& value, const Any& other) {
      return errorOf(value) == 0 ? value : other;
    });
  }
  const Reference<css::sheet::XFunctionAccess> access(
      context()->getServiceManager()->createInstanceWithContext("com.sun.star.sheet.FunctionAccess",
                                                                context()),
      UNO_QUERY_THROW);
  try {
    return access->callFunction(
        toOffice(name), Sequence<Any>(arguments.data(), static_cast<sal_Int32>(arguments.size())));
  } catch (const css::uno::Exception&) {
    throw NotFollowed("the function " + name + " cannot be computed outside of its cell");
  }
}

// The names in a cell's formula, with what becomes of the members' calls.
class Recalculation : public Meaning {
 public:
  Recalculation(const Reference<XCell>& cell, Place place, calvex_engine* engine,
                calvex_engine* recording, int depth)
      : sheet_(sheetOf(cell)),
        place_(place),
        engine_(engine),
        recording_(recording),
        depth_(depth) {}

  [[nodiscard]] const std::string& reason() const { return reason_; }

  Any reference(const std::string& name) override {
    const auto range = sheet_->getCellRangeByName(toOffice(name));
    const Any contents = contentsOf(range);
    if (errorOf(contents) != 0) follow(range->getCellByPosition(0, 0));
    return contents;
  }

  Any function(const std::string& name, std::span<const Any> arguments) override;

 private:
  Reference<css::sheet::XSpreadsheet> sheet_;
  Place place_;
  calvex_engine* engine_;
  calvex_engine* recording_;
  int depth_;
  std::string reason_;

  void note(const std::string& reason) {
    if (reason_.empty()) reason_ = reason;
  }
  void follow(const Reference<XCell>& cell);
  Any units(std::span<const Any> arguments);
};

std::string whyOf(const Reference<XCell>& cell, calvex_engine* engine, calvex_engine* recording,
                  int depth) {
  const std::string formula = formulaOf(cell);
  const bool isArray = formula.starts_with('{');
  Recalculation meaning(cell, isArray ? placeInArray(cell) : Place{}, engine, recording, depth);
  std::string unfollowed;
  if (formula.starts_with('=') || isArray) {
    try {
      static_cast<void>(computeFormula(formula, meaning));
    } catch (const NotFollowed& fault) {
      unfollowed = fault.what();
    }
  }
  const sal_Int32 error = cell->getError();
  if (error == 0) return {};
  if (!meaning.reason().empty()) return meaning.reason();
  if (!unfollowed.empty()) return unfollowed;
  return "No function of Calvex has failed here; the error is the spreadsheet's, " +
         std::to_string(error);
}

void Recalculation::follow(const Reference<XCell>& cell) {
  if (depth_ >= deepest) return;
  const Engine aside;
  calvex_take_settings(aside.handle(), recording_);
  note(nameOf(cell) + ": " + whyOf(cell, aside.handle(), aside.handle(), depth_ + 1));
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
  if (!upper.starts_with(ownPrefix)) return otherFunction(name, arguments);
  const std::string own = upper.substr(ownPrefix.size());
  const Signature* signature = findSignature(own);
  std::vector<const Any*> given;
  for (const Any& argument : arguments) given.push_back(&argument);
  if (own == "UNITS") return units(arguments);
  if (own == "CONVERT") {
    std::string failure;
    const Any value = convert(engine_, given, failure);
    note(failure);
    return value;
  }
  if (own == "UNIT") {
    const Any value = unitName(engine_, arguments.empty() ? Any() : arguments[0]);
    if (errorOf(value) != 0) note("CALVEX.UNIT: that is not the name of a quantity");
    return value;
  }
  if (signature == nullptr) return Any(OUString());  // texts about other cells
  const Any value = calculate(engine_, *signature, given);
  // Of an array what stands in this cell, or the first that has failed.
  Place failed = place_;
  const Place extent = extentOf(value);
  if (errorOf(elementOf(value, place_)) == 0) {
    for (std::size_t i = 0; i < extent.row * extent.column; ++i) {
      const Place place{i / extent.column, i % extent.column};
      if (errorOf(elementOf(value, place)) == 0) continue;
      failed = place;
      break;
    }
  }
  note(calc::reason(recording_, *signature, given, failed));
  return value;
}

std::string text(calvex_engine* engine, std::size_t node) {
  return textOf([&](char* text, std::size_t size, std::size_t* needed) {
    calvex_trace_text(engine, node, text, size, needed);
  });
}

std::vector<RecordRow> recordOf(calvex_engine* engine) {
  constexpr const char* kinds[] = {"root", "call", "error", "warning", "note", "error"};
  std::size_t count = 0;
  calvex_trace_take(engine, &count);
  std::vector<RecordRow> rows;
  std::vector<int> depths(count, 0);
  // A child stands behind its parent, but not always next to it: siblings are walked in order.
  const auto walk = [&](auto& self, std::size_t node, int depth) -> void {
    for (; node != CALVEX_NONE;) {
      calvex_node facts{};
      calvex_trace_node(engine, node, &facts, sizeof facts);
      rows.push_back({depth, kinds[facts.kind], text(engine, node)});
      self(self, facts.first_child, depth + 1);
      node = facts.next_sibling;
    }
  };
  calvex_node root{};
  calvex_trace_node(engine, 0, &root, sizeof root);
  walk(walk, root.first_child, 0);
  return rows;
}

}  // namespace

CellCalls::CellCalls(Document& document, const Reference<XCell>& cell) {
  const Engine engine, recording;
  for (const Engine* own : {&engine, &recording}) {
    calvex_take_settings(own->handle(), document.engine());
  }
  reason_ = whyOf(cell, engine.handle(), recording.handle(), 0);
  record_ = recordOf(recording.handle());
}

std::optional<std::vector<Any>> argumentsOf(std::string_view function,
                                            const Reference<XCell>& cell) {
  class Finder : public Meaning {
   public:
    Finder(std::string_view function, const Reference<XCell>& cell)
        : function_(ownPrefix), sheet_(sheetOf(cell)) {
      function_ += function;
    }
    std::optional<std::vector<Any>> found;

    Any reference(const std::string& name) override {
      return contentsOf(sheet_->getCellRangeByName(toOffice(name)));
    }
    Any function(const std::string& name, std::span<const Any> arguments) override {
      if (upperCase(name) != function_) return otherFunction(name, arguments);
      if (!found) found.emplace(arguments.begin(), arguments.end());
      return Any(OUString());
    }

   private:
    std::string function_;
    Reference<css::sheet::XSpreadsheet> sheet_;
  };
  Finder finder(upperCase(std::string(function)), cell);
  try {
    static_cast<void>(computeFormula(formulaOf(cell), finder));
  } catch (const NotFollowed&) {
    // What stands before may have been found all the same.
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
