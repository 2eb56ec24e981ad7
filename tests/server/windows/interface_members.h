/// \file
/// The members of the interface, as tests/data/members.csv has them.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "server/windows/automation.h"
#include "support/table.h"

namespace calvex::test {

struct InterfaceParameter {
  std::string direction;  ///< in, out, inout, retval
  VARTYPE type;           ///< of the value; VT_VARIANT for arrays
  std::string name;
  int group = -1;  ///< of the value's unit, or -1

  [[nodiscard]] bool isInput() const { return direction == "in"; }
  [[nodiscard]] bool isOutput() const { return direction != "in"; }
};

/// One entry of the binary interface; a setting's get and put are two.
struct InterfaceEntry {
  std::string name;
  DISPID id;
  INVOKEKIND kind;
  std::string returns;                         ///< status, success or value
  std::vector<InterfaceParameter> parameters;  ///< with the returned one, which is the last
  int slot;  ///< in the table of functions, behind the seven of IDispatch
};

inline VARTYPE typeNamed(const std::string& type) {
  if (type == "double") return VT_R8;
  if (type == "short") return VT_I2;
  if (type == "long") return VT_I4;
  if (type == "string") return VT_BSTR;
  if (type == "array") return VT_VARIANT;
  throw std::invalid_argument("no such type: " + type);
}

inline const std::vector<InterfaceEntry>& interfaceEntries() {
  static const std::vector<InterfaceEntry> all = [] {
    std::vector<InterfaceEntry> entries;
    const auto add = [&](InterfaceEntry entry) {
      entry.slot = 7 + static_cast<int>(entries.size());
      entries.push_back(std::move(entry));
    };
    for (const Row& row : readTable("members.csv", ';')) {
      std::vector<InterfaceParameter> parameters;
      for (std::string text : cellsOf(row.text("parameters"), ',')) {
        if (!text.empty() && text.front() == ' ') text.erase(0, 1);
        if (text.empty()) continue;
        const std::vector<std::string> words = cellsOf(text, ' ');
        const std::vector<std::string> name = cellsOf(words.at(2), ':');
        parameters.push_back({words.at(0), typeNamed(words.at(1)), name[0],
                              name.size() > 1 ? std::stoi(name[1]) : -1});
      }
      const std::string& name = row.text("name");
      const std::string& kind = row.text("kind");
      const DISPID id = std::stoi(row.text("id"), nullptr, 16);
      if (kind == "method") {
        if (row.text("returns") == "success") parameters.push_back({"retval", VT_I4, "pSucc"});
        add({name, id, INVOKE_FUNC, row.text("returns"), parameters, 0});
        continue;
      }
      const VARTYPE type = parameters.at(0).type;
      add({name, id, INVOKE_PROPERTYGET, "status", {{"retval", type, "pVal"}}, 0});
      if (kind == "get") continue;
      add({name, id, INVOKE_PROPERTYPUT, "status", {{"in", type, "newVal"}}, 0});
    }
    return entries;
  }();
  return all;
}

inline const InterfaceEntry& entryOf(const std::string& name, INVOKEKIND kind = INVOKE_FUNC) {
  for (const InterfaceEntry& entry : interfaceEntries()) {
    if (entry.name == name && entry.kind == kind) return entry;
  }
  throw std::invalid_argument("no member " + name);
}

}  // namespace calvex::test
