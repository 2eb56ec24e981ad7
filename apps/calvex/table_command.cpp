// calvex table saturation|isobar|isotherm
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <ostream>

#include "command_line.h"
#include "csv.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "json.h"
#include "numbers.h"
#include "output.h"
#include "progress.h"
#include "quantities.h"
#include "server/suggestions.h"
#include "water.h"

namespace calvex::cli {

namespace {

/// What stands in a column of a saturation table.
struct Column {
  std::string_view title;
  char letter;
  enum Of { line, liquid, vapour, difference } of;  ///< difference: vapour less liquid
};

// The other one of temperature and pressure comes first.
constexpr Column saturationColumns[] = {
    {"v_liq", 'V', Column::liquid},    {"v_vap", 'V', Column::vapour},
    {"u_liq", 'U', Column::liquid},    {"u_vap", 'U', Column::vapour},
    {"h_liq", 'H', Column::liquid},    {"h_fg", 'H', Column::difference},
    {"h_vap", 'H', Column::vapour},    {"s_liq", 'S', Column::liquid},
    {"s_fg", 'S', Column::difference}, {"s_vap", 'S', Column::vapour},
    {"cp_liq", 'C', Column::liquid},   {"cp_vap", 'C', Column::vapour},
};

/// Of an isobar or isotherm: the letter of the member.
struct StateColumn {
  std::string_view title;
  char letter;
};
constexpr StateColumn stateColumns[] = {
    {"v", 'V'}, {"rho", 'R'}, {"h", 'H'}, {"s", 'S'}, {"u", 'U'}, {"cp", 'C'}, {"w", 'W'},
};

struct Range {
  double from, to, step;

  /// Throws UsageError.
  [[nodiscard]] long lines() const {
    constexpr double most = 1e6;
    if (step == 0.0 || (to - from) * step < 0.0) {
      throw UsageError(fmt::format("a step of {} does not lead from {} to {}", readableText(step),
                                   readableText(from), readableText(to)));
    }
    // The last value counts although steps such as 0.1 are not exact.
    const double count = std::floor((to - from) / step + 1e-6) + 1.0;
    if (!(count <= most)) throw UsageError("the table would have more than a million lines");
    return static_cast<long>(count);
  }
};

enum class Format { text, csv, json };

struct Table {
  enum class Kind { saturation, isobar, isotherm } kind;
  char key;            ///< T or P, which the range is about
  double fixed = 0.0;  ///< the other one, of an isobar or isotherm
  Range range;
  Format format;

  [[nodiscard]] char other() const { return key == 'T' ? 'P' : 'T'; }
  [[nodiscard]] bool ofStates() const { return kind != Kind::saturation; }
  [[nodiscard]] std::string_view name() const {
    return kind == Kind::isobar ? "isobar" : kind == Kind::isotherm ? "isotherm" : "saturation";
  }
};

struct Row {
  std::vector<std::optional<double>> values;
  std::string phase;
  std::string failure;
};

// A line of the saturation table at a temperature or pressure.
Row saturationRow(Water& water, const Table& table, double key) {
  Row row{{key}, {}, {}};
  row.values.resize(2 + std::size(saturationColumns));
  const std::optional<Saturation> line = saturationAt(water, {table.key, key}, &row.failure);
  if (!line) return row;
  row.values[1] = water.toUser(table.other(), table.key == 'T' ? line->P : line->T);
  std::size_t place = 2;
  for (const Column& column : saturationColumns) {
    const double liquid = water.property(column.letter, line->T, line->liquidDensity);
    const double vapour = water.property(column.letter, line->T, line->vapourDensity);
    row.values[place++] = column.of == Column::liquid   ? liquid
                          : column.of == Column::vapour ? vapour
                                                        : vapour - liquid;
  }
  return row;
}

// A line of an isobar or isotherm.
Row stateRow(Water& water, const Table& table, double key) {
  Row row{{key}, {}, {}};
  std::optional<double> density;
  for (const StateColumn& column : stateColumns) {
    const Answer answer = water.ask(std::string{column.letter, 'P', 'T'},
                                    {{table.key, key}, {table.other(), table.fixed}});
    row.values.push_back(answer.value);
    if (row.failure.empty()) row.failure = answer.failure;
    if (column.letter == 'R') density = answer.value;
  }
  if (density) {
    const double P = water.toModel('P', table.key == 'P' ? key : table.fixed);
    const double T = water.toModel('T', table.key == 'T' ? key : table.fixed);
    row.phase = phaseName(P, T, water.toModel('R', *density));
  }
  return row;
}

// The two lines where an isobar or isotherm meets the saturation line.
std::vector<Row> rowsOnLine(const Water& water, const Table& table, const Saturation& line) {
  std::vector<Row> rows;
  for (const bool vapour : {false, true}) {
    Row row{{water.toUser(table.key, table.key == 'T' ? line.T : line.P)},
            vapour ? "saturated vapour" : "saturated liquid",
            {}};
    for (const StateColumn& column : stateColumns) {
      row.values.emplace_back(
          water.property(column.letter, line.T, vapour ? line.vapourDensity : line.liquidDensity));
    }
    rows.push_back(std::move(row));
  }
  // Heating and decompressing lead from liquid to vapour.
  const bool towardsVapour = (table.range.step > 0.0) == (table.key == 'T');
  if (!towardsVapour) std::swap(rows[0], rows[1]);
  return rows;
}

// Writes the lines in one of the formats; as text in parts side by side, where a terminal is not
// wide enough for all columns.
class Sheet {
 public:
  /// Columns [first, last), beside the key's.
  struct Part {
    std::size_t first, last;
  };

