// Arrays through the C interface: the direct road, and members over columns.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "c/requests.h"
#include "calvex/calvex.h"

namespace {

using calvex::test::requestOf;
using calvex::test::rowsOf;

struct Destroy {
  void operator()(calvex_engine* engine) const { calvex_destroy(engine); }
};

class CArrays : public testing::Test {
 protected:
  CArrays() {
    calvex_engine* made = nullptr;
    EXPECT_EQ(calvex_create(&made), CALVEX_OK);
    engine_.reset(made);
  }
  [[nodiscard]] calvex_engine* engine() const { return engine_.get(); }

  double call(const char* name, double a, double b) {
    const double given[] = {a, b};
    double result = std::nan("");
    EXPECT_EQ(calvex_call_named(engine(), name, CALVEX_TERMINATED, given, 2, &result, 1), CALVEX_OK)
        << name << " " << a << " " << b;
    return result;
  }

 private:
  std::unique_ptr<calvex_engine, Destroy> engine_;
};

TEST_F(CArrays, TheDirectRoadTakesStridesConstantsAndEitherOrder) {
  const double P[] = {10.0, -1.0, 1.0, -1.0, 0.1};
  const double T = 700.0;
  double h[9], density[3], slope[3];
  short status[6], phase[3];
  const calvex_result results[] = {{'H', {h + 8, -4}, {nullptr, 0}, {nullptr, 0}},
                                   {'R', {density, 1}, {nullptr, 0}, {slope, 1}}};
  for (const bool swapped : {false, true}) {
    calvex_request request =
        requestOf(swapped ? "TP" : "PT", 3, swapped ? calvex_column{&T, 0} : calvex_column{P, 2},
                  swapped ? calvex_column{P, 2} : calvex_column{&T, 0}, results, {status, 2});
    request.phase = {phase, 1};
    ASSERT_EQ(calvex_direct(engine(), &request, sizeof request), CALVEX_OK);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_EQ(status[2 * i], 0);
      EXPECT_EQ(phase[i], CALVEX_PHASE_SUPERCRITICAL);
      EXPECT_NEAR(h[8 - 4 * i] / call("HPT", P[2 * i], T), 1.0, 1e-10);
      EXPECT_NEAR(density[i] / call("RPT", P[2 * i], T), 1.0, 1e-10);
      // By the second input as it is given here: by temperature, then by pressure.
      const double step = swapped ? P[2 * i] * 1e-4 : 0.05;
      const double by =
          swapped
              ? (call("RPT", P[2 * i] + step, T) - call("RPT", P[2 * i] - step, T)) / (2.0 * step)
              : (call("RPT", P[2 * i], T + step) - call("RPT", P[2 * i], T - step)) / (2.0 * step);
      EXPECT_NEAR(slope[i] / by, 1.0, 1e-5);
    }
  }
}

TEST_F(CArrays, AFailedPointIsNaNAndTellsWhyAndItsNeighboursStay) {
  const double P[] = {10.0, 10.0, 10.0}, T[] = {700.0, 3000.0, 700.0};
  double h[] = {0.0, 0.0, 0.0};
  short status[3], phase[3];
  const calvex_result result{'H', {h, 1}, {nullptr, 0}, {nullptr, 0}};
  calvex_request request = requestOf("PT", 3, {P, 1}, {T, 1}, {&result, 1}, {status, 1});
  request.phase = {phase, 1};
  ASSERT_EQ(calvex_direct(engine(), &request, sizeof request), CALVEX_OK);
  EXPECT_EQ(status[0], 0);
  EXPECT_EQ(status[1], 108);
  EXPECT_EQ(status[2], 0);
  EXPECT_TRUE(std::isnan(h[1]));
  EXPECT_EQ(phase[1], CALVEX_PHASE_NONE);
  EXPECT_EQ(h[0], h[2]);
  char text[200];
  ASSERT_EQ(
      calvex_direct_reason(engine(), 'T', 'P', 3000.0, 10.0, "H", 1, text, sizeof text, nullptr),
      CALVEX_OK);
  EXPECT_STREQ(text, "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).");
  ASSERT_EQ(
      calvex_direct_reason(engine(), 'P', 'T', 10.0, 700.0, "H", 1, text, sizeof text, nullptr),
      CALVEX_OK);
  EXPECT_STREQ(text, "");
}

