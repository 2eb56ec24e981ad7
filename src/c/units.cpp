// Unit groups and units, in plain words.
#include "c/engine.h"
#include "units/unit_words.h"

using namespace calvex;
using c::giveText;
using c::guarded;
using c::Misuse;

namespace {

UnitGroup groupOf(int group) {
  if (!isUnitGroup(group)) {
    throw Misuse{CALVEX_UNKNOWN, "There is no unit group " + std::to_string(group) +
                                     ": they are 0 to " + std::to_string(unitGroupCount - 1) + "."};
  }
  return UnitGroup(group);
}

const UnitGroupRow& rowOf(UnitGroup group) {
  return unitGroupTable()[static_cast<std::size_t>(group)];
}

std::string textOf(UnitGroup group, int what) {
  switch (what) {
    case CALVEX_GROUP_NAME:
      return std::string(rowOf(group).displayName);
    case CALVEX_GROUP_KEYWORD:
      return std::string(rowOf(group).keywords.front());
    case CALVEX_GROUP_MODEL_UNIT:
      return std::string(rowOf(group).internalUnit);
    case CALVEX_GROUP_NOTICE:
      return std::string(groupNotice(group));
    default:
      throw Misuse{CALVEX_UNKNOWN, {}};
  }
}

}  // namespace

extern "C" {

int calvex_group_count(size_t* count) {
  if (count == nullptr) return CALVEX_NULL;
  *count = unitGroupCount;
  return CALVEX_OK;
}

int calvex_find_group(const char* word, size_t word_size, int* group) {
  if (group == nullptr) return CALVEX_NULL;
  return guarded([&] {
    const std::optional<UnitGroup> found = findGroupWord(c::textOf(word, word_size, "word"));
    if (!found) return static_cast<int>(CALVEX_UNKNOWN);
    *group = static_cast<int>(*found);
    return static_cast<int>(CALVEX_OK);
  });
}

int calvex_group_text(int group, int what, char* text, size_t size, size_t* needed) {
  return guarded([&] { return giveText(textOf(groupOf(group), what), text, size, needed); });
}

int calvex_unit_count(int group, size_t* count) {
  if (count == nullptr) return CALVEX_NULL;
  return guarded([&] {
    const UnitGroup wanted = groupOf(group);
    *count = rowOf(wanted).units.size() + unitsBesideCatalogue(wanted).size();
    return CALVEX_OK;
  });
}

int calvex_unit_name(int group, size_t index, char* text, size_t size, size_t* needed) {
  return guarded([&] {
    const UnitGroup wanted = groupOf(group);
    const auto catalogue = rowOf(wanted).units;
    const auto beside = unitsBesideCatalogue(wanted);
    c::requireIndex(index, catalogue.size() + beside.size(), "unit");
    const ZvUomLiteKeyword& unit =
        index < catalogue.size() ? catalogue[index] : beside[index - catalogue.size()];
    return giveText(unit.name, text, size, needed);
  });
}

int calvex_unit(calvex_engine* engine, int group, char* text, size_t size, size_t* needed) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    return giveText(engine->client.engine().unitName(groupOf(group)), text, size, needed);
  });
}

int calvex_unit_notice(int group, const char* unit, size_t unit_size, char* text, size_t size,
                       size_t* needed) {
  return guarded([&] {
    const UnitWord found = findUnitWord(groupOf(group), c::textOf(unit, unit_size, "unit"));
    if (found.unit == nullptr) return static_cast<int>(CALVEX_UNKNOWN);
    return giveText(found.notice, text, size, needed);
  });
}

}  // extern "C"
