// Engines share nothing: two of them work side by side.
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <thread>

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
