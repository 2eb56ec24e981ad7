/// \file
/// The property members as one table: what each returns, from which two properties, and what it
/// does when they lie between the phases.
#pragma once

#include <array>
#include <string_view>

#include "steam/property.h"
#include "units/unit_catalogue.h"

namespace calvex {

/// What is said where the equation's heat capacities are negative, and it has no speed of sound.
inline constexpr std::string_view unstableWater =
    "The heat capacity is not above zero: the equation has no stable water here.";

// X(result, first input, second input, two phases); the member's name is the three letters
// together.
//
//   fails          error 106: the property is not defined by a mixture's two inputs
//   onLine         the saturation member of the same result, with the quality found (HSatPQ, ...)
//   ofMixture      evaluated from the stored saturated states
//   pressureOfLine the saturation pressure at T by PSatT
#define CALVEX_PROPERTY_MEMBERS(X) \
  X(P, T, H, pressureOfLine)       \
  X(P, T, S, pressureOfLine)       \
  X(P, T, U, pressureOfLine)       \
  X(P, T, R, pressureOfLine)       \
  X(P, T, V, pressureOfLine)       \
  X(T, P, H, ofMixture)            \
  X(T, P, S, ofMixture)            \
  X(T, P, U, ofMixture)            \
  X(T, P, R, ofMixture)            \
  X(T, P, V, ofMixture)            \
  X(H, P, T, fails)                \
  X(H, P, S, ofMixture)            \
  X(H, P, U, onLine)               \
  X(H, P, R, onLine)               \
  X(H, P, V, onLine)               \
  X(H, T, S, onLine)               \
  X(H, T, U, onLine)               \
  X(H, T, R, onLine)               \
  X(H, T, V, onLine)               \
  X(S, P, T, fails)                \
  X(S, P, H, ofMixture)            \
  X(S, P, U, onLine)               \
  X(S, P, R, onLine)               \
  X(S, P, V, onLine)               \
  X(S, T, H, onLine)               \
  X(S, T, U, onLine)               \
  X(S, T, R, onLine)               \
  X(S, T, V, onLine)               \
  X(U, P, T, fails)                \
  X(U, P, H, ofMixture)            \
  X(U, P, S, onLine)               \
  X(U, P, R, onLine)               \
  X(U, P, V, onLine)               \
  X(U, T, H, onLine)               \
  X(U, T, S, onLine)               \
  X(U, T, R, onLine)               \
  X(U, T, V, onLine)               \
  X(R, P, T, fails)                \
  X(R, P, H, ofMixture)            \
  X(R, P, S, onLine)               \
  X(R, P, U, onLine)               \
  X(R, T, H, onLine)               \
  X(R, T, S, onLine)               \
  X(R, T, U, onLine)               \
  X(V, P, T, fails)                \
  X(V, P, H, ofMixture)            \
  X(V, P, S, onLine)               \
  X(V, P, U, onLine)               \
  X(V, T, H, onLine)               \
  X(V, T, S, onLine)               \
  X(V, T, U, onLine)               \
  X(Q, P, H, ofMixture)            \
  X(Q, P, S, ofMixture)            \
  X(Q, P, U, ofMixture)            \
  X(Q, P, R, ofMixture)            \
  X(Q, P, V, ofMixture)            \
  X(Q, T, H, ofMixture)            \
  X(Q, T, S, ofMixture)            \
  X(Q, T, U, ofMixture)            \
  X(Q, T, R, ofMixture)            \
  X(Q, T, V, ofMixture)            \
  X(A, P, T, fails)                \
  X(A, P, H, fails)                \
  X(A, P, S, fails)                \
  X(A, P, U, fails)                \
  X(A, P, R, fails)                \
  X(A, P, V, fails)                \
  X(A, T, H, fails)                \
  X(A, T, S, fails)                \
  X(A, T, U, fails)                \
  X(A, T, R, fails)                \
  X(A, T, V, fails)                \
  X(G, P, T, fails)                \
  X(G, P, H, fails)                \
  X(G, P, S, fails)                \
  X(G, P, U, fails)                \
  X(G, P, R, fails)                \
  X(G, P, V, fails)                \
  X(G, T, H, fails)                \
  X(G, T, S, fails)                \
  X(G, T, U, fails)                \
  X(G, T, R, fails)                \
  X(G, T, V, fails)                \
  X(M, P, T, fails)                \
  X(K, P, T, fails)                \
  X(C, P, T, fails)                \
  X(D, P, T, fails)                \
  X(Z, P, T, fails)                \
  X(W, P, T, fails)                \
  X(N, P, T, fails)                \
  X(E, P, T, fails)                \
  X(I, P, T, fails)                \
  X(J, P, T, fails)                \
  X(B, P, T, fails)                \
  X(L, P, T, fails)

// Results of the saturation members <result>SatTQ and <result>SatPQ.
#define CALVEX_SATURATION_RESULTS(X) X(H) X(S) X(U) X(V) X(R)

/// A letter of a member's name: the quantity, its unit and its name in messages.
struct Quantity {
  enum class Letter { P, T, H, S, U, R, V, Q, A, G, M, K, C, D, Z, W, N, E, I, J, B, L };

  Letter letter;
  Property property;  ///< not of Q, which no single state has
  UnitGroup group;    ///< of a quantity with a unit
  bool hasUnit;
  std::string_view name;  ///< of an input, as messages call it
};

/// The row of a letter.
[[nodiscard]] const Quantity& quantity(Quantity::Letter letter) noexcept;

struct PropertyMember {
  enum class TwoPhases { fails, onLine, ofMixture, pressureOfLine };

  /// Names the rows of the table.
  enum Index : int {
#define X(result, first, second, twoPhases) result##first##second,
    CALVEX_PROPERTY_MEMBERS(X)
#undef X
        count
  };

  std::string_view name;
  Quantity::Letter result;
  Quantity::Letter first;   ///< P or T
  Quantity::Letter second;  ///< T for members from (P, T)
  TwoPhases twoPhases;
};

[[nodiscard]] const PropertyMember& propertyMember(PropertyMember::Index index) noexcept;

}  // namespace calvex