// The member tells both; the arrays tell the same.
TEST_F(CArrays, AFailedPointTellsTheMembersReasonAndCause) {
  const auto last = [&](auto get) {
    char text[400];
    EXPECT_EQ(get(engine(), text, sizeof text, nullptr), CALVEX_OK);
    return std::string(text);
  };
  ASSERT_EQ(calvex_set_unit(engine(), "P", 1, "bar", 3), CALVEX_OK);
  const struct {
    const char* name;
    double first, second;
  } calls[] = {{"HSatPQ", 0.005, 0.5},
               {"TPH", 100.0, 20000.0},
               {"APH", 10.0, 1500.0},
               {"HPT", 0.0, 700.0},
               {"TPS", 10.0, -1.0}};
  for (const auto& [name, first, second] : calls) {
    const double given[] = {first, second};
    double result = 0.0;
    const int code = calvex_call_named(engine(), name, CALVEX_TERMINATED, given, 2, &result, 1);
    EXPECT_GT(code, 0) << name;
    const std::string error = last(calvex_last_error), cause = last(calvex_last_cause);
    EXPECT_NE(cause, "") << name;

    const std::string pair = name + std::strlen(name) - 2;
    char text[400];
    ASSERT_EQ(calvex_direct_reason(engine(), pair[0], pair[1], first, second, name, 1, text,
                                   sizeof text, nullptr),
              CALVEX_OK);
    EXPECT_EQ(text, error);
    EXPECT_EQ(last(calvex_last_error), error);
    EXPECT_EQ(last(calvex_last_cause), cause);

    const double firsts[] = {10.0, first, 11.0};
    const double seconds[] = {pair == "PQ" ? 0.5 : pair == "PS" ? 7.0 : 3000.0, second, -1.0};
    double values[3];
    short status[3];
    const calvex_result wanted{name[0], {values, 1}, {nullptr, 0}, {nullptr, 0}};
    calvex_request request =
        requestOf(pair, 3, {firsts, 1}, {seconds, 1}, {&wanted, 1}, {status, 1});
    if (pair != "PT") {
      ASSERT_EQ(calvex_direct(engine(), &request, sizeof request), CALVEX_OK);
      EXPECT_EQ(status[0], 0) << name;
      EXPECT_EQ(status[1], code) << name;
      EXPECT_NE(status[2], 0) << name;
      EXPECT_EQ(last(calvex_last_error), error) << name;
      EXPECT_EQ(last(calvex_last_cause), cause) << name;
    }

    std::vector<std::string> told;
    const calvex_column inputs[] = {{&first, 0}, {&second, 0}};
    const calvex_output output{0, {values, 1}};
    calvex_rows rows{};
    ASSERT_EQ(calvex_find_member(name, CALVEX_TERMINATED, &rows.member), CALVEX_OK);
    rows.count = 1;
    rows.inputs = inputs;
    rows.input_count = 2;
    rows.outputs = &output;
    rows.output_count = 1;
    rows.status = {status, 1};
    rows.context = &told;
    rows.reason = [](void* context, std::size_t, const char* reason, std::size_t size) {
      static_cast<std::vector<std::string>*>(context)->emplace_back(reason, size);
    };
    ASSERT_EQ(calvex_columns(engine(), &rows, sizeof rows), CALVEX_OK);
    EXPECT_EQ(status[0], code) << name;
    EXPECT_EQ(told, std::vector<std::string>{error + " " + cause});
    EXPECT_EQ(last(calvex_last_error), error) << name;
    EXPECT_EQ(last(calvex_last_cause), cause) << name;
  }
  char text[10];
  ASSERT_EQ(
      calvex_direct_reason(engine(), 'P', 'T', 10.0, 700.0, "H", 1, text, sizeof text, nullptr),
      CALVEX_OK);
  EXPECT_EQ(last(calvex_last_error) + last(calvex_last_cause), "");
}