  Sheet(std::ostream& out, const Water& water, const Table& table)
      : out_(out), format_(table.format), phases_(table.ofStates()) {
    const auto add = [&](std::string_view title, char letter) {
      titles_.emplace_back(title);
      units_.push_back(water.unit(letter));
      letters_ += letter;
    };
    add(std::string(1, table.key), table.key);
    if (phases_) {
      for (const StateColumn& column : stateColumns) add(column.title, column.letter);
    } else {
      add(std::string(1, table.other()), table.other());
      for (const Column& column : saturationColumns) add(column.title, column.letter);
    }
    if (format_ == Format::json) beginJson(water, table);
    if (format_ == Format::csv) beginCsv();
  }

  /// The parts for a terminal of that many characters a line; 0 for no terminal. Columns of one
  /// property stay together where they fit.
  [[nodiscard]] std::vector<Part> parts(std::size_t lineWidth) const {
    const std::size_t all = titles_.size();
    if (format_ != Format::text || lineWidth == 0) return {{1, all}};
    const std::size_t phaseWidth = phases_ ? 22 : 0;
    const std::size_t inNumbers = lineWidth - std::min(lineWidth, phaseWidth);
    const std::size_t fitting = std::max<std::size_t>(inNumbers / columnWidth, 2) - 1;
    std::vector<Part> found{{1, 1}};
    while (found.back().last < all) {
      Part& part = found.back();
      const std::size_t next = part.last;
      std::size_t end = std::min(letters_.find_first_not_of(letters_[next], next), all);
      const bool alone = next == part.first;
      if (alone) end = std::min(end, next + fitting);
      if (alone || end - part.first <= fitting) {
        part.last = end;
      } else {
        found.push_back({next, next});
      }
    }
    return found;
  }

  void begin(Part part) {
    part_ = part;
    if (format_ != Format::text) return;
    out_ << (part.first == 1 ? "" : "\n") << columns(titles_) << '\n' << columns(units_) << '\n';
  }

  void line(const Row& row) {
    if (format_ == Format::json) return jsonLine(row);
    std::vector<std::string> fields;
    fields.reserve(row.values.size() + 1);
    for (const std::optional<double>& value : row.values) {
      fields.push_back(format_ == Format::csv ? value ? shortestText(*value) : ""
                       : value                ? readableText(*value, 7)
                                              : "-");
    }
    if (format_ == Format::csv) {
      if (phases_) fields.push_back(row.phase);
      fields.push_back(row.failure);
      out_ << csvLine(fields);
      return;
    }
    out_ << columns(fields);
    const std::string& remark = row.failure.empty() ? row.phase : row.failure;
    if (!remark.empty() && part_.last == titles_.size()) out_ << "  " << remark;
    out_ << '\n';
  }

  void end() {
    if (format_ == Format::json) out_ << "]}\n";
  }

 private:
  static constexpr std::size_t columnWidth = 13;

  // The key's field and those of the part.
  [[nodiscard]] std::string columns(const std::vector<std::string>& fields) const {
    std::string text;
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (i != 0 && (i < part_.first || i >= part_.last)) continue;
      text.append(columnWidth - std::min(columnWidth - 1, width(fields[i])), ' ');
      text += fields[i];
    }
    return text;
  }

  void beginCsv() {
    std::vector<std::string> heads;
    heads.reserve(titles_.size() + 1);
    for (std::size_t i = 0; i < titles_.size(); ++i) {
      heads.push_back(fmt::format("{} [{}]", titles_[i], units_[i]));
    }
    if (phases_) heads.emplace_back("phase");
    heads.emplace_back("failure");
    out_ << csvLine(heads);
  }

