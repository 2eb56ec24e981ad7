/// \file
/// The trace below a node as text: a line for each node, indented by its depth.
#pragma once

#include <array>
#include <string>

#include "diagnostics/trace.h"

namespace calvex {

inline std::string outline(const ZvFunctionCall& node, const std::string& indent = {}) {
  static constexpr std::array kinds = {"root", "call", "error", "warning", "note", "external"};
  std::string lines;
  for (const ZvFunctionCall* child = node.firstChild(); child != nullptr;
       child = child->nextSibling()) {
    lines += indent + kinds.at(static_cast<std::size_t>(child->kind())) + ' ';
    lines += child->text();
    lines += '\n' + outline(*child, indent + "  ");
  }
  return lines;
}

}  // namespace calvex
