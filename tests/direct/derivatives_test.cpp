// Derivatives of every property with respect to both inputs of every pair, against differences with
// 50 digits, in one phase and in two, each time with another instruction set.
//
//   CALVEX_DERIVATIVE_STATES=1000 calvex_test_direct --gtest_filter='*Derivatives*'
//
// takes a thousand states of each pair (a minute or two).
#include <array>
#include <utility>

#include "direct/fifty_digits.h"
#include "direct/states.h"
#include "support/failures.h"

namespace calvex::test {
namespace {

using direct::Letter;
using direct::Pair;

// By both variables of the state: T and density of one phase, T and quality of two.
struct Gradient {
  Fifty byX;
  Fifty byY;
};

Gradient onePhase(Letter letter, const Fifty& T, const Fifty& density) {
  const Property property = propertyOf(letter);
  const Fifty dT = T * step;
  const Fifty dR = density * step;
  return {(exactly(property, T + dT, density) - exactly(property, T - dT, density)) / (2 * dT),
          (exactly(property, T, density + dR) - exactly(property, T, density - dR)) / (2 * dR)};
}

struct Lines {
  Line here, above, below;
  Fifty dT;
};
Lines linesAround(const Fifty& T, const Line& start) {
  const Fifty dT = T * step;
  return {lineAt(T, start), lineAt(T + dT, start), lineAt(T - dT, start), dT};
}
Gradient twoPhases(Letter letter, const Fifty& T, const Fifty& quality, const Lines& lines) {
  return {(mixture(letter, T + lines.dT, quality, lines.above) -
           mixture(letter, T - lines.dT, quality, lines.below)) /
              (2 * lines.dT),
          mixture(letter, T, 1, lines.here) - mixture(letter, T, 0, lines.here) == 0
              ? Fifty(0)
              : (mixture(letter, T, quality + step, lines.here) -
                 mixture(letter, T, quality - step, lines.here)) /
                    (2 * step)};
}

class Derivatives : public testing::TestWithParam<Pair> {};

TEST_P(Derivatives, AreThoseOf50Digits) {
  const Pair pair = GetParam();
  const std::size_t wanted = stateCount("CALVEX_DERIVATIVE_STATES", 200);
  RandomInputs inputs(pair, 17);
  Grid grid("derivatives");
  std::size_t ones = 0;
  std::size_t twos = 0;
  std::mt19937 random(3);
  for (std::size_t tries = 0; ones + twos < wanted && tries < 20 * wanted; ++tries) {
    double a = 0.0;
    double b = 0.0;
    inputs.next(a, b);
    if (!(b > 1e-100 && b < 1e100)) continue;  // no density has no slopes
    // Which properties: the state, and one or two others.
    double value[5], byA[5], byB[5], slope;
    direct::Phase phase;
    short status = 0;
    const auto letter = static_cast<Letter>(random() % direct::letterCount);
    const auto another = static_cast<Letter>(random() % 7);
    const direct::Result results[] = {{Letter::T, {&value[0]}, {&byA[0]}, {&byB[0]}},
                                      {Letter::R, {&value[1]}, {&byA[1]}, {&byB[1]}},
                                      {another, {&value[2]}, {&byA[2]}, {&byB[2]}},
                                      {letter, {&value[3]}, {&byA[3]}, {&byB[3]}}};
    direct::Request request{pair, {&a}, {&b}, {results, letter == Letter::Q ? 3U : 4U}};
    request.phase = {&phase};
    request.status = {&status};
    request.lineSlope = {&slope};
    const auto sets = direct::instructionSets();
    ASSERT_TRUE(direct::useInstructionSet(sets[tries % sets.size()]));
    direct::evaluate(request, 0, 1);
    if (status != 0 && status != 106) continue;
    if (status == 106) request.results = {results, 3};
    direct::evaluate(request, 0, 1);
    if (status != 0) continue;

    const bool two = phase == direct::Phase::twoPhase;
    const Letter inputLetters[] = {direct::firstOf(pair), direct::secondOf(pair)};
    const Fifty T = value[0];
    Gradient gradients[2];
    Lines lines;
    Fifty quality = 0;
    if (two) {
      double saturated[2];
      const Letter density[] = {Letter::R};
      if (direct::evaluate(Pair::TQ, value[0], 0.0, density, &saturated[0]) != 0 ||
          direct::evaluate(Pair::TQ, value[0], 1.0, density, &saturated[1]) != 0) {
        continue;
      }
      lines = linesAround(T, {saturated[0], saturated[1]});
      quality = (1 / Fifty(value[1]) - 1 / lines.here.liquid) /
                (1 / lines.here.vapour - 1 / lines.here.liquid);
    }
    const auto gradientOf = [&](Letter of) {
      return two ? twoPhases(of, T, quality, lines) : onePhase(of, T, value[1]);
    };
    for (int i = 0; i < 2; ++i) gradients[i] = gradientOf(inputLetters[i]);
    for (std::size_t k = 0; k < request.results.size(); ++k) {
      const Letter of = results[k].letter;
      if (of == Letter::Q && !two) continue;
      const Gradient f = gradientOf(of);
      // With the slopes of the property and of both inputs.
      std::array<Fifty, 6> slopes{
          f.byX, f.byY, gradients[0].byX, gradients[0].byY, gradients[1].byX, gradients[1].byY};
      const auto byInputs = [&] {
        const auto& [fx, fy, ax, ay, bx, by] = slopes;
        const Fifty determinant = ax * by - ay * bx;
        return std::pair{(fx * by - fy * bx) / determinant, (ax * fy - ay * fx) / determinant};
      };
      const auto [exactFirst, exactSecond] = byInputs();
      const auto exactA = static_cast<double>(exactFirst);
      const auto exactB = static_cast<double>(exactSecond);
      // What the rounding of the slopes does to them, where they nearly cancel.
      const Letter letters[] = {of, inputLetters[0], inputLetters[1]};
      const double given[] = {value[k], a, b};
      double roundedA = 0.0;
      double roundedB = 0.0;
      for (std::size_t n = 0; n < 6; ++n) {
        const double terms = termsOf(letters[n / 2], 20.0 * given[n / 2], value[0], value[1]);
        const double variable = n % 2 == 0 ? value[0] : two ? 1.0 : value[1];
        const Fifty kept = slopes[n];
        // The state of (h, s) itself is known to less where both change alike, as along a liquid.
        slopes[n] += (pair == Pair::HS ? 1e-9 : 1e-11) * terms / variable;
        const auto [first, second] = byInputs();
        slopes[n] = kept;
        roundedA += std::abs(static_cast<double>(first - exactFirst));
        roundedB += std::abs(static_cast<double>(second - exactSecond));
      }
      // Next to the critical point the saturated densities change as the root of the distance.
      const double tolerance = two && value[0] > 646.0 ? 1e-7 : 1e-9;
      const std::string at = fmt::format("letter {} at {:.17g}, {:.17g}{}", static_cast<int>(of), a,
                                         b, two ? ", two phases" : "");
      grid.near(byA[k], exactA, 1.0, tolerance * std::abs(exactA) + roundedA, "by first, " + at);
      grid.near(byB[k], exactB, 1.0, tolerance * std::abs(exactB) + roundedB, "by second, " + at);
    }
    if (two) {
      const auto exact = static_cast<double>((mixture(Letter::P, T + lines.dT, 0, lines.above) -
                                              mixture(Letter::P, T - lines.dT, 0, lines.below)) /
                                             (2 * lines.dT));
      grid.relative(slope, exact, 1e-9, fmt::format("dP/dT at {:.17g}", value[0]));
      ++twos;
    } else {
      ++ones;
    }
  }
  EXPECT_TRUE(direct::useInstructionSet({}));
  const bool onLine = direct::secondOf(pair) == Letter::Q;
  EXPECT_GE(onLine ? wanted : ones, wanted / 4);
  EXPECT_GE(pair == Pair::PT ? wanted : twos, wanted / 10);
}

std::string nameOf(const testing::TestParamInfo<Pair>& parameter) {
  constexpr const char* names[] = {"PT", "PH", "PS", "PU", "PR", "PV", "TH",
                                   "TS", "TU", "TR", "TV", "PQ", "TQ", "HS"};
  return names[static_cast<int>(parameter.param)];
}

INSTANTIATE_TEST_SUITE_P(Direct, Derivatives,
                         testing::Values(Pair::PT, Pair::PH, Pair::PS, Pair::PU, Pair::PR, Pair::PV,
                                         Pair::TH, Pair::TS, Pair::TU, Pair::TR, Pair::TV, Pair::PQ,
                                         Pair::HS, Pair::TQ),
                         nameOf);

}  // namespace
}  // namespace calvex::test
