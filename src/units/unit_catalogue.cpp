#include "units/unit_catalogue.h"

namespace calvex {

ZvUomLiteGroup::ZvUomLiteGroup(const UnitGroupRow& row) : row_(&row) {
  for (const ZvUomLiteKeyword& unit : row.units) units_[unit.name] = &unit;
  current_ = internal_ = units_.at(row.internalUnit);
}

const ZvUomLiteKeyword* ZvUomLiteGroup::find(std::string_view unit) const noexcept {
  const auto found = units_.find(unit);
  return found == units_.end() ? nullptr : found->second;
}

bool ZvUomLiteGroup::setCurrentUnit(std::string_view unit) noexcept {
  const ZvUomLiteKeyword* found = find(unit);
  if (found) current_ = found;
  return found;
}

ZvUomLite::ZvUomLite() {
  groups_.reserve(unitGroupCount);
  for (const UnitGroupRow& row : unitGroupTable()) {
    const int index = static_cast<int>(groups_.size());
    for (const std::string_view keyword : row.keywords) keywords_[keyword] = index;
    groups_.emplace_back(row);
  }
}

int ZvUomLite::groupIndex(std::string_view keyword) const noexcept {
  const auto found = keywords_.find(keyword);
  return found == keywords_.end() ? -1 : found->second;
}

const ZvUomLiteGroup* ZvUomLite::group(int index) const noexcept {
  return isUnitGroup(index) ? &(*this)[UnitGroup(index)] : nullptr;
}

bool ZvUomLite::setUserUnit(int group, std::string_view unit) noexcept {
  return isUnitGroup(group) && groups_[static_cast<std::size_t>(group)].setCurrentUnit(unit);
}

bool ZvUomLite::getUserUnit(int group, std::string& unit) const {
  if (!isUnitGroup(group)) return false;
  unit = (*this)[UnitGroup(group)].currentUnit().name;
  return true;
}

bool ZvUomLite::getFactors(int group, std::string_view unit, double& factor,
                           double& offset) const noexcept {
  if (!isUnitGroup(group)) return false;
  const ZvUomLiteKeyword* found = (*this)[UnitGroup(group)].find(unit);
  if (!found) return false;
  factor = found->factor;
  offset = found->offset;
  return true;
}

bool ZvUomLite::convert(int group, std::string_view from, std::string_view to, double value,
                        double& result) const noexcept {
  if (!isUnitGroup(group)) return false;
  const ZvUomLiteKeyword* source = (*this)[UnitGroup(group)].find(from);
  const ZvUomLiteKeyword* target = (*this)[UnitGroup(group)].find(to);
  if (!source || !target) return false;
  result = calvex::convert(*source, *target, value);
  return true;
}

}  // namespace calvex
