#include "units/unit_words.h"

#include <algorithm>

namespace calvex {

namespace {

/// A word and what it stands for, both as `fold` leaves them. A row replaces a part of a unit (the
/// lbm of Btu/lbm) or the whole of it. Rows apply to the catalogue's names too, so that "K/bar"
/// and "bara" may both be written with bar.
struct Synonym {
  std::string_view word;
  std::string_view meaning;
  std::string_view notice = {};
  std::string_view written = {};  ///< how people write it, where that differs
};

constexpr std::string_view litresAreKilograms =
    "a litre is taken as a kilogram: so it is for cold water (0.96 kg at 100 \u00B0C), not for "
    "steam";

constexpr Synonym synonyms[] = {
    // temperature
    {"deg", ""},
    {"degc", "c"},
    {"degf", "f"},
    {"degk", "k"},
    {"degr", "r"},
    {"celsius", "c"},
    {"fahrenheit", "f"},
    {"kelvin", "k"},
    {"rankine", "r"},
    // pressure; without a letter behind it a pressure is absolute
    {"bar", "bara"},
    {"psi", "psia"},
    {"lbf/in2", "psia"},
    {"lb/in2", "psia"},
    {"lb/ft2", "lbf/ft2"},
    {"baraa", "bara", {}, "bar(a)"},  // its parts are bar, which is bara, and a
    {"barag", "barg", {}, "bar(g)"},
    {"psiaa", "psia", {}, "psi(a)"},
    {"psiag", "psig", {}, "psi(g)"},
    {"kpaa", "kpa", {}, "kPa(a)"},
    {"mpaa", "mpa", {}, "MPa(a)"},
    {"ata", "kgf/cm2"},  // technical atmosphere, absolute
    {"at", "kgf/cm2"},
    {"kg/cm2", "kgf/cm2"},
    {"kg/cm2g", "kgf/cm2g"},
    {"kp/cm2g", "kgf/cm2g"},
    {"atg", "kgf/cm2g"},
    {"kp", "kgf"},
    {"inwc", "inh2o"},
    {"inwg", "inh2o"},
    {"ftwc", "fth2o"},
    // mass, volume, time
    {"lbs", "lb"},
    {"lbm", "lb"},
    {"t", "te"},
    {"tonne", "te"},
    {"litre", "l"},
    {"liter", "l"},
    {"hr", "h"},
    {"hour", "h"},
    {"day", "d"},
    {"minute", "min"},
    {"sec", "s"},
    {"second", "s"},
    {"pph", "lb/h"},
    {"gcal", "mmkcal"},
    {"l/h", "kg/h", litresAreKilograms},
    {"l/min", "kg/min", litresAreKilograms},
    {"l/s", "kg/s", litresAreKilograms},
    // transport, velocity and the rest
    {"w/mk", "w/km"},
    {"w/mc", "w/cm"},
    {"kw/mk", "kw/km"},
    {"mw/mk", "mw/km"},
    {"btu/hftf", "btu/ffth"},
    {"kcal/mhc", "kcal/cmh"},
    {"centipoise", "cp"},
    {"dyn", "dyne"},
    {"mph", "mile/h"},
    {"kn", "knot"},
    {"kt", "knot"},
    {"fps", "ft/s"},
    {"fpm", "ft/min"},
    {"kg/kmol", "kg/kgmol"},
    {"g/mol", "g/gmol"},
    {"percent", "%"},
    {"pct", "%"},
};

// Factors to the group's reference unit. 1 ft = 0.3048 m and 1 lb = 0.45359237 kg by definition;
// 1 dyn.s/cm2 is one poise.
constexpr double cubicFootAPound = 0.3048 * 0.3048 * 0.3048 / 0.45359237;
constexpr ZvUomLiteKeyword differencesBeside[] = {{"mbar", 100}, {"hPa", 100}};
// The catalogue's gauge units count from one standard atmosphere; so do these.
constexpr double atmosphere = 101325.0;
constexpr ZvUomLiteKeyword pressuresBeside[] = {{"mbar", 100},
                                                {"hPa", 100},
                                                {"mbarg", 100, atmosphere / 100},
                                                {"kPag", 1000, atmosphere / 1000},
                                                {"MPag", 1000000, atmosphere / 1000000},
                                                {"kgf/cm2g", 98066.5, atmosphere / 98066.5}};
constexpr ZvUomLiteKeyword volumesBeside[] = {
    {"ft3/lbm", cubicFootAPound}, {"cu ft/lb", cubicFootAPound}, {"cu ft/lbm", cubicFootAPound}};
constexpr ZvUomLiteKeyword viscositiesBeside[] = {{"dyn.s/cm2", 0.1}};

constexpr std::string_view gaugeElsewhere =
    "it is a gauge pressure, and the gauge units are barg, mbarg, kPag, MPag, psig and kgf/cm2g; a "
    "difference of pressures belongs to DP (Pressure Diff)";

struct UnitNotice {
  UnitGroup group;
  std::string_view name;
  std::string_view text;
};

constexpr std::string_view notCubicFoot =
    "not the physical unit: its factor is a thousandth of a cubic foot a pound; ft3/lbm (or "
    "cu ft/lb) is the physical one";
constexpr std::string_view notDyne =
    "not the physical unit: its factor is 980 times that of a dyne second a square centimetre; "
    "dyn.s/cm2 (or Poise) is the physical one";
constexpr std::string_view thermochemicalHere =
    "0.07 % smaller here than in an enthalpy, whose cal and Btu are those of the International "
    "Table: H - U = P v holds in kJ/kg";
constexpr UnitNotice unitNotices[] = {
    {UnitGroup::specificVolume, "ft³/lb", notCubicFoot},
    {UnitGroup::specificVolume, "ft^3/lb", notCubicFoot},
    {UnitGroup::dynamicViscosity, "dyne.s/cm²", notDyne},
    {UnitGroup::dynamicViscosity, "dyne.s/cm^2", notDyne},
};

constexpr std::string_view otherColumns =
    "1 in Hg is 3376.85 Pa here and 3386.39 Pa as a pressure, 1 ft H2O 2988.98 and 2989.07 Pa, 1 "
    "psia\n6894.757 and 6894.76751 Pa: a difference of two pressures in such a unit is not "
    "quite the same number\nhere. In Pa, bara or mm Hg it is.";

// The International Table calorie is 4.1868 J and gives Btu/lb = 2.326 kJ/kg; the thermochemical
// one is 4.184 J.
constexpr std::string_view tableCalorie =
    "cal and Btu are those of the International Table here: 1 cal = 4.1868 J, 1 Btu = 1055.06 J.";
constexpr std::string_view tableCalorieOfEnthalpy =
    "cal and Btu are those of the International Table here: 1 cal = 4.1868 J, 1 Btu/lb = 2.326 "
    "kJ/kg.\n"
    "Internal, Helmholtz and Gibbs energy have the thermochemical ones, 0.07 % smaller: in cal/g or"
    "\nBtu/lb their numbers and an enthalpy's are not on one scale. In kJ/kg they are.";
constexpr std::string_view thermochemicalCalorie =
    "cal and Btu are the thermochemical ones here: 1 cal = 4.184 J, 1 Btu/lb = 2.32444 kJ/kg.\n"
    "Enthalpy has those of the International Table, 0.07 % larger: in cal/g or Btu/lb its numbers "
    "and\nthese are not on one scale. In kJ/kg they are.";
constexpr std::string_view heatCapacityCalorie =
    "cal and Btu here make 1 cal/(g.C) = 1 Btu/(lb.F) = 4.18690337 kJ/(kg.C), 0.0025 % more than "
    "those of\nthe International Table, which entropy has.";

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string withPlainSigns(std::string_view utf8Text) {
  constexpr std::pair<std::string_view, std::string_view> signs[] = {
      {"\u00B2", "2"},                                   // superscripts
      {"\u00B3", "3"}, {"\u00B0", ""},  {"\u00BA", ""},  // degree sign, and what is typed for it
      {"\u2103", "C"}, {"\u2109", "F"}, {"\u00B7", "."},
      {"\u22C5", "."}, {"\u2219", "."}, {"\u2215", "/"},
  };
  std::string text(utf8Text);
  for (const auto& [sign, plain] : signs) {
    for (std::size_t at = 0; (at = text.find(sign, at)) != std::string::npos;) {
      text.replace(at, sign.size(), plain);
    }
  }
  return text;
}

const Synonym* synonymOf(std::string_view word) {
  const auto* const found = std::ranges::find(synonyms, word, &Synonym::word);
  return found == std::end(synonyms) ? nullptr : found;
}

/// What is left of a unit without case, blanks, brackets and the signs between its parts; of
/// slashes the first one stays, the rest join the denominator.
std::string fold(std::string_view unit) {
  std::string folded;
  for (const char c : lowerCase(withPlainSigns(unit))) {
    if (std::string_view(" .-*^()").find(c) != std::string_view::npos) continue;
    if (c != '/' || folded.find('/') == std::string::npos) folded += c;
  }
  return folded;
}

struct Meaning {
  std::string folded;
  std::string_view notice;
};

/// The same with synonyms replaced, part by part and then as a whole.
Meaning meaningOf(std::string_view unit) {
  const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
  const std::string text = lowerCase(withPlainSigns(unit));
  std::string replaced;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t end = i;
    while (end < text.size() && isLetter(text[end])) ++end;
    if (end == i) {
      replaced += text[i++];
      continue;
    }
    const std::string_view part = std::string_view(text).substr(i, end - i);
    const Synonym* synonym = synonymOf(part);
    replaced += synonym != nullptr ? synonym->meaning : part;
    i = end;
  }
  Meaning meaning{fold(replaced), {}};
  if (const Synonym* synonym = synonymOf(meaning.folded)) {
    meaning = {std::string(synonym->meaning), synonym->notice};
  }
  return meaning;
}

// Whether a word says milli where the unit says mega, or the other way round. A word in one case
// says neither.
bool confusesMilliAndMega(std::string_view word, std::string_view name) {
  const auto has = [&](char first, char last) {
    return std::ranges::any_of(word, [=](char c) { return first <= c && c <= last; });
  };
  const bool prefixed = std::ranges::any_of(
      std::initializer_list<std::string_view>{"Pa", "W", "N", "cal"},
      [&](std::string_view base) { return name.size() > 1 && name.substr(1).starts_with(base); });
  return prefixed && has('a', 'z') && has('A', 'Z') && word.front() != name.front() &&
         lowerCase(word.substr(0, 1)) == "m";
}

// Whether a word, as `fold` leaves it, says gauge where the group has absolute units only: a column
// of water over the atmosphere, or the absolute unit with a g behind.
bool saysGauge(UnitGroup group, std::string_view folded) {
  constexpr std::string_view columns[] = {"inwg", "inwcg", "ftwg", "ftwcg", "mmwg", "mmh2og"};
  if (group != UnitGroup::pressure || !folded.ends_with('g')) return false;
  return std::ranges::find(columns, folded) != std::end(columns) ||
         findUnitWord(group, folded.substr(0, folded.size() - 1)).unit != nullptr;
}

const UnitGroupRow& row(UnitGroup group) {
  return unitGroupTable()[static_cast<std::size_t>(group)];
}

}  // namespace

