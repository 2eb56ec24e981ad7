#include "server/member_explanations.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "engine/thermo_engine.h"
#include "steam/constants.h"

namespace calvex {

namespace {

using detail::ExplanationRow;

constexpr std::array<std::string_view, memberHeadingCount> headings = {
    "properties", "saturation line", "equipment", "spreadsheet",
    "units",      "diagnostics",     "settings"};

constexpr LetterExplanation letters[] = {
    {'P', UnitGroup::pressure, true, "pressure", "", ""},
    {'T', UnitGroup::temperature, true, "temperature", "", ""},
    {'H', UnitGroup::enthalpy, true, "enthalpy", "", ""},
    {'S', UnitGroup::entropy, true, "entropy", "", ""},
    {'U', UnitGroup::internalEnergy, true, "internal energy", "", "energy"},
    {'R', UnitGroup::density, true, "density", "", "rho"},
    {'V', UnitGroup::specificVolume, true, "specific volume", "", "volume"},
    {'Q', UnitGroup::quality, true, "quality",
     "Quality is the mass fraction of vapour: 0 in liquid, 1 in vapour.",
     "dryness fraction x wet steam"},
    {'A', UnitGroup::helmholtzEnergy, true, "Helmholtz energy", "The Helmholtz energy is u - T s.",
     "free energy"},
    {'G', UnitGroup::gibbsEnergy, true, "Gibbs energy", "The Gibbs energy is h - T s.",
     "chemical potential"},
    {'M', UnitGroup::dynamicViscosity, true, "dynamic viscosity", "", "mu eta"},
    {'K', UnitGroup::thermalConductivity, true, "thermal conductivity", "", "lambda"},
    {'C', UnitGroup::specificHeat, true, "isobaric heat capacity",
     "The isobaric heat capacity cp is that at constant pressure.", "cp specific heat"},
    {'D', UnitGroup::specificHeat, true, "isochoric heat capacity",
     "The isochoric heat capacity cv is that at constant volume.", "cv specific heat"},
    {'Z',
     {},
     false,
     "compressibility factor",
     "The compressibility factor is P v / (R T), 1 in an ideal gas.",
     ""},
    {'W', UnitGroup::velocity, true, "speed of sound", "", "sound velocity"},
    {'N',
     {},
     false,
     "Prandtl number",
     "The Prandtl number is cp times the dynamic viscosity over the thermal conductivity.",
     ""},
    {'E',
     {},
     false,
     "dielectric constant",
     "The static dielectric constant is the permittivity relative to that of the vacuum.",
     "permittivity"},
    {'I', UnitGroup::isothermalJouleThomson, true, "isothermal throttling coefficient",
     "The isothermal throttling coefficient is dh/dP at constant temperature.", "joule thomson"},
    {'J', UnitGroup::jouleThomson, true, "Joule-Thomson coefficient",
     "The Joule-Thomson coefficient is dT/dP at constant enthalpy.", "throttling"},
    {'B', UnitGroup::thermalExpansion, true, "thermal expansion coefficient",
     "The thermal expansion coefficient is (dv/dT)/v at constant pressure.", "beta"},
    {'L', UnitGroup::compressibility, true, "isothermal compressibility",
     "The isothermal compressibility is -(dv/dP)/v at constant temperature.", "kappa"},
    {'X', UnitGroup::surfaceTension, true, "surface tension",
     "The surface tension is that of saturated liquid against its vapour.", "sigma"},
};

const LetterExplanation* findLetter(char letter) noexcept {
  const auto* const found = std::ranges::find(letters, letter, &LetterExplanation::letter);
  return found == std::end(letters) ? nullptr : found;
}

// The letters of a member's parameters: "HPT" of HSatPQ as of HPT; empty for members without.
// Their parameters are named by letters: outputs "pH", inputs "P".
bool isLettered(const Member& member) {
  if (member.isProperty || member.style != ReturnStyle::success) return false;
  return std::ranges::all_of(member.parameters(), [](const Parameter& parameter) {
    std::string_view name = parameter.name;
    if (parameter.isOutput() && name.starts_with('p')) name.remove_prefix(1);
    if (name == "HVap" || name == "HLiq" || name == "TSat") return true;
    return name.size() == 1 && findLetter(name.front()) != nullptr;
  });
}

bool isSaturation(const Member& member) {
  return member.name.find("Sat") != std::string_view::npos || member.name == "XT";
}

// An equipment model of which there is a member and a spreadsheet variant has one row.
constexpr std::string_view spreadsheetPrefix = "XL";

bool isSpreadsheet(const Member& member) { return member.name.starts_with(spreadsheetPrefix); }

std::string_view rowName(const Member& member) {
  if (!isSpreadsheet(member) || detail::explanationRow(member.name) != nullptr) return member.name;
  return member.name.substr(spreadsheetPrefix.size());
}

const ExplanationRow& rowOf(const Member& member) {
  const ExplanationRow* row = detail::explanationRow(rowName(member));
  if (row == nullptr) throw std::logic_error(std::string(member.name) + " is not explained");
  return *row;
}

std::string_view trimmed(std::string_view text) {
  const std::size_t begin = std::min(text.size(), text.find_first_not_of(' '));
  const std::size_t end = text.find_last_not_of(' ');
  return end == std::string_view::npos ? std::string_view() : text.substr(begin, end + 1 - begin);
}

// Calls f(part) for each part of a list, without the blanks around it.
template <class F>
void forEachPart(std::string_view list, char separator, F f) {
  while (!list.empty()) {
    const std::string_view part = list.substr(0, list.find(separator));
    f(trimmed(part));
    list.remove_prefix(std::min(list.size(), part.size() + 1));
  }
}

// The words of a text, those in quotes together.
std::vector<std::string_view> wordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
    const bool quoted = text.front() == '"';
    if (quoted) text.remove_prefix(1);
    const std::size_t length = std::min(text.size(), text.find(quoted ? '"' : ' '));
    words.push_back(text.substr(0, length));
    text.remove_prefix(std::min(text.size(), length + 1));
  }
  return words;
}

