#include <gtest/gtest.h>

#include <cmath>

#include "command_line_harness.h"
#include "progress.h"
#include "server/member_table.h"
#include "units/unit_catalogue.h"

namespace calvex::cli::test {
namespace {

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::vector<double> numbersOf(const std::string& csvLine) {
  std::vector<double> numbers;
  std::istringstream fields(csvLine);
  for (std::string field; std::getline(fields, field, ',');) {
    numbers.push_back(field.empty() ? NAN : std::stod(field));
  }
  return numbers;
}

TEST(HelpCommand, HasThreeExamplesThatRun) {
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
  EXPECT_EQ(examples, 3);
  EXPECT_EQ(help.out.find('\x1B'), std::string::npos);
}

TEST(HelpCommand, ExplainsEveryCommand) {
  for (const char* command :
       {"members", "units", "convert", "table", "run", "config", "completion"}) {
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
  EXPECT_EQ(calvex({"--version"}).out, "calvex 4.4.8\n");
  EXPECT_EQ(calvex({"version"}).out, "calvex 4.4.8\n");
}

TEST(MembersCommand, ListsEveryMember) {
  EXPECT_EQ(linesOf(calvex({"members"}).out).size(), memberTable().size());
}

TEST(MembersCommand, FindsByPatternAndPartWhateverTheCase) {
  const Answer glob = calvex({"members", "?satpq"});
  EXPECT_EQ(linesOf(glob.out).size(), 5U) << glob.out;
  EXPECT_TRUE(contains(glob.out, "HSatPQ  P[MPa] Q[Fraction]  -> pH[kJ/kg]")) << glob.out;
  EXPECT_TRUE(contains(calvex({"members", "userunit"}).out, "SetCustomUserUnitIndex"));
  EXPECT_EQ(linesOf(calvex({"members", "*"}).out).size(), memberTable().size());
  const Answer none = calvex({"members", "HTP"});
  EXPECT_EQ(none.status, 2);
  EXPECT_TRUE(contains(none.err, "did you mean HPT")) << none.err;
}

TEST(MembersCommand, ExplainsAMemberInTheCurrentUnits) {
  const Answer answer = calvex({"members", "hpt", "-u", "T=C"});
  EXPECT_TRUE(contains(
      answer.out, "HPT([out] double pH, [in] double P, [in] double T, [out, retval] long pSucc)"))
      << answer.out;
  EXPECT_TRUE(contains(answer.out, "P  Pressure     MPa\n  T  Temperature  C\n")) << answer.out;
  EXPECT_TRUE(contains(answer.out, "pH  Mass Specific Enthalpy  kJ/kg")) << answer.out;
  EXPECT_TRUE(contains(answer.out, "calvex HPT 10 500 -u 'T=C'\n  pH  3373.998049  kJ/kg"))
      << answer.out;
}

TEST(MembersCommand, ALongRowDoesNotWidenTheOthers) {
  const Answer answer = calvex({"members"});
  EXPECT_FALSE(contains(answer.out, "pRetArray")) << answer.out;
  for (const std::string& line : linesOf(answer.out)) {
    if (line.starts_with("HPT ")) {
      EXPECT_LE(line.size(), 100U) << line;
    }
  }
  EXPECT_TRUE(contains(answer.out, "\nHPT ")) << answer.out;
}

TEST(MembersCommand, ListsTheTokensOfASpreadsheetMember) {
  const Answer answer = calvex({"members", "XLTurbineA", "-u", "T=C"});
  EXPECT_TRUE(contains(answer.out,
                       "\n  Pow    Turbine Power       kW\n"
                       "  T_Out  Outlet Temperature  C\n"
                       "  H_Out  Outlet Enthalpy     kJ/kg\n"
                       "  Q_Out  Outlet Quality      Fraction\n"))
      << answer.out;
  EXPECT_FALSE(contains(calvex({"members", "TurbineA"}).out, "tokens"));
  for (const Member& member : memberTable()) {
    if (!member.name.starts_with("XL")) continue;
    EXPECT_TRUE(contains(calvex({"members", std::string(member.name)}).out, "\ntokens ("))
        << member.name;
  }
}

TEST(MembersCommand, ExamplesOfPropertyMembersRun) {
  int examples = 0;
  for (const Member& member : memberTable()) {
    const Answer answer = calvex({"members", std::string(member.name)});
    ASSERT_EQ(answer.status, 0) << member.name;
    if (!member.parameters().empty() && member.parameters().front().hasUnit() &&
        member.style == ReturnStyle::success && member.dispatchId <= 0x89) {
      EXPECT_TRUE(contains(answer.out, "\nexample\n")) << answer.out;
      ++examples;
    }
  }
  EXPECT_GT(examples, 100);
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

// Published tables: 12.35 MPa, 1505.4 and 2675.7 kJ/kg at 600 K, within their difference between
// formulations.
TEST(TableCommand, PrintsSaturatedStates) {
  const Answer answer =
      calvex({"table", "saturation", "--from", "300", "--to", "640", "--step", "20", "--csv"});
  EXPECT_EQ(answer.status, 0);
  const auto lines = linesOf(answer.out);
  ASSERT_EQ(lines.size(), 19U);
  EXPECT_EQ(lines[0],
            "T [K],P [MPa],v_liq [m^3/kg],v_vap [m^3/kg],h_liq [kJ/kg],h_vap [kJ/kg],"
            "s_liq [kJ/(kg.K)],s_vap [kJ/(kg.K)],failure");
  const std::vector<double> at600 = numbersOf(lines[16]);
  EXPECT_EQ(at600[0], 600.0);
  EXPECT_NEAR(at600[1], 12.35, 0.02);
  EXPECT_NEAR(at600[4], 1505.4, 2.0);
  EXPECT_NEAR(at600[5], 2675.7, 2.0);
}

TEST(TableCommand, ByPressureMirrorsByTemperature) {
  const Answer byP = calvex({"table", "saturation", "--by", "P", "--from", "1", "--to", "1",
                             "--step", "1", "--csv", "-u", "T=C", "-u", "P=bara"});
  const auto numbers = numbersOf(linesOf(byP.out).at(1));
  EXPECT_NEAR(numbers[1], 99.63, 0.02);  // published: 99.63 C at 1 bar
  const Answer byT = calvex({"table", "saturation", "--from", std::to_string(numbers[1]), "--to",
                             "100", "--step", "1", "--csv", "-u", "T=C", "-u", "P=bara"});
  EXPECT_NEAR(numbersOf(linesOf(byT.out).at(1))[1], 1.0, 1e-6);
}

TEST(TableCommand, QualityIsGivenInTheChosenUnit) {
  const Words words = {"table", "saturation", "--from", "400", "--to", "400", "--step", "1"};
  Words percent = words;
  percent.insert(percent.end(), {"-u", "Q=%"});
  EXPECT_EQ(calvex(percent).out, calvex(words).out);
}

TEST(TableCommand, PrintsAnIsobarAsAlignedText) {
  const Answer answer =
      calvex({"table", "isobar", "10", "--from", "600", "--to", "900", "--step", "100"});
  EXPECT_EQ(answer.status, 0);
  const auto lines = linesOf(answer.out);
  ASSERT_EQ(lines.size(), 6U);
  for (const std::string& line : lines) EXPECT_EQ(line.size(), lines[0].size()) << line;
}

TEST(TableCommand, CountsTheLastValueOfAStepThatIsNotExact) {
  const Answer answer =
      calvex({"table", "isobar", "10", "--from", "600", "--to", "601", "--step", "0.1", "--csv"});
  EXPECT_EQ(linesOf(answer.out).size(), 12U);
  const Answer down =
      calvex({"table", "isobar", "10", "--from", "601", "--to", "600", "--step", "-0.1", "--csv"});
  EXPECT_EQ(linesOf(down.out).size(), 12U);
}

TEST(TableCommand, ALineThatFailsSaysWhy) {
  const Answer text =
      calvex({"table", "isobar", "10", "--from", "200", "--to", "300", "--step", "100"});
  EXPECT_EQ(text.status, 1);
  const auto lines = linesOf(text.out);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_TRUE(contains(lines[2], "Temperature parameter out of range")) << lines[2];
  EXPECT_FALSE(contains(lines[3], "failed")) << lines[3];
  EXPECT_TRUE(contains(text.err, "at T = 200: ")) << text.err;
  const Answer csv =
      calvex({"table", "isobar", "10", "--from", "200", "--to", "300", "--step", "100", "--csv"});
  EXPECT_TRUE(linesOf(csv.out).at(1).starts_with("200,,,,,,,,VPT failed: ")) << csv.out;
}

TEST(TableCommand, RefusesRangesThatLeadNowhere) {
  const auto table = [](const char* from, const char* to, const char* step) {
    return calvex({"table", "isobar", "10", "--from", from, "--to", to, "--step", step});
  };
  EXPECT_TRUE(contains(table("300", "400", "-1").err, "does not lead"))
      << table("3", "4", "-1").err;
  EXPECT_TRUE(contains(table("300", "400", "0").err, "does not lead"));
  EXPECT_TRUE(contains(table("300", "400", "1e-9").err, "more than a million lines"));
  EXPECT_TRUE(contains(table("-1e308", "1e308", "1e300").err, "more than a million lines"));
  EXPECT_TRUE(contains(table("300", "nan", "1").err, "not a finite number"));
  EXPECT_TRUE(contains(calvex({"table", "isobar", "10"}).err, "--from is required"));
  EXPECT_EQ(calvex({"table", "--from", "1", "--to", "2", "--step", "1"}).status, 2);
  EXPECT_EQ(calvex({"table", "isobar", "--from", "1", "--to", "2", "--step", "1"}).status, 2);
  EXPECT_EQ(calvex({"table", "saturation", "--by", "H", "--from", "1", "--to", "2", "--step", "1"})
                .status,
            2);
}

TEST(Progress, ShowsNothingInTheFirstSecondAndWipesItsBar) {
  std::chrono::steady_clock::time_point now{};
  std::ostringstream err;
  {
    Progress progress(err, 100, true, [&] { return now; });
    now += std::chrono::milliseconds(999);
    progress.at(10);
    EXPECT_EQ(err.str(), "");
    now += std::chrono::milliseconds(2);
    progress.at(50);
    EXPECT_EQ(err.str(), "\r[" + std::string(20, '#') + std::string(20, ' ') + "]  50%");
    progress.at(51);
    EXPECT_EQ(err.str().size(), 48U) << "at most one bar in a fifth of a second";
  }
  EXPECT_TRUE(err.str().ends_with("\r" + std::string(47, ' ') + "\r"));
}

TEST(Progress, StaysSilentOnATerminal) {
  std::chrono::steady_clock::time_point now{};
  std::ostringstream err;
  {
    Progress progress(err, 100, false, [&] { return now; });
    now += std::chrono::hours(1);
    progress.at(50);
  }
  EXPECT_EQ(err.str(), "");
}

}  // namespace
}  // namespace calvex::cli::test
