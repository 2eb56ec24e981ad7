#include "batch_language.h"

#include <gtest/gtest.h>

#include "failure.h"

namespace calvex::cli::test {
namespace {

using Operands = std::vector<BatchOperand>;

TEST(BatchLanguage, AColumnIsAMembersResult) {
  const BatchColumn column = readBatchColumn("h=HPT(P,T)");
  EXPECT_EQ(column.name, "h");
  EXPECT_EQ(column.member, "HPT");
  EXPECT_EQ(column.operands, (Operands{"P", "T"}));
  EXPECT_EQ(column.output, "");
  EXPECT_EQ(column.source, "h=HPT(P,T)");
}

TEST(BatchLanguage, BlanksStandWhereTheyLike) {
  const BatchColumn column =
      readBatchColumn("  w 1 = TurbineA ( h , P in ,0.01, +8.5e-1,10 ) . Power ");
  EXPECT_EQ(column.name, "w 1");
  EXPECT_EQ(column.member, "TurbineA");
  EXPECT_EQ(column.operands, (Operands{"h", "P in", 0.01, 0.85, 10.0}));
  EXPECT_EQ(column.output, "Power");
}

TEST(BatchLanguage, ANameInQuotesMayHaveAnySigns) {
  const BatchColumn column = readBatchColumn("\"h (kJ/kg), 1\"=HPT(\"P, bar\",\"T = \"\"in\"\"\")");
  EXPECT_EQ(column.name, "h (kJ/kg), 1");
  EXPECT_EQ(column.operands, (Operands{"P, bar", "T = \"in\""}));
}

TEST(BatchLanguage, WhatReadsAsANumberIsOneUnlessQuoted) {
  EXPECT_EQ(readBatchColumn("h=HPT(10,-5)").operands, (Operands{10.0, -5.0}));
  EXPECT_EQ(readBatchColumn("h=HPT(\"10\",2nd stage)").operands, (Operands{"10", "2nd stage"}));
  EXPECT_EQ(readBatchColumn("h=HPT(inf,NaN)").operands, (Operands{"inf", "NaN"}));
}

TEST(BatchLanguage, AColumnMayBeANumberOrHaveNoInputs) {
  const BatchColumn constant = readBatchColumn("eff = 0.85");
  EXPECT_EQ(constant.member, "");
  EXPECT_EQ(constant.operands, Operands{0.85});
  EXPECT_EQ(readBatchColumn("Tc=CritT()").operands, Operands{});
  EXPECT_EQ(readBatchColumn("Tc=CritT()").member, "CritT");
}

TEST(BatchLanguage, FaultsAreNamed) {
  const std::pair<const char*, const char*> faults[] = {
      {"", "a name for the column is missing"},
      {"=HPT(P,T)", "a name for the column is missing"},
      {"h", "'=' is missing behind the column's name"},
      {"HPT(P,T)", "'=' is missing behind the column's name"},
      {"h=", "a member or a number is missing"},
      {"h=P", "'P' is neither a number nor a member"},
      {"h=\"5\"", "'5' is neither a number nor a member"},
      {"h=inf", "'inf' is neither a number nor a member"},
      {"h=HPT(P,T", "',' or ')' is missing"},
      {"h=HPT(P,", "a column or a number is missing"},
      {"h=HPT(,T)", "a column or a number is missing"},
      {"h=HPT(P T=)", "',' or ')' is missing"},
      {"h=HPT(\"P,T)", "a closing quote is missing"},
      {"h=HPT(P,T)x", "'x' is too much"},
      {"h=5 5", "'5 5' is neither"},
      {"h=HPT(P,T).", "the name of a result behind the point is missing"},
      {"h=HPT(P,1e999)", "'1e999' is beyond the numbers"},
      {"h=HPT(PSatT(T),T)", "a call cannot stand inside a call"},
  };
  for (const auto& [text, expected] : faults) {
    try {
      static_cast<void>(readBatchColumn(text));
      ADD_FAILURE() << text;
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find(expected), std::string::npos)
          << text << ": " << error.what();
    }
  }
  EXPECT_THROW(static_cast<void>(readBatchColumn(std::string_view("h=5\0", 4))), UsageError);
}

}  // namespace
}  // namespace calvex::cli::test
