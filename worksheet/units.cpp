#include "worksheet/units.h"

#include <algorithm>
#include <utility>

#include "worksheet/texts.h"

namespace calvex::worksheet {

namespace {

void add(Units& units, std::string_view group, std::string_view unit) {
  Engine engine;
  engine.unit(group, unit);
  int number = 0;
  calvex_find_group(group.data(), group.size(), &number);
  const auto [known, isNew] = units.try_emplace(number, engine.unit(group));
  if (!isNew && known->second != engine.unit(group)) {
    throw calvex::Error(CALVEX_VALUE, keywordOf(number) + " is " + known->second + " and " +
                                          engine.unit(group) + ": give it one unit");
  }
}

}  // namespace

std::string keywordOf(int group) {
  return textOf([&](char* text, std::size_t size, std::size_t* needed) {
    calvex_group_text(group, CALVEX_GROUP_KEYWORD, text, size, needed);
  });
}

std::string unitsText(const Units& units) {
  std::string text;
  for (const auto& [group, unit] : units) {
    if (!text.empty()) text += "; ";
    text.append(keywordOf(group)).append("=").append(unit);
  }
  return text;
}

Units readUnits(std::string_view text) {
  Units units;
  while (!text.empty()) {
    std::string_view part = text.substr(0, text.find(';'));
    text.remove_prefix(std::min(text.size(), part.size() + 1));
    const std::size_t begin = part.find_first_not_of(' ');
    if (begin == std::string_view::npos) continue;
    part = part.substr(begin, part.find_last_not_of(' ') + 1 - begin);
    const std::size_t sign = part.find('=');
    if (sign == std::string_view::npos) {
      throw calvex::Error(CALVEX_VALUE,
                          "'" + std::string(part) + "' is no quantity with its unit, as P=bara");
    }
    add(units, part.substr(0, sign), part.substr(sign + 1));
  }
  return units;
}

Units unitsOf(std::span<const Grid> words) {
  const auto given = [&](std::size_t i) {
    return i < words.size() ? words[i].element({}) : Cell();
  };
  std::size_t count = words.size();
  while (count > 0 && std::holds_alternative<LeftOut>(given(count - 1))) --count;
  Units units;
  for (std::size_t i = 0; i < count; i += 2) {
    const Cell group = given(i), unit = given(i + 1);
    if (words[i].cells.size() > 1 || (i + 1 < count && words[i + 1].cells.size() > 1)) {
      throw calvex::Error(CALVEX_VALUE, "a quantity and a unit are single texts, no ranges");
    }
    if (!std::holds_alternative<std::string>(group) || !std::holds_alternative<std::string>(unit)) {
      throw calvex::Error(CALVEX_VALUE, "the texts come in pairs: a quantity, then its unit");
    }
    add(units, std::get<std::string>(group), std::get<std::string>(unit));
  }
  return units;
}

void setUnits(Engine& engine, const Units& units) {
  for (const auto& [group, unit] : units) engine.unit(keywordOf(group), unit);
}

}  // namespace calvex::worksheet
