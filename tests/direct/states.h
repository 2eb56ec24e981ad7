/// \file
/// Random states and nonsense for every pair, and the members' answers to them.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "direct/direct_road.h"
#include "engine/thermo_engine.h"

namespace calvex::test {

/// The results of a pair by which the roads are compared, by the members: two properties, and the
/// quality where it is not given and a member answers it.
struct PairMembers {
  direct::Pair pair;
  const char* name;
  using Member = int (ZvThermoInt::*)(double*, double, double);
  direct::Letter letters[2];
  Member members[2];
  Member quality = nullptr;
};

inline void PrintTo(const PairMembers& row, std::ostream* out) { *out << row.name; }

inline const PairMembers pairMembers[] = {
    {direct::Pair::PT,
     "PT",
     {direct::Letter::R, direct::Letter::H},
     {&ZvThermoInt::RPT, &ZvThermoInt::HPT}},
    {direct::Pair::PH,
     "PH",
     {direct::Letter::T, direct::Letter::R},
     {&ZvThermoInt::TPH, &ZvThermoInt::RPH},
     &ZvThermoInt::QPH},
    {direct::Pair::PS,
     "PS",
     {direct::Letter::T, direct::Letter::R},
     {&ZvThermoInt::TPS, &ZvThermoInt::RPS},
     &ZvThermoInt::QPS},
    {direct::Pair::PU,
     "PU",
     {direct::Letter::T, direct::Letter::R},
     {&ZvThermoInt::TPU, &ZvThermoInt::RPU},
     &ZvThermoInt::QPU},
    {direct::Pair::PR,
     "PR",
     {direct::Letter::T, direct::Letter::H},
     {&ZvThermoInt::TPR, &ZvThermoInt::HPR},
     &ZvThermoInt::QPR},
    {direct::Pair::PV,
     "PV",
     {direct::Letter::T, direct::Letter::H},
     {&ZvThermoInt::TPV, &ZvThermoInt::HPV},
     &ZvThermoInt::QPV},
    {direct::Pair::TH,
     "TH",
     {direct::Letter::P, direct::Letter::R},
     {&ZvThermoInt::PTH, &ZvThermoInt::RTH},
     &ZvThermoInt::QTH},
    {direct::Pair::TS,
     "TS",
     {direct::Letter::P, direct::Letter::R},
     {&ZvThermoInt::PTS, &ZvThermoInt::RTS},
     &ZvThermoInt::QTS},
    {direct::Pair::TU,
     "TU",
     {direct::Letter::P, direct::Letter::R},
     {&ZvThermoInt::PTU, &ZvThermoInt::RTU},
     &ZvThermoInt::QTU},
    {direct::Pair::TR,
     "TR",
     {direct::Letter::P, direct::Letter::H},
     {&ZvThermoInt::PTR, &ZvThermoInt::HTR},
     &ZvThermoInt::QTR},
    {direct::Pair::TV,
     "TV",
     {direct::Letter::P, direct::Letter::H},
     {&ZvThermoInt::PTV, &ZvThermoInt::HTV},
     &ZvThermoInt::QTV},
    {direct::Pair::PQ,
     "PQ",
     {direct::Letter::H, direct::Letter::R},
     {&ZvThermoInt::HSatPQ, &ZvThermoInt::RSatPQ}},
    {direct::Pair::TQ,
     "TQ",
     {direct::Letter::H, direct::Letter::R},
     {&ZvThermoInt::HSatTQ, &ZvThermoInt::RSatTQ}},
};

/// The number of a message from its text.
inline int numberOf(std::string_view text) {
  if (text.find("parameter out of range (Valid range") != text.npos) return 108;
  if (text.find("parameter out of range.") != text.npos) return 102;
  for (const int number : {103, 104, 106, 107}) {
    if (text.starts_with(messageText(number))) return number;
  }
  return text.starts_with("No solution") ? 105 : -1;
}

/// An engine that answers as the direct road does: the exact line decides.
inline void prepare(ZvThermoInt& engine) { engine.SetSatPolish(2); }

/// The states of a run: as many as that variable of the environment says, else `usual`; fewer under
/// sanitizers, which make each twenty times as dear.
inline std::size_t stateCount(const char* variable, std::size_t usual) {
  const char* wanted = std::getenv(variable);
  if (wanted != nullptr) return std::strtoull(wanted, nullptr, 10);
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  return usual / 20 + 10;
#else
  return usual;
#endif
}

/// The terms that a property is the sum of, by whose last digits it is wrong: a liquid's pressure
/// is the difference of attraction and repulsion, energies and entropy have their zero by
/// constants.
inline double termsOf(direct::Letter letter, double value, double T, double density) {
  using direct::Letter;
  constexpr double R = 0.461522;
  switch (letter) {
    case Letter::P:
      return 1e-3 * R * T * density;
    case Letter::H:
    case Letter::U:
      return 2000.0 + R * T;
    case Letter::S:
      return 3.5;
    case Letter::Z:
      return 1.0;
    default:
      return std::abs(value);
  }
}

/// Inputs of a pair: true states of the hard range, of a plant, of two phases, and numbers that
/// belong to no state.
class RandomInputs {
 public:
  RandomInputs(direct::Pair pair, unsigned seed) : pair_(pair), random_(seed) {}