// What a row says about a parameter: "words" or "label/words" made into both.
void takeRowWords(std::string_view parameters, std::string_view name,
                  ParameterExplanation& explained) {
  forEachPart(parameters, ';', [&](std::string_view part) {
    const std::size_t sign = part.find('=');
    std::string_view target = part.substr(0, sign);
    const std::size_t slash = target.find('/');
    if (target.substr(0, slash) != name) return;
    if (slash != std::string_view::npos) explained.label = target.substr(slash + 1);
    explained.words = part.substr(sign + 1);
  });
}

std::optional<Limits> limitsOf(const Member& member, const Parameter& parameter) {
  for (const std::string_view name : {member.name, rowName(member)}) {
    if (const Limits* special = detail::specialLimits(name, parameter.name)) {
      if (std::isinf(special->low) && std::isinf(special->high)) return std::nullopt;
      return *special;
    }
  }
  if (!parameter.isInput() || !parameter.hasUnit()) return std::nullopt;
  const RangeLimits hard;
  const bool onLine = isLettered(member) && isSaturation(member);
  switch (UnitGroup(parameter.group)) {
    case UnitGroup::temperature:
      if (onLine) return Limits{constants::triplePointTemperature, constants::criticalTemperature};
      return Limits{hard.TMin, hard.TMax};
    case UnitGroup::pressure:
      if (onLine) return Limits{constants::triplePointPressure, constants::criticalPressure};
      return Limits{hard.PMin, hard.PMax, true};
    case UnitGroup::quality:
      return Limits{0.0, 1.0};
    case UnitGroup::efficiency:
      return Limits{0.0, 1.0, true};
    case UnitGroup::enthalpy:
    case UnitGroup::entropy:
    case UnitGroup::internalEnergy:
      return Limits{0.0};
    case UnitGroup::density:
    case UnitGroup::specificVolume:
      return Limits{0.0, std::numeric_limits<double>::infinity(), true};
    default:
      return std::nullopt;
  }
}

// "pressure and temperature"
std::string listed(const std::vector<std::string>& words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? " and " : ", ";
    text += words[i];
  }
  return text;
}

// The state of which examples are: superheated steam, or wet steam where the quality is asked for
// or given, or the line where the member knows nothing else.
double exampleValue(const Member& member, const Parameter& parameter) {
  enum State { steam, wet, line };
  State state = member.name.front() == 'Q' ? wet : steam;
  if (isSaturation(member) || member.name == "HPTQ") state = line;
  switch (findLetter(parameter.name.front())->letter) {
    case 'P':
      return state == steam ? 10.0 : 1.0;
    case 'T':
      return state == steam ? 773.15 : member.name == "HPTQ" ? 453.066 : 453.15;
    case 'H':
      return state == steam ? 3374.0 : 1770.0;
    case 'S':
      return state == steam ? 6.597 : 4.362;
    case 'U':
      return state == steam ? 3046.2 : 1672.5;
    case 'R':
      return state == steam ? 30.503 : 10.23;
    case 'V':
      return state == steam ? 0.032784 : 0.09775;
    default:
      return 0.9;  // a quality
  }
}