TEST_F(CArrays, TheDirectRoadHasTheEnginesUnitsAlsoBesideTheCatalogue) {
  const auto choose = [&](const char* group, const char* unit) {
    ASSERT_EQ(calvex_set_unit(engine(), group, CALVEX_TERMINATED, unit, CALVEX_TERMINATED),
              CALVEX_OK);
  };
  choose("T", "°F");
  choose("enthalpy", "BTU/lbm");
  for (const char* const pressure : {"psig", "mbar"}) {  // the latter is beside the catalogue
    choose("pressure", pressure);
    const double P = 2000.0, T = 800.0;
    double h = 0.0;
    short status = -1;
    const calvex_result result{'H', {&h, 1}, {nullptr, 0}, {nullptr, 0}};
    calvex_request request = requestOf("PT", 1, {&P, 1}, {&T, 1}, {&result, 1}, {&status, 1});
    ASSERT_EQ(calvex_direct(engine(), &request, sizeof request), CALVEX_OK);
    EXPECT_EQ(status, 0);
    EXPECT_NEAR(h / call("HPT", P, T), 1.0, 1e-10) << pressure;
  }
}

TEST_F(CArrays, MembersRunOverColumns) {
  int member = 0;
  ASSERT_EQ(calvex_find_member("TurbineA", CALVEX_TERMINATED, &member), CALVEX_OK);
  calvex_member facts{};
  ASSERT_EQ(calvex_member_facts(member, &facts, sizeof facts), CALVEX_OK);
  EXPECT_EQ(facts.column_input_count, 5U);
  EXPECT_EQ(facts.column_output_count, 4U);
  const double h[] = {3214.0, -1.0, 3300.0}, P = 4.0, out = 0.01, eff = 0.8, flow = 10.0;
  const calvex_column inputs[] = {{h, 1}, {&P, 0}, {&out, 0}, {&eff, 0}, {&flow, 0}};
  double power[3];
  const calvex_output outputs[] = {{0, {power, 1}}};
  short status[3];
  struct Told {
    std::vector<std::size_t> rows;
    std::string text;
  } told;
  calvex_rows rows = rowsOf(member, 3, inputs, outputs, {status, 1});
  rows.threads = 1;
  rows.context = &told;
  rows.reason = [](void* context, std::size_t row, const char* text, std::size_t size) {
    auto& all = *static_cast<Told*>(context);
    all.rows.push_back(row);
    all.text.assign(text, size);
  };
  ASSERT_EQ(calvex_columns(engine(), &rows, sizeof rows), CALVEX_OK);
  EXPECT_EQ(told.rows, std::vector<std::size_t>{1});
  EXPECT_FALSE(told.text.empty());
  EXPECT_TRUE(std::isnan(power[1]));
  EXPECT_NE(status[1], 0);
  for (const std::size_t i : {0U, 2U}) {
    const double given[] = {h[i], P, out, eff, flow};
    double results[4];
    ASSERT_EQ(calvex_call(engine(), member, given, 5, results, 4), CALVEX_OK);
    EXPECT_EQ(power[i], results[0]);
    EXPECT_EQ(status[i], 0);
  }
}

TEST_F(CArrays, AnyNumberOfThreadsAnswersTheSame) {
  constexpr std::size_t n = 5000;
  std::vector<double> P(n), T(n), one(n), many(n);
  for (std::size_t i = 0; i < n; ++i) {
    P[i] = 0.01 * static_cast<double>(1 + i % 97);
    T[i] = 300.0 + 0.1 * static_cast<double>(i);
  }
  for (const unsigned threads : {1U, 7U}) {
    const calvex_result result{
        'S', {threads == 1 ? one.data() : many.data(), 1}, {nullptr, 0}, {nullptr, 0}};
    calvex_request request = requestOf("PT", n, {P.data(), 1}, {T.data(), 1}, {&result, 1});
    request.threads = threads;
    ASSERT_EQ(calvex_direct(engine(), &request, sizeof request), CALVEX_OK);
  }
  EXPECT_EQ(one, many);
}

