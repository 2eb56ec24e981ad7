#include "command_options.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>

#include "client.h"
#include "command_line.h"
#include "encoding.h"
#include "server/suggestions.h"

namespace calvex::cli {

namespace {

[[noreturn]] void refuseOption(const CommandOptions& options, std::string_view word) {
  throw UsageError(
      fmt::format("there is no option {}\n'{}' lists them", inQuotes(word), options.helpCommand()));
}

// What the console starts with, as far as the command knows such options.
Words startingWords(const CLI::App& app, const Console& console) {
  Words words;
  const StartingOptions start = console.startingOptions();
  const auto add = [&](const char* option, const Words& values) {
    if (app.get_option_no_throw(option) == nullptr) return;
    for (const std::string& value : values) words.insert(words.end(), {option, value});
  };
  add("--unit", start.units);
  add("--set", start.settings);
  return words;
}

}  // namespace

Option& Option::required() {
  option_->required();
  return *this;
}

Option& Option::type_name(const std::string& name) {
  option_->type_name(name);
  return *this;
}

Option& Option::allow_extra_args(bool allowed) {
  option_->allow_extra_args(allowed);
  return *this;
}

CommandOptions::CommandOptions(const std::string& name, const std::string& usage,
                               const std::string& description)
    : app_(std::make_unique<CLI::App>(description, name)) {
  class Formatter : public CLI::Formatter {
   public:
    explicit Formatter(const std::string& form) : usage_("usage: calvex " + form + "\n") {
      column_width(30);
    }
    std::string make_usage(const CLI::App* /*app*/, std::string /*name*/) const override {
      return usage_;
    }

   private:
    std::string usage_;
  };
  app_->formatter(std::make_shared<Formatter>(usage));
}

CommandOptions::~CommandOptions() = default;

void CommandOptions::footer(const std::string& text) { app_->footer(text); }
void CommandOptions::set_help_flag() { app_->set_help_flag(); }

Option CommandOptions::add_flag(const std::string& names, bool& value, const std::string& meaning) {
  return Option(*app_->add_flag(names, value, meaning));
}

Option CommandOptions::add_option(const std::string& names, std::string& value,
                                  const std::string& meaning) {
  return Option(*app_->add_option(names, value, meaning));
}

Option CommandOptions::add_option(const std::string& names, Words& values,
                                  const std::string& meaning) {
  return Option(*app_->add_option(names, values, meaning));
}

std::size_t CommandOptions::count(const std::string& name) const { return app_->count(name); }

std::string CommandOptions::helpCommand() const {
  const std::string name = app_->get_name();
  return name.empty() ? "calvex --help" : "calvex help " + name;
}

bool parse(CommandOptions& options, const Words& words, Console& console) {
  CLI::App& app = *options.app_;
  const CLI::Option* const units = app.get_option_no_throw("--unit");
  Words all;
  if (units != nullptr && options.takesStartingOptions && console.startingOptions) {
    all = startingWords(app, console);
  }
  all.insert(all.end(), words.begin(), words.end());
  std::ranges::reverse(all);  // as the library wants them
  try {
    app.parse(std::move(all));
  } catch (const CLI::CallForHelp&) {
    console.out << app.help();
    return false;
  } catch (const CLI::ParseError& error) {
    const Words rest = app.remaining();
    const auto option =
        std::ranges::find_if(rest, [](const std::string& word) { return word.starts_with("-"); });
    if (option != rest.end()) refuseOption(options, *option);
    throw UsageError(fmt::format("{}\n'{}' explains it", error.what(), options.helpCommand()));
  }
  if (units != nullptr) {
    for (const std::string& choice : units->results()) warn(console, unitWarning(choice));
  }
  if (const CLI::Option* const settings = app.get_option_no_throw("--set")) {
    for (const std::string& choice : settings->results()) warn(console, settingWarning(choice));
  }
  return true;
}

std::optional<Words> parseAround(CommandOptions& options, const Words& words, Console& console) {
  const auto mark = std::ranges::find(words, "--");
  options.app_->allow_extras();
  if (!parse(options, Words(words.begin(), mark), console)) return std::nullopt;
  Words rest = options.app_->remaining();
  for (const std::string& word : rest) {
    // What begins like a number is one, or refused as one with a better reason (-inf).
    const std::string letters = lowerCase(word).substr(0, 4);
    const bool number =
        word.size() > 1 && std::string_view(".0123456789").find(word[1]) != std::string_view::npos;
    if (word.starts_with('-') && word.size() > 1 && !number && letters != "-inf" &&
        letters != "-nan") {
      refuseOption(options, word);
    }
  }
  if (mark != words.end()) rest.insert(rest.end(), mark + 1, words.end());
  return rest;
}

}  // namespace calvex::cli
