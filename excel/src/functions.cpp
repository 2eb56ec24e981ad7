#include "functions.h"

#include <algorithm>

#include "workbook.h"
#include "worksheet/record.h"

namespace calvex::excel {

using worksheet::Cell;
using worksheet::ErrorKind;
using worksheet::Grid;
using worksheet::Place;
using worksheet::Signature;

namespace {

Cell errorCell(ErrorKind kind) { return worksheet::Error{kind}; }

// Runs a function; a fault of it is an error value, which needs no memory.
template <class Body>
XLOPER12* guarded(Body body) noexcept {
  try {
    return resultOf(body());
  } catch (...) {
    static XLOPER12 fault;
    fault.xltype = xltypeErr;
    fault.val.err = xlerrValue;
    return &fault;
  }
}

std::vector<Grid> gridsOf(std::span<const XLOPER12* const> arguments) {
  std::vector<Grid> grids;
  grids.reserve(arguments.size());
  for (const XLOPER12* argument : arguments) grids.push_back(gridOf(*argument));
  return grids;
}

// A function that has failed without a call of a member.
Grid failed(const std::optional<CellRange>& where, ErrorKind kind, std::string why) {
  if (where) keepFailure(*where, {1, 1}, std::move(why));
  return errorCell(kind);
}

// Runs a body with an engine that has the units of the workbook.
template <class Body>
Grid withUnits(const std::optional<CellRange>& where, Body body) {
  const WorkbookUnits units = unitsOf(where);
  std::string fault = units.fault;
  if (fault.empty()) {
    try {
      return body(engineOf(units.text));
    } catch (const Error& unknown) {
      fault = std::string(unitsName) + ": " + unknown.what();
    }
  }
  return failed(where, ErrorKind::value, std::move(fault));
}

const worksheet::Error* errorIn(const Cell& cell) { return std::get_if<worksheet::Error>(&cell); }

bool isError(const Cell& cell) { return errorIn(cell) != nullptr; }

// Keeps why a call has failed. Where it only passes an error on, what an inner call of the same
// formula has said stays.
void keep(const CellRange& where, const Grid& answer, FailedCall call) {
  const bool passesOn = std::ranges::all_of(answer.cells, [](const Cell& cell) {
    const auto* error = errorIn(cell);
    return error == nullptr || error->kind == ErrorKind::given;
  });
  const auto known = passesOn ? findFailure(where) : std::nullopt;
  if (known) {
    const auto* inner = std::get_if<FailedCall>(known->failure);
    if (inner == nullptr || inner->signature != call.signature) return;
  }
  keepFailure(where, {answer.rows, answer.columns}, std::move(call));
}

// Runs what failed in a cell again, with an engine that records it.
std::string reasonOf(const FoundFailure& found, calvex_engine* recording) {
  if (const auto* text = std::get_if<std::string>(found.failure)) return *text;
  const auto& call = std::get<FailedCall>(*found.failure);
  calvex_take_settings(recording, call.engine->handle());
  const Place source = worksheet::sourceOf(*call.signature, call.arguments, found.element);
  const std::string why = worksheet::reason(recording, *call.signature, call.arguments, source);
  return why.empty() ? call.signature->name + ": there is no such result of these inputs." : why;
}

// Whether a cell shows an error now.
bool showsError(const XLOPER12& cell) {
  Answer contents;
  if (!call(xlCoerce, contents, {cell})) return false;
  const XLOPER12* value = &contents.value();
  if (contents.type() == xltypeMulti) value = value->val.array.lparray;
  return (value->xltype & xltypeMask) == xltypeErr;
}

std::optional<FoundFailure> failureOf(const XLOPER12& cell) {
  const auto range = rangeOf(cell);
  return range ? findFailure(*range) : std::nullopt;
}

}  // namespace

XLOPER12* answerMember(int member, std::initializer_list<const XLOPER12*> arguments) noexcept {
  return guarded([&] {
    const auto where = caller();
    return withUnits(where, [&](const std::shared_ptr<Engine>& engine) {
      const Signature& signature = worksheet::signatureOf(member);
      std::vector<Grid> grids = gridsOf({arguments.begin(), arguments.size()});
      Grid answer = worksheet::calculate(engine->handle(), signature, grids);
      if (!where) return answer;
      if (std::ranges::any_of(answer.cells, isError)) {
        keep(*where, answer, {&signature, std::move(grids), engine});
      } else {
        forgetFailure(*where, &signature);
      }
      return answer;
    });
  });
}

XLOPER12* answerUnits(std::span<const XLOPER12* const> choices) noexcept {
  return guarded([&]() -> Grid {
    const auto where = caller();
    std::string chosen;
    try {
      chosen = unitsText(gridsOf(choices));
    } catch (const Error& fault) {
      return failed(where, ErrorKind::value, std::string("CALVEX.UNITS: ") + fault.what());
    }
    const WorkbookUnits units = unitsOf(where);
    const bool isSource = where && (units.source ? units.source->isAt(*where) : namesUnits(*where));
    if (!chosen.empty() && !isSource && !sameUnits(units.text, chosen)) {
      return failed(where, ErrorKind::notAvailable,
                    "CALVEX.UNITS: the units of the workbook are others (" +
                        (units.text.empty() ? "those of the model" : units.text) +
                        "). Define the name " + std::string(unitsName) +
                        " and let it refer to this cell, then press Ctrl+Alt+F9.");
    }
    if (where) forgetFailure(*where, nullptr);
    if (chosen.empty() && !units.fault.empty()) {
      return failed(where, ErrorKind::value, units.fault);
    }
    return Cell(chosen.empty() ? units.text : chosen);
  });
}

XLOPER12* answerUnit(const XLOPER12* quantity) noexcept {
  return guarded([&] {
    const auto where = caller();
    return withUnits(where, [&](const std::shared_ptr<Engine>& engine) -> Grid {
      Cell name = worksheet::unitName(engine->handle(), gridOf(*quantity));
      if (isError(name)) {
        return failed(where, ErrorKind::value, "CALVEX.UNIT: that is not the name of a quantity");
      }
      if (where) forgetFailure(*where, nullptr);
      return name;
    });
  });
}

XLOPER12* answerConvert(std::initializer_list<const XLOPER12*> arguments) noexcept {
  return guarded([&]() -> Grid {
    const auto where = caller();
    std::string why;
    Cell value = worksheet::convert(engineOf({})->handle(),
                                    gridsOf({arguments.begin(), arguments.size()}), why);
    if (!where) return value;
    if (why.empty()) {
      forgetFailure(*where, nullptr);
    } else {
      keepFailure(*where, {1, 1}, std::move(why));
    }
    return value;
  });
}

XLOPER12* answerWhy(const XLOPER12* cell) noexcept {
  return guarded([&]() -> Grid {
    if (!rangeOf(*cell)) return errorCell(ErrorKind::value);
    if (!showsError(*cell)) return Cell(std::string());
    const auto found = failureOf(*cell);
    if (!found) {
      return Cell(std::string(
          "No function of Calvex has failed here since the workbook was opened. Ctrl+Alt+F9 "
          "calculates everything anew."));
    }
    const Engine recording;
    return Cell(reasonOf(*found, recording.handle()));
  });
}

XLOPER12* answerTrace(const XLOPER12* cell) noexcept {
  return guarded([&]() -> Grid {
    if (!rangeOf(*cell)) return errorCell(ErrorKind::value);
    const auto found = showsError(*cell) ? failureOf(*cell) : std::nullopt;
    if (!found) return Cell(std::string());
    const Engine recording;
    const std::string why = reasonOf(*found, recording.handle());
    const auto rows = worksheet::recordOf(recording.handle());
    if (rows.empty()) return Cell(why);
    Grid record(rows.size(), 3);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      record.at({i, 0}) = static_cast<double>(rows[i].depth);
      record.at({i, 1}) = rows[i].kind;
      record.at({i, 2}) = rows[i].text;
    }
    return record;
  });
}

}  // namespace calvex::excel