void explainLettered(const Member& member, MemberExplanation& explained) {
  std::vector<std::string> results, inputs;
  std::string definitions;
  std::string inputLetters;
  for (std::size_t i = 0; i < explained.parameters.size(); ++i) {
    const Parameter& parameter = member.parameters()[i];
    (parameter.isInput() ? inputs : results).push_back(explained.parameters[i].words);
    const char letter = explained.parameters[i].label.front();
    const LetterExplanation& row = letterExplanation(letter);
    if (!row.definition.empty()) definitions += fmt::format("{} ", row.definition);
    if (parameter.isOutput()) explained.other += fmt::format("{} ", row.other);
    if (parameter.isInput()) {
      inputLetters += letter;
      explained.example.inputs.emplace_back(exampleValue(member, parameter));
    }
  }
  explained.title = fmt::format("{} from {}", listed(results), listed(inputs));
  explained.notes = definitions;
  if (isSaturation(member)) {
    explained.heading = MemberHeading::saturation;
    if (member.name == "PSatT") explained.other += "vapour vapor pressure boiling";
    if (member.name == "TSatP") explained.other += "boiling point dew condensation";
    if (member.name == "HVLTSat_PQ") {
      explained.other += "latent heat evaporation vaporisation vaporization";
      explained.notes +=
          "The vapour's enthalpy less the liquid's is the latent heat, the heat of evaporation.";
    }
    if (inputLetters.ends_with('Q') && results.size() == 1) {
      explained.title = fmt::format("saturated {} from {}", listed(results), listed(inputs));
    }
    return;
  }
  explained.heading = MemberHeading::properties;
  const char result = member.name.front();
  if (inputLetters == "PT") {
    explained.notes +=
        "On the saturation line pressure and temperature do not determine the state: there the "
        "quality is needed (HPTQ, HSatPQ and their like) or another pair.";
  } else if (inputLetters == "PTQ") {
    explained.notes +=
        "The quality counts only where the temperature is the saturation "
        "temperature at the pressure.";
  } else if (result == 'A' || result == 'G') {
    explained.notes += "A mixture of liquid and vapour has no answer.";
  } else if (inputLetters == "TH") {
    explained.notes +=
        "Between the enthalpies of saturated liquid and vapour the state is a mixture, although "
        "compressed liquid can have both values, too.";
  } else if (result != 'Q') {
    explained.notes += "Also for mixtures of liquid and vapour.";
  }
}

void explainByRow(const Member& member, MemberExplanation& explained) {
  const ExplanationRow& row = rowOf(member);
  explained.heading = row.heading;
  explained.title = row.title;
  explained.notes = row.notes;
  explained.other = row.other;
  forEachPart(row.preparation, ';', [&](std::string_view text) {
    const std::vector<std::string_view> words = wordsOf(text);
    ExampleCall call{findMember(words.front()), {}};
    for (const std::string_view word : std::span(words).subspan(1)) {
      call.inputs.emplace_back(std::string(word));
    }
    explained.preparation.push_back(std::move(call));
  });
  const std::vector<std::string_view> words = wordsOf(row.example);
  std::size_t next = 0;
  for (const Parameter& parameter : member.parameters()) {
    const bool given = parameter.isInput() || (member.isProperty && member.put != nullptr);
    if (!given || parameter.type == ValueType::array || next == words.size()) continue;
    const std::string_view word = words[next++];
    double number = 0.0;
    if (parameter.type == ValueType::text) {
      explained.example.inputs.emplace_back(std::string(word));
    } else {
      std::from_chars(word.data(), word.data() + word.size(), number);
      explained.example.inputs.emplace_back(number);
    }
  }
  if (rowName(member) == member.name) return;
  // The variant of a model that has a member of its own.
  explained.title += ", as an array of results";
  explained.heading = MemberHeading::spreadsheet;
  std::string tokens;
  for (const spreadsheet::Token& token : tokensOf(member)) {
    constexpr std::size_t longest = 24;  // a few are enough
    if (tokens.size() + token.text.size() > longest) break;
    tokens += fmt::format("{}{}", tokens.empty() ? "" : " ", token.text);
  }
  explained.example.inputs.emplace_back(tokens);
}

