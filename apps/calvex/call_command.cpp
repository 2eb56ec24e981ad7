// calvex MEMBER ARGUMENT...
#include <fmt/format.h>

#include <ostream>

#include "command_line.h"
#include "diagnostics/formatting.h"
#include "output.h"

namespace calvex::cli {

namespace {

// For a shell: as it is, or in quotes.
std::string forShell(const std::string& word) {
  const bool plain = word.find_first_of(" ()*'^%\"") == std::string::npos;
  return plain ? word : fmt::format("'{}'", word);
}

// A call that only changes units or settings changes those of an object that is gone then.
std::string whatLasts(const Call& call, const Words& words) {
  const std::string_view name = call.member->name;
  std::string option, assignment;
  if (call.isPut) {
    option = "-s";
    assignment = fmt::format("{}={}", name, words[1]);
  } else if (name == "SetUserUnit" || name == "SetUserUnitIndex") {
    option = "-u";
    assignment = fmt::format("{}={}", row(*call.choice.group).keywords.front(),
                             call.choice.units.front()->name);
  } else {
    return {};
  }
  return fmt::format(
      "calvex: {0} has no lasting effect: it ends with this call. What lasts:\n"
      "  calvex {1} {2} MEMBER ...    for one call\n"
      "  calvex config {2}    for every call\n"
      "  calvex run    for the lines of a script, or of a shell\n",
      name, option, forShell(assignment));
}

ExitStatus callMember(const Words& words, const ClientOptions& options, Console& console) {
  Client client;
  options.applyTo(client);
  const Member& member = memberNamed(words.front());
  const Outcome outcome =
      perform(client, prepare(member, std::span(words).subspan(1), client.units()));
  const ZvFunctionCall& root = client.engine().diagnostics().root();
  if (options.json) {
    fmt::print(console.out, "{}\n",
               outcomeJson(outcome, client.units(), options.trace ? &root : nullptr));
  } else {
    console.out << outcomeText(outcome, client.units());
    if (options.trace) console.out << traceText(root);
  }
  for (const std::string& warning : outcome.warnings) warn(console, warning);
  if (outcome.succeeded()) {
    warn(console, outcome.call.choice.warning);
    if (!options.json) console.err << whatLasts(outcome.call, words);
    return ExitStatus::ok;
  }
  complain(console, failureText(outcome));
  if (!outcome.cause.empty()) fmt::print(console.err, "{}\n", outcome.cause);
  if (!member.isProperty && !inputs(member).empty()) {
    fmt::print(console.err, "{} takes {}\n", member.name, describeInputs(member, client.units()));
  }
  if (const std::string help = hint(outcome); !help.empty()) {
    fmt::print(console.err, "{}\n", help);
  }
  return ExitStatus::callFailed;
}

}  // namespace

ExitStatus callCommand(const Words& words, Console& console) {
  CommandOptions app("", "MEMBER ARGUMENT... [OPTIONS]", "Calls a member of the engine.");
  ClientOptions options;
  options.addUnitsTo(app);
  options.addSettingsTo(app);
  options.addOutputTo(app);
  // The help of a call is that of its member.
  app.set_help_flag();
  bool help = false;
  app.add_flag("-h,--help", help, "Explain the member");
  const std::optional<Words> call = parseAround(app, words, console);
  if (!call) return ExitStatus::ok;
  if (help) {
    Words about = {std::string(memberNamed(words.front()).name)};
    for (const std::string& unit : options.units) about.insert(about.end(), {"-u", unit});
    return membersCommand(about, console);
  }
  try {
    return callMember(*call, options, console);
  } catch (const Failure& failure) {
    if (options.json) fmt::print(console.out, "{}\n", errorJson(failure.what()));
    throw;
  }
}

}  // namespace calvex::cli
