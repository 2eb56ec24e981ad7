// calvex members [WORDS]
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <ostream>

#include "call.h"
#include "command_line.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "member_help.h"
#include "output.h"
#include "server/member_explanations.h"
#include "server/suggestions.h"

namespace calvex::cli {

namespace {

/// `*` any characters, `?` one; both in the same case.
bool matchesGlob(std::string_view text, std::string_view pattern) {
  std::size_t t = 0, p = 0;
  std::size_t star = std::string_view::npos, resume = 0;  // the last `*` and what it took so far
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = t;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t])) {
      ++t;
      ++p;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      t = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

bool nameMatches(std::string_view name, std::string_view pattern) {
  const std::string lowerName = lowerCase(name);
  const std::string lowerPattern = lowerCase(pattern);
  if (pattern.find_first_of("*?") != std::string_view::npos) {
    return matchesGlob(lowerName, lowerPattern);
  }
  return lowerName.find(lowerPattern) != std::string::npos;
}

// The words of a text in small letters.
Words wordsIn(std::string_view text) {
  Words words(1);
  for (const char c : lowerCase(text)) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    if (letter) words.back() += c;
    if (!letter && !words.back().empty()) words.emplace_back();
  }
  if (words.back().empty()) words.pop_back();
  return words;
}

// The words that are looked for: of "heat of evaporation" the first and the last.
Words wantedIn(std::string_view text) {
  constexpr std::string_view fillers[] = {"a", "an", "and", "at", "for", "in", "of", "the"};
  const Words all = wordsIn(text);
  Words wanted;
  std::ranges::copy_if(all, std::back_inserter(wanted), [&](const std::string& word) {
    return std::ranges::find(fillers, word) == std::end(fillers);
  });
  return wanted.empty() ? all : wanted;
}

// Whether each of the words begins one of the text's.
bool mentions(std::string_view text, const Words& wanted) {
  const Words present = wordsIn(text);
  return std::ranges::all_of(wanted, [&](const std::string& word) {
    return std::ranges::any_of(present,
                               [&](const std::string& one) { return one.starts_with(word); });
  });
}

struct Found {
  const Member* member;
  MemberExplanation explained;
};

// What a member answers, in words.
std::string answerWords(const Found& found) {
  const std::string& title = found.explained.title;
  std::string text =
      fmt::format("{} {}", title.substr(0, title.find(" from ")), found.explained.other);
  for (std::size_t i = 0; i < found.explained.parameters.size(); ++i) {
    if (found.member->parameters()[i].isOutput())
      text += fmt::format(" {}", found.explained.parameters[i].words);
  }
  for (const spreadsheet::Token& token : tokensOf(*found.member)) {
    text += fmt::format(" {}", tokenWords(*found.member, token));
  }
  return text;
}

// All that is said of a member.
std::string allWords(const Found& found) {
  std::string text =
      fmt::format("{} {} {}", answerWords(found), found.explained.title, found.explained.notes);
  for (const ParameterExplanation& parameter : found.explained.parameters) {
    text += fmt::format(" {}", parameter.words);
  }
  return text;
}

std::string list(const std::vector<Found>& members) {
  std::string text;
  std::size_t longest = 0;
  for (const Found& found : members) longest = std::max(longest, found.member->name.size());
  for (int i = 0; i < memberHeadingCount; ++i) {
    const auto heading = MemberHeading(i);
    bool first = true;
    for (const Found& found : members) {
      if (found.explained.heading != heading) continue;
      if (first) text += fmt::format("{}{}\n", text.empty() ? "" : "\n", headingText(heading));
      first = false;
      text += fmt::format("  {:{}}  {}\n", found.member->name, longest, found.explained.title);
    }
  }
  return text;
}

std::string search(const std::string& pattern) {
  std::vector<Found> all, found, others;
  for (const Member& member : memberTable()) all.push_back({&member, explanation(member)});
  const Words wanted = wantedIn(pattern);
  for (const Found& one : all) {
    const bool underHeading = mentions(headingText(one.explained.heading), wanted);
    if (nameMatches(one.member->name, pattern) ||
        (!wanted.empty() && (underHeading || mentions(answerWords(one), wanted)))) {
      found.push_back(one);
    } else if (!wanted.empty() && mentions(allWords(one), wanted)) {
      others.push_back(one);
    }
  }
  if (found.empty()) return list(others);
  std::string text = list(found);
  if (others.empty()) return text;
  std::string names = "also in the inputs or notes of";
  for (const Found& one : others) names += fmt::format(" {}", one.member->name);
  return fmt::format("{}\n{}", text, wrapped(names));
}

// Of words that no member answers: those that none has at all, and the nearest that some have.
[[noreturn]] void refuse(const std::string& pattern) {
  Words known;
  for (const Member& member : memberTable()) {
    known.emplace_back(member.name);
    for (std::string& word : wordsIn(allWords({&member, explanation(member)}))) {
      if (word.size() > 3) known.push_back(std::move(word));
    }
  }
  const Words wanted = wantedIn(pattern);
  std::string text;
  for (const std::string& word : wanted) {
    const bool present = std::ranges::any_of(
        known, [&](const std::string& one) { return lowerCase(one).starts_with(word); });
    if (present) continue;
    Words near;  // of ordinary words many are near, and few are meant
    for (const std::string& one : nearest(word, known)) {
      if (editDistance(word, one) <= 1 + word.size() / 8) near.push_back(one);
    }
    text += fmt::format("{}nothing answers {}{}", text.empty() ? "" : "\n",
                        inQuotes(wanted.size() == 1 ? pattern : word), didYouMean(word, near));
  }
  if (text.empty()) text = fmt::format("nothing answers {} together", inQuotes(pattern));
  throw UsageError(text + "\n'calvex members' lists all members");
}

}  // namespace

ExitStatus membersCommand(const Words& words, Console& console) {
  CommandOptions app("members", "members [WORDS] [-u GROUP=UNIT]",
                     "Lists members under headings, finds them by words, or explains one.");
  app.footer(
      "Examples:\n"
      "  calvex members                       all\n"
      "  calvex members enthalpy              those that answer an enthalpy\n"
      "  calvex members saturation pressure   those that answer a saturation pressure\n"
      "  calvex members 'h*t*'                those whose name matches\n"
      "  calvex members HPT -u T=C            explains one, in Celsius");
  Words wanted;
  ClientOptions options;
  app.add_option("WORDS", wanted,
                 "A member's name, a part of it, a pattern with * and ?, or words, in any case")
      ->type_name("");
  options.addUnitsTo(app);
  if (!parse(app, words, console)) return ExitStatus::ok;

  const std::string pattern = fmt::format("{}", fmt::join(wanted, " "));
  if (const Member* member = findMember(pattern)) {
    console.out << memberHelp(*member, options);
    return ExitStatus::ok;
  }
  const std::string text = search(pattern);
  if (text.empty()) refuse(pattern);
  console.out << text;
  return ExitStatus::ok;
}

}  // namespace calvex::cli
