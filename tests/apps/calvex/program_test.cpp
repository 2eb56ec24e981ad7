// The program itself, started as a user starts it.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/checkout.h"

namespace {

struct Finished {
  int status;
  std::string out;
  std::string err;
};

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

/// `arguments` are a shell's.
Finished calvex(const std::string& arguments) {
  const std::string base = testing::TempDir() + "calvex_cli_" + std::to_string(getpid());
  const std::string command =
      std::string(CALVEX_CLI) + " " + arguments + " >" + base + ".out 2>" + base + ".err";
  const int status = std::system(command.c_str());
  Finished run{WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(base + ".out"),
               contentOf(base + ".err")};
  unlink((base + ".out").c_str());
  unlink((base + ".err").c_str());
  return run;
}

TEST(Program, AnswersTheFirstQuestion) {
  const Finished run = calvex("HPT 10 773.15");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "H = 3373.998049 kJ/kg  enthalpy\n");
  EXPECT_EQ(run.err, "");
}

TEST(Program, ExitStatusIsOneWhenACallFailed) {
  const Finished run = calvex("HPT 10 99999");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err.find("calvex: HPT failed: Temperature parameter out of range"), 0U) << run.err;
}

TEST(Program, ExitStatusIsTwoForUsageErrors) {
  for (const char* arguments : {"", "HTP 1 2", "HPT 10", "HPT 10 nan", "HPT 1 2 -u P=psix",
                                "HPT 1 2 -s X=1", "convert P", "table", "run /no/such/file"}) {
    const Finished run = calvex(arguments);
    EXPECT_EQ(run.status, 2) << arguments;
    EXPECT_EQ(run.out, "") << arguments;
    EXPECT_EQ(run.err.find("calvex: "), 0U) << run.err;
  }
}

TEST(Program, UnitsAreTypedInUtf8) {
  EXPECT_EQ(calvex("HPT 10000000 500 -u 'P=N/m\u00B2' -u T=C").out,
            "H = 3373.998049 kJ/kg  enthalpy\n");
  EXPECT_EQ(calvex("convert P 1 'ft H2O' 'N/m\u00B2'").out, "1 ft H2O = 2989.07 N/m\u00B2\n");
}

TEST(Program, RunsAScriptFromAFileAndFromStandardInput) {
  EXPECT_EQ(calvex("run - </dev/null").status, 0);
  const std::string path = testing::TempDir() + "calvex_cli_script_" + std::to_string(getpid());
  std::ofstream(path) << "TraceLevel\nHPT 10 99999\n";
  const Finished run = calvex("run --json " + path);
  EXPECT_EQ(calvex("run --json < " + path).out, run.out);
  unlink(path.c_str());
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(
      run.out.find("{\"member\":\"TraceLevel\",\"hresult\":0,\"value\":1}\n{\"member\":\"HPT\""),
      0U)
      << run.out;
  EXPECT_EQ(run.err.find("calvex: line 2: HPT failed"), 0U) << run.err;
}

TEST(Program, OutputThatCannotBeWrittenIsAFailure) {
  const std::string command = std::string(CALVEX_CLI) + " members >/dev/full 2>/dev/null";
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
}

// A shell that is not installed proves nothing; bash always is.
TEST(Program, CompletionsAreScriptsOfTheirShells) {
  for (const std::string shell : {"bash", "zsh", "fish"}) {
    const Finished script = calvex("completion " + shell);
    EXPECT_EQ(script.status, 0);
    EXPECT_NE(script.out.find(" HPT "), std::string::npos) << script.out;
    EXPECT_EQ(script.out.find('@'), script.out.find("[@]") == std::string::npos
                                        ? std::string::npos
                                        : script.out.find("[@]") + 1)
        << "a list is missing";
    if (std::system(("command -v " + shell + " >/dev/null").c_str()) != 0) continue;
    const std::string check =
        std::string(CALVEX_CLI) + " completion " + shell + " | " + shell + " -n /dev/stdin";
    EXPECT_EQ(std::system(check.c_str()), 0) << shell;
  }
  EXPECT_EQ(calvex("completion tcsh").status, 2);
}

