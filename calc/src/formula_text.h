/// \file
/// The text of a formula as the office gives it to programs (English names, semicolons), taken
/// apart and computed. What the parts mean is the business of `Meaning`.
#pragma once

#include <com/sun/star/uno/Any.hxx>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace calvex::calc {

using com::sun::star::uno::Any;

/// A formula has something that cannot be computed here.
class NotFollowed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What a formula's names stand for.
class Meaning {
 public:
  virtual ~Meaning() = default;
  /// The value of a cell, a range or a name.
  virtual Any reference(const std::string& name) = 0;
  virtual Any function(const std::string& name, std::span<const Any> arguments) = 0;
};

/// Two values element by element; a single one goes with all.
[[nodiscard]] Any combine(const Any& a, const Any& b, Any (*compute)(const Any&, const Any&));

/// The value of a formula with its sign of equality, and with the braces of an array formula.
/// Throws `NotFollowed`, and what `meaning` throws.
[[nodiscard]] Any computeFormula(std::string_view formula, Meaning& meaning);

}  // namespace calvex::calc
