// One answer, whoever asks: every member called from C, from C++, by the command line and of the
// engine itself, with the same random inputs.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "c/requests.h"
#include "calvex/each_member.hpp"
#include "server/client.h"
#include "server/direct_members.h"
#include "server/member_columns.h"
#include "server/member_explanations.h"
#include "server/member_table.h"

namespace calvex {
namespace {

using calvex::test::requestOf;
using calvex::test::rowsOf;

constexpr int callCount = 2000;

/// A call of a member: its inputs in the order of its parameters.
struct Asked {
  const Member* member;
  std::vector<double> numbers;
  std::vector<std::string> texts;  ///< UTF-8
};
/// What came of it: numbers and the cells of a table, or a failure.
struct Answered {
  bool failed = false;
  std::string error;
  std::string cause;
  std::vector<double> numbers;
  std::vector<std::string> texts;

  [[nodiscard]] std::string text() const {
    std::string all = failed ? "failed: " + error + " / " + cause : "";
    for (const double number : numbers) {
      char digits[32];
      all += ' ';
      all.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
      if (std::isnan(number)) continue;
      all += '#' + std::to_string(std::bit_cast<std::uint64_t>(number));  // and every bit
    }
    for (const std::string& word : texts) all += " '" + word + "'";
    return all;
  }
};

bool isDialog(const Member& member) { return member.name.starts_with("Show"); }

// The members' examples, moved about: mostly sensible, some beyond every range. Calls that change
// settings and units come as they are, between the others.
std::vector<Asked> randomCalls(unsigned seed = 20240501) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> near(0.9, 1.1), any(-2.0, 6.0);
  std::vector<Asked> calls;
  for (int i = 0; static_cast<int>(calls.size()) < callCount; ++i) {
    const auto table = memberTable();
    const Member& member = table[static_cast<std::size_t>(i) % table.size()];
    if (isDialog(member)) continue;
    Asked asked{&member, {}, {}};
    const bool wild = random() % 10 == 0;
    const MemberExplanation words = explanation(member);
    std::size_t given = 0;
    for (const Parameter& parameter : member.parameters()) {
      if (!parameter.isInput() || parameter.type == ValueType::array) continue;
      const ExampleInput& example = words.example.inputs.at(given++);
      if (const auto* number = std::get_if<double>(&example)) {
        const bool moved = parameter.type == ValueType::real && parameter.hasUnit();
        asked.numbers.push_back(moved ? *number * (wild ? any(random) : near(random)) : *number);
      } else {
        asked.texts.push_back(std::get<std::string>(example));
      }
    }
    calls.push_back(std::move(asked));
  }
  return calls;
}

Answered ofEngine(Client& client, const Asked& asked) {
  std::vector<Value> arguments;
  std::size_t number = 0, text = 0;
  for (const Parameter& parameter : asked.member->parameters()) {
    if (!parameter.isInput() || parameter.type == ValueType::array) {
      arguments.emplace_back();
    } else if (parameter.type == ValueType::text) {
      arguments.emplace_back(asked.texts[text++]);
    } else {
      arguments.emplace_back(asked.numbers[number++]);
    }
  }
  Answered answered;
  answered.failed = client.object().invoke(*asked.member, arguments).success == 0;
  if (answered.failed) {
    answered.error = client.engine().LastError();
    answered.cause = client.engine().diagnostics().cause();
    return answered;
  }
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (!asked.member->parameters()[i].isOutput()) continue;
    if (const auto* value = std::get_if<double>(&arguments[i])) answered.numbers.push_back(*value);
    if (const auto* value = std::get_if<short>(&arguments[i])) answered.numbers.push_back(*value);
    if (const auto* value = std::get_if<int>(&arguments[i])) answered.numbers.push_back(*value);
    if (const auto* word = std::get_if<std::string>(&arguments[i])) {
      answered.texts.push_back(*word);
    }
    if (const auto* table = std::get_if<ResultArray>(&arguments[i])) {
      for (const auto& row : *table) {
        for (const Cell& cell : row) {
          if (const auto* value = std::get_if<double>(&cell)) {
            answered.numbers.push_back(*value);
          } else {
            answered.texts.push_back(std::get<std::string>(cell));
          }
        }
      }
    }
  }
  return answered;
}

std::string cText(calvex_engine* engine, auto get) {
  std::size_t needed = 0;
  EXPECT_EQ(get(engine, nullptr, std::size_t{0}, &needed), CALVEX_OK);
  std::string text(needed, '\0');
  EXPECT_EQ(get(engine, text.data(), needed, &needed), CALVEX_OK);
  text.pop_back();
  return text;
}

