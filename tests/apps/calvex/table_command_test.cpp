#include <gtest/gtest.h>

#include <cmath>

#include "command_line_harness.h"
#include "progress.h"

namespace calvex::cli::test {
namespace {

std::vector<double> numbersOf(const std::string& csvLine) {
  std::vector<double> numbers;
  std::istringstream fields(csvLine);
  for (std::string field; std::getline(fields, field, ',');) {
    numbers.push_back(field.empty() ? NAN : std::stod(field));
  }
  return numbers;
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
            "T [K],P [MPa],v_liq [m^3/kg],v_vap [m^3/kg],u_liq [kJ/kg],u_vap [kJ/kg],"
            "h_liq [kJ/kg],h_fg [kJ/kg],h_vap [kJ/kg],s_liq [kJ/(kg.K)],s_fg [kJ/(kg.K)],"
            "s_vap [kJ/(kg.K)],cp_liq [kJ/(kg.K)],cp_vap [kJ/(kg.K)],failure");
  const std::vector<double> at600 = numbersOf(lines[16]);
  EXPECT_EQ(at600[0], 600.0);
  EXPECT_NEAR(at600[1], 12.35, 0.02);
  EXPECT_NEAR(at600[6], 1505.4, 2.0);
  EXPECT_NEAR(at600[8], 2675.7, 2.0);
  EXPECT_NEAR(at600[7], 1170.3, 4.0);
  EXPECT_NEAR(at600[7], at600[8] - at600[6], 1e-9 * at600[8]);
  // Energy is enthalpy less pressure times volume; evaporation is at one Gibbs energy.
  EXPECT_NEAR(at600[4], at600[6] - 1e3 * at600[1] * at600[2], 1e-6 * at600[6]);
  EXPECT_NEAR(at600[7], 600.0 * at600[10], 1e-6 * at600[7]);
  // Published heat capacities of the saturated phases at 400 K: 4.256 and 2.158 kJ/(kg.K).
  const std::vector<double> at400 = numbersOf(lines[6]);
  EXPECT_NEAR(at400[12], 4.256, 0.01);
  EXPECT_NEAR(at400[13], 2.158, 0.01);
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
  EXPECT_EQ(lines[1].size(), lines[0].size());
  const std::string phase = "  superheated vapour";
  for (std::size_t i = 2; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].size(), lines[0].size() + phase.size()) << lines[i];
    EXPECT_TRUE(lines[i].ends_with(phase)) << lines[i];
  }
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
  EXPECT_TRUE(linesOf(csv.out).at(1).starts_with("200,,,,,,,,,")) << csv.out;
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
  EXPECT_TRUE(contains(calvex({"table", "isobar", "10"}).err, "--from is missing"));
  EXPECT_EQ(calvex({"table", "--from", "1", "--to", "2", "--step", "1"}).status, 2);
  EXPECT_EQ(calvex({"table", "isobar", "--from", "1", "--to", "2", "--step", "1"}).status, 2);
  EXPECT_EQ(calvex({"table", "saturation", "--by", "H", "--from", "1", "--to", "2", "--step", "1"})
                .status,
            2);
}

