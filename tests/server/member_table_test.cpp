// The member table against the list of the interface's members.
#include "server/member_table.h"

#include <gtest/gtest.h>

#include <set>

#include "support/table.h"

namespace calvex::test {
namespace {

const std::vector<Row>& interfaceMembers() {
  static const std::vector<Row> rows = readTable("members.csv", ';');
  return rows;
}

struct ExpectedParameter {
  std::string direction;
  std::string type;
  std::string name;
  int group;
};

std::vector<ExpectedParameter> parametersOf(const Row& row) {
  std::vector<ExpectedParameter> parameters;
  if (row.text("parameters").empty()) return parameters;
  for (std::string text : cellsOf(row.text("parameters"), ',')) {
    if (text.front() == ' ') text.erase(0, 1);
    const std::vector<std::string> words = cellsOf(text, ' ');
    const std::vector<std::string> name = cellsOf(words.at(2), ':');
    parameters.push_back({words[0], words[1], name[0], name.size() > 1 ? std::stoi(name[1]) : -1});
  }
  return parameters;
}

ValueType typeNamed(const std::string& type) {
  if (type == "double") return ValueType::real;
  if (type == "short") return ValueType::shortInteger;
  if (type == "long") return ValueType::longInteger;
  if (type == "string") return ValueType::text;
  if (type == "array") return ValueType::array;
  throw std::invalid_argument("no such type: " + type);
}

Direction directionNamed(const std::string& direction) {
  if (direction == "in") return Direction::in;
  if (direction == "out") return Direction::out;
  if (direction == "inout") return Direction::inOut;
  // A setting's one value is what its get answers.
  if (direction == "retval" || direction == "value") return Direction::retval;
  throw std::invalid_argument("no such direction: " + direction);
}

TEST(MemberTable, HasEveryMemberUnderItsNumberAndName) {
  EXPECT_EQ(interfaceMembers().size(), 205U);
  for (const Row& row : interfaceMembers()) {
    const int id = std::stoi(row.text("id"), nullptr, 16);
    const Member* member = findMember(row.text("name"));
    ASSERT_NE(member, nullptr) << row.text("name");
    EXPECT_EQ(member->name, row.text("name"));
    EXPECT_EQ(member->dispatchId, id) << row.text("name");
    EXPECT_EQ(findMember(id), member) << row.text("name");
    EXPECT_NE(member->invoke, nullptr) << row.text("name");
  }
}

TEST(MemberTable, GivesEveryParameterItsDirectionTypeNameAndUnitGroup) {
  for (const Row& row : interfaceMembers()) {
    SCOPED_TRACE(row.text("name"));
    const Member* member = findMember(row.text("name"));
    ASSERT_NE(member, nullptr);
    const std::vector<ExpectedParameter> expected = parametersOf(row);
    const std::span<const Parameter> parameters = member->parameters();
    ASSERT_EQ(parameters.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(parameters[i].name, expected[i].name);
      EXPECT_EQ(parameters[i].type, typeNamed(expected[i].type)) << expected[i].name;
      EXPECT_EQ(parameters[i].direction, directionNamed(expected[i].direction)) << expected[i].name;
      EXPECT_EQ(parameters[i].group, expected[i].group) << expected[i].name;
    }
  }
}

TEST(MemberTable, GivesEveryMemberItsReturnStyleAndKind) {
  for (const Row& row : interfaceMembers()) {
    SCOPED_TRACE(row.text("name"));
    const Member* member = findMember(row.text("name"));
    ASSERT_NE(member, nullptr);
    const std::string& returns = row.text("returns");
    EXPECT_EQ(member->style, returns == "success"  ? ReturnStyle::success
                             : returns == "status" ? ReturnStyle::status
                                                   : ReturnStyle::value);
    const std::string& kind = row.text("kind");
    EXPECT_EQ(member->isProperty, kind != "method");
    EXPECT_EQ(member->put != nullptr, kind == "get+put");
  }
}

TEST(MemberTable, IsInOrderOfDispatchIdsWithoutRepetition) {
  std::set<std::string_view> names;
  int last = 0;
  for (const Member& member : memberTable()) {
    EXPECT_GT(member.dispatchId, last) << member.name;
    last = member.dispatchId;
    EXPECT_TRUE(names.insert(member.name).second) << member.name;
  }
}

TEST(MemberTable, HasNoMemberUnderTheReservedNumbers) {
  for (const int id : {0x14, 0xba, 0xbb, 0xc0, 0xc1, 0xc2, 0xc3}) {
    EXPECT_EQ(findMember(id), nullptr) << std::hex << id;
  }
  for (const int id : {0, -1, 0xd5, 0x1000, 0x10001, 1 << 30, -(1 << 30)}) {
    EXPECT_EQ(findMember(id), nullptr) << id;
  }
}

TEST(MemberTable, FindsNamesInAnyCase) {
  for (const Row& row : interfaceMembers()) {
    std::string lower = row.text("name");
    std::string upper = lower;
    for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    EXPECT_EQ(findMember(lower), findMember(row.text("name"))) << lower;
    EXPECT_EQ(findMember(upper), findMember(row.text("name"))) << upper;
  }
}

TEST(MemberTable, DoesNotFindWhatIsNotAMember) {
  for (const std::string_view name : {"", " ", "HPT ", " HPT", "HP", "HPTQQ", "QTR_PH", "pSucc"}) {
    EXPECT_EQ(findMember(name), nullptr) << name;
  }
  EXPECT_EQ(findMember(std::string_view("HPT\0", 4)), nullptr);
  EXPECT_EQ(findMember(std::string(100000, 'H')), nullptr);
}

}  // namespace
}  // namespace calvex::test
