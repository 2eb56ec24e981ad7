/// \file
/// The record that an engine has of its calls, as rows.
#pragma once

#include <calvex/calvex.h>

#include <string>
#include <vector>

namespace calvex::worksheet {

/// A row of a record: how deep, "call", "error", "warning" or "note", and its text.
struct RecordRow {
  int depth;
  std::string kind;
  std::string text;
};

[[nodiscard]] std::vector<RecordRow> recordOf(calvex_engine* engine);

}  // namespace calvex::worksheet