TEST(Program, BashCompletesMembersAndQuantities) {
  const auto completed = [](const std::string& words, int at) {
    const std::string base = testing::TempDir() + "calvex_completed_" + std::to_string(getpid());
    std::ofstream(base + ".bash") << "source <(" CALVEX_CLI " completion bash)\nCOMP_WORDS=("
                                  << words << ")\nCOMP_CWORD=" << at
                                  << "\n_calvex\necho \"${COMPREPLY[*]}\"\n";
    EXPECT_EQ(std::system(("bash " + base + ".bash >" + base + ".out").c_str()), 0);
    const std::string answer = contentOf(base + ".out");
    unlink((base + ".bash").c_str());
    unlink((base + ".out").c_str());
    return answer;
  };
  EXPECT_EQ(completed("calvex HVLT", 1), "HVLTSat_PQ\n");
  EXPECT_EQ(completed("calvex HPT 10 500 -u Effi", 5), "Efficiency=\n");
  EXPECT_EQ(completed("calvex HPT 10 500 -s SatP", 5), "SatPolish=\n");
  EXPECT_EQ(completed("calvex HPT 10 500 --no", 4), "--no-config\n");
  EXPECT_EQ(completed("calvex table iso", 2), "isobar isotherm\n");
  EXPECT_EQ(completed("calvex sta", 1), "state\n");
  EXPECT_EQ(completed("calvex state T", 2), "T=\n");
  // The options are each command's own, and no member's.
  EXPECT_EQ(completed("calvex batch plant.csv --se", 3), "--set --separator\n");
  EXPECT_EQ(completed("calvex batch plant.csv --dec", 3), "--decimal-comma\n");
  EXPECT_EQ(completed("calvex batch plant.csv --json", 3), "\n");
  EXPECT_EQ(completed("calvex table isobar 10 --f", 4), "--from\n");
  EXPECT_EQ(completed("calvex HPT 10 500 --f", 4), "\n");
  EXPECT_EQ(completed("calvex batch plant.csv --separator s", 4), "semicolon\n");
  EXPECT_EQ(completed("calvex config Effi", 2), "Efficiency=\n");
  EXPECT_EQ(completed("calvex config --cl", 2), "--clear\n");
  const std::string folder = testing::TempDir() + "calvex_files_" + std::to_string(getpid());
  ASSERT_EQ(mkdir(folder.c_str(), 0700), 0);
  std::ofstream(folder + "/plant.csv") << "P\n";
  for (const std::string before : {"batch", "run", "batch x.csv -o", "plot hs --output"}) {
    const auto words = static_cast<int>(std::ranges::count(before, ' ')) + 2;
    EXPECT_EQ(completed("calvex " + before + " " + folder + "/pl", words), folder + "/plant.csv\n")
        << before;
  }
  unlink((folder + "/plant.csv").c_str());
  rmdir(folder.c_str());
}

TEST(Program, TheManualPageNamesEveryCommandAndOption) {
  const std::string page = contentOf(calvex::test::docsFolder() + "/calvex.1");
  std::istringstream help(calvex("--help").out);
  int commands = 0;
  std::string line;
  while (std::getline(help, line) && line != "Commands:") {
  }
  while (std::getline(help, line) && line.starts_with("  ")) {
    const std::string name = line.substr(2, line.find(' ', 2) - 2);
    EXPECT_NE(page.find("\n.B " + name), std::string::npos) << name;
    ++commands;
  }
  EXPECT_GE(commands, 10);
  for (const char* option : {"\\-u", "\\-s", "\\-\\-json", "\\-\\-trace", "\\-\\-no\\-config"}) {
    EXPECT_NE(page.find(option), std::string::npos) << option;
  }
  if (std::system("command -v man >/dev/null") == 0) {
    const std::string lint =
        "LC_ALL=C.UTF-8 MANROFFSEQ= MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z " +
        calvex::test::docsFolder() + "/calvex.1 2>&1 >/dev/null | grep -q .";
    EXPECT_NE(std::system(lint.c_str()), 0) << "man has something to say about it";
  }
}

TEST(Program, StartsWithinFiftyMilliseconds) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "sanitizers are slow to start";
#endif
  double best = 1e9;
  for (int i = 0; i < 10; ++i) {
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(calvex("HPT 10 773.15").status, 0);
    best = std::min(
        best, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                  .count());
  }
  EXPECT_LT(best, 50.0);
}

// A stand-in for Python, which tells what it was given.
TEST(Program, PlotHandsDiagramUnitsAndFileToPython) {
  const std::string python = testing::TempDir() + "calvex_python_" + std::to_string(getpid());
  std::ofstream(python) << "#!/bin/sh\nshift 2\necho \"$@\"\nexit ${PLOT_STATUS:-0}\n";
  std::filesystem::permissions(python, std::filesystem::perms::owner_all);
  setenv("CALVEX_PYTHON", python.c_str(), 1);
  const Finished drawn = calvex("--no-config plot hs -u T=C -o x.svg --dark");
  EXPECT_EQ(drawn.status, 0) << drawn.err;
  EXPECT_EQ(drawn.out, "hs -o x.svg --dark -u T=C\n");
  setenv("PLOT_STATUS", "90", 1);
  const Finished missing = calvex("--no-config plot hs -o x.svg");
  EXPECT_EQ(missing.status, 1);
  EXPECT_NE(missing.err.find("plot needs the Python package calvex"), std::string::npos)
      << missing.err;
  unsetenv("PLOT_STATUS");
  setenv("CALVEX_PYTHON", "/no/such/python", 1);
  EXPECT_NE(calvex("plot hs -o x.svg").err.find("'/no/such/python' does not start"),
            std::string::npos);
  for (const char* wrong : {"plot", "plot hs", "plot xy -o x.svg", "plot hs -o x.svg -u T=Grad"}) {
    EXPECT_EQ(calvex(wrong).status, 2) << wrong;
  }
  unsetenv("CALVEX_PYTHON");
  std::filesystem::remove(python);
}

}  // namespace
