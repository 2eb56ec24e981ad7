// The tables that other faces are driven by.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "calvex/calvex.h"
#include "server/member_columns.h"
#include "server/member_explanations.h"
#include "server/member_table.h"
#include "units/unit_words.h"

namespace calvex {
namespace {

template <class Get>
std::string text(Get get) {
  std::size_t needed = 0;
  EXPECT_EQ(get(nullptr, 0, &needed), CALVEX_OK);
  std::string answer(needed, '?');
  EXPECT_EQ(get(answer.data(), needed, &needed), CALVEX_OK);
  EXPECT_EQ(answer.back(), '\0');
  answer.pop_back();
  return answer;
}
std::string memberText(int member, int what) {
  return text([&](char* to, std::size_t size, std::size_t* needed) {
    return calvex_member_text(member, what, to, size, needed);
  });
}
std::string parameterText(int member, std::size_t index, int what) {
  return text([&](char* to, std::size_t size, std::size_t* needed) {
    return calvex_parameter_text(member, index, what, to, size, needed);
  });
}

TEST(CTable, HasEveryMemberAsTheMemberTableHasIt) {
  std::size_t count = 0;
  ASSERT_EQ(calvex_member_count(&count), CALVEX_OK);
  ASSERT_EQ(count, memberTable().size());
  for (std::size_t i = 0; i < count; ++i) {
    const Member& row = memberTable()[i];
    int member = 0, found = 0;
    ASSERT_EQ(calvex_member_at(i, &member), CALVEX_OK);
    EXPECT_EQ(member, row.dispatchId);
    EXPECT_EQ(calvex_find_member(row.name.data(), row.name.size(), &found), CALVEX_OK);
    EXPECT_EQ(found, member);
    EXPECT_EQ(memberText(member, CALVEX_MEMBER_NAME), row.name);
    const MemberExplanation words = explanation(row);
    EXPECT_EQ(memberText(member, CALVEX_MEMBER_TITLE), words.title);
    EXPECT_EQ(memberText(member, CALVEX_MEMBER_NOTES), words.notes);
    EXPECT_EQ(memberText(member, CALVEX_MEMBER_HEADING), headingText(words.heading));
    calvex_member facts{};
    ASSERT_EQ(calvex_member_facts(member, &facts, sizeof facts), CALVEX_OK);
    EXPECT_EQ(facts.number, member);
    EXPECT_EQ(facts.kind == CALVEX_SETTING || facts.kind == CALVEX_READ_ONLY_SETTING,
              row.isProperty);
    ASSERT_EQ(facts.parameter_count, row.parameters().size());
    EXPECT_EQ(facts.input_count + facts.text_count + facts.output_count +
                  static_cast<std::size_t>(facts.answers_table + facts.answers_text),
              facts.parameter_count);
    for (std::size_t p = 0; p < facts.parameter_count; ++p) {
      const Parameter& parameter = row.parameters()[p];
      calvex_parameter at{};
      ASSERT_EQ(calvex_parameter_facts(member, p, &at, sizeof at), CALVEX_OK);
      EXPECT_EQ(at.group, parameter.group);
      EXPECT_EQ(at.type == CALVEX_REAL, parameter.type == ValueType::real);
      EXPECT_EQ(at.type == CALVEX_TEXT, parameter.type == ValueType::text);
      EXPECT_EQ(at.type == CALVEX_TABLE, parameter.type == ValueType::array);
      EXPECT_EQ(parameterText(member, p, CALVEX_PARAMETER_NAME), parameter.name);
      EXPECT_EQ(parameterText(member, p, CALVEX_PARAMETER_LABEL), words.parameters[p].label);
      EXPECT_EQ(parameterText(member, p, CALVEX_PARAMETER_WORDS), words.parameters[p].words);
    }
    const auto numeric = NumericMember::of(row);
    ASSERT_EQ(facts.column_output_count, numeric ? numeric->outputs().size() : 0U) << row.name;
    for (std::size_t slot = 0; numeric && slot < numeric->outputs().size(); ++slot) {
      int group = -2;
      EXPECT_EQ(text([&](char* to, std::size_t size, std::size_t* needed) {
                  return calvex_column_output(member, slot, &group, to, size, needed);
                }),
                numeric->outputs()[slot].name);
      EXPECT_EQ(group, numeric->outputs()[slot].group);
    }
  }
}

TEST(CTable, HPTReadsAsItsExplanation) {
  int member = 0;
  ASSERT_EQ(calvex_find_member("hpt", CALVEX_TERMINATED, &member), CALVEX_OK);
  EXPECT_EQ(member, 0x33);
  EXPECT_EQ(memberText(member, CALVEX_MEMBER_TITLE), "enthalpy from pressure and temperature");
  calvex_parameter T{};
  ASSERT_EQ(calvex_parameter_facts(member, 2, &T, sizeof T), CALVEX_OK);
  EXPECT_EQ(T.is_output, 0);
  EXPECT_EQ(T.low, 260.0);  // the range of the formulation as it is solved here, K
  EXPECT_EQ(T.high, 2500.0);
}

TEST(CTable, HasEveryGroupAndUnitInUtf8) {
  std::size_t count = 0;
  ASSERT_EQ(calvex_group_count(&count), CALVEX_OK);
  ASSERT_EQ(count, static_cast<std::size_t>(unitGroupCount));
  std::set<std::string> names;
  for (int group = 0; group < unitGroupCount; ++group) {
    const UnitGroupRow& row = unitGroupTable()[static_cast<std::size_t>(group)];
    const auto groupText = [&](int what) {
      return text([&](char* to, std::size_t size, std::size_t* needed) {
        return calvex_group_text(group, what, to, size, needed);
      });
    };
    EXPECT_EQ(groupText(CALVEX_GROUP_NAME), row.displayName);
    EXPECT_EQ(groupText(CALVEX_GROUP_MODEL_UNIT), row.internalUnit);
    const std::string keyword = groupText(CALVEX_GROUP_KEYWORD);
    int found = -1;
    EXPECT_EQ(calvex_find_group(keyword.data(), keyword.size(), &found), CALVEX_OK);
    EXPECT_EQ(found, group);
    std::size_t units = 0;
    ASSERT_EQ(calvex_unit_count(group, &units), CALVEX_OK);
    EXPECT_GE(units, row.units.size());
    for (std::size_t i = 0; i < units; ++i) {
      const std::string unit = text([&](char* to, std::size_t size, std::size_t* needed) {
        return calvex_unit_name(group, i, to, size, needed);
      });
      names.insert(unit);
      EXPECT_EQ(calvex_unit_notice(group, unit.data(), unit.size(), nullptr, 0, nullptr), CALVEX_OK)
          << unit;
    }
    EXPECT_EQ(calvex_unit_name(group, units, nullptr, 0, nullptr), CALVEX_UNKNOWN);
  }
  EXPECT_TRUE(names.contains("kJ/kg"));
  EXPECT_TRUE(names.contains("m³/kg"));
}

TEST(CTable, MisuseAnswersACode) {
  std::size_t size = 0;
  int whole = 0;
  calvex_member member{};
  calvex_parameter parameter{};
  EXPECT_EQ(calvex_member_count(nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_member_at(0, nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_member_at(SIZE_MAX, &whole), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_find_member(nullptr, 3, &whole), CALVEX_NULL);
  EXPECT_EQ(calvex_find_member("HPT", 3, nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_find_member("HP", 2, &whole), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_member_facts(0, &member, sizeof member), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_member_facts(0x33, nullptr, sizeof member), CALVEX_NULL);
  EXPECT_EQ(calvex_member_facts(0x33, &member, 0), CALVEX_COUNT);
  EXPECT_EQ(calvex_member_text(0x33, 99, nullptr, 0, &size), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_parameter_facts(0x33, 3, &parameter, sizeof parameter), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_parameter_text(0x33, 0, -1, nullptr, 0, &size), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_column_input(0x1a, 0, &whole, nullptr, 0, &size), CALVEX_VALUE);
  EXPECT_EQ(calvex_column_output(0x33, 1, &whole, nullptr, 0, &size), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_group_count(nullptr), CALVEX_NULL);
  for (const int group : {-1, unitGroupCount, 70000}) {
    EXPECT_EQ(calvex_group_text(group, 0, nullptr, 0, &size), CALVEX_UNKNOWN);
    EXPECT_EQ(calvex_unit_count(group, &size), CALVEX_UNKNOWN);
    EXPECT_EQ(calvex_unit_name(group, 0, nullptr, 0, &size), CALVEX_UNKNOWN);
    EXPECT_EQ(calvex_unit_notice(group, "C", 1, nullptr, 0, &size), CALVEX_UNKNOWN);
  }
  EXPECT_EQ(calvex_unit_notice(0, "furlong", CALVEX_TERMINATED, nullptr, 0, &size), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_find_group("nothing", CALVEX_TERMINATED, &whole), CALVEX_UNKNOWN);
}

// This is the first version of the structures: a smaller size is a mistake, such as that of a
// pointer.
TEST(CTable, ASizeOfNoStructureIsRefused) {
  calvex_member facts{};
  facts.kind = -7;
  for (const std::size_t size : {std::size_t{0}, sizeof facts.number, sizeof facts - 1}) {
    EXPECT_EQ(calvex_member_facts(0x33, &facts, size), CALVEX_COUNT) << size;
  }
  EXPECT_EQ(calvex_member_facts(0x33, &facts, SIZE_MAX), CALVEX_COUNT);
  EXPECT_EQ(facts.kind, -7);

  calvex_engine* engine = nullptr;
  ASSERT_EQ(calvex_create(&engine), CALVEX_OK);
  const calvex_request request{};
  for (std::size_t size = 0; size < sizeof request; ++size) {
    EXPECT_EQ(calvex_direct(engine, &request, size), CALVEX_COUNT) << size;
  }
  EXPECT_EQ(calvex_direct(engine, &request, sizeof request + 1), CALVEX_COUNT);
  calvex_destroy(engine);
}

// As a program sees it that was built for a later version than the library.
TEST(CTable, FieldsThatThisVersionLacksAre0) {
  struct Later {
    calvex_member facts;
    int added[3];
  } later{{}, {1, 2, 3}};
  ASSERT_EQ(calvex_member_facts(0x33, &later.facts, sizeof later), CALVEX_OK);
  EXPECT_EQ(later.facts.number, 0x33);
  for (const int added : later.added) EXPECT_EQ(added, 0);
}

}  // namespace
}  // namespace calvex
