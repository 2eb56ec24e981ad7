// The wrapper in C++: what it adds to the C interface, which faces_test.cpp calls through it.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "calvex/calvex.hpp"

namespace calvex {
namespace {

template <class Call>
Error failureOf(Call call) {
  try {
    call();
  } catch (const Error& error) {
    return error;
  }
  ADD_FAILURE() << "nothing was thrown";
  return {0, ""};
}

TEST(Wrapper, AnErrorHasTheReasonAndTheCause) {
  Engine steam;
  const Error error = failureOf([&] { steam.HPT(0.0, 700.0); });
  EXPECT_EQ(error.code(), 104);
  EXPECT_EQ(error.reason(), "Solution Error.");
  EXPECT_EQ(error.cause(), "Pressure must be above 0 MPa.");
  EXPECT_EQ(std::string(error.what()),
            std::string(error.reason()) + " " + std::string(error.cause()));
  EXPECT_EQ(steam.lastError(), error.reason());
  EXPECT_EQ(steam.lastCause(), error.cause());
  const Error alone = failureOf([&] { steam.HPT(10.0, 3000.0); });
  EXPECT_EQ(alone.reason(), alone.what());
  EXPECT_EQ(alone.cause(), "");
}

TEST(Wrapper, AnUnknownGroupOrUnitFailsAlikeEverywhere) {
  Engine steam;
  const Error put = failureOf([&] { steam.unit("Presure", "bar"); });
  const Error get = failureOf([&] { static_cast<void>(steam.unit("Presure")); });
  EXPECT_EQ(put.code(), CALVEX_UNKNOWN);
  EXPECT_EQ(get.code(), put.code());
  EXPECT_STREQ(get.what(), put.what());
  EXPECT_EQ(put.reason(), "'Presure' is not a unit group; did you mean Pressure?");
  EXPECT_EQ(failureOf([&] { steam.unit("P", "psix"); }).code(), CALVEX_UNKNOWN);
  EXPECT_EQ(failureOf([&] { steam.unit({}, {}); }).code(), CALVEX_UNKNOWN);
}

TEST(Wrapper, AnEngineThatWasMovedAwaySaysSo) {
  Engine there;
  there.unit("T", "C");
  Engine here = std::move(there);
  EXPECT_EQ(here.unit("T"), "C");
  Engine& gone = there;  // NOLINT(bugprone-use-after-move): that is what is asked
  EXPECT_EQ(gone.handle(), nullptr);
  const double number = 1.0;
  double result = 0.0;
  const auto says = [](const Error& error) {
    EXPECT_EQ(error.code(), CALVEX_NULL);
    EXPECT_STREQ(error.what(), "There is no engine: it was moved away.");
  };
  says(failureOf([&] { gone.HPT(10.0, 700.0); }));
  says(failureOf([&] { gone.GetUserUnit("T"); }));
  says(failureOf([&] { gone.SetSatPolish(2); }));
  says(failureOf([&] { gone.reset(); }));
  says(failureOf([&] { gone.unit("T", "K"); }));
  says(failureOf([&] { static_cast<void>(gone.unit("T")); }));
  says(failureOf([&] { static_cast<void>(gone.unit("nothing")); }));
  says(failureOf([&] { static_cast<void>(gone.lastError()); }));
  says(failureOf([&] { static_cast<void>(gone.lastCause()); }));
  says(failureOf([&] { gone.takeSettings(here); }));
  says(failureOf([&] { gone.call("HPT", {&number, 1}, {&result, 1}); }));
  const StateResult wanted[] = {{'H', {&result, 1}}};
  says(failureOf([&] { gone.states("PT", {&number, 1}, {&number, 1}, wanted); }));
  EXPECT_EQ(failureOf([&] { here.takeSettings(gone); }).code(), CALVEX_NULL);

  gone = std::move(here);
  EXPECT_EQ(gone.unit("T"), "C");
  EXPECT_EQ(here.handle(), nullptr);  // NOLINT(bugprone-use-after-move)
  Engine& itself = gone;
  gone = std::move(itself);
  EXPECT_EQ(gone.unit("T"), "C");
}

TEST(Wrapper, StatesTellWhatDoesNotFit) {
  Engine steam;
  const double P[] = {10.0, 11.0}, T[] = {700.0, 3000.0};
  double h[2];
  short status[2];
  const StateResult wanted[] = {{'H', h}};
  const Error sizes = failureOf([&] { steam.states("PT", P, {T, 1}, wanted); });
  EXPECT_EQ(sizes.code(), CALVEX_COUNT);
  EXPECT_STREQ(sizes.what(),
               "Every span of states has as many elements as the first, 2, or is left out.");
  for (const char* const pair : {"", "P", "PTH", "PP", "px"}) {
    EXPECT_EQ(failureOf([&] { steam.states(pair, P, T, wanted); }).code(), CALVEX_UNKNOWN) << pair;
  }
  steam.states("PT", P, T, wanted, status);
  EXPECT_EQ(status[0], 0);
  EXPECT_EQ(status[1], 108);
  EXPECT_EQ(steam.lastError(),
            "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).");
}

}  // namespace
}  // namespace calvex