// Saturated at 1 MPa by published tables: 453.03 K, 762.5 and 2777.1 kJ/kg.
TEST(TableCommand, AnIsobarShowsTheSaturationLineInside) {
  const Answer answer =
      calvex({"table", "isobar", "1", "--from", "440", "--to", "470", "--step", "10", "--csv"});
  EXPECT_EQ(answer.status, 0) << answer.err;
  const auto lines = linesOf(answer.out);
  ASSERT_EQ(lines.size(), 7U) << answer.out;
  EXPECT_TRUE(contains(lines[0], ",w [m/s],phase,failure")) << lines[0];
  EXPECT_TRUE(contains(lines[1], ",compressed liquid,")) << lines[1];
  EXPECT_TRUE(contains(lines[3], ",saturated liquid,")) << lines[3];
  EXPECT_TRUE(contains(lines[4], ",saturated vapour,")) << lines[4];
  EXPECT_TRUE(contains(lines[5], ",superheated vapour,")) << lines[5];
  const auto liquid = numbersOf(lines[3].substr(0, lines[3].find(",saturated")));
  const auto vapour = numbersOf(lines[4].substr(0, lines[4].find(",saturated")));
  EXPECT_NEAR(liquid[0], 453.03, 0.1);
  EXPECT_EQ(liquid[0], vapour[0]);
  EXPECT_NEAR(liquid[3], 762.5, 0.5);
  EXPECT_NEAR(vapour[3], 2777.1, 2.0);

  const Answer down =
      calvex({"table", "isobar", "1", "--from", "470", "--to", "440", "--step", "-10", "--csv"});
  const auto downwards = linesOf(down.out);
  ASSERT_EQ(downwards.size(), 7U);
  EXPECT_EQ(downwards[3], lines[4]) << "the vapour comes first";
  EXPECT_EQ(downwards[4], lines[3]);
}

TEST(TableCommand, ALineOnTheSaturationLineGivesWayToTheTwoSaturatedStates) {
  const std::string key =
      std::to_string(numberAt(calvex({"TSatP", "1", "-s", "SatPolish=0", "--json"}).out, "pT"));
  for (const char* to : {"453.5", "460"}) {
    const Answer answer = calvex(
        {"table", "isobar", "1", "--from", key, "--to", to, "--step", "5", "-s", "SatPolish=0"});
    EXPECT_EQ(answer.status, 0) << answer.err;
    const auto lines = linesOf(answer.out);
    ASSERT_GE(lines.size(), 4U);
    EXPECT_TRUE(lines[2].ends_with("saturated liquid")) << answer.out;
    EXPECT_TRUE(lines[3].ends_with("saturated vapour")) << answer.out;
    for (std::size_t i = 4; i < lines.size(); ++i) {
      EXPECT_TRUE(lines[i].ends_with("superheated vapour")) << lines[i];
    }
  }
}

TEST(TableCommand, AnIsothermRunsOverPressures) {
  const Answer answer = calvex({"table", "isotherm", "300", "--from", "80", "--to", "100", "--step",
                                "10", "-u", "T=C", "-u", "P=bara", "--csv"});
  EXPECT_EQ(answer.status, 0) << answer.err;
  const auto lines = linesOf(answer.out);
  ASSERT_EQ(lines.size(), 6U) << answer.out;
  EXPECT_TRUE(lines[0].starts_with("P [bara],v [m^3/kg],")) << lines[0];
  EXPECT_TRUE(contains(lines[2], ",saturated vapour,")) << answer.out;
  EXPECT_TRUE(contains(lines[3], ",saturated liquid,")) << answer.out;
  EXPECT_NEAR(numbersOf(lines[2].substr(0, lines[2].find(",s")))[0], 85.9, 0.2);  // published
  EXPECT_EQ(calvex({"table", "isotherm", "--from", "1", "--to", "2", "--step", "1"}).status, 2);
  EXPECT_EQ(calvex({"table", "isotherm", "900", "--from", "1", "--to", "9", "--step", "4"}).status,
            0)
      << "no saturation line above the critical temperature";
}