Answered ofC(calvex_engine* engine, const Asked& asked) {
  calvex_member facts{};
  EXPECT_EQ(calvex_member_facts(asked.member->dispatchId, &facts, sizeof facts), CALVEX_OK);
  std::vector<const char*> texts;
  for (const std::string& text : asked.texts) texts.push_back(text.c_str());
  std::vector<double> outputs(facts.output_count);
  Answered answered;
  answered.failed =
      calvex_call_texts(engine, facts.number, asked.numbers.data(), asked.numbers.size(),
                        texts.data(), nullptr, texts.size(), outputs.data(), outputs.size()) != 0;
  if (answered.failed) {
    answered.error = cText(engine, calvex_last_error);
    answered.cause = cText(engine, calvex_last_cause);
    return answered;
  }
  answered.numbers = outputs;
  std::size_t rows = 0, columns = 0;
  EXPECT_EQ(calvex_answer_size(engine, &rows, &columns), CALVEX_OK);
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t column = 0; column < columns; ++column) {
      double number = 0.0;
      if (calvex_answer_number(engine, row, column, &number) == CALVEX_OK) {
        answered.numbers.push_back(number);
      } else {
        answered.texts.push_back(cText(engine, [&](calvex_engine* e, auto... to) {
          return calvex_answer_text(e, row, column, to...);
        }));
      }
    }
  }
  return answered;
}

// A member function of the wrapper as a function from Asked to Answered.
struct Wrapped {
  using Function = std::function<Answered(Engine&, const Asked&)>;
  std::map<std::string, Function, std::less<>> members;

  Wrapped() {
    forEachMember([this](const char* name, auto function) { add(name, function); });
  }

 private:
  template <class R, class... A>
  void add(const char* name, R (Engine::*function)(A...)) {
    members.emplace(name, [function](Engine& engine, const Asked& asked) {
      [[maybe_unused]] std::size_t number = 0, text = 0;
      // Braces evaluate in order.
      std::tuple<A...> arguments{take<A>(asked, number, text)...};
      Answered answered;
      try {
        std::apply(
            [&](A... a) {
              if constexpr (std::is_void_v<R>) {
                (engine.*function)(a...);
              } else {
                put((engine.*function)(a...), answered);
              }
            },
            arguments);
      } catch (const Error& failure) {
        answered.failed = true;
        answered.error = failure.reason();
        answered.cause = failure.cause();
      }
      return answered;
    });
  }
  template <class T>
  static T take(const Asked& asked, std::size_t& number, std::size_t& text) {
    if constexpr (std::is_same_v<T, std::string_view>) {
      return asked.texts.at(text++);
    } else {
      return static_cast<T>(asked.numbers.at(number++));
    }
  }
  static void put(double result, Answered& answered) { answered.numbers.push_back(result); }
  static void put(int result, Answered& answered) { answered.numbers.push_back(result); }
  static void put(const std::string& result, Answered& answered) {
    answered.texts.push_back(result);
  }
  static void put(const Table& result, Answered& answered) {
    for (const auto& row : result) {
      for (const auto& cell : row) {
        if (const auto* value = std::get_if<double>(&cell)) {
          answered.numbers.push_back(*value);
        } else {
          answered.texts.push_back(std::get<std::string>(cell));
        }
      }
    }
  }
  // A structure of results is its numbers, one after the other.
  template <class Results>
  static void put(const Results& results, Answered& answered) {
    static_assert(sizeof results % sizeof(double) == 0);
    const auto numbers =
        std::bit_cast<std::array<double, sizeof results / sizeof(double)>>(results);
    answered.numbers.insert(answered.numbers.end(), numbers.begin(), numbers.end());
  }
};

TEST(Faces, CAndCppAnswerTheEnginesBits) {
  Client client;
  Engine fromC, fromCpp;
  const Wrapped wrapped;
  int answers = 0;
  for (const Asked& asked : randomCalls()) {
    const Answered engine = ofEngine(client, asked);
    const Answered c = ofC(fromC.handle(), asked);
    EXPECT_EQ(c.failed, engine.failed) << asked.member->name;
    if (engine.failed && asked.member->name == "SetCustomUserUnitIndex")
      continue;                          // without a word
    if (asked.member->name == "hWnd") {  // has no value for the engine
      EXPECT_EQ(c.numbers, std::vector<double>{0.0});
    } else {
      EXPECT_EQ(c.text(), engine.text()) << asked.member->name;
    }
    EXPECT_EQ(wrapped.members.at(std::string(asked.member->name))(fromCpp, asked).text(), c.text())
        << asked.member->name;
    answers += engine.failed ? 0 : 1;
  }
  EXPECT_GT(answers, callCount * 3 / 4);
}

TEST(Faces, TheWrapperHasAFunctionForEveryMember) {
  const Wrapped wrapped;
  for (const Member& member : memberTable()) {
    EXPECT_TRUE(wrapped.members.contains(std::string(member.name))) << member.name;
  }
}

bool computesOnly(const Member& member) { return NumericMember::of(member).has_value(); }

