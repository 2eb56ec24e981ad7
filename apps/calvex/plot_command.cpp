// calvex plot DIAGRAM -o FILE: the Python package draws.
#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "client.h"
#include "command_line.h"
#include "environment.h"
#include "system_words.h"
#ifndef _WIN32
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace calvex::cli {

namespace {

// What Python runs, with the words after it. A status of its own tells that the package is missing.
constexpr int packageMissing = 90;
constexpr const char* program =
    "import sys\n"
    "try:\n"
    "    from calvex.plot import main\n"
    "except ImportError:\n"
    "    sys.exit(90)\n"
    "sys.exit(main(sys.argv[1:]))\n";

// The exit status, or nothing where there is no such program.
std::optional<int> run([[maybe_unused]] const Words& command) {
#ifdef _WIN32
  return packageMissing;  // the package is not made for Windows
#else
  std::vector<char*> words;
  words.reserve(command.size() + 1);
  for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawnp(&child, words[0], nullptr, nullptr, words.data(), environ) != 0) {
    return std::nullopt;
  }
  int status = 0;
  if (waitpid(child, &status, 0) < 0 || !WIFEXITED(status)) return EXIT_FAILURE;
  return WEXITSTATUS(status);
#endif
}

}  // namespace

ExitStatus plotCommand(const Words& words, Console& console) {
  CommandOptions app("plot", "plot Ts|hs|logph|Pv -o FILE [-u GROUP=UNIT] [--dark]",
                     "Draws a diagram of water and steam in your units: temperature over entropy, "
                     "enthalpy over\nentropy (Mollier), pressure over enthalpy or over volume.");
  app.footer(
      fmt::format("Examples:\n"
                  "  calvex plot hs -u T=C -u P=bar -o mollier.svg\n"
                  "  calvex plot Ts --dark -o page.png\n"
                  "It needs {}",
                  here::pythonPackage));
  std::string output;
  bool dark = false;
  ClientOptions options;
  app.add_option("-o,--output", output, "Where to: .svg, .png or .pdf").type_name("FILE");
  app.add_flag("--dark", dark, "For a dark page");
  options.addUnitsTo(app);
  const std::optional<Words> rest = parseAround(app, words, console);
  if (!rest) return ExitStatus::ok;
  constexpr std::string_view diagrams[] = {"Ts", "hs", "logph", "Pv"};
  if (rest->size() != 1 || std::ranges::find(diagrams, rest->front()) == std::end(diagrams)) {
    throw UsageError(
        "plot takes one diagram: Ts, hs, logph or Pv, as in 'calvex plot hs -o x.svg'");
  }
  if (output.empty()) {
    throw UsageError("plot needs a file: 'calvex plot " + rest->front() + " -o " + rest->front() +
                     ".svg'");
  }
  Client client;
  options.applyTo(client);  // refuses what is no unit

  // The first Python on the path may not be the system's, for which packages are installed.
  const auto chosen = environmentVariable("CALVEX_PYTHON");
  const Words pythons = chosen ? Words{*chosen} : Words{"python3", "/usr/bin/python3"};
  std::optional<int> status;
  console.out.flush();
  for (const std::string& python : pythons) {
    Words command = {python, "-c", program, rest->front(), "-o", output};
    if (dark) command.emplace_back("--dark");
    for (const std::string& unit : options.units) command.insert(command.end(), {"-u", unit});
    status = run(command);
    if (status && *status != packageMissing) break;
  }
  if (!status) {
    throw Failure(ExitStatus::callFailed,
                  fmt::format("'{}' does not start; CALVEX_PYTHON names the Python to draw with",
                              pythons.back()));
  }
  if (*status == packageMissing) {
    throw Failure(ExitStatus::callFailed, fmt::format("plot needs {}", here::pythonPackage));
  }
  return *status == 0 ? ExitStatus::ok : ExitStatus::callFailed;
}

}  // namespace calvex::cli