TEST(TableCommand, JsonIsOneDocument) {
  const Answer answer =
      calvex({"table", "isobar", "30", "--from", "200", "--to", "800", "--step", "600", "--json"});
  EXPECT_EQ(answer.status, 1);
  const auto lines = linesOf(answer.out);
  ASSERT_EQ(lines.size(), 3U) << answer.out;
  EXPECT_EQ(lines[0],
            R"x({"table":"isobar","P":30,"units":{"T":"K","v":"m^3/kg","rho":"kg/m^3",)x"
            R"x("h":"kJ/kg","s":"kJ/(kg.K)","u":"kJ/kg","cp":"kJ/(kg.K)","w":"m/s","P":"MPa"},)x"
            R"x("rows":[)x");
  EXPECT_TRUE(contains(lines[1], R"({"T":200,"failure":"Temperature)")) << lines[1];
  EXPECT_TRUE(lines[2].starts_with(R"({"T":800,"v":0.0)")) << lines[2];
  EXPECT_TRUE(lines[2].ends_with(R"("phase":"supercritical fluid"}]})")) << lines[2];
  EXPECT_NEAR(numberAt(lines[2], "h"), numberAt(calvex({"HPT", "30", "800", "--json"}).out, "pH"),
              1e-9);
  const Answer empty =
      calvex({"table", "saturation", "--from", "1", "--to", "1", "--step", "1", "--json"});
  EXPECT_TRUE(contains(empty.out, R"("T":"K","P":"MPa","v_liq":)")) << empty.out;
  EXPECT_TRUE(contains(empty.out, R"({"T":1,"failure":)")) << empty.out;
}

TEST(TableCommand, WarnsOnceOfWhatManyLinesShare) {
  const Answer answer =
      calvex({"table", "isobar", "1", "--from", "1300", "--to", "1500", "--step", "50"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_EQ(answer.err,
            "calvex: warning: Temperature parameter out of strictly valid range. Strictly valid: "
            "273.15 K to 1273.15 K.\n");
}

// A terminal would break lines of 14 columns in the middle of a number.
TEST(TableCommand, StandsInPartsOnANarrowTerminal) {
  const Words words = {"table", "saturation", "--from", "300", "--to", "400", "--step", "100"};
  const std::vector<std::string> wide = linesOf(calvex(words).out);
  for (const std::size_t lineWidth : {20U, 40U, 80U, 120U, 181U, 182U, 500U}) {
    std::istringstream in;
    std::ostringstream out, err;
    Console console{in, out, err, true};
    console.outWidth = lineWidth;
    ASSERT_EQ(static_cast<int>(runCommandLine(words, console)), 0) << err.str();
    const std::vector<std::string> lines = linesOf(out.str());
    EXPECT_EQ(lines == wide, lineWidth >= 14 * 13);
    // Put together again: each part after the first without its key.
    std::vector<std::string> together(wide.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
      EXPECT_LE(lines[i].size(), std::max<std::size_t>(lineWidth, 26)) << lines[i];
      const std::size_t row = i % (wide.size() + 1);
      if (row == wide.size()) {
        EXPECT_EQ(lines[i], "") << "between parts";
        continue;
      }
      EXPECT_EQ(lines[i].substr(0, 13), wide[row].substr(0, 13));
      together[row] += i < wide.size() ? lines[i] : lines[i].substr(13);
    }
    EXPECT_EQ(together, wide) << lineWidth;
    if (lineWidth == 80) {
      // Columns of one property together.
      EXPECT_TRUE(contains(
          out.str(), " T            P        v_liq        v_vap        u_liq        u_vap\n"));
      EXPECT_TRUE(contains(out.str(), " T        h_liq         h_fg        h_vap\n"));
    }
  }
}

TEST(TableCommand, ShowsThePhaseBesideItsLastPart) {
  std::istringstream in;
  std::ostringstream out, err;
  Console console{in, out, err, true};
  console.outWidth = 60;
  const Words words = {"table", "isobar", "10", "--from", "500", "--to", "500", "--step", "1"};
  ASSERT_EQ(static_cast<int>(runCommandLine(words, console)), 0) << err.str();
  const std::vector<std::string> lines = linesOf(out.str());
  int phases = 0;
  for (const std::string& line : lines) phases += contains(line, "compressed liquid") ? 1 : 0;
  EXPECT_EQ(phases, 1);
  EXPECT_TRUE(lines.back().ends_with("  compressed liquid")) << out.str();
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

TEST(Progress, StaysSilentUnlessItIsShown) {
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
