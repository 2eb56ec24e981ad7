/// \file
/// What a column to be added is made of: `h=HPT(P,T)`, `w=TurbineA(h,P,"P out",0.8,10).Power`,
/// `eff=0.85`.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace calvex::cli {

/// The name of another column, or a number for every row.
using BatchOperand = std::variant<std::string, double>;

/// A column to be added.
struct BatchColumn {
  std::string name;
  std::string member;  ///< empty: `operands` is one number, the same for every row
  std::vector<BatchOperand> operands;
  std::string output;  ///< of the member; empty where none is named
  std::string source;  ///< as it was written
};

/// Reads `NAME=MEMBER(OPERAND,...)`, `NAME=MEMBER(OPERAND,...).OUTPUT` or `NAME=NUMBER`. Names may
/// have blanks inside; those with other signs (`,()="`), and those that read as numbers, stand in
/// double quotes, in which a quote is doubled. Throws UsageError with what was expected.
[[nodiscard]] BatchColumn readBatchColumn(std::string_view text);

}  // namespace calvex::cli