UnitWord findUnitWord(UnitGroup group, std::string_view word) {
  constexpr std::size_t longest = 64;  // no unit is as long
  if (word.empty() || word.size() > longest) return {};
  for (const ZvUomLiteKeyword& unit : row(group).units) {
    if (unit.name == word) return {&unit, {}, unitNotice(group, unit.name)};
  }
  const std::string folded = fold(word);
  if (folded.empty()) return {};
  const Synonym* const synonym = synonymOf(folded);
  const std::string_view whole = synonym == nullptr ? std::string_view(folded) : synonym->meaning;
  for (const ZvUomLiteKeyword& unit : unitsBesideCatalogue(group)) {
    if (fold(unit.name) == whole) return {&unit, {}, {}};
  }
  const Meaning meaning = meaningOf(word);
  UnitWord found;
  for (const ZvUomLiteKeyword& unit : row(group).units) {
    if (meaningOf(unit.name).folded != meaning.folded) continue;
    const auto same = [&](const ZvUomLiteKeyword* other) {
      return other->factor == unit.factor && other->offset == unit.offset;
    };
    if (std::ranges::none_of(found.candidates, same)) found.candidates.push_back(&unit);
  }
  if (found.candidates.empty() || folded == "inwg") {
    if (saysGauge(group, folded)) return {nullptr, {}, {}, gaugeElsewhere};
  }
  if (found.candidates.size() != 1 || confusesMilliAndMega(word, found.candidates.front()->name)) {
    return found;
  }
  found.unit = found.candidates.front();
  found.candidates.clear();
  found.notice = meaning.notice.empty() ? unitNotice(group, found.unit->name) : meaning.notice;
  return found;
}

