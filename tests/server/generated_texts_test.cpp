// What is kept for other compilers says what the tables say.
#include "server/generated_texts.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "support/checkout.h"

namespace calvex {
namespace {

std::string kept(const std::string& name) {
  std::ifstream file(test::dataFolder() + "/../../" + name);
  EXPECT_TRUE(file) << name;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

TEST(GeneratedTexts, TheKeptInterfaceDefinitionIsCurrent) {
  EXPECT_EQ(kept("src/server/windows/calvex.idl"), interfaceDefinition())
      << "run scripts/update-generated";
}

TEST(GeneratedTexts, TheKeptStringTableIsCurrent) {
  EXPECT_EQ(kept("src/server/windows/strings.rc"), stringResources())
      << "run scripts/update-generated";
}

TEST(GeneratedTexts, TheKeptHeadersOfTheWrapperAreCurrent) {
  EXPECT_EQ(kept("include/calvex/results.hpp"), wrapperResults()) << "run scripts/update-generated";
  EXPECT_EQ(kept("include/calvex/each_member.hpp"), wrapperVisits())
      << "run scripts/update-generated";
  EXPECT_EQ(kept("include/calvex/members.hpp"), wrapperMembers()) << "run scripts/update-generated";
}

// The part of the macro module above the generated one is written by hand.
TEST(GeneratedTexts, TheKeptWorksheetFunctionsAreCurrent) {
  const std::string text = kept("packaging/windows/calvex.bas");
  const std::size_t generated = text.find("' From here on: ");
  ASSERT_NE(generated, std::string::npos);
  EXPECT_EQ(text.substr(generated), worksheetFunctions()) << "run scripts/update-generated";
}

TEST(GeneratedTexts, TheKeptEntryPointsOfTheExcelAddInAreCurrent) {
  EXPECT_EQ(kept("excel/src/entry_points.inc"), worksheetEntryPoints())
      << "run scripts/update-generated";
}

// Visual Basic reads lines of up to 1023 characters.
TEST(GeneratedTexts, NoWorksheetFunctionHasALineTooLong) {
  std::istringstream text(worksheetFunctions());
  for (std::string line; std::getline(text, line);) EXPECT_LE(line.size(), 1000U) << line;
}

// The numbers are fixed: clients and translations know the texts by them.
TEST(GeneratedTexts, TheStringTableHasExactlyTheseNumbers) {
  std::istringstream text(stringResources());
  std::string numbers;
  for (std::string line; std::getline(text, line);) {
    if (line.starts_with("  ")) numbers += line.substr(2, line.find(' ', 2) - 1);
  }
  std::string expected = "1 3 4 5 6 7 8 9 100 101 102 103 104 105 106 107 108 200 201 300 301 ";
  for (int number = 20; number <= 46; ++number) expected += std::to_string(number) + " ";
  for (int number = 50; number <= 76; ++number) expected += std::to_string(number) + " ";
  EXPECT_EQ(numbers, expected);
}

TEST(GeneratedTexts, TheInterfaceHas218EntriesWithItsOwnIds) {
  const std::string text = interfaceDefinition();
  int entries = 0;
  for (std::size_t at = text.find("HRESULT "); at != std::string::npos;
       at = text.find("HRESULT ", at + 1)) {
    ++entries;
  }
  EXPECT_EQ(entries, 218);
  EXPECT_NE(text.find("[id(0x33), helpstring(\"pH: Mass Specific Enthalpy, P: Pressure, "
                      "T: Temperature\")]\n    HRESULT HPT([out] double* pH, [in] double P, "
                      "[in] double T, [out, retval] long* pSucc);"),
            std::string::npos);
}

}  // namespace
}  // namespace calvex