TEST(Faces, TheCommandLineAnswersTheSameBits) {
  const std::string script = testing::TempDir() + "calvex_faces.calvex";
  std::vector<Asked> calls = randomCalls();
  std::erase_if(calls, [](const Asked& asked) { return !computesOnly(*asked.member); });
  {
    std::ofstream file(script);
    for (const Asked& asked : calls) {
      file << asked.member->name;
      for (const double number : asked.numbers) {
        char digits[32];
        file << ' ';
        file.write(digits, std::to_chars(digits, digits + sizeof digits, number).ptr - digits);
      }
      for (const std::string& text : asked.texts) file << " \"" << text << '"';
      file << '\n';
    }
  }
  const std::string command =
      std::string(CALVEX_CLI) + " run --no-config --json '" + script + "' 2>/dev/null";
  std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  ASSERT_TRUE(pipe);
  std::string printed;
  char block[4096];
  while (const std::size_t count = fread(block, 1, sizeof block, pipe.get())) {
    printed.append(block, count);
  }
  Engine engine;
  std::istringstream lines(printed);
  std::size_t compared = 0;
  for (const Asked& asked : calls) {
    std::string line;
    ASSERT_TRUE(std::getline(lines, line)) << "for " << asked.member->name;
    const Answered answered = ofC(engine.handle(), asked);
    EXPECT_EQ(line.find("\"lastError\"") != std::string::npos, answered.failed) << line;
    if (answered.failed) {
      EXPECT_NE(line.find(answered.error), std::string::npos) << line;
      EXPECT_NE(line.find(answered.cause), std::string::npos) << line;
    }
    for (const double number : answered.numbers) {
      if (std::isnan(number)) continue;
      char digits[32];
      const std::string text(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
      EXPECT_TRUE(line.find(':' + text) != std::string::npos ||
                  line.find(',' + text) != std::string::npos)
          << asked.member->name << ": no " << text << " in " << line;
      ++compared;
    }
  }
  EXPECT_GT(compared, calls.size());
  std::remove(script.c_str());
}

// The direct road by the C interface and by the wrapper against the members, 2,000 times for those
// that it has.
TEST(Faces, TheDirectRoadAnswersTheMembersTo1em10) {
  std::vector<Asked> calls;
  for (unsigned seed = 1; calls.size() < callCount; ++seed) {
    for (Asked& asked : randomCalls(seed)) {
      const auto direct = directMember(*asked.member);
      if (direct && !direct->ofLiquid) calls.push_back(std::move(asked));
    }
  }
  Engine engine;
  int answers = 0;
  for (const Asked& asked : calls) {
    const std::string name(asked.member->name);
    const std::string pair = name.substr(name.size() - 2);
    const double first = asked.numbers.at(0), second = asked.numbers.at(1);
    const Answered one = ofC(engine.handle(), asked);
    double value = -1.0, wrapped = -1.0;
    short status = -1, wrappedStatus = -1;
    const calvex_result wanted{name[0], {&value, 1}, {nullptr, 0}, {nullptr, 0}};
    const calvex_request request =
        requestOf(pair, 1, {&first, 0}, {&second, 0}, {&wanted, 1}, {&status, 1});
    ASSERT_EQ(calvex_direct(engine.handle(), &request, sizeof request), CALVEX_OK);
    const StateResult results[] = {{name[0], {&wrapped, 1}}};
    engine.states(pair, {&first, 1}, {&second, 1}, results, {&wrappedStatus, 1});
    EXPECT_EQ(std::bit_cast<std::uint64_t>(wrapped), std::bit_cast<std::uint64_t>(value)) << name;
    EXPECT_EQ(wrappedStatus, status) << name;
    EXPECT_EQ(status != 0, one.failed) << name << one.text();
    if (one.failed) {
      EXPECT_TRUE(std::isnan(value)) << name;
      EXPECT_EQ(cText(engine.handle(), calvex_last_error), one.error) << name;
      EXPECT_EQ(cText(engine.handle(), calvex_last_cause), one.cause) << name;
    } else {
      EXPECT_LE(std::fabs(value - one.numbers[0]), 1e-10 * std::fabs(one.numbers[0])) << name;
      ++answers;
    }
  }
  EXPECT_GT(answers, callCount * 3 / 4);
}

// Members over columns, against the same calls.
TEST(Faces, ColumnsAnswerTheMembersTo1em10) {
  Engine engine;
  std::size_t compared = 0;
  for (const Asked& asked : randomCalls()) {
    const auto numeric = NumericMember::of(*asked.member);
    if (!numeric || !asked.texts.empty()) continue;
    const Answered one = ofC(engine.handle(), asked);
    std::vector<calvex_column> inputs;
    for (const double& number : asked.numbers) inputs.push_back({&number, 0});
    std::vector<double> values(numeric->outputs().size(), -1.0);
    std::vector<calvex_output> outputs;
    for (std::size_t i = 0; i < values.size(); ++i) outputs.push_back({i, {&values[i], 1}});
    short status = -1;
    const calvex_rows rows = rowsOf(asked.member->dispatchId, 1, inputs, outputs, {&status, 1});
    ASSERT_EQ(calvex_columns(engine.handle(), &rows, sizeof rows), CALVEX_OK);
    EXPECT_EQ(status != 0, one.failed) << asked.member->name;
    for (std::size_t i = 0; i < one.numbers.size(); ++i) {
      EXPECT_LE(std::fabs(values[i] - one.numbers[i]), 1e-10 * std::fabs(one.numbers[i]))
          << asked.member->name << one.text();
      ++compared;
    }
  }
  EXPECT_GT(compared, 1000U);
}

}  // namespace
}  // namespace calvex