std::optional<UnitGroup> findGroupWord(std::string_view word) {
  constexpr std::pair<std::string_view, UnitGroup> common[] = {
      {"temp", UnitGroup::temperature},
      {"flow", UnitGroup::massFlow},
      {"massflow", UnitGroup::massFlow},
      {"duty", UnitGroup::heatDuty},
      {"dryness", UnitGroup::quality},
      {"heatcapacity", UnitGroup::specificHeat},
      {"specificheat", UnitGroup::specificHeat},
      {"cp", UnitGroup::specificHeat},
      {"cv", UnitGroup::specificHeat},
      {"viscosity", UnitGroup::dynamicViscosity},
      {"conductivity", UnitGroup::thermalConductivity},
      {"speedofsound", UnitGroup::velocity},
  };
  const std::string folded = fold(word);
  for (int i = 0; i < unitGroupCount; ++i) {
    const UnitGroup group{static_cast<short>(i)};
    const auto isWord = [&](std::string_view name) { return fold(name) == folded; };
    if (isWord(row(group).displayName) || std::ranges::any_of(row(group).keywords, isWord)) {
      return group;
    }
  }
  for (const auto& [name, group] : common) {
    if (name == folded) return group;
  }
  return std::nullopt;
}

std::span<const ZvUomLiteKeyword> unitsBesideCatalogue(UnitGroup group) {
  switch (group) {
    case UnitGroup::pressure:
      return pressuresBeside;
    case UnitGroup::pressureDifference:
      return differencesBeside;
    case UnitGroup::specificVolume:
      return volumesBeside;
    case UnitGroup::dynamicViscosity:
      return viscositiesBeside;
    default:
      return {};
  }
}

