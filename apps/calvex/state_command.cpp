// calvex state P=10 T=500
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>
#include <ostream>

#include "call.h"
#include "command_line.h"
#include "csv.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "json.h"
#include "numbers.h"
#include "output.h"
#include "quantities.h"
#include "water.h"

namespace calvex::cli {

namespace {

constexpr std::string_view propertyLetters = "PTVRHSUQAGCDWZMKNEIJBL";
constexpr std::string_view saturationLetters = "VRHSUC";
constexpr std::string_view transportLetters = "MKNE";  // their equations have ranges of their own

bool has(std::string_view letters, char letter) {
  return letters.find(letter) != std::string_view::npos;
}

constexpr const char* usageHint = "state takes two properties, as in 'calvex state P=10 T=773.15'";

// What is wrong with words that are not two names and two values.
std::string whatIsWrong(const Words& words, const Words& pieces) {
  const auto isNumber = [](const std::string& word) {
    return readNumber(word).fault == NumberFault::none || !unitBehind(word).empty();
  };
  for (const std::string& word : words) {
    if (word.find('=') != word.rfind('=') && word.find_first_of(",;") != std::string::npos) {
      return fmt::format("{} holds more than one property: a blank stands between them, not a '{}'",
                         inQuotes(word), word[word.find_first_of(",;")]);
    }
  }
  for (std::size_t i = 0; i < pieces.size(); i += 2) {
    if (!isNumber(pieces[i])) continue;
    return fmt::format("{} lacks the name of its property, as in P={}", inQuotes(pieces[i]),
                       pieces[i]);
  }
  if (pieces.size() > 4) {
    return fmt::format("{} properties are too many", (pieces.size() + 1) / 2);
  }
  if (pieces.size() % 2 != 0) return fmt::format("{} lacks its value", inQuotes(pieces.back()));
  return pieces.size() == 2 ? "one property is not enough" : "";
}

// NAME=VALUE or NAME VALUE, twice.
std::vector<Given> readInputs(const Words& words, const UserUnits& units) {
  Words pieces;
  for (const std::string& word : words) {
    const std::size_t sign = word.find('=');
    for (const std::string& piece :
         {word.substr(0, sign), sign == std::string::npos ? "" : word.substr(sign + 1)}) {
      if (!piece.empty()) pieces.push_back(piece);
    }
  }
  const std::string wrong = whatIsWrong(words, pieces);
  if (pieces.size() != 4 || !wrong.empty()) {
    throw UsageError(fmt::format("{}{}{}\n'calvex help state' explains it", wrong,
                                 wrong.empty() ? "" : "; ", usageHint));
  }
  std::vector<Given> inputs;
  for (std::size_t i = 0; i < pieces.size(); i += 2) {
    const char letter = letterNamed(pieces[i]);
    try {
      inputs.push_back(
          {letter, valueWithUnit(pieces[i + 1], letterExplanation(letter).group, units)});
    } catch (const UsageError& error) {
      throw UsageError(fmt::format("{}: {}", pieces[i], error.what()));
    }
  }
  if (inputs[0].letter == inputs[1].letter) {
    throw UsageError(
        fmt::format("{} is given twice; {}", letterExplanation(inputs[0].letter).words, usageHint));
  }
  // P or T first; of both, P.
  const auto rank = [](const Given& given) { return stateLetters.find(given.letter); };
  std::ranges::sort(inputs, {}, rank);
  if (!has("PT", inputs[0].letter)) {
    throw UsageError(fmt::format(
        "{} and {} are not enough: one of the two properties must be the pressure P or the "
        "temperature T\n{}",
        letterExplanation(inputs[0].letter).words, letterExplanation(inputs[1].letter).words,
        usageHint));
  }
  return inputs;
}

struct Line {
  char letter;
  std::optional<double> value;
  std::string failure;
};

struct StateReport {
  std::string phase;
  std::vector<Line> lines;
  struct AtLine {
    char given;  ///< P or T, at which the line is
    Saturation line;
  };
  std::vector<AtLine> saturations;
};

double required(const Answer& answer) {
  if (!answer.value) throw Failure(ExitStatus::callFailed, answer.failure);
  return *answer.value;
}

// "R" of (P, H) is RPH.
Answer askPair(Water& water, char result, const std::vector<Given>& inputs) {
  return water.ask(std::string{result, inputs[0].letter, inputs[1].letter}, inputs);
}

// One phase: everything follows from temperature and density.
void addOnePhase(Water& water, StateReport& report, double P, double T, double density) {
  report.phase = phaseName(P, T, density);
  for (const char letter : propertyLetters) {
    if (letter == 'Q') continue;  // the phase says it
    std::string failure;
    if (has(transportLetters, letter)) {
      failure = water
                    .ask(std::string{letter, 'P', 'T'},
                         {{'P', water.toUser('P', P)}, {'T', water.toUser('T', T)}})
                    .failure;
      // That close to the line only the given pair tells the phase.
      if (failure.find(messageText(Message::twoPhase)) != std::string::npos) failure.clear();
    }
    if (!failure.empty()) {
      report.lines.push_back({letter, std::nullopt, failure});
    } else if (letter == 'P' || letter == 'T') {
      report.lines.push_back({letter, water.toUser(letter, letter == 'P' ? P : T), {}});
    } else {
      const double value = water.property(letter, T, density);
      if (value <= 0.0 && has("CD", letter)) water.warnOf(unstableWater);
      if (std::isfinite(value)) {
        report.lines.push_back({letter, value, {}});
      } else {
        report.lines.push_back({letter, std::nullopt, std::string(unstableWater)});
      }
    }
  }
}

// Two phases: a mixture has no heat capacity, speed of sound or viscosity.
void addTwoPhases(Water& water, StateReport& report, Given key, double quality) {
  const double fraction = water.toModel('Q', quality);
  report.phase = fraction == 0.0   ? "saturated liquid"
                 : fraction == 1.0 ? "saturated vapour"
                                   : "wet steam, a mixture of liquid and vapour";
  std::string failure;
  const std::optional<Saturation> line = saturationAt(water, key, &failure);
  if (!line) throw Failure(ExitStatus::callFailed, failure);
  for (const char letter : std::string_view("PTVRHSU")) {
    const bool onLine = letter == 'P' || letter == 'T';
    const std::string member = fmt::format("{}Sat{}Q", letter, key.letter);
    const double value = onLine ? water.toUser(letter, letter == 'P' ? line->P : line->T)
                                : required(water.ask(member, {key, {'Q', quality}}));
    report.lines.push_back({letter, value, {}});
  }
  report.lines.push_back({'Q', quality, {}});
  report.saturations.push_back({key.letter, *line});
}

StateReport report(Water& water, const std::vector<Given>& inputs) {
  const Given key = inputs[0];
  const Given other = inputs[1];
  StateReport state;
  if (other.letter == 'Q') {
    addTwoPhases(water, state, key, other.value);
    return state;
  }
  std::optional<double> quality;
  if (other.letter != 'T') quality = required(askPair(water, 'Q', inputs));
  if (quality) {
    const double fraction = water.toModel('Q', *quality);
    if (fraction > 0.0 && fraction < 1.0) {
      addTwoPhases(water, state, key, *quality);
      return state;
    }
  }
  const auto model = [&](char letter) {
    for (const Given& given : inputs) {
      if (given.letter == letter) return water.toModel(letter, given.value);
    }
    if (letter == 'R' && other.letter == 'V') return 1.0 / water.toModel('V', other.value);
    return water.toModel(letter, required(askPair(water, letter, inputs)));
  };
  const double P = model('P');
  const double T = model('T');
  addOnePhase(water, state, P, T, model('R'));
  for (const Given& at : {Given{'P', water.toUser('P', P)}, Given{'T', water.toUser('T', T)}}) {
    if (const std::optional<Saturation> line = saturationAt(water, at)) {
      state.saturations.push_back({at.letter, *line});
    }
  }
  return state;
}

std::string refusal(const Water& water, const std::vector<Given>& inputs, std::string_view reason) {
  const auto shown = [&](const Given& given) {
    const std::string unit = water.unit(given.letter);
    return fmt::format("{} = {} {}", given.letter, readableText(given.value), unit);
  };
  const std::string_view twoPhase = messageText(Message::twoPhase);
  if (reason.starts_with(twoPhase)) {
    return fmt::format(
        "{} and {}: {}\nthey lie on the saturation line: give one of them with a quality, as in "
        "'calvex state P={} Q=0.5'",
        shown(inputs[0]), shown(inputs[1]), twoPhase, readableText(inputs[0].value));
  }
  return fmt::format("no state has {} and {}: {}", shown(inputs[0]), shown(inputs[1]), reason);
}

std::string words(char letter) { return std::string(letterExplanation(letter).words); }

std::string text(const Water& water, const StateReport& state) {
  std::vector<Equation> lines;
  std::string missing;
  for (const Line& line : state.lines) {
    if (line.value) {
      lines.push_back({std::string(1, line.letter), readableText(*line.value),
                       water.unit(line.letter), words(line.letter)});
    } else {
      missing += fmt::format("{}: {}\n", words(line.letter), line.failure);
    }
  }
  std::string text = fmt::format("{}\n\n{}{}", state.phase, equations(lines), missing);
  for (const StateReport::AtLine& at : state.saturations) {
    const char found = at.given == 'P' ? 'T' : 'P';
    const double key = water.toUser(at.given, at.given == 'P' ? at.line.P : at.line.T);
    const double value = water.toUser(found, found == 'P' ? at.line.P : at.line.T);
    text += fmt::format("\nsaturation at {} {}: {} {}\n", readableText(key), water.unit(at.given),
                        readableText(value), water.unit(found));
    std::vector<std::vector<std::string>> rows = {{"", "liquid", "vapour", "", ""}};
    for (const char letter : saturationLetters) {
      rows.push_back({std::string(1, letter),
                      readableText(water.property(letter, at.line.T, at.line.liquidDensity)),
                      readableText(water.property(letter, at.line.T, at.line.vapourDensity)),
                      water.unit(letter), words(letter)});
    }
    text += aligned(rows);
  }
  return text;
}

std::string csv(const Water& water, const StateReport& state) {
  std::string text = "where,symbol,value,unit,meaning\n";
  const auto add = [&](const std::string& where, char letter, double value) {
    text += csvLine(
        {where, std::string(1, letter), shortestText(value), water.unit(letter), words(letter)});
  };
  text += csvLine({"state", "phase", state.phase, "", "phase"});
  for (const Line& line : state.lines) {
    if (line.value) add("state", line.letter, *line.value);
  }
  for (const StateReport::AtLine& at : state.saturations) {
    add(fmt::format("saturation at {}", at.given), 'P', water.toUser('P', at.line.P));
    add(fmt::format("saturation at {}", at.given), 'T', water.toUser('T', at.line.T));
    for (const bool vapour : {false, true}) {
      for (const char letter : saturationLetters) {
        add(fmt::format("saturated {} at {}", vapour ? "vapour" : "liquid", at.given), letter,
            water.property(letter, at.line.T,
                           vapour ? at.line.vapourDensity : at.line.liquidDensity));
      }
    }
  }
  return text;
}

std::string json(const Water& water, const StateReport& state) {
  JsonObject object, units, unavailable;
  object.add("phase", jsonString(state.phase));
  for (const Line& line : state.lines) {
    const std::string key(1, line.letter);
    if (!line.value) {
      unavailable.add(key, jsonString(line.failure));
      continue;
    }
    object.add(key, jsonNumber(*line.value));
  }
  for (const char letter : propertyLetters) {
    const std::string unit = water.unit(letter);
    if (!unit.empty()) units.add(std::string(1, letter), jsonString(unit));
  }
  object.add("units", units.text());
  if (!unavailable.empty()) object.add("unavailable", unavailable.text());
  JsonArray saturations;
  for (const StateReport::AtLine& at : state.saturations) {
    JsonObject one;
    one.add("at", jsonString(std::string(1, at.given)));
    one.add("P", jsonNumber(water.toUser('P', at.line.P)));
    one.add("T", jsonNumber(water.toUser('T', at.line.T)));
    for (const bool vapour : {false, true}) {
      JsonObject phase;
      for (const char letter : saturationLetters) {
        phase.add(std::string(1, letter),
                  jsonNumber(water.property(
                      letter, at.line.T, vapour ? at.line.vapourDensity : at.line.liquidDensity)));
      }
      one.add(vapour ? "vapour" : "liquid", phase.text());
    }
    saturations.add(one.text());
  }
  object.add("saturation", saturations.text());
  return object.text() + '\n';
}

}  // namespace

ExitStatus stateCommand(const Words& words, Console& console) {
  CommandOptions app("state", "state NAME=VALUE NAME=VALUE [OPTIONS]",
                     "Prints every property of a state, its phase and the saturation values "
                     "around it.");
  app.footer(
      "Two properties determine a state: P or T with one of T, H, S, U, R, V and Q. Letters and\n"
      "words go in any case, with = or a blank; a unit may stand behind a value. x is another\n"
      "word for the quality Q here (the X of the member XT is the surface tension).\n"
      "Examples:\n"
      "  calvex state P=10 T=500 -u T=C\n"
      "  calvex state pressure=10 enthalpy=2000\n"
      "  calvex state T=150C Q=0.9 --json\n"
      "  calvex state P 1 S 6.5 --csv");
  ClientOptions options;
  bool asJson = false, asCsv = false;
  app.add_flag("--json", asJson, "Print JSON");
  app.add_flag("--csv", asCsv, "Comma-separated, with all digits");
  options.addUnitsTo(app);
  options.addSettingsTo(app);
  const std::optional<Words> operands = parseAround(app, words, console);
  if (!operands) return ExitStatus::ok;
  if (asCsv && asJson) throw UsageError("--csv excludes --json");
  try {
    Client client;
    options.applyTo(client);
    Water water(client);
    const std::vector<Given> inputs = readInputs(*operands, client.units());
    StateReport state;
    try {
      state = report(water, inputs);
    } catch (const Failure& failure) {
      throw Failure(failure.status(), refusal(water, inputs, failure.what()));
    }
    console.out << (asJson ? json(water, state) : asCsv ? csv(water, state) : text(water, state));
    for (const std::string& warning : water.warnings()) warn(console, warning);
  } catch (const Failure& failure) {
    if (asJson) fmt::print(console.out, "{}\n", errorJson(failure.what()));
    throw;
  }
  return ExitStatus::ok;
}

}  // namespace calvex::cli