  void beginJson(const Water& water, const Table& table) {
    JsonObject units;
    for (std::size_t i = 0; i < titles_.size(); ++i) units.add(titles_[i], jsonString(units_[i]));
    const std::string other(1, table.other());
    if (phases_) units.add(other, jsonString(water.unit(table.other())));
    JsonObject head;
    head.add("table", jsonString(table.name()));
    if (phases_) head.add(other, jsonNumber(table.fixed));
    head.add("units", units.text());
    std::string text = head.text();
    text.pop_back();
    out_ << text << ",\"rows\":[";
  }

  void jsonLine(const Row& row) {
    JsonObject object;
    for (std::size_t i = 0; i < row.values.size(); ++i) {
      if (row.values[i]) object.add(titles_[i], jsonNumber(*row.values[i]));
    }
    if (!row.phase.empty()) object.add("phase", jsonString(row.phase));
    if (!row.failure.empty()) object.add("failure", jsonString(row.failure));
    out_ << (first_ ? "\n" : ",\n") << object.text();
    first_ = false;
  }

  std::ostream& out_;
  Format format_;
  bool phases_;
  std::vector<std::string> titles_, units_;
  std::string letters_;
  Part part_{};
  bool first_ = true;
};

// Whether x lies between from (which does not count) and to, in either direction.
bool isBetween(double x, double from, double to) {
  return from < to ? from < x && x <= to : to <= x && x < from;
}

class Printer {
 public:
  Printer(const Table& table, Client& client, Console& console)
      : table_(table),
        lines_(table.range.lines()),
        console_(console),
        water_(client),
        sheet_(console.out, water_, table) {
    if (!table.ofStates()) return;
    meeting_ = saturationAt(water_, {table.other(), table.fixed});
    if (meeting_) {
      meetingKey_ = water_.toUser(table.key, table.key == 'T' ? meeting_->T : meeting_->P);
    }
  }

  /// Throws Failure when a line failed.
  void print() {
    const auto parts = sheet_.parts(console_.outWidth);
    Progress progress(console_.err, lines_, console_.errIsTerminal && !console_.outIsTerminal);
    for (const Sheet::Part& part : parts) {
      sheet_.begin(part);
      for (long i = 0; i < lines_ && console_.out; ++i) {
        line(i);
        progress.at(i + 1);
      }
    }
    sheet_.end();
    for (const std::string& warning : water_.warnings()) warn(console_, warning);
    if (!firstFailure_.empty()) throw Failure(ExitStatus::callFailed, firstFailure_);
  }

 private:
  [[nodiscard]] double keyOf(long i) const {
    return table_.range.from + static_cast<double>(i) * table_.range.step;
  }

  void line(long i) {
    const double key = keyOf(i);
    const bool meets =
        meeting_ && (i == 0 ? meetingKey_ == key : isBetween(meetingKey_, keyOf(i - 1), key));
    if (meets) meet();
    const Row row =
        table_.ofStates() ? stateRow(water_, table_, key) : saturationRow(water_, table_, key);
    const bool onLine = row.failure.find(messageText(Message::twoPhase)) != std::string::npos;
    if (onLine && meeting_) {
      // Pressure and temperature say no more than the two lines do.
      const bool shown = meets || (i + 1 < lines_ && isBetween(meetingKey_, key, keyOf(i + 1)));
      if (!shown) meet();
      return;
    }
    sheet_.line(row);
    if (!row.failure.empty() && firstFailure_.empty()) {
      firstFailure_ = fmt::format("at {} = {}: {}", table_.key, readableText(key, 7), row.failure);
    }
  }

  void meet() {
    for (const Row& row : rowsOnLine(water_, table_, *meeting_)) sheet_.line(row);
  }

  const Table& table_;
  long lines_;
  Console& console_;
  Water water_;
  Sheet sheet_;
  std::optional<Saturation> meeting_;  ///< where an isobar or isotherm meets the saturation line
  double meetingKey_ = 0.0;
  std::string firstFailure_;
};

}  // namespace

