// Several single-threaded apartments that call at once, as the class allows them: each has its own
// object, and every answer must be the one that a caller alone gets.
#include <array>
#include <bit>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <thread>

#include "client.h"

namespace calvex::test {
namespace {

using Clock = std::chrono::steady_clock;

/// For each of the two tests; CALVEX_APARTMENT_SECONDS changes it.
Clock::duration duration() {
  const char* const asked = std::getenv("CALVEX_APARTMENT_SECONDS");
  return std::chrono::seconds(asked == nullptr ? 30 : std::atoi(asked));
}

/// A call and the bits of its answer to a caller alone.
struct Call {
  const wchar_t* name;
  double first, second;
  std::uint64_t answer;
};
using Calls = std::array<Call, 6>;

/// Late bound, or not a number where the call fails.
double late(IDispatch& object, const Call& call) {
  double result = 0.0;
  const LateCall done =
      callMethod(object, call.name, {Variant(&result), Variant(call.first), Variant(call.second)});
  if (done.result != S_OK || done.value.lVal != 1) return -1.0;
  return result;
}

/// Different states for each apartment, so that an answer of another's call is seen.
Calls callsOf(int apartment) {
  const double step = apartment;
  return {{{L"HPT", 1.0 + step, 600.0 + 10.0 * step, 0},
           {L"SPT", 10.0 + step, 780.0 - step, 0},
           {L"TPH", 5.0 + step, 2900.0 + 10.0 * step, 0},
           {L"RPT", 15.0 + step, 350.0 + step, 0},
           {L"QPH", 0.5 + 0.1 * step, 1500.0 + 10.0 * step, 0},
           {L"TPS", 2.0 + 0.1 * step, 6.8 + 0.01 * step, 0}}};
}

void callTogether(int apartments) {
  const Apartment own;
  const Ref<IZvCalvex> kept = makeObject();  // the engine keeps its settings between the threads
  std::vector<Calls> all;
  for (int i = 0; i < apartments; ++i) {
    Calls calls = callsOf(i);
    for (Call& call : calls) {
      const double answer = late(*kept.as<IDispatch>(), call);
      ASSERT_GT(answer, 0.0) << narrow(call.name);
      call.answer = std::bit_cast<std::uint64_t>(answer);
    }
    all.push_back(calls);
  }

  const auto end = Clock::now() + duration();
  std::vector<long> rounds(all.size(), 0), wrong(all.size(), 0);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < all.size(); ++i) {
    threads.emplace_back([&, i] {
      const Apartment apartment;
      while (Clock::now() < end) {
        // Objects come and go as well.
        const Ref<IZvCalvex> steam = makeObject();
        const Ref<IDispatch> dispatch = steam.as<IDispatch>();
        for (int round = 0; round < 20; ++round) {
          for (const Call& call : all[i]) {
            if (std::bit_cast<std::uint64_t>(late(*dispatch, call)) != call.answer) ++wrong[i];
          }
          double h = 0.0;
          LONG success = 0;
          const Call& first = all[i].front();
          if (steam->HPT(&h, first.first, first.second, &success) != S_OK || success != 1 ||
              std::bit_cast<std::uint64_t>(h) != first.answer) {
            ++wrong[i];
          }
          ++rounds[i];
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(wrong[i], 0) << "apartment " << i << " of " << apartments;
    EXPECT_GT(rounds[i], 0) << "apartment " << i << " never had its turn";
  }
}

/// With the module not loaded yet, nor anything that draws: the loader's lock and those of what it
/// loads must not be taken in two orders.
TEST(Apartments, FourMakeTheirFirstObjectsAtOnce) {
  std::array<double, 4> answers{};
  {
    std::vector<std::jthread> threads;
    for (double& answer : answers) {
      threads.emplace_back([&answer] {
        const Apartment apartment;
        const Ref<IZvCalvex> steam = makeObject();
        answer = late(*steam.as<IDispatch>(), {L"HPT", 10.0, 773.15, 0});
      });
    }
  }
  for (const double answer : answers) EXPECT_NEAR(answer, 3373.998, 1e-3);  // 10 MPa, 500 C
}

TEST(Apartments, TwoThatCallAtOnceGetTheirOwnAnswers) { callTogether(2); }
TEST(Apartments, FourThatCallAtOnceGetTheirOwnAnswers) { callTogether(4); }

}  // namespace
}  // namespace calvex::test
