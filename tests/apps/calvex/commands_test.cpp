#include <gtest/gtest.h>

#include "command_line_harness.h"
#include "server/member_table.h"
#include "support/checkout.h"
#include "units/unit_catalogue.h"

namespace calvex::cli::test {
namespace {

TEST(HelpCommand, HasFourExamplesThatRun) {
  const Answer help = calvex({"--help"});
  EXPECT_EQ(help.status, 0);
  int examples = 0;
  for (const std::string& line : linesOf(help.out)) {
    if (!line.starts_with("  calvex ")) continue;
    std::istringstream in(line.substr(0, line.find("   ", 2)));
    Words words;
    for (std::string word; in >> word;) words.push_back(word);
    words.erase(words.begin());
    EXPECT_EQ(calvex(words).status, 0) << line;
    ++examples;
  }
  EXPECT_EQ(examples, 4);
  EXPECT_EQ(help.out.find('\x1B'), std::string::npos);
}

TEST(HelpCommand, ExplainsEveryCommand) {
  for (const char* command :
       {"state", "members", "units", "convert", "table", "run", "config", "completion"}) {
    const Answer answer = calvex({"help", command});
    EXPECT_EQ(answer.status, 0) << command;
    EXPECT_TRUE(contains(answer.out, std::string("usage: calvex ") + command)) << answer.out;
    EXPECT_EQ(calvex({command, "--help"}).out, answer.out);
  }
  EXPECT_EQ(calvex({"help", "nothing"}).status, 2);
}

TEST(HelpCommand, NothingToDoIsAUsageError) {
  const Answer answer = calvex({});
  EXPECT_EQ(answer.status, 2);
  EXPECT_EQ(answer.out, "");
  EXPECT_TRUE(contains(answer.err, "calvex HPT 10 773.15")) << answer.err;
}

TEST(VersionCommand, PrintsTheVersion) {
  EXPECT_EQ(calvex({"--version"}).out, "calvex " + calvex::test::projectVersion() + "\n");
  EXPECT_EQ(calvex({"version"}).out, "calvex " + calvex::test::projectVersion() + "\n");
}

TEST(UnitsCommand, ListsEveryGroup) {
  const Answer answer = calvex({"units"});
  for (const UnitGroupRow& row : unitGroupTable()) {
    EXPECT_TRUE(contains(answer.out, std::string(row.displayName))) << row.displayName;
  }
}

TEST(UnitsCommand, ListsTheUnitsOfAGroupWithTheirFactors) {
  const Answer answer = calvex({"units", "Pressure"});
  EXPECT_TRUE(contains(answer.out, "psig      6894.76751  14.695927")) << answer.out;
  EXPECT_TRUE(contains(answer.out, "kgf/cm\u00B2   98066.5     0")) << answer.out;
  EXPECT_TRUE(contains(answer.out, "default unit MPa")) << answer.out;
  const Answer unknown = calvex({"units", "Pres"});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_TRUE(contains(unknown.err, "did you mean Pressure")) << unknown.err;
}

TEST(ConvertCommand, ConvertsBetweenTwoUnits) {
  // 1 psia is tabulated as 6894.76751 Pa, 1 ft H2O as 2989.07 Pa.
  EXPECT_EQ(calvex({"convert", "P", "100", "psia", "bara"}).out, "100 psia = 6.89476751 bara\n");
  EXPECT_EQ(calvex({"convert", "P", "1", "ft H2O", "N/m\u00B2"}).out,
            "1 ft H2O = 2989.07 N/m\u00B2\n");
  EXPECT_EQ(calvex({"convert", "T", "-40", "F", "C"}).status, 0);
  EXPECT_NEAR(numberAt(calvex({"convert", "T", "-40", "F", "C", "--json"}).out, "dblToVal"), -40.0,
              1e-8);
}

TEST(ConvertCommand, RefusesWhatItDoesNotKnow) {
  EXPECT_TRUE(contains(calvex({"convert", "P", "100", "psix", "bara"}).err,
                       "'psix' is not a unit of Pressure; did you mean psia or psig?"));
  EXPECT_TRUE(contains(calvex({"convert", "Q2", "100", "psi", "bara"}).err, "is not a unit group"));
  EXPECT_TRUE(contains(calvex({"convert", "P", "nan", "psia", "bara"}).err, "not a finite number"));
  EXPECT_TRUE(contains(calvex({"convert", "P", "100"}).err, "GROUP VALUE FROM TO"));
  EXPECT_EQ(calvex({"convert", "P", "1", "\xFF", "bara"}).status, 2);
}

TEST(ConvertCommand, TakesTheWordsPeopleUse) {
  EXPECT_EQ(calvex({"convert", "pressure", "1", "ata", "mmhg"}).out,
            "1 kgf/cm\u00B2 = 735.5612727 mm Hg\n");
  EXPECT_EQ(calvex({"convert", "T", "100", "degC", "\u00B0F"}).out, "100 C = 212 F\n");
  EXPECT_EQ(calvex({"convert", "V", "1", "FT3/LBM", "m3/kg"}).out,
            "1 ft3/lbm = 0.06242796058 m\u00B3/kg\n");
  EXPECT_NEAR(
      numberAt(calvex({"convert", "V", "1", "m3/kg", "cu ft/lb", "--json"}).out, "dblToVal"),
      16.01846337, 1e-8);
  const Answer litres = calvex({"convert", "flow", "3600", "l/h", "kg/s"});
  EXPECT_EQ(litres.out, "3600 kg/h = 1 kg/s\n");
  EXPECT_TRUE(contains(litres.err, "warning: l/h: a litre is taken as a kilogram")) << litres.err;
}

TEST(ConvertCommand, RefusesWhatIsBelowAbsoluteZero) {
  for (const auto& [unit, zero, below] :
       {std::tuple{"C", "-273.15", "-273.16"}, std::tuple{"F", "-459.67", "-459.68"},
        std::tuple{"K", "0", "-0.001"}, std::tuple{"R", "0", "-0.01"}}) {
    EXPECT_EQ(calvex({"convert", "T", zero, unit, "C"}).status, 0) << unit;
    const Answer refused = calvex({"convert", "T", below, unit, "C"});
    EXPECT_EQ(refused.status, 1) << unit;
    EXPECT_EQ(refused.out, "");
    EXPECT_TRUE(contains(refused.err, "is below absolute zero; the lowest temperature is " +
                                          std::string(zero) + " " + unit))
        << refused.err;
  }
  EXPECT_EQ(calvex({"convert", "T", "-459.67", "F", "K"}).out, "-459.67 F = 0 K\n");
  EXPECT_EQ(calvex({"convert", "DT", "-300", "C", "F"}).status, 0) << "a difference may";
}

TEST(UnitsCommand, MarksWhatIsNotPhysicalAndExplainsCalories) {
  const Answer volume = calvex({"units", "volume"});
  EXPECT_TRUE(contains(volume.out, "ft^3/lb    6.2e-05             0       (!)")) << volume.out;
  EXPECT_TRUE(contains(volume.out, "(!) ft^3/lb: not the physical unit")) << volume.out;
  EXPECT_TRUE(contains(volume.out, "ft3/lbm    0.0624279605761446")) << volume.out;
  EXPECT_TRUE(contains(calvex({"units", "m"}).out, "(!) dyne.s/cm^2: not the physical unit"));
  EXPECT_TRUE(contains(calvex({"units", "Enthalpy"}).out, "1 cal = 4.1868 J"));
  EXPECT_TRUE(contains(calvex({"units", "U"}).out, "1 cal = 4.184 J"));
  EXPECT_TRUE(contains(calvex({"units", "pressure"}).out, "Also: bar (bara)"));
}

}  // namespace
}  // namespace calvex::cli::test
