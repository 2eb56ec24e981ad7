// calvex MEMBER ARGUMENT...
#include <fmt/format.h>

#include <ostream>

#include "command_line.h"
#include "diagnostics/formatting.h"
#include "output.h"

namespace calvex::cli {

namespace {

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
  fmt::print(console.err, "{}", warningText(outcome));
  if (outcome.succeeded()) return ExitStatus::ok;
  fmt::print(console.err, "calvex: {}\n", failureText(outcome));
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
