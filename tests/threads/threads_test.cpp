// Engines share nothing: two of them work side by side.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "calvex/calvex.h"
#include "direct/chunks.h"
#include "support/engine.h"

namespace calvex::test {
namespace {

// The bits of every answer and every reason on a fixed walk through all members.
std::vector<std::uint64_t> walk(std::string_view temperatureUnit, double offset) {
  ZvThermoInt engine;
  engine.SetUserUnit("T", temperatureUnit);
  engine.SetTraceLevel(2);
  engine.SetMaxTraceSize(20);
  std::vector<std::uint64_t> bits;
  const auto keep = [&](int success, double value) {
    bits.push_back(static_cast<std::uint64_t>(success));
    bits.push_back(std::bit_cast<std::uint64_t>(value));
    for (const char c : engine.LastError()) bits.push_back(static_cast<unsigned char>(c));
  };
  for (int i = 0; i < 5; ++i) {
    for (const PairMember& member : pairMembers()) {
      const double first = member.first() == 'P' ? 0.5 + 8.0 * i : 310.0 + 100.0 * i - offset;
      double second = member.second() == 'T'   ? 350.0 + 150.0 * i - offset
                      : member.second() == 'S' ? 1.0 + i
                      : member.second() == 'R' ? 1.0 + 150.0 * i
                      : member.second() == 'V' ? 0.0011 + 0.05 * i
                                               : 300.0 + 700.0 * i;
      double value = untouched;
      const int success = (engine.*member.call)(&value, first, second);
      keep(success, value);
    }
    for (const PairMember& member : saturationMembers()) {
      double value = untouched;
      const int success = (engine.*member.call)(
          &value, member.name[4] == 'T' ? 300.0 + 60.0 * i - offset : 0.1 + 4.0 * i, 0.2 * i);
      keep(success, value);
    }
  }
  return bits;
}

TEST(Threads, TwoEnginesGiveTheBitsOfOneAlone) {
  const std::vector<std::uint64_t> kelvin = walk("K", 0.0);
  const std::vector<std::uint64_t> celsius = walk("C", 273.15);
  ASSERT_NE(kelvin, celsius);
  std::vector<std::uint64_t> first, second, third;
  std::thread one([&] { first = walk("K", 0.0); });
  std::thread two([&] { second = walk("C", 273.15); });
  std::thread three([&] { third = walk("K", 0.0); });
  one.join();
  two.join();
  three.join();
  EXPECT_EQ(first, kelvin);
  EXPECT_EQ(second, celsius);
  EXPECT_EQ(third, kelvin);
}

// What one engine of the C interface answers on a walk through calls, failures, texts, units, the
// trace, arrays and a reset; `which` makes it another walk.
std::string walkThroughC(int which) {
  std::string all;
  calvex_engine* engine = nullptr;
  EXPECT_EQ(calvex_create(&engine), CALVEX_OK);
  const auto keep = [&](int code, double number) {
    all += std::to_string(code) + ' ' + std::to_string(std::bit_cast<std::uint64_t>(number)) + '\n';
    if (code == 0) return;
    char text[400];
    EXPECT_EQ(calvex_last_error(engine, text, sizeof text, nullptr), CALVEX_OK);
    all += text;
    EXPECT_EQ(calvex_last_cause(engine, text, sizeof text, nullptr), CALVEX_OK);
    all += text;
  };
  const char* const units[] = {"K", "C", "F", "R"};
  keep(calvex_set_unit(engine, "T", 1, units[which % 4], 1), 0.0);
  keep(calvex_set_unit(engine, "T", 1, "furlong", 7), 0.0);
  constexpr std::size_t n = 1500;  // more than one chunk
  std::vector<double> h(n), back(n);
  std::vector<short> status(n);
  for (int i = 0; i < 20; ++i) {
    const double given[] = {0.5 + 3.0 * i + which, 500.0 + 40.0 * i};
    double value = untouched;
    for (const char* const name : {"HPT", "SPT", "TPH", "QPH", "HSatPQ", "MPT", "no member"}) {
      keep(calvex_call_named(engine, name, CALVEX_TERMINATED, given, 2, &value, 1), value);
    }
    const double turbine[] = {3214.0, 4.0, 0.01, 0.8, 10.0 + which};
    const char* const tokens[] = {"Pow, T_Out"};
    int member = 0;
    EXPECT_EQ(calvex_find_member("XLTurbineA", CALVEX_TERMINATED, &member), CALVEX_OK);
    keep(calvex_call_texts(engine, member, turbine, 5, tokens, nullptr, 1, nullptr, 0), 0.0);
    keep(calvex_answer_number(engine, 0, 1, &value), value);
    std::size_t nodes = 0;
    keep(calvex_trace_take(engine, &nodes), static_cast<double>(nodes));
  }
  for (std::size_t i = 0; i < n; ++i) h[i] = 100.0 + 3.0 * static_cast<double>(i) + which;
  const double P = 1.0;
  const calvex_result result{'T', {back.data(), 1}, {nullptr, 0}, {nullptr, 0}};
  calvex_request request{};
  request.first_letter = 'P';
  request.second_letter = 'H';
  request.count = n;
  request.first = {&P, 0};
  request.second = {h.data(), 1};
  request.results = &result;
  request.result_count = 1;
  request.status = {status.data(), 1};
  request.threads = 2;
  keep(calvex_direct(engine, &request, sizeof request), 0.0);
  for (std::size_t i = 0; i < n; ++i) keep(status[i], back[i]);
  keep(calvex_reset(engine), 0.0);
  keep(calvex_destroy(engine), 0.0);
  return all;
}

TEST(Threads, EightEnginesOfTheCInterfaceAnswerAsOneAlone) {
  constexpr int count = 8;
  std::array<std::string, count> together;
  {
    std::vector<std::jthread> threads;
    for (int i = 0; i < count; ++i) {
      threads.emplace_back(
          [&together, i] { together.at(static_cast<std::size_t>(i)) = walkThroughC(i); });
    }
  }
  for (int i = 0; i < count; ++i) {
    const std::string& answers = together.at(static_cast<std::size_t>(i));
    EXPECT_EQ(answers, walkThroughC(i)) << i;
    EXPECT_NE(answers, together.at(static_cast<std::size_t>((i + 1) % count))) << i;
  }
}

TEST(Threads, ChunksAnswerTheSameOnAnyNumberOfThem) {
  const auto enthalpies = [](unsigned threads) {
    const ChunkedLoop loop{.threads = threads, .chunk = 3, .progress = [](std::size_t) {}};
    std::vector<double> values(50);
    std::vector<ZvThermoInt> engines(loop.workers(values.size()));
    EXPECT_TRUE(forEachChunk(values.size(), loop, [&](const Chunk& chunk) {
      for (std::size_t i = chunk.begin; i < chunk.end; ++i) {
        engines[chunk.worker].HPT(&values[i], 10.0, 300.0 + 10.0 * static_cast<double>(i));
      }
    }));
    return values;
  };
  const std::vector<double> alone = enthalpies(1);
  EXPECT_GT(alone.front(), 0.0);
  EXPECT_EQ(enthalpies(2), alone);
  EXPECT_EQ(enthalpies(7), alone);
}

}  // namespace
}  // namespace calvex::test
