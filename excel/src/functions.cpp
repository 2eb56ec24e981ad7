#include "functions.h"

#include <algorithm>

#include "failures.h"
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
Grid failed(const std::optional<CellRange>& where, Grid answer, std::string why) {
  if (where) keepFailure(*where, answer, std::move(why));
  return answer;
}

Grid failed(const std::optional<CellRange>& where, ErrorKind kind, std::string why) {
  return failed(where, errorCell(kind), std::move(why));
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

// The answer of a call, which is kept where it has failed.
Grid answered(const std::optional<CellRange>& where, Grid answer, FailedCall call) {
  if (!where) return answer;
  if (std::ranges::any_of(answer.cells, isError)) {
    keepFailure(*where, answer, std::move(call));
  } else {
    forgetFailure(*where);
  }
  return answer;
}

std::string shownError(int number) {
  switch (number) {
    case xlerrNull:
      return "#NULL!";
    case xlerrDiv0:
      return "#DIV/0!";
    case xlerrValue:
      return "#VALUE!";
    case xlerrRef:
      return "#REF!";
    case xlerrName:
      return "#NAME?";
    case xlerrNum:
      return "#NUM!";
    case xlerrNA:
      return "#N/A";
    default:
      return "an error";
  }
}

constexpr worksheet::Wording wording{shownError, "which is no number with a point"};

// Runs what failed in a cell again, with an engine that records it.
std::string reasonOf(const FoundFailure& found, calvex_engine* recording) {
  if (const auto* text = std::get_if<std::string>(found.failure)) return *text;
  const auto& call = std::get<FailedCall>(*found.failure);
  if (call.signature == nullptr) {
    return worksheet::reasonOfConversion(recording, call.arguments, found.element, wording);
  }
  calvex_take_settings(recording, call.engine->handle());
  const Place source = worksheet::sourceOf(*call.signature, call.arguments, found.element);
  const std::string why =
      worksheet::reason(recording, *call.signature, call.arguments, source, wording);
  return why.empty() ? call.signature->name + ": there is no such result of these inputs." : why;
}

}  // namespace

XLOPER12* answerMember(int member, std::initializer_list<const XLOPER12*> arguments) noexcept {
  return guarded([&] {
    const auto where = caller();
    return withUnits(where, [&](const std::shared_ptr<Engine>& engine) {
      const Signature& signature = worksheet::signatureOf(member);
      std::vector<Grid> grids = gridsOf({arguments.begin(), arguments.size()});
      Grid answer = worksheet::calculate(engine->handle(), signature, grids);
      return answered(where, std::move(answer), {&signature, std::move(grids), engine});
    });
  });
}

XLOPER12* answerUnits(std::span<const XLOPER12* const> choices) noexcept {
  return guarded([&]() -> Grid {
    const auto where = caller();
    std::string chosen;
    try {
      chosen = worksheet::unitsText(worksheet::unitsOf(gridsOf(choices)));
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
    if (where) forgetFailure(*where);
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
      Grid names = worksheet::unitNames(engine->handle(), gridOf(*quantity));
      if (std::ranges::any_of(names.cells, isError)) {
        return failed(where, std::move(names), "CALVEX.UNIT: that is not the name of a quantity");
      }
      if (where) forgetFailure(*where);
      return names;
    });
  });
}

XLOPER12* answerConvert(std::initializer_list<const XLOPER12*> arguments) noexcept {
  return guarded([&]() -> Grid {
    std::vector<Grid> grids = gridsOf({arguments.begin(), arguments.size()});
    const auto engine = engineOf({});
    Grid answer = worksheet::convert(engine->handle(), grids);
    return answered(caller(), std::move(answer), {nullptr, std::move(grids), engine});
  });
}

XLOPER12* answerWhy(const XLOPER12* cell) noexcept {
  return guarded([&]() -> Grid {
    const auto range = rangeOf(*cell);
    if (!range) return errorCell(ErrorKind::value);
    const auto error = shownErrorOf(*range);
    if (!error) return Cell(std::string());
    const auto found = findFailure(*range, *error);
    if (!found) {
      return Cell(std::string(
          "No function of Calvex has failed here, as the cell stands now. Ctrl+Alt+F9 calculates "
          "everything anew."));
    }
    const Engine recording;
    return Cell(reasonOf(*found, recording.handle()));
  });
}

XLOPER12* answerTrace(const XLOPER12* cell) noexcept {
  return guarded([&]() -> Grid {
    const auto range = rangeOf(*cell);
    if (!range) return errorCell(ErrorKind::value);
    const auto error = shownErrorOf(*range);
    const auto found = error ? findFailure(*range, *error) : std::nullopt;
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
