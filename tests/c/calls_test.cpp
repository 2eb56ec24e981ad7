// Calls through the C interface, and what misuse of it answers.
#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "calvex/calvex.h"
#include "support/checkout.h"

namespace {

struct Destroy {
  void operator()(calvex_engine* engine) const { calvex_destroy(engine); }
};
using Engine = std::unique_ptr<calvex_engine, Destroy>;

Engine makeEngine() {
  calvex_engine* engine = nullptr;
  EXPECT_EQ(calvex_create(&engine), CALVEX_OK);
  return Engine(engine);
}

template <class Get>
std::string text(Get get) {
  std::size_t needed = 0;
  EXPECT_EQ(get(nullptr, 0, &needed), CALVEX_OK);
  std::string buffer(needed, '?');
  EXPECT_EQ(get(buffer.data(), needed, nullptr), CALVEX_OK);
  EXPECT_EQ(buffer.back(), '\0');
  buffer.pop_back();
  return buffer;
}
std::string lastError(const Engine& engine) {
  return text([&](char* to, std::size_t size, std::size_t* needed) {
    return calvex_last_error(engine.get(), to, size, needed);
  });
}
std::string lastCause(const Engine& engine) {
  return text([&](char* to, std::size_t size, std::size_t* needed) {
    return calvex_last_cause(engine.get(), to, size, needed);
  });
}

int numberOf(const char* name) {
  int member = -1;
  EXPECT_EQ(calvex_find_member(name, CALVEX_TERMINATED, &member), CALVEX_OK) << name;
  return member;
}

int HPT(const Engine& engine, double P, double T, double* h) {
  const double given[] = {P, T};
  return calvex_call_named(engine.get(), "HPT", CALVEX_TERMINATED, given, 2, h, 1);
}

constexpr double untouched = -12345.0;
const double inf = std::numeric_limits<double>::infinity();
const double nan = std::numeric_limits<double>::quiet_NaN();

// 3374 kJ/kg: Haar, Gallagher, Kell, NBS/NRC Steam Tables (1984), 10 MPa and 500 °C.
constexpr double tabulated = 3374.0;

TEST(C, CallsAMemberByNameAndByNumber) {
  const Engine engine = makeEngine();
  double byName = 0.0, byNumber = 0.0;
  ASSERT_EQ(HPT(engine, 10.0, 773.15, &byName), CALVEX_OK);
  EXPECT_NEAR(byName, tabulated, 0.5);
  const double given[] = {10.0, 773.15};
  ASSERT_EQ(calvex_call(engine.get(), numberOf("hpt"), given, 2, &byNumber, 1), CALVEX_OK);
  EXPECT_EQ(byNumber, byName);
}

TEST(C, TellsItsVersion) { EXPECT_EQ(text(calvex_version), calvex::test::projectVersion()); }

TEST(C, AFailureHasTheNumberAndTheTextOfTheMessageAndWritesNothing) {
  const Engine engine = makeEngine();
  double h = untouched;
  EXPECT_EQ(HPT(engine, 10.0, 3000.0, &h), 108);
  EXPECT_EQ(lastError(engine),
            "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).");
  EXPECT_EQ(h, untouched);
  EXPECT_EQ(calvex_put(engine.get(), numberOf("SolverTol"), -1.0), 8);
  EXPECT_EQ(lastError(engine), "Invalid solver tolerance specified.");
}

TEST(C, NumbersThatAreNoneFailAndWriteNothing) {
  const Engine engine = makeEngine();
  for (const double bad : {nan, inf, -inf, 1e308, -1e308, 5e-324}) {
    double h = untouched;
    EXPECT_GT(HPT(engine, 10.0, bad, &h), 0) << bad;
    EXPECT_GT(HPT(engine, bad > 1.0 ? -bad : bad, bad, &h), 0) << bad;
    EXPECT_EQ(h, untouched);
  }
}

TEST(C, TheLastFailureBelongsToTheEngine) {
  const Engine one = makeEngine(), other = makeEngine();
  double h = 0.0;
  EXPECT_EQ(HPT(one, 10.0, 3000.0, &h), 108);
  EXPECT_EQ(lastError(other), "");
  EXPECT_EQ(HPT(one, 10.0, 700.0, &h), CALVEX_OK);
  EXPECT_NE(lastError(one), "");
}

TEST(C, TheCauseBelongsToTheReason) {
  const Engine engine = makeEngine();
  double h = 0.0;
  EXPECT_EQ(HPT(engine, 0.0, 700.0, &h), 104);
  EXPECT_EQ(lastError(engine), "Solution Error.");
  EXPECT_EQ(lastCause(engine), "Pressure must be above 0 MPa.");
  EXPECT_EQ(HPT(engine, 10.0, 3000.0, &h), 108);
  EXPECT_EQ(lastCause(engine), "");
}

// Nothing may be taken for the reason of a call but what that call left.
TEST(C, EveryFailureHasATextOfItsOwn) {
  const Engine engine = makeEngine();
  calvex_engine* const e = engine.get();
  double number = 0.0;
  char letter = '?';
  const char* const name = "no member";
  const auto after = [&](auto failing, int code) {
    EXPECT_EQ(HPT(engine, 0.0, 700.0, &number), 104);
    EXPECT_EQ(failing(), code);
    EXPECT_EQ(lastCause(engine), "") << lastError(engine);
    return lastError(engine);
  };
  EXPECT_EQ(
      after([&] { return calvex_call(e, numberOf("GetCellRef"), nullptr, 0, nullptr, 0); }, 100),
      "GetCellRef failed: the trace has no columns for book, sheet and cell; "
      "SetupExcelTracing makes them.");
  EXPECT_EQ(after(
                [&] {
                  number = 3.0;
                  return calvex_call(e, numberOf("GetCustomTraceText"), &number, 1, nullptr, 0);
                },
                100),
            "GetCustomTraceText failed: the trace has no column of that number, counted from 0; "
            "AddCustomTraceTitle adds one.");
  EXPECT_EQ(after([&] { return calvex_put(e, numberOf("AppLevel"), 7.0); }, 100),
            "AppLevel failed: 7 is not 0 or 2 (units of the catalogue), 1 (a units server) or 3 "
            "(units of one's own).");
  EXPECT_EQ(after([&] { return calvex_unit(e, 0, nullptr, 5, nullptr); }, CALVEX_NULL),
            "The argument text is NULL, but size is 5; a size of 0 asks for the size alone.");
  EXPECT_EQ(after([&] { return calvex_unit(e, 0, &letter, 1, nullptr); }, CALVEX_TOO_SMALL),
            "The text needs a size of 2 bytes, but size is 1.");
  EXPECT_EQ(after([&] { return calvex_unit(e, 99, nullptr, 0, nullptr); }, CALVEX_UNKNOWN),
            "There is no unit group 99: they are 0 to 26.");
  EXPECT_EQ(after([&] { return calvex_answer_number(e, 0, 0, &number); }, CALVEX_UNKNOWN),
            "There is no row 0: there are none.");
  EXPECT_EQ(after([&] { return calvex_put(e, numberOf("HPT"), 1.0); }, CALVEX_VALUE),
            "HPT is not a setting.");
  EXPECT_EQ(after([&] { return calvex_put(e, numberOf("SatPolish"), 0.5); }, CALVEX_VALUE),
            "pVal of SatPolish must be a whole number from -2147483648 to 2147483647, not 0.5.");
  EXPECT_EQ(after([&] { return calvex_put(e, numberOf("AppName"), 0.5); }, CALVEX_VALUE),
            "AppName is a text, for calvex_put_text.");
  EXPECT_EQ(
      after([&] { return calvex_call_named(e, name, 9, nullptr, 0, nullptr, 0); }, CALVEX_UNKNOWN),
      "There is no member 'no member'.");
  EXPECT_EQ(after([&] { return calvex_take_settings(e, nullptr); }, CALVEX_NULL),
            "The argument other is NULL.");
  EXPECT_EQ(after([&] { return calvex_trace_take(e, nullptr); }, CALVEX_NULL),
            "The argument count is NULL.");
}

TEST(C, AskingForTheLastFailureLeavesItAsItIs) {
  const Engine engine = makeEngine();
  double h = 0.0;
  char letter = '?';
  EXPECT_EQ(HPT(engine, 0.0, 700.0, &h), 104);
  const std::string error = lastError(engine), cause = lastCause(engine);
  EXPECT_EQ(calvex_last_error(engine.get(), &letter, 1, nullptr), CALVEX_TOO_SMALL);
  EXPECT_EQ(calvex_last_cause(engine.get(), nullptr, 1, nullptr), CALVEX_NULL);
  EXPECT_EQ(lastError(engine), error);
  EXPECT_EQ(lastCause(engine), cause);
}

TEST(C, UnknownNamesAreToldWhatThereIs) {
  const Engine engine = makeEngine();
  const auto choose = [&](const char* group, const char* unit) {
    return calvex_set_unit(engine.get(), group, CALVEX_TERMINATED, unit, CALVEX_TERMINATED);
  };
  EXPECT_EQ(choose("Temperature", "furlong"), CALVEX_UNKNOWN);
  EXPECT_EQ(lastError(engine), "'furlong' is not a unit of Temperature.");
  EXPECT_EQ(lastCause(engine), "Units: C, F, K, R.");
  EXPECT_EQ(choose("Presure", "bar"), CALVEX_UNKNOWN);
  EXPECT_EQ(lastError(engine), "'Presure' is not a unit group; did you mean Pressure?");
  EXPECT_TRUE(lastCause(engine).starts_with("Groups: ")) << lastCause(engine);
  EXPECT_EQ(choose("P", "psix"), CALVEX_UNKNOWN);
  EXPECT_EQ(lastError(engine), "'psix' is not a unit of Pressure; did you mean psia or psig?");
  EXPECT_EQ(choose("", ""), CALVEX_UNKNOWN);
  EXPECT_EQ(choose("P", ""), CALVEX_UNKNOWN);
  EXPECT_EQ(choose(nullptr, "bar"), CALVEX_NULL);
  EXPECT_EQ(lastError(engine), "The argument group is NULL.");
  EXPECT_EQ(choose("P", nullptr), CALVEX_NULL);
  EXPECT_EQ(lastError(engine), "The argument unit is NULL.");

  // The member has its own text and number; what there is stands behind it.
  const char* const texts[] = {"T", "furlong"};
  EXPECT_EQ(calvex_call_texts(engine.get(), numberOf("SetUserUnit"), nullptr, 0, texts, nullptr, 2,
                              nullptr, 0),
            100);
  EXPECT_EQ(lastError(engine), "furlong is not a defined unit of T.");
  EXPECT_EQ(lastCause(engine), "Units: C, F, K, R.");
  const double given[] = {3214.0, 4.0, 0.01, 0.8, 10.0};
  const char* const tokens[] = {"Pow, Temp"};
  EXPECT_EQ(calvex_call_texts(engine.get(), numberOf("XLTurbineA"), given, 5, tokens, nullptr, 1,
                              nullptr, 0),
            100);
  EXPECT_EQ(lastError(engine), "Invalid Token!");
  EXPECT_EQ(lastCause(engine), "Tokens: Pow, T_Out, H_Out, Q_Out.");
}

TEST(C, UnitsAreTheEnginesOwnAndPlainWords) {
  const Engine celsius = makeEngine(), kelvin = makeEngine();
  const auto choose = [](const Engine& engine, const char* group, const char* unit) {
    return calvex_set_unit(engine.get(), group, CALVEX_TERMINATED, unit, CALVEX_TERMINATED);
  };
  ASSERT_EQ(choose(celsius, "temperature", "°C"), CALVEX_OK);
  ASSERT_EQ(choose(celsius, "pressure", "bar"), CALVEX_OK);
  double there = 0.0, here = 0.0;
  ASSERT_EQ(HPT(celsius, 100.0, 500.0, &there), CALVEX_OK);
  ASSERT_EQ(HPT(kelvin, 10.0, 773.15, &here), CALVEX_OK);
  EXPECT_NEAR(there, here, 1e-9);
  EXPECT_EQ(text([&](char* to, std::size_t size, std::size_t* needed) {
              return calvex_unit(celsius.get(), 0, to, size, needed);
            }),
            "C");
  // Not in the catalogue: the engine takes it as a custom unit.
  ASSERT_EQ(choose(celsius, "P", "mbar"), CALVEX_OK) << lastError(celsius);
  EXPECT_EQ(calvex_take_settings(kelvin.get(), celsius.get()), CALVEX_OK);
  ASSERT_EQ(HPT(kelvin, 100000.0, 500.0, &there), CALVEX_OK);
  EXPECT_NEAR(there, here, 1e-9);
}

TEST(C, SettingsAreReadAndPut) {
  const Engine engine = makeEngine();
  double value = 0.0;
  ASSERT_EQ(calvex_call(engine.get(), numberOf("SatPolish"), nullptr, 0, &value, 1), CALVEX_OK);
  EXPECT_EQ(value, 2.0);
  ASSERT_EQ(calvex_put(engine.get(), numberOf("SatPolish"), 0.0), CALVEX_OK);
  ASSERT_EQ(calvex_call(engine.get(), numberOf("SatPolish"), nullptr, 0, &value, 1), CALVEX_OK);
  EXPECT_EQ(value, 0.0);
  ASSERT_EQ(calvex_reset(engine.get()), CALVEX_OK);
  ASSERT_EQ(calvex_call(engine.get(), numberOf("SatPolish"), nullptr, 0, &value, 1), CALVEX_OK);
  EXPECT_EQ(value, 2.0);
  EXPECT_EQ(calvex_put(engine.get(), numberOf("LastError"), 0.0), CALVEX_VALUE);
  EXPECT_EQ(calvex_put(engine.get(), numberOf("HPT"), 0.0), CALVEX_VALUE);
  EXPECT_EQ(calvex_put(engine.get(), numberOf("AppName"), 0.0), CALVEX_VALUE);
  EXPECT_EQ(calvex_put_text(engine.get(), numberOf("SatPolish"), "2", 1), CALVEX_VALUE);
  for (const double bad : {0.5, nan, inf, 3e9, -3e9}) {
    EXPECT_EQ(calvex_put(engine.get(), numberOf("SatPolish"), bad), CALVEX_VALUE) << bad;
  }
}

TEST(C, TextsComeBackUnharmed) {
  const Engine engine = makeEngine();
  const auto get = [&](char* to, std::size_t size, std::size_t* needed) {
    EXPECT_EQ(calvex_call(engine.get(), numberOf("AppName"), nullptr, 0, nullptr, 0), CALVEX_OK);
    return calvex_answer_text(engine.get(), 0, 0, to, size, needed);
  };
  const std::string names[] = {"Kesselhaus Köln – 5 €",
                               "Łódź.xlsx",
                               "Котельная.xlsx",
                               "锅炉.xlsx",
                               "🔥",
                               std::string("a\0b", 3),
                               std::string(9999, 'x') + "雪"};
  for (const std::string& name : names) {
    ASSERT_EQ(calvex_put_text(engine.get(), numberOf("AppName"), name.data(), name.size()),
              CALVEX_OK);
    EXPECT_EQ(text(get), name);
  }
  for (const std::string bad : {"\xC3", "\xFF\xFE", "\xC0\x80", "\xED\xA0\x80"}) {
    EXPECT_EQ(calvex_put_text(engine.get(), numberOf("AppName"), bad.data(), bad.size()),
              CALVEX_ENCODING);
  }
  EXPECT_EQ(text(get), std::end(names)[-1]);
}

TEST(C, ATextThatDoesNotFitIsCutBetweenTwoCharacters) {
  const Engine engine = makeEngine();
  ASSERT_EQ(calvex_put_text(engine.get(), numberOf("AppName"), "aé€", CALVEX_TERMINATED),
            CALVEX_OK);
  ASSERT_EQ(calvex_call(engine.get(), numberOf("AppName"), nullptr, 0, nullptr, 0), CALVEX_OK);
  const char* const cut[] = {"", "", "a", "a", "aé", "aé", "aé"};
  for (std::size_t size = 1; size <= 7; ++size) {
    char buffer[8] = "???????";
    std::size_t needed = 0;
    const int code = calvex_answer_text(engine.get(), 0, 0, buffer, size, &needed);
    EXPECT_EQ(needed, 7U);
    EXPECT_EQ(code, size < 7 ? CALVEX_TOO_SMALL : CALVEX_OK) << size;
    EXPECT_STREQ(buffer, size < 7 ? cut[size] : "aé€") << size;
    EXPECT_EQ(std::string(buffer + size), std::string("???????").substr(size)) << size;
  }
  EXPECT_EQ(calvex_answer_text(engine.get(), 0, 0, nullptr, 1, nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_answer_text(engine.get(), 0, 0, nullptr, 0, nullptr), CALVEX_OK);
}

TEST(C, AnswersATableOfTextsAndNumbers) {
  const Engine engine = makeEngine();
  const double given[] = {3214.0, 4.0, 0.01, 0.8, 10.0};
  const char* const tokens[] = {"Pow, T_Out"};
  ASSERT_EQ(calvex_call_texts(engine.get(), numberOf("XLTurbineA"), given, 5, tokens, nullptr, 1,
                              nullptr, 0),
            CALVEX_OK);
  std::size_t rows = 0, columns = 0;
  ASSERT_EQ(calvex_answer_size(engine.get(), &rows, &columns), CALVEX_OK);
  ASSERT_EQ(rows, 2U);
  ASSERT_EQ(columns, 3U);  // label, value, unit
  double direct[4], power = 0.0;
  ASSERT_EQ(calvex_call(engine.get(), numberOf("TurbineA"), given, 5, direct, 4), CALVEX_OK);
  // The table is gone with the next call.
  EXPECT_EQ(calvex_answer_number(engine.get(), 0, 1, &power), CALVEX_UNKNOWN);
  ASSERT_EQ(calvex_call_texts(engine.get(), numberOf("XLTurbineA"), given, 5, tokens, nullptr, 1,
                              nullptr, 0),
            CALVEX_OK);
  ASSERT_EQ(calvex_answer_number(engine.get(), 0, 1, &power), CALVEX_OK);
  EXPECT_EQ(power, direct[0]);
  int kind = -1;
  EXPECT_EQ(calvex_answer_kind(engine.get(), 0, 0, &kind), CALVEX_OK);
  EXPECT_EQ(kind, CALVEX_CELL_TEXT);
  EXPECT_EQ(calvex_answer_number(engine.get(), 0, 0, &power), CALVEX_VALUE);
  EXPECT_EQ(calvex_answer_text(engine.get(), 0, 1, nullptr, 0, nullptr), CALVEX_VALUE);
  EXPECT_EQ(calvex_answer_number(engine.get(), 2, 0, &power), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_answer_number(engine.get(), 0, 3, &power), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_answer_number(engine.get(), SIZE_MAX, SIZE_MAX, &power), CALVEX_UNKNOWN);
}

TEST(C, TheTraceIsATree) {
  const Engine engine = makeEngine();
  double h = 0.0;
  EXPECT_EQ(HPT(engine, 10.0, 3000.0, &h), 108);
  EXPECT_EQ(HPT(engine, 10.0, 1500.0, &h), CALVEX_OK);  // above the strictly valid range
  std::size_t count = 0;
  ASSERT_EQ(calvex_trace_take(engine.get(), &count), CALVEX_OK);
  ASSERT_EQ(count, 5U);
  const auto node = [&](std::size_t at) {
    calvex_node facts{};
    EXPECT_EQ(calvex_trace_node(engine.get(), at, &facts, sizeof facts), CALVEX_OK);
    return facts;
  };
  const auto textOf = [&](std::size_t at) {
    return text([&](char* to, std::size_t size, std::size_t* needed) {
      return calvex_trace_text(engine.get(), at, to, size, needed);
    });
  };
  const calvex_node root = node(0);
  EXPECT_EQ(root.kind, CALVEX_NODE_ROOT);
  EXPECT_EQ(root.parent, CALVEX_NONE);
  const calvex_node failed = node(root.first_child);
  EXPECT_EQ(textOf(root.first_child), "HPT");
  EXPECT_EQ(failed.kind, CALVEX_NODE_CALL);
  EXPECT_EQ(failed.gravest, CALVEX_NODE_ERROR);
  const calvex_node error = node(failed.first_child);
  EXPECT_EQ(error.kind, CALVEX_NODE_ERROR);
  EXPECT_EQ(error.code, 108);
  EXPECT_EQ(error.parent, root.first_child);
  EXPECT_EQ(error.next_sibling, CALVEX_NONE);
  const calvex_node warned = node(failed.next_sibling);
  EXPECT_EQ(warned.gravest, CALVEX_NODE_WARNING);
  EXPECT_EQ(node(warned.first_child).code, 201);
  EXPECT_EQ(textOf(warned.first_child), "Temperature parameter out of strictly valid range.");
  calvex_node unused{};
  EXPECT_EQ(calvex_trace_node(engine.get(), 5, &unused, sizeof unused), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_trace_node(engine.get(), CALVEX_NONE, &unused, sizeof unused), CALVEX_UNKNOWN);
}

TEST(C, MisuseAnswersACodeAndATextAndWritesNothing) {
  const Engine engine = makeEngine();
  calvex_engine* const e = engine.get();
  double h = untouched;
  const double given[] = {10.0, 700.0};
  const int member = numberOf("HPT");
  EXPECT_EQ(calvex_create(nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_destroy(nullptr), CALVEX_OK);
  EXPECT_EQ(calvex_call(nullptr, member, given, 2, &h, 1), CALVEX_NULL);
  EXPECT_EQ(calvex_call(e, member, nullptr, 2, &h, 1), CALVEX_NULL);
  EXPECT_EQ(lastError(engine), "HPT takes 2 numbers (P, T), but inputs is NULL.");
  EXPECT_EQ(calvex_call(e, member, given, 2, nullptr, 1), CALVEX_NULL);
  EXPECT_EQ(lastError(engine), "HPT gives 1 number (pH), but outputs is NULL.");
  EXPECT_EQ(calvex_call(e, member, given, 1, &h, 1), CALVEX_COUNT);
  EXPECT_EQ(lastError(engine), "HPT takes 2 numbers (P, T), but input_count is 1.");
  EXPECT_EQ(calvex_call(e, member, given, SIZE_MAX, &h, 1), CALVEX_COUNT);
  EXPECT_EQ(calvex_call(e, member, given, 2, &h, SIZE_MAX), CALVEX_COUNT);
  EXPECT_EQ(calvex_call(e, member, given, 2, &h, 0), CALVEX_COUNT);
  for (const int unknown : {0, -1, 0x14, 0xba, 70000, std::numeric_limits<int>::max(),
                            std::numeric_limits<int>::min()}) {
    EXPECT_EQ(calvex_call(e, unknown, given, 2, &h, 1), CALVEX_UNKNOWN) << unknown;
  }
  EXPECT_EQ(calvex_call_named(e, "HTP", 3, given, 2, &h, 1), CALVEX_UNKNOWN);
  EXPECT_TRUE(lastError(engine).starts_with("There is no member 'HTP'; did you mean HPT"))
      << lastError(engine);
  EXPECT_EQ(calvex_call_named(e, nullptr, 3, given, 2, &h, 1), CALVEX_NULL);
  EXPECT_EQ(calvex_call_named(e, nullptr, 0, given, 2, &h, 1), CALVEX_UNKNOWN);
  EXPECT_EQ(calvex_call_named(e, "HPT", SIZE_MAX - 1, given, 2, &h, 1), CALVEX_COUNT);
  const char* const texts[] = {nullptr, nullptr};
  EXPECT_EQ(
      calvex_call_texts(e, numberOf("SetUserUnit"), nullptr, 0, texts, nullptr, 2, nullptr, 0),
      CALVEX_NULL);
  EXPECT_EQ(
      calvex_call_texts(e, numberOf("SetUserUnit"), nullptr, 0, nullptr, nullptr, 2, nullptr, 0),
      CALVEX_NULL);
  EXPECT_EQ(calvex_take_settings(e, nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_take_settings(e, e), CALVEX_OK);
  EXPECT_EQ(calvex_answer_size(e, nullptr, nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_trace_take(e, nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_trace_text(e, 0, nullptr, 0, nullptr), CALVEX_UNKNOWN);  // no picture yet
  EXPECT_EQ(h, untouched);
}

// Any member with any number of any values: a code, a text where it fails, and then no output.
TEST(C, NonsenseAnswersACodeAndWritesNothing) {
  const Engine engine = makeEngine();
  calvex_engine* const e = engine.get();
  std::mt19937 random(1984);
  const double numbers[] = {0.0,   1.0,    -1.0,   10.0, 700.0, 3000.0, 0.5,
                            1e308, -1e308, 5e-324, inf,  nan,   32768.0};
  const char* const words[] = {"",           "T",    "P",      "C",     "bar",          "Pow",
                               "Pow, T_Out", "\xFF", "\u96EA", nullptr, "no such word", "%s%n"};
  int answered = 0;
  for (int i = 0; i < 20000; ++i) {
    int number = static_cast<int>(random() % 220);
    calvex_member facts{};
    const bool known = calvex_member_facts(number, &facts, sizeof facts) == CALVEX_OK;
    const bool fits = random() % 4 != 0;  // else any counts
    double given[8], results[16];
    const char* texts[4];
    for (double& x : given) x = numbers[random() % std::size(numbers)];
    for (const char*& text : texts) text = words[random() % std::size(words)];
    for (double& x : results) x = untouched;
    const std::size_t inputs = fits && known ? facts.input_count : random() % 9;
    const std::size_t wordCount = fits && known ? facts.text_count : random() % 5;
    const std::size_t outputs = fits && known ? facts.output_count : random() % 17;
    if (inputs > std::size(given) || wordCount > std::size(texts)) continue;
    const int code = calvex_call_texts(e, number, random() % 50 == 0 ? nullptr : given, inputs,
                                       random() % 50 == 0 ? nullptr : texts, nullptr, wordCount,
                                       random() % 50 == 0 ? nullptr : results, outputs);
    EXPECT_NE(code, CALVEX_INTERNAL) << number;
    if (code == CALVEX_OK) {
      ++answered;
      continue;
    }
    EXPECT_NE(lastError(engine), "") << number;
    for (const double x : results) EXPECT_EQ(x, untouched) << number;
  }
  EXPECT_GT(answered, 1000);
}

TEST(C, EveryFunctionWithAnEngineKnowsNone) {
  double number = 0.0;
  std::size_t size = 0;
  int whole = 0;
  calvex_node node{};
  calvex_request request{};
  calvex_rows rows{};
  EXPECT_EQ(calvex_reset(nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_take_settings(nullptr, nullptr), CALVEX_NULL);
  EXPECT_EQ(calvex_last_error(nullptr, nullptr, 0, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_last_cause(nullptr, nullptr, 0, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_call_named(nullptr, "HPT", 3, &number, 2, &number, 1), CALVEX_NULL);
  EXPECT_EQ(calvex_call_texts(nullptr, 1, nullptr, 0, nullptr, nullptr, 0, nullptr, 0),
            CALVEX_NULL);
  EXPECT_EQ(calvex_put(nullptr, 1, 0.0), CALVEX_NULL);
  EXPECT_EQ(calvex_put_text(nullptr, 1, "", 0), CALVEX_NULL);
  EXPECT_EQ(calvex_answer_size(nullptr, &size, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_answer_kind(nullptr, 0, 0, &whole), CALVEX_NULL);
  EXPECT_EQ(calvex_answer_number(nullptr, 0, 0, &number), CALVEX_NULL);
  EXPECT_EQ(calvex_answer_text(nullptr, 0, 0, nullptr, 0, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_set_unit(nullptr, "T", 1, "C", 1), CALVEX_NULL);
  EXPECT_EQ(calvex_unit(nullptr, 0, nullptr, 0, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_trace_take(nullptr, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_trace_node(nullptr, 0, &node, sizeof node), CALVEX_NULL);
  EXPECT_EQ(calvex_trace_text(nullptr, 0, nullptr, 0, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_trace_column(nullptr, 0, 0, nullptr, 0, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_direct(nullptr, &request, sizeof request), CALVEX_NULL);
  EXPECT_EQ(calvex_direct_reason(nullptr, 'P', 'T', 1, 1, "H", 1, nullptr, 0, &size), CALVEX_NULL);
  EXPECT_EQ(calvex_columns(nullptr, &rows, sizeof rows), CALVEX_NULL);
}

}  // namespace