std::string lowerCaseWords(std::string_view label) {
  std::string words(label);
  const auto isUpper = [](char c) { return c >= 'A' && c <= 'Z'; };
  for (std::size_t i = 0; i < words.size(); ++i) {
    const bool begins = i == 0 || words[i - 1] == ' ' || words[i - 1] == '/';
    const bool abbreviation = i + 1 < words.size() && isUpper(words[i + 1]);
    if (begins && isUpper(words[i]) && !abbreviation) {
      words[i] = static_cast<char>(words[i] - 'A' + 'a');
    }
  }
  return words;
}

}  // namespace

std::string_view headingText(MemberHeading heading) noexcept {
  return headings[static_cast<std::size_t>(heading)];
}

std::span<const LetterExplanation> letterExplanations() noexcept { return letters; }

const LetterExplanation& letterExplanation(char letter) noexcept { return *findLetter(letter); }

ParameterExplanation parameterExplanation(const Member& member, const Parameter& parameter) {
  ParameterExplanation explained{std::string(parameter.name), {}, limitsOf(member, parameter)};
  const bool named = member.isProperty || member.style == ReturnStyle::value;
  std::string& label = explained.label;
  if (named) {
    label = member.name;
  } else if (parameter.isOutput() && label.size() > 1 && label.front() == 'p') {
    label.erase(0, 1);
  }
  if (isLettered(member)) {
    const std::string_view kind = label == "HVap" ? "vapour " : label == "HLiq" ? "liquid " : "";
    const bool line = label == "TSat" ||
                      (parameter.isOutput() && (member.name == "PSatT" || member.name == "TSatP"));
    explained.words = std::string(line ? "saturation " : kind) +
                      std::string(letterExplanation(label.front()).words);
    return explained;
  }
  explained.words = detail::commonWords(label);
  takeRowWords(rowOf(member).parameters, parameter.name, explained);
  return explained;
}

MemberExplanation explanation(const Member& member) {
  MemberExplanation explained;
  explained.example.member = &member;
  for (const Parameter& parameter : member.parameters()) {
    explained.parameters.push_back(parameterExplanation(member, parameter));
  }
  if (isLettered(member)) {
    explainLettered(member, explained);
  } else {
    explainByRow(member, explained);
  }
  while (explained.notes.ends_with(' ')) explained.notes.pop_back();
  return explained;
}

const spreadsheet::Variant* variantOf(const Member& member) noexcept {
  if (!isSpreadsheet(member)) return nullptr;
  const std::span table = spreadsheet::variantTable();
  const auto found = std::ranges::find(table, member.name.substr(spreadsheetPrefix.size()),
                                       &spreadsheet::Variant::name);
  return found == table.end() ? nullptr : &*found;
}

std::span<const spreadsheet::Token> tokensOf(const Member& member) noexcept {
  const spreadsheet::Variant* variant = variantOf(member);
  return variant == nullptr ? std::span<const spreadsheet::Token>() : variant->tokens();
}

std::string tokenWords(const Member& member, const spreadsheet::Token& token) {
  // Labels that clients know and that say something else, or too little.
  struct Words {
    std::string_view member, token, words;
  };
  constexpr Words better[] = {
      {"XLHeatExchangerA", "H_HOut", "hot outlet enthalpy"},
      {"XLHeatExchangerA", "D_Hx", "heat from the hot to the cold stream"},
      {"XLGasTurbineA", "T_Whb", "firing temperature of the waste-heat boiler"},
      {"XLGasTurbineA", "D_WhbFuel", "fuel duty of the waste-heat boiler"},
      {"XLGasTurbineA", "T_DewPtActual", "dew point of the stack gas"},
      {"XLGasTurbineA", "T_DewPtMax", "dew point of the stack gas at full firing"},
      {"XLGasTurbineA", "R_ExhaustO2", "oxygen mole fraction in the stack gas"},
      {"XLGasTurbineA", "D_GTFuel", "fuel duty of the gas turbine"},
      {"XLGasTurbineA", "M_BaseLoad", "steam that the exhaust raises without firing"},
      {"XLGasTurbineA", "M_Actual", "steam that is raised"},
      {"XLGasTurbineA", "R_HeatUtil", "heat utilisation"},
  };
  for (const Words& words : better) {
    if (words.member == member.name && words.token == token.text) return std::string(words.words);
  }
  return lowerCaseWords(token.label);
}

}  // namespace calvex