bool isInCatalogue(UnitGroup group, const ZvUomLiteKeyword& unit) {
  return std::ranges::any_of(row(group).units,
                             [&](const ZvUomLiteKeyword& other) { return &other == &unit; });
}

std::string_view unitNotice(UnitGroup group, std::string_view name) {
  for (const UnitNotice& notice : unitNotices) {
    if (notice.group == group && notice.name == name) return notice.text;
  }
  const bool energy = group == UnitGroup::internalEnergy || group == UnitGroup::helmholtzEnergy ||
                      group == UnitGroup::gibbsEnergy;
  const bool calorie =
      name.find("cal") != std::string_view::npos || name.find("Btu") != std::string_view::npos;
  if (energy && calorie) return thermochemicalHere;
  return {};
}

std::string_view groupNotice(UnitGroup group) {
  switch (group) {
    case UnitGroup::enthalpy:
      return tableCalorieOfEnthalpy;
    case UnitGroup::internalEnergy:
    case UnitGroup::helmholtzEnergy:
    case UnitGroup::gibbsEnergy:
      return thermochemicalCalorie;
    case UnitGroup::specificHeat:
      return heatCapacityCalorie;
    case UnitGroup::pressureDifference:
      return otherColumns;
    case UnitGroup::entropy:
    case UnitGroup::heatDuty:
    case UnitGroup::power:
    case UnitGroup::thermalConductivity:
    case UnitGroup::isothermalJouleThomson:
      return tableCalorie;
    default:
      return {};
  }
}

std::vector<std::pair<std::string_view, const ZvUomLiteKeyword*>> otherWords(UnitGroup group) {
  std::vector<std::pair<std::string_view, const ZvUomLiteKeyword*>> words;
  for (const Synonym& synonym : synonyms) {
    const ZvUomLiteKeyword* unit = findUnitWord(group, synonym.word).unit;
    if (unit != nullptr && fold(unit->name) != synonym.word) {
      words.emplace_back(synonym.written.empty() ? synonym.word : synonym.written, unit);
    }
  }
  return words;
}

}  // namespace calvex
