#include "spreadsheet/result_arrays.h"

#include <limits>
#include <vector>

#include "engine/thermo_engine.h"

namespace calvex::spreadsheet {

namespace {

constexpr std::size_t maxColumns = 3;  // label, value, unit

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Only ASCII letters fold.
bool equalInAnyCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, lower, lower);
}

std::vector<Cell> row(const ZvThermoInt& engine, const Token& token, double value) {
  std::vector<Cell> cells;
  cells.reserve(maxColumns);
  if (engine.ReturnModelTokens() != 0) cells.emplace_back(std::string(token.label));
  cells.emplace_back(value);
  if (engine.ReturnModelUnits() != 0) cells.emplace_back(engine.unitName(token.group));
  return cells;
}

}  // namespace

std::vector<const Token*> readTokens(const Variant& variant, std::string_view text) {
  constexpr std::string_view separators = ",;: ";
  const auto named = [&](std::string_view word) -> const Token* {
    for (const Token& token : variant.tokens()) {
      if (equalInAnyCase(token.text, word)) return &token;
    }
    return nullptr;
  };
  std::vector<const Token*> tokens;
  tokens.reserve(variant.tokenCount);
  std::size_t begin = text.find_first_not_of(separators);
  while (begin != std::string_view::npos) {
    const std::size_t end = text.find_first_of(separators, begin);
    tokens.push_back(named(text.substr(begin, end - begin)));
    begin = text.find_first_not_of(separators, end);
  }
  return tokens;
}

int returnResults(ZvThermoInt& engine, const Variant& variant, std::span<const double> inputs,
                  std::string_view strTokens, ResultArray* pRetArray) {
  return engine.call(variant.name, [&] {
    std::array<double, maxOutputs> outputs;
    outputs.fill(std::numeric_limits<double>::quiet_NaN());
    std::array<int, maxFlags> flags{};
    const auto runModel = [&] {
      return variant.run(engine, outputs.data(), inputs.data(), flags.data()) != 0;
    };

    if (!variant.hasFlags && !runModel()) return false;
    const std::vector<const Token*> tokens = readTokens(variant, strTokens);
    if (tokens.empty()) return engine.fail("No return tokens specified!");
    if (variant.hasFlags) {
      for (const Token* token : tokens) {
        if (token != nullptr && token->flag != always) {
          flags[static_cast<std::size_t>(token->flag)] = 1;
        }
      }
      if (!runModel()) return false;
    }

    ResultArray rows;
    rows.reserve(tokens.size());
    for (const Token* token : tokens) {
      if (token == nullptr) return engine.fail("Invalid Token!");
      rows.push_back(row(engine, *token, outputs[static_cast<std::size_t>(token->output)]));
    }
    *pRetArray = std::move(rows);
    return true;
  });
}

}  // namespace calvex::spreadsheet
