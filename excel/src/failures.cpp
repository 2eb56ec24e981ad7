#include "failures.h"

#include <algorithm>
#include <bit>
#include <map>
#include <set>

namespace calvex::excel {

using worksheet::Cell;
using worksheet::ErrorKind;
using worksheet::Grid;
using worksheet::Place;

namespace {

constexpr int noError = -1;

struct KeptFailure {
  Failure failure;
  Place size;
  std::vector<int> errors;  ///< element by element, by the host's numbers

  // The host fills cells beyond an array with #N/A.
  [[nodiscard]] int errorAt(Place element) const {
    const bool isInside = element.row < size.row && element.column < size.column;
    return isInside ? errors[element.row * size.column + element.column] : xlerrNA;
  }
};

struct FailedCells {
  XLREF12 cells;
  std::uint64_t mark;
  std::vector<KeptFailure> failures;  ///< of one formula, the latest at the end
};

// By sheet, then by the first cell.
using Failures = std::map<std::wstring, std::map<std::pair<RW, COL>, FailedCells>, std::less<>>;
Failures& failures() {
  static Failures kept;
  return kept;
}

// The words of a formula that stand for values: cells, ranges and names, on other sheets too; no
// texts, numbers or functions, and no columns of tables, which mean another row in another place.
std::set<std::wstring> namedIn(std::wstring_view formula) {
  const auto behind = [&](std::size_t from, wchar_t sign) {
    const std::size_t end = formula.find(sign, from + 1);
    return end == std::wstring_view::npos ? formula.size() : end + 1;
  };
  std::set<std::wstring> words;
  std::size_t i = 0;
  while (i < formula.size()) {
    const std::size_t begin = i;
    while (i < formula.size()) {
      const wchar_t c = formula[i];
      const bool isPlain = c >= 0x80 || (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') ||
                           (c >= L'a' && c <= L'z') ||
                           std::wstring_view(L"$_.:!\\?").find(c) != std::wstring_view::npos;
      if (isPlain) {
        ++i;
      } else if (c == L'\'' || c == L'[') {
        i = behind(i, c == L'[' ? L']' : c);
      } else {
        break;
      }
    }
    if (i == begin) {
      i = formula[i] == L'"' ? behind(i, L'"') : i + 1;
      continue;
    }
    const std::wstring_view word = formula.substr(begin, i - begin);
    const bool isFunction = i < formula.size() && formula[i] == L'(';
    const bool isNumber = word.find_first_not_of(L"0123456789.Ee") == std::wstring_view::npos;
    const bool isColumn =
        word.find(L'[') != std::wstring_view::npos && word.find(L'!') == std::wstring_view::npos;
    if (!isFunction && !isNumber && !isColumn) words.emplace(word);
  }
  return words;
}

// A number that tells things apart (Fowler, Noll, Vo: FNV-1a of 64 bits).
class Mark {
 public:
  [[nodiscard]] std::uint64_t value() const { return value_; }
  void add(std::uint64_t number) {
    for (int shift = 0; shift < 64; shift += 8) {
      value_ = (value_ ^ ((number >> shift) & 0xff)) * 0x100000001b3;
    }
  }
  void add(std::string_view text) {
    add(text.size());
    for (const char c : text) add(static_cast<std::uint64_t>(c));
  }
  void add(const Grid& grid) {
    add(grid.columns);
    for (const Cell& cell : grid.cells) {
      add(cell.index());
      if (const auto* number = std::get_if<double>(&cell)) {
        add(std::bit_cast<std::uint64_t>(*number));
      } else if (const auto* text = std::get_if<std::string>(&cell)) {
        add(*text);
      } else if (const auto* error = std::get_if<worksheet::Error>(&cell)) {
        add(static_cast<std::uint64_t>(error->code));
      }
    }
  }

 private:
  std::uint64_t value_ = 0xcbf29ce484222325;
};

// What stands in cells now.
std::uint64_t markOf(const CellRange& cells) {
  const std::wstring formula = formulaOf(cells);
  std::set<std::wstring> words = namedIn(formula);
  if (!namesUnits(cells)) words.insert(toWide(unitsName));
  Mark mark;
  mark.add(sheetNumberOf(cells));
  mark.add(toUtf8(formula));
  for (const std::wstring& word : words) mark.add(valueOf(word, cells));
  return mark.value();
}

int errorOf(const Cell& cell) {
  const auto* const error = std::get_if<worksheet::Error>(&cell);
  return error != nullptr ? errorNumber(*error) : noError;
}

bool passesOn(const Cell& cell) {
  const auto* const error = std::get_if<worksheet::Error>(&cell);
  return error == nullptr || error->kind == ErrorKind::given;
}

bool isSame(const Failure& a, const Failure& b) {
  const auto* const one = std::get_if<FailedCall>(&a);
  const auto* const other = std::get_if<FailedCall>(&b);
  if (one == nullptr || other == nullptr) {
    return one == other && std::get<std::string>(a) == std::get<std::string>(b);
  }
  return one->signature == other->signature && one->arguments == other->arguments;
}

FailedCells* failedAt(const CellRange& cells) {
  const auto sheet = failures().find(cells.sheet);
  if (sheet == failures().end()) return nullptr;
  const auto found = sheet->second.find({cells.cells.rwFirst, cells.cells.colFirst});
  return found == sheet->second.end() ? nullptr : &found->second;
}

std::optional<Place> placeIn(const XLREF12& cells, const Place& size, const CellRange& cell) {
  const RW row = cell.cells.rwFirst;
  const COL column = cell.cells.colFirst;
  if (row < cells.rwFirst || column < cells.colFirst) return {};
  Place element{static_cast<std::size_t>(row - cells.rwFirst),
                static_cast<std::size_t>(column - cells.colFirst)};
  const bool isInside = row <= cells.rwLast && column <= cells.colLast;
  const bool isSpilled = element.row < size.row && element.column < size.column;
  if (!isInside && !isSpilled) return {};
  if (size.row == 1) element.row = 0;  // the host repeats a single row or column
  if (size.column == 1) element.column = 0;
  return element;
}

}  // namespace

void keepFailure(const CellRange& cells, const Grid& answer, Failure failure) {
  const std::uint64_t mark = markOf(cells);
  FailedCells& failed =
      failures()[cells.sheet]
          .try_emplace({cells.cells.rwFirst, cells.cells.colFirst}, FailedCells{{}, mark, {}})
          .first->second;
  if (failed.mark != mark) failed = {{}, mark, {}};
  failed.cells = cells.cells;
  if (!failed.failures.empty() && std::ranges::all_of(answer.cells, passesOn)) return;
  std::erase_if(failed.failures,
                [&](const KeptFailure& kept) { return isSame(kept.failure, failure); });
  constexpr std::size_t most = 8;  // inputs that come from nowhere, as of RAND(), are ever new
  if (failed.failures.size() == most) failed.failures.erase(failed.failures.begin());
  KeptFailure& kept = failed.failures.emplace_back(
      KeptFailure{std::move(failure), {answer.rows, answer.columns}, {}});
  kept.errors.resize(answer.cells.size());
  std::ranges::transform(answer.cells, kept.errors.begin(), errorOf);
}

void forgetFailure(const CellRange& cells) {
  const FailedCells* const failed = failedAt(cells);
  if (failed == nullptr || failed->mark == markOf(cells)) return;
  failures().find(cells.sheet)->second.erase({cells.cells.rwFirst, cells.cells.colFirst});
}

void forgetAllFailures() { failures().clear(); }

std::optional<FoundFailure> findFailure(const CellRange& cell, int error) {
  const auto sheet = failures().find(cell.sheet);
  if (sheet == failures().end()) return {};
  const std::wstring own = formulaOf(cell);
  const auto foundIn = [&](const FailedCells& failed) -> std::optional<FoundFailure> {
    const CellRange first{cell.sheet, failed.cells};
    const bool isFirst =
        failed.cells.rwFirst == cell.cells.rwFirst && failed.cells.colFirst == cell.cells.colFirst;
    for (auto kept = failed.failures.rbegin(); kept != failed.failures.rend(); ++kept) {
      const auto element = placeIn(failed.cells, kept->size, cell);
      if (!element) continue;
      // Something else may have come into cells that a result reached: a formula, or a constant,
      // for which the host takes the result away from all of them.
      if (!isFirst && ((own.starts_with(L'=') && own != formulaOf(first)) ||
                       shownErrorOf(first).value_or(noError) != kept->errors.front())) {
        return {};
      }
      if (markOf(first) != failed.mark) return {};
      if (kept->errorAt(*element) == error) return FoundFailure{&kept->failure, *element};
      if (!isFirst) continue;
      // A formula that makes one value of an array.
      const auto any = std::ranges::find(kept->errors, error);
      if (any == kept->errors.end()) continue;
      const auto place = static_cast<std::size_t>(any - kept->errors.begin());
      return FoundFailure{&kept->failure, {place / kept->size.column, place % kept->size.column}};
    }
    return {};
  };
  if (const FailedCells* const failed = failedAt(cell)) {
    if (const auto found = foundIn(*failed)) return found;
  }
  for (const auto& [place, failed] : sheet->second) {
    if (const auto found = foundIn(failed)) return found;
  }
  return {};
}

}  // namespace calvex::excel
