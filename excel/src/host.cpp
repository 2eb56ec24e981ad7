#include "host.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>

namespace calvex::excel {

using worksheet::Blank;
using worksheet::Cell;
using worksheet::Error;
using worksheet::ErrorKind;
using worksheet::Grid;
using worksheet::LeftOut;

namespace {

constexpr std::size_t longestText = 32767;

Callback callback() {
  static const Callback found = [] {
    const FARPROC entry = GetProcAddress(GetModuleHandleW(nullptr), "MdCallBack12");
    return reinterpret_cast<Callback>(reinterpret_cast<void*>(entry));
  }();
  return found;
}

// The number of characters, then these.
std::wstring counted(std::wstring_view text) {
  text = text.substr(0, longestText);
  std::wstring result(1, static_cast<wchar_t>(text.size()));
  return result.append(text);
}

Cell cellOf(const XLOPER12& value) {
  switch (value.xltype & xltypeMask) {
    case xltypeNum:
      return value.val.num;
    case xltypeInt:
      return static_cast<double>(value.val.w);
    case xltypeStr: {
      std::string text = toUtf8({value.val.str + 1, static_cast<std::size_t>(value.val.str[0])});
      if (const auto number = numberIn(text)) return *number;
      return text;
    }
    case xltypeBool:
      return std::string(value.val.xbool != 0 ? "TRUE" : "FALSE");
    case xltypeErr:
      return Error{ErrorKind::given, value.val.err};
    case xltypeNil:
      return Blank{};
    case xltypeMissing:
      return LeftOut{};
    default:
      return Error{ErrorKind::given, xlerrValue};
  }
}

// A result with all that it points to; the host knows the first member.
struct Result {
  XLOPER12 value{};
  std::vector<XLOPER12> cells;
  std::vector<std::wstring> texts;

  void write(XLOPER12& to, const Cell& cell) {
    if (const double* number = std::get_if<double>(&cell)) {
      to.xltype = xltypeNum;
      to.val.num = *number;
    } else if (const auto* text = std::get_if<std::string>(&cell)) {
      texts.push_back(counted(toWide(*text)));
      to.xltype = xltypeStr;
      to.val.str = texts.back().data();
    } else {
      const Error* const error = std::get_if<Error>(&cell);
      to.xltype = xltypeErr;
      to.val.err = error != nullptr ? errorNumber(*error) : xlerrNA;
    }
  }
};
static_assert(offsetof(Result, value) == 0);

}  // namespace

std::wstring toWide(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  std::wstring text(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)),
      L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), static_cast<int>(text.size()));
  return text;
}

std::string toUtf8(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  std::string utf8(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), size,
                                                                nullptr, 0, nullptr, nullptr)),
                   '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), static_cast<int>(utf8.size()),
                      nullptr, nullptr);
  return utf8;
}

std::optional<double> numberIn(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t begin = text.find_first_not_of(blanks);
  if (begin == std::string_view::npos) return std::nullopt;
  text = text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  double number = 0.0;
  const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (code != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) {
    return std::nullopt;
  }
  return number;
}

Argument::Argument(std::string_view utf8) : Argument(std::wstring_view(toWide(utf8))) {}

Argument::Argument(std::wstring_view text) : text_(counted(text)) { value_.xltype = xltypeStr; }

Argument::Argument(double number) {
  value_.xltype = xltypeNum;
  value_.val.num = number;
}

Answer::~Answer() {
  if (type() == xltypeMissing) return;
  XLOPER12* own = &value_;
  if (callback() != nullptr) callback()(xlFree, 1, &own, nullptr);
}

bool call(int function, Answer& answer, std::span<const Argument> arguments) {
  if (callback() == nullptr) return false;
  std::vector<XLOPER12> values;
  std::vector<XLOPER12*> pointers;
  values.reserve(arguments.size());
  pointers.reserve(arguments.size());
  for (const Argument& argument : arguments) values.push_back(argument.value());
  for (XLOPER12& value : values) pointers.push_back(&value);
  return callback()(function, static_cast<int>(pointers.size()), pointers.data(), answer.slot()) ==
         xlretSuccess;
}

bool call(int function, Answer& answer, std::initializer_list<Argument> arguments) {
  return call(function, answer, std::span(arguments.begin(), arguments.size()));
}

Grid gridOf(const XLOPER12& value) {
  if ((value.xltype & xltypeMask) != xltypeMulti) return cellOf(value);
  Grid grid(static_cast<std::size_t>(value.val.array.rows),
            static_cast<std::size_t>(value.val.array.columns));
  std::transform(value.val.array.lparray, value.val.array.lparray + grid.cells.size(),
                 grid.cells.begin(), cellOf);
  return grid;
}

XLOPER12* resultOf(const Grid& grid) {
  auto result = std::make_unique<Result>();
  const std::size_t count = grid.cells.size();
  result->texts.reserve(count);  // what points into them stays where it is
  if (count == 1) {
    result->write(result->value, grid.cells[0]);
  } else {
    result->cells.resize(count);
    for (std::size_t i = 0; i < count; ++i) result->write(result->cells[i], grid.cells[i]);
    result->value.xltype = xltypeMulti;
    result->value.val.array = {result->cells.data(), static_cast<RW>(grid.rows),
                               static_cast<COL>(grid.columns)};
  }
  result->value.xltype |= xlbitDLLFree;
  return &result.release()->value;
}

void release(XLOPER12* result) { delete reinterpret_cast<Result*>(result); }

int errorNumber(const Error& error) {
  switch (error.kind) {
    case ErrorKind::given:
      return error.code;
    case ErrorKind::missing:
    case ErrorKind::value:
      return xlerrValue;
    case ErrorKind::noAnswer:
    case ErrorKind::notAvailable:
      break;
  }
  return xlerrNA;  // what charts leave out
}

}  // namespace calvex::excel
