/// \file
/// The spreadsheet variants of the equipment models: the results that a text of tokens names, in
/// one array that a spreadsheet can spill into cells.
#pragma once

#include <array>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/result_array.h"
#include "spreadsheet/variants.h"

namespace calvex::spreadsheet {

/// The variant's tokens that a text names, in its order and whatever their case; null for one that
/// the variant does not know.
[[nodiscard]] std::vector<const Token*> readTokens(const Variant& variant, std::string_view text);

/// Runs the variant's model once and answers a row for each token, in the order of the tokens:
/// its label (while `ReturnModelTokens` is on), the value in the client's unit, and that unit's
/// name (while `ReturnModelUnits` is on). Tokens are separated by any of ",;: "; a repeated one
/// gets a row each time. Answers 1, or 0 with the reason posted and `pRetArray` untouched: the
/// model's own error, no tokens, or a token that the variant does not know; the last is found after
/// the model has run.
int returnResults(ZvThermoInt& engine, const Variant& variant, std::span<const double> inputs,
                  std::string_view strTokens, ResultArray* pRetArray);

namespace detail {

template <auto Model, class = std::make_index_sequence<ModelSignature<decltype(Model)>::inputs>>
struct Operation;

template <auto Model, std::size_t... I>
struct Operation<Model, std::index_sequence<I...>> {
  template <std::size_t>
  using Input = double;

  static int run(ZvThermoInt& engine, Input<I>... inputs, std::string_view strTokens,
                 ResultArray* pRetArray) {
    const std::array<double, sizeof...(I)> values{inputs...};
    return returnResults(engine, variantOf<Model>(), values, strTokens, pRetArray);
  }
};

}  // namespace detail

/// The spreadsheet variant of a model as an operation of the engine: the model's inputs, then
/// `strTokens` and `pRetArray`.
template <auto Model>
inline constexpr auto XL = &detail::Operation<Model>::run;

}  // namespace calvex::spreadsheet