TEST_F(CArrays, MisuseAnswersACode) {
  const double P = 1.0, T = 700.0;
  double h[2] = {-1.0, -1.0};
  calvex_result result{'H', {h, 1}, {nullptr, 0}, {nullptr, 0}};
  calvex_request good{};
  good.first_letter = 'P';
  good.second_letter = 'T';
  good.count = 1;
  good.first = {&P, 1};
  good.second = {&T, 1};
  good.results = &result;
  good.result_count = 1;
  const auto answer = [&](auto change) {
    calvex_request request = good;
    change(request);
    return calvex_direct(engine(), &request, sizeof request);
  };
  EXPECT_EQ(calvex_direct(engine(), nullptr, sizeof good), CALVEX_NULL);
  EXPECT_EQ(calvex_direct(engine(), &good, 0), CALVEX_COUNT);
  EXPECT_EQ(calvex_direct(engine(), &good, sizeof good + 1), CALVEX_COUNT);
  EXPECT_EQ(answer([](calvex_request& r) { r.first.data = nullptr; }), CALVEX_NULL);
  EXPECT_EQ(answer([](calvex_request& r) { r.results = nullptr; }), CALVEX_NULL);
  EXPECT_EQ(answer([](calvex_request& r) { r.first_letter = 'A'; }), CALVEX_UNKNOWN);
  EXPECT_EQ(answer([](calvex_request& r) { r.first_letter = '\0'; }), CALVEX_UNKNOWN);
  EXPECT_EQ(answer([](calvex_request& r) { r.first_letter = 'T'; }), CALVEX_UNKNOWN);
  EXPECT_EQ(answer([](calvex_request& r) { r.count = SIZE_MAX; }), CALVEX_COUNT);
  EXPECT_EQ(answer([](calvex_request& r) { r.count = SIZE_MAX / 8; }), CALVEX_COUNT);
  EXPECT_EQ(answer([](calvex_request& r) { r.result_count = SIZE_MAX; }), CALVEX_COUNT);
  EXPECT_EQ(answer([](calvex_request& r) {
              r.count = 2;
              r.first.stride = PTRDIFF_MIN;
            }),
            CALVEX_COUNT);
  result.letter = 'X';
  EXPECT_EQ(answer([](calvex_request&) {}), CALVEX_UNKNOWN);
  result = {'H', {h, 0}, {nullptr, 0}, {nullptr, 0}};
  EXPECT_EQ(answer([](calvex_request& r) { r.count = 2; }), CALVEX_VALUE);
  EXPECT_EQ(h[0], -1.0);
  EXPECT_EQ(answer([](calvex_request& r) { r.count = 0; }), CALVEX_OK);

  calvex_rows rows{};
  EXPECT_EQ(calvex_columns(engine(), nullptr, sizeof rows), CALVEX_NULL);
  EXPECT_EQ(calvex_columns(engine(), &rows, sizeof rows), CALVEX_UNKNOWN);
  ASSERT_EQ(calvex_find_member("SetUserUnit", CALVEX_TERMINATED, &rows.member), CALVEX_OK);
  EXPECT_EQ(calvex_columns(engine(), &rows, sizeof rows), CALVEX_VALUE);
  ASSERT_EQ(calvex_find_member("HPT", CALVEX_TERMINATED, &rows.member), CALVEX_OK);
  EXPECT_EQ(calvex_columns(engine(), &rows, sizeof rows), CALVEX_COUNT);
  rows.input_count = 2;
  EXPECT_EQ(calvex_columns(engine(), &rows, sizeof rows), CALVEX_NULL);
  const calvex_column inputs[] = {{&P, 0}, {&T, 0}};
  const calvex_output outputs[] = {{1, {h, 1}}};
  rows.inputs = inputs;
  rows.outputs = outputs;
  rows.output_count = 1;
  EXPECT_EQ(calvex_columns(engine(), &rows, sizeof rows), CALVEX_UNKNOWN);
  rows.output_count = SIZE_MAX;
  EXPECT_EQ(calvex_columns(engine(), &rows, sizeof rows), CALVEX_COUNT);
}

}  // namespace