ExitStatus tableCommand(const Words& words, Console& console) {
  CommandOptions app("table",
                     "table saturation [--by T|P] --from X --to X --step X [OPTIONS]\n"
                     "       calvex table isobar PRESSURE --from T --to T --step T [OPTIONS]\n"
                     "       calvex table isotherm TEMPERATURE --from P --to P --step P [OPTIONS]",
                     "Prints a table of saturated states, or of states at one pressure or "
                     "temperature.");
  app.footer(
      "Examples:\n"
      "  calvex table saturation --from 300 --to 640 --step 20\n"
      "  calvex table saturation --by P --from 1 --to 10 --step 1 -u P=bara -u T=C\n"
      "  calvex table isobar 10 --from 600 --to 900 --step 50 --csv > isobar.csv\n"
      "  calvex table isotherm 500 --from 10 --to 100 --step 10 -u T=C -u P=bara\n"
      "v specific volume, rho density, h enthalpy, s entropy, u internal energy, cp isobaric heat\n"
      "capacity, w speed of sound; liq and vap are saturated liquid and vapour, fg the "
      "difference.\n"
      "An isobar or isotherm has two lines more where it meets the saturation line. Values are in\n"
      "the chosen units; a unit may stand behind a value, though not behind the step. A line that "
      "fails says why, and the exit status is 1.");
  std::string by = "T", from, to, step;
  bool csv = false, json = false;
  ClientOptions options;
  app.add_option("--by", by, "What a saturation table runs over (T)")->type_name("T|P");
  app.add_option("--from", from, "First value")->type_name("X");
  app.add_option("--to", to, "Last value")->type_name("X");
  app.add_option("--step", step, "Difference between lines")->type_name("X");
  app.add_flag("--csv", csv, "Comma-separated, with all digits");
  app.add_flag("--json", json, "Print JSON, with all digits");
  options.addUnitsTo(app);
  options.addSettingsTo(app);
  const std::optional<Words> rest = parseAround(app, words, console);
  if (!rest) return ExitStatus::ok;
  const Words& operands = *rest;

  if (csv && json) throw UsageError("--csv excludes --json");
  if (by != "T" && by != "P") {
    throw UsageError(fmt::format("--by takes T or P, not {}", inQuotes(by)));
  }
  const std::string kind = operands.empty() ? std::string() : operands.front();
  if (const Words kinds = {"saturation", "isobar", "isotherm"};
      std::ranges::find(kinds, kind) == kinds.end()) {
    const std::string given = kind.empty() ? "" : fmt::format(", not {}", inQuotes(kind));
    throw UsageError(
        fmt::format("table takes 'saturation', 'isobar PRESSURE' or 'isotherm TEMPERATURE'{}{}\n"
                    "'calvex help table' explains it",
                    given, didYouMean(kind, kinds)));
  }
  Table table{Table::Kind::saturation,
              by.front(),
              0.0,
              {},
              csv    ? Format::csv
              : json ? Format::json
                     : Format::text};
  if (kind == "isobar" || kind == "isotherm") {
    const bool isobar = kind == "isobar";
    if (app.count("--by") != 0) throw UsageError("--by is for saturation tables");
    if (operands.size() != 2) {
      throw UsageError(isobar ? "isobar takes one pressure, as in 'calvex table isobar 10 "
                                "--from 600 --to 900 --step 50'"
                              : "isotherm takes one temperature, as in 'calvex table isotherm 800 "
                                "--from 1 --to 10 --step 1'");
    }
    table.kind = isobar ? Table::Kind::isobar : Table::Kind::isotherm;
    table.key = isobar ? 'T' : 'P';
  } else if (operands.size() != 1) {
    throw UsageError(
        fmt::format("saturation takes no {}; --by P runs over pressures", inQuotes(operands[1])));
  }
  Client client;
  options.applyTo(client);
  const UnitGroup keyGroup = letterExplanation(table.key).group;
  const auto bound = [&](const char* option, const std::string& word) {
    if (word.empty()) {
      throw UsageError(fmt::format("{} is missing: a table runs --from X --to X --step X", option));
    }
    return optionValue(option, [&] {
      if (&word != &step) return valueWithUnit(word, keyGroup, client.units());
      if (unitBehind(word).empty()) return parseNumber(word);
      throw UsageError(fmt::format("{} has a unit; a step is a plain number, in the unit of {}: {}",
                                   inQuotes(word), table.key,
                                   currentUnit(client.units(), static_cast<int>(keyGroup))));
    });
  };
  table.range = {bound("--from", from), bound("--to", to), bound("--step", step)};
  if (table.ofStates()) {
    const UnitGroup group = table.key == 'T' ? UnitGroup::pressure : UnitGroup::temperature;
    table.fixed =
        optionValue(kind, [&] { return valueWithUnit(operands[1], group, client.units()); });
  }
  Printer(table, client, console).print();
  return ExitStatus::ok;
}

}  // namespace calvex::cli
