// The table of members.
#include "c/border.h"
#include "server/member_columns.h"
#include "server/member_explanations.h"

using namespace calvex;
using c::giveText;
using c::guarded;
using c::Misuse;

namespace {

bool isNumber(const Parameter& parameter) {
  return parameter.type != ValueType::text && parameter.type != ValueType::array;
}

int kindOf(const Member& member) {
  if (member.isProperty) return member.put != nullptr ? CALVEX_SETTING : CALVEX_READ_ONLY_SETTING;
  return member.style == ReturnStyle::value ? CALVEX_CONSTANT : CALVEX_METHOD;
}

calvex_member factsOf(const Member& member) {
  calvex_member facts{};
  facts.number = member.dispatchId;
  facts.kind = kindOf(member);
  facts.heading = static_cast<int>(explanation(member).heading);
  facts.parameter_count = member.parameters().size();
  for (const Parameter& parameter : member.parameters()) {
    if (isNumber(parameter)) {
      ++(parameter.isInput() ? facts.input_count : facts.output_count);
    } else if (parameter.type == ValueType::array) {
      facts.answers_table = 1;
    } else if (parameter.isInput()) {
      ++facts.text_count;
    } else {
      facts.answers_text = 1;
    }
  }
  if (const auto numeric = NumericMember::of(member)) {
    facts.column_input_count = numeric->inputs().size();
    facts.column_output_count = numeric->outputs().size();
  }
  return facts;
}

std::string textOf(const Member& member, int what) {
  switch (what) {
    case CALVEX_MEMBER_NAME:
      return std::string(member.name);
    case CALVEX_MEMBER_TITLE:
      return explanation(member).title;
    case CALVEX_MEMBER_NOTES:
      return explanation(member).notes;
    case CALVEX_MEMBER_HEADING:
      return std::string(headingText(explanation(member).heading));
    case CALVEX_MEMBER_WORDS:
      return explanation(member).other;
    default:
      throw Misuse{CALVEX_UNKNOWN, {}};
  }
}

const Parameter& parameterOf(const Member& member, std::size_t index) {
  c::requireIndex(index, member.parameters().size(), "parameter");
  return member.parameters()[index];
}

int typeOf(const Parameter& parameter) {
  switch (parameter.type) {
    case ValueType::real:
      return CALVEX_REAL;
    case ValueType::shortInteger:
    case ValueType::longInteger:
      return CALVEX_WHOLE;
    case ValueType::text:
      return CALVEX_TEXT;
    case ValueType::array:
      break;
  }
  return CALVEX_TABLE;
}

calvex_parameter factsOf(const Member& member, const Parameter& parameter) {
  const Limits limits = parameterExplanation(member, parameter).limits.value_or(Limits{});
  const bool comesOut = !parameter.isInput() || parameter.type == ValueType::array;
  return {typeOf(parameter), comesOut ? 1 : 0, parameter.group,
          limits.low,        limits.high,      limits.aboveLow ? 1 : 0};
}

std::string textOf(const Member& member, const Parameter& parameter, int what) {
  switch (what) {
    case CALVEX_PARAMETER_NAME:
      return std::string(parameter.name);
    case CALVEX_PARAMETER_LABEL:
      return parameterExplanation(member, parameter).label;
    case CALVEX_PARAMETER_WORDS:
      return parameterExplanation(member, parameter).words;
    default:
      throw Misuse{CALVEX_UNKNOWN, {}};
  }
}

// An input or output of a member over columns.
template <class Slots>
int giveSlot(int member, Slots slots, std::size_t index, int* group, char* text, std::size_t size,
             std::size_t* needed) {
  return guarded([&] {
    const auto numeric = NumericMember::of(c::memberOf(member));
    if (!numeric) throw Misuse{CALVEX_VALUE, {}};
    const auto all = slots(*numeric);
    c::requireIndex(index, all.size(), "column");
    if (group != nullptr) *group = all[index].group;
    return giveText(all[index].name, text, size, needed);
  });
}

}  // namespace

extern "C" {

int calvex_member_count(size_t* count) {
  if (count == nullptr) return CALVEX_NULL;
  *count = memberTable().size();
  return CALVEX_OK;
}

int calvex_member_at(size_t index, int* member) {
  if (member == nullptr) return CALVEX_NULL;
  if (index >= memberTable().size()) return CALVEX_UNKNOWN;
  *member = memberTable()[index].dispatchId;
  return CALVEX_OK;
}

int calvex_find_member(const char* name, size_t name_size, int* member) {
  if (member == nullptr) return CALVEX_NULL;
  return guarded([&] {
    const Member* found = findMember(c::textOf(name, name_size, "name"));
    if (found == nullptr) return static_cast<int>(CALVEX_UNKNOWN);
    *member = found->dispatchId;
    return static_cast<int>(CALVEX_OK);
  });
}

int calvex_member_facts(int member, calvex_member* facts, size_t facts_size) {
  return guarded([&] {
    c::giveFacts(factsOf(c::memberOf(member)), facts, facts_size);
    return CALVEX_OK;
  });
}

int calvex_member_text(int member, int what, char* text, size_t size, size_t* needed) {
  return guarded([&] { return giveText(textOf(c::memberOf(member), what), text, size, needed); });
}

int calvex_parameter_facts(int member, size_t index, calvex_parameter* facts, size_t facts_size) {
  return guarded([&] {
    const Member& row = c::memberOf(member);
    c::giveFacts(factsOf(row, parameterOf(row, index)), facts, facts_size);
    return CALVEX_OK;
  });
}

int calvex_parameter_text(int member, size_t index, int what, char* text, size_t size,
                          size_t* needed) {
  return guarded([&] {
    const Member& row = c::memberOf(member);
    return giveText(textOf(row, parameterOf(row, index), what), text, size, needed);
  });
}

int calvex_column_input(int member, size_t index, int* group, char* text, size_t size,
                        size_t* needed) {
  const auto inputs = [](const NumericMember& numeric) { return numeric.inputs(); };
  return giveSlot(member, inputs, index, group, text, size, needed);
}

int calvex_column_output(int member, size_t index, int* group, char* text, size_t size,
                         size_t* needed) {
  const auto outputs = [](const NumericMember& numeric) { return numeric.outputs(); };
  return giveSlot(member, outputs, index, group, text, size, needed);
}

}  // extern "C"