  void next(double& first, double& second) {
    using direct::Pair;
    const unsigned kind = static_cast<unsigned>(random_() % 100);
    if (kind < 2) return nonsense(first, second);
    if (kind < 10) return unlikely(first, second);
    for (;;) {
      const bool mixture = pair_ == Pair::PQ || pair_ == Pair::TQ || kind < 35;
      double P = kind < 65 ? between(0.01, 100.0) : logarithmic(1e-4, 3000.0);
      double T = kind < 65 ? between(273.2, 1100.0) : between(260.0, 2500.0);
      if (mixture) {
        P = logarithmic(0.00062, 22.0);
        T = between(0.0, 1.0);
        if (random_() % 10 == 0) T = T < 0.5 ? 0.0 : 1.0;
      }
      const direct::Letter letters[] = {direct::firstOf(pair_), direct::secondOf(pair_)};
      double values[2];
      if (direct::evaluate(mixture && pair_ != Pair::PT ? Pair::PQ : Pair::PT, P, T, letters,
                           values) != 0) {
        if (pair_ == Pair::PT) {
          first = P;
          second = T;
          return;
        }
        continue;
      }
      first = values[0];
      second = values[1];
      return;
    }
  }

 private:
  double between(double low, double high) {
    return std::uniform_real_distribution<>(low, high)(random_);
  }
  double logarithmic(double low, double high) {
    return std::exp(between(std::log(low), std::log(high)));
  }
  // In the ranges of the inputs, and mostly of no state.
  double anyOf(direct::Letter letter) {
    switch (letter) {
      case direct::Letter::P:
        return logarithmic(1e-9, 4000.0);
      case direct::Letter::T:
        return between(250.0, 2600.0);
      case direct::Letter::H:
      case direct::Letter::U:
        return between(-100.0, 12000.0);
      case direct::Letter::S:
        return between(-0.5, 20.0);
      case direct::Letter::Q:
        return between(-0.1, 1.1);
      case direct::Letter::R:
        return logarithmic(1e-6, 2000.0);
      default:
        return logarithmic(5e-4, 1e6);
    }
  }
  void unlikely(double& first, double& second) {
    first = anyOf(direct::firstOf(pair_));
    second = anyOf(direct::secondOf(pair_));
  }
  void nonsense(double& first, double& second) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                              infinity,
                              -infinity,
                              0.0,
                              -0.0,
                              -1.0,
                              5e-324,
                              1e308,
                              -1e308,
                              1e-300};
    unlikely(first, second);
    (random_() % 2 == 0 ? first : second) = odd[random_() % std::size(odd)];
  }

  direct::Pair pair_;
  std::mt19937_64 random_;
};

}  // namespace calvex::test
