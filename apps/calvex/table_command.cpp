// calvex table saturation|isobar
#include <fmt/format.h>

#include <cmath>
#include <ostream>

#include "command_line.h"
#include "diagnostics/formatting.h"
#include "encoding.h"
#include "numbers.h"
#include "output.h"
#include "progress.h"

namespace calvex::cli {

namespace {

/// A column: a member's first output. Inputs are found by the parameters' names.
struct Column {
  std::string_view title;
  std::string_view member;
  double quality = 0.0;  ///< for members with an input Q
};

constexpr Column saturationByT[] = {
    {"P", "PSatT"},         {"v_liq", "VSatTQ", 0}, {"v_vap", "VSatTQ", 1}, {"h_liq", "HSatTQ", 0},
    {"h_vap", "HSatTQ", 1}, {"s_liq", "SSatTQ", 0}, {"s_vap", "SSatTQ", 1},
};
constexpr Column saturationByP[] = {
    {"T", "TSatP"},         {"v_liq", "VSatPQ", 0}, {"v_vap", "VSatPQ", 1}, {"h_liq", "HSatPQ", 0},
    {"h_vap", "HSatPQ", 1}, {"s_liq", "SSatPQ", 0}, {"s_vap", "SSatPQ", 1},
};
constexpr Column isobar[] = {
    {"v", "VPT"}, {"rho", "RPT"}, {"h", "HPT"}, {"s", "SPT"},
    {"u", "UPT"}, {"cp", "CPT"},  {"w", "WPT"},
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

struct Table {
  std::span<const Column> columns;
  char key;            ///< T or P, which the range is about
  double fixed = 0.0;  ///< the other one, of an isobar
  Range range;
  bool csv;
};

struct Answer {
  std::optional<double> value;
  std::string failure;
};

Answer answer(Client& client, const Column& column, const Table& table, double key) {
  const Member& member = *findMember(column.member);
  Call call{&member, false, std::vector<Value>(member.parameters().size())};
  for (std::size_t i = 0; i < call.arguments.size(); ++i) {
    const Parameter& parameter = member.parameters()[i];
    if (!parameter.isInput()) continue;
    if (parameter.group == static_cast<short>(UnitGroup::quality)) {
      call.arguments[i] = client.units().toUser(UnitGroup::quality, column.quality);
    } else {
      call.arguments[i] = parameter.name.front() == table.key ? key : table.fixed;
    }
  }
  const Outcome outcome = perform(client, std::move(call));
  if (!outcome.succeeded()) return {std::nullopt, failureText(outcome)};
  return {std::get<double>(outcome.call.arguments.front()), {}};
}

std::string csvText(std::string_view text) {
  if (text.find_first_of(",\"\n\r") == std::string_view::npos) return std::string(text);
  std::string field = "\"";
  for (const char c : text) {
    if (c == '"') field += c;
    field += c;
  }
  return field + '"';
}

// Writes a line: titles, units or values, with a remark behind them.
class Sheet {
 public:
  Sheet(std::ostream& out, bool csv) : out_(out), csv_(csv) {}

  void line(const std::vector<std::string>& fields, std::string_view remark) {
    std::string text;
    for (const std::string& field : fields) {
      if (csv_) {
        text += (text.empty() ? "" : ",") + csvText(field);
      } else {
        constexpr std::size_t columnWidth = 13;
        text.append(columnWidth - std::min(columnWidth - 1, width(field)), ' ');
        text += field;
      }
    }
    if (csv_) {
      text += "," + csvText(remark);
    } else if (!remark.empty()) {
      text += fmt::format("  {}", remark);
    }
    out_ << text << '\n';
  }

 private:
  std::ostream& out_;
  bool csv_;
};

ExitStatus print(const Table& table, Client& client, Console& console) {
  const long lines = table.range.lines();
  Sheet sheet(console.out, table.csv);

  std::vector<std::string> titles = {std::string(1, table.key)};
  std::vector<std::string> units = {currentUnit(
      client.units(),
      static_cast<int>(table.key == 'T' ? UnitGroup::temperature : UnitGroup::pressure))};
  for (const Column& column : table.columns) {
    titles.emplace_back(column.title);
    units.push_back(
        currentUnit(client.units(), findMember(column.member)->parameters().front().group));
  }
  if (table.csv) {
    for (std::size_t i = 0; i < titles.size(); ++i) {
      titles[i] += fmt::format(" [{}]", units[i]);
    }
    sheet.line(titles, "failure");
  } else {
    sheet.line(titles, "");
    sheet.line(units, "");
  }

  const auto number = [&](double value) {
    return table.csv ? shortestText(value) : readableText(value, 7);
  };
  ExitStatus status = ExitStatus::ok;
  std::string firstFailure;
  Progress progress(console.err, lines, !console.outIsTerminal);
  for (long i = 0; i < lines && console.out; ++i) {
    const double key = table.range.from + static_cast<double>(i) * table.range.step;
    std::vector<std::string> fields = {number(key)};
    std::string failure;
    for (const Column& column : table.columns) {
      const Answer cell = answer(client, column, table, key);
      fields.push_back(cell.value ? number(*cell.value) : table.csv ? "" : "-");
      if (failure.empty()) failure = cell.failure;
    }
    sheet.line(fields, failure);
    if (!failure.empty()) {
      status = ExitStatus::callFailed;
      if (firstFailure.empty()) {
        firstFailure = fmt::format("at {} = {}: {}", table.key, number(key), failure);
      }
    }
    progress.at(i + 1);
  }
  if (status != ExitStatus::ok) throw Failure(status, firstFailure);
  return status;
}

}  // namespace

ExitStatus tableCommand(const Words& words, Console& console) {
  CommandOptions app("table",
                     "table saturation [--by T|P] --from X --to X --step X [OPTIONS]\n"
                     "       calvex table isobar PRESSURE --from T --to T --step T [OPTIONS]",
                     "Prints a table of saturated states, or of states at one pressure.");
  app.footer(
      "Examples:\n"
      "  calvex table saturation --from 300 --to 640 --step 20\n"
      "  calvex table saturation --by P --from 1 --to 10 --step 1 -u P=bara -u T=C\n"
      "  calvex table isobar 10 --from 600 --to 900 --step 50 --csv > isobar.csv\n"
      "Values are in the chosen units. A line that fails says why, and the exit status is 1.");
  std::string by = "T", from, to, step;
  bool csv = false;
  ClientOptions options;
  app.add_option("--by", by, "What a saturation table runs over (T)")->type_name("T|P");
  app.add_option("--from", from, "First value")->required()->type_name("X");
  app.add_option("--to", to, "Last value")->required()->type_name("X");
  app.add_option("--step", step, "Difference between lines")->required()->type_name("X");
  app.add_flag("--csv", csv, "Comma-separated, with all digits");
  options.addUnitsTo(app);
  options.addSettingsTo(app);
  const std::optional<Words> rest = parseAround(app, words, console);
  if (!rest) return ExitStatus::ok;
  const Words& operands = *rest;

  if (by != "T" && by != "P") {
    throw UsageError(fmt::format("--by takes T or P, not {}", inQuotes(by)));
  }
  const std::string kind = operands.empty() ? std::string() : operands.front();
  Table table{{}, by.front(), 0.0, {parseNumber(from), parseNumber(to), parseNumber(step)}, csv};
  if (kind == "saturation" && operands.size() == 1) {
    table.columns = std::span<const Column>(saturationByT);
    if (table.key == 'P') table.columns = saturationByP;
  } else if (kind == "isobar" && operands.size() == 2) {
    if (app.count("--by") != 0) throw UsageError("--by is for saturation tables");
    table.columns = isobar;
    table.fixed = parseNumber(operands[1]);
  } else if (kind == "isobar") {
    throw UsageError(
        "isobar takes one pressure, as in 'calvex table isobar 10 --from 600 --to 900 "
        "--step 50'");
  } else {
    throw UsageError(
        "table takes 'saturation' or 'isobar PRESSURE'\n'calvex help table' explains "
        "it");
  }
  Client client;
  options.applyTo(client);
  return print(table, client, console);
}

}  // namespace calvex::cli
