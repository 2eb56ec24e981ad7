#include "unit_lists.h"

#include <vector>

#include "texts.h"

namespace calvex::calc {

namespace {

std::string groupText(int group, int which) {
  return textOf([&](char* text, std::size_t size, std::size_t* needed) {
    calvex_group_text(group, which, text, size, needed);
  });
}

}  // namespace

int groupCount() {
  std::size_t count = 0;
  calvex_group_count(&count);
  return static_cast<int>(count);
}

std::string groupName(int group) { return groupText(group, CALVEX_GROUP_NAME); }

css::uno::Sequence<rtl::OUString> unitNames(int group) {
  std::size_t count = 0;
  calvex_unit_count(group, &count);
  std::vector<rtl::OUString> names{toOffice(groupText(group, CALVEX_GROUP_MODEL_UNIT))};
  for (std::size_t i = 0; i < count; ++i) {
    const rtl::OUString name =
        toOffice(textOf([&](char* text, std::size_t size, std::size_t* needed) {
          calvex_unit_name(group, i, text, size, needed);
        }));
    if (name != names.front()) names.push_back(name);
  }
  return {names.data(), static_cast<sal_Int32>(names.size())};
}

std::string setByCells(const Document& document) {
  const std::string units = unitsText(document.unitsOfCells());
  return units.empty() ? units : "Set by cells of the document: " + units;
}

}  // namespace calvex::calc
