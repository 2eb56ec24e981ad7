/// \file
/// The direct road: many states at once, from arrays to arrays, with the members' answers.
///
/// The same equation as the members', solved in vector lanes by Newton's method; what the lanes do
/// not settle goes to the members' own solve. A state that a member refuses is refused here with
/// the same message; a state that it answers agrees with it to 1e-10 (next to the critical point
/// as far as the pair determines the state). No trace, no warnings; the exact saturation line
/// decides (SatPolish 2).
///
///     const double P[] = {10.0, 1.0}, T[] = {773.15, 600.0};
///     double h[2], rho[2];
///     short status[2];
///     const direct::Result results[] = {{direct::Letter::H, {h}}, {direct::Letter::R, {rho}}};
///     direct::Request request{direct::Pair::PT, {P}, {T}, results};
///     request.status = {status};
///     direct::evaluate(request, 0, 2);
///
/// Everything here may be called from any number of threads at once.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace calvex::direct {

/// The two properties that a state is given by, in the order of the arguments: P pressure,
/// T temperature, H enthalpy, S entropy, U internal energy, R density, V specific volume, Q vapour
/// mass fraction on the saturation line.
enum class Pair : unsigned char { PT, PH, PS, PU, PR, PV, TH, TS, TU, TR, TV, PQ, TQ, HS };
inline constexpr int pairCount = 14;

/// A property by the letter of the members' names, in the order of their table.
enum class Letter : unsigned char {
  P,  ///< pressure, MPa
  T,  ///< temperature, K
  H,  ///< enthalpy, kJ/kg
  S,  ///< entropy, kJ/(kg.K)
  U,  ///< internal energy, kJ/kg
  R,  ///< density, kg/m3
  V,  ///< specific volume, m3/kg
  Q,  ///< vapour mass fraction; 0 for liquid, 1 for vapour
  A,  ///< Helmholtz energy, kJ/kg
  G,  ///< Gibbs energy, kJ/kg
  M,  ///< dynamic viscosity, Pa.s
  K,  ///< thermal conductivity, W/(K.m)
  C,  ///< isobaric heat capacity, kJ/(kg.K)
  D,  ///< isochoric heat capacity, kJ/(kg.K)
  Z,  ///< compressibility factor
  W,  ///< speed of sound, m/s
  N,  ///< Prandtl number
  E,  ///< static dielectric constant
  I,  ///< isothermal throttling coefficient, kJ/(kg.MPa)
  J,  ///< Joule-Thomson coefficient, K/MPa
  B,  ///< thermal expansion coefficient, 1/K
  L,  ///< isothermal compressibility, 1/MPa
};
inline constexpr int letterCount = 22;

/// The letters of a pair's two inputs.
[[nodiscard]] Letter firstOf(Pair pair) noexcept;
[[nodiscard]] Letter secondOf(Pair pair) noexcept;

/// Whether the letter is defined for a mixture of liquid and vapour: P, T, H, S, U, R, V and Q are.
[[nodiscard]] bool ofMixture(Letter letter) noexcept;

/// In which phase a state is. Above the critical temperature or pressure: supercritical.
enum class Phase : signed char { none = -1, liquid, vapour, supercritical, twoPhase };

/// An input: `data[i * stride]` for point i. A stride of 0 is a constant.
struct Column {
  const double* data = nullptr;
  std::ptrdiff_t stride = 1;
};

/// An output: `data[i * stride]` for point i; none where `data` is null.
template <class T>
struct Target {
  T* data = nullptr;
  std::ptrdiff_t stride = 1;
};

/// One property of every point, and where asked for its derivatives with respect to the first input
/// at constant second, and to the second at constant first, in the client's units.
///
/// In two phases they are those of the mixture in equilibrium. On a saturated state (pairs with Q,
/// a quality of 0 or 1) they are those of the mixture's side. A derivative that does not exist is
/// NaN while the value is there: of P or T of a mixture with respect to the second input it is 0.
struct Result {
  Letter letter;
  Target<double> value;
  Target<double> byFirst{};
  Target<double> bySecond{};
};

/// A client's unit: model value = (x + offset) * factor, as in the catalogue of units.
struct Unit {
  double factor = 1.0;
  double offset = 0.0;
  std::string_view name;  ///< for texts
};

/// The unit of each letter. Letters that share a unit group are given one by one.
using Units = std::array<Unit, letterCount>;
/// The engine's own units with their names.
[[nodiscard]] const Units& modelUnits() noexcept;

/// What is asked of an array of states.
struct Request {
  Pair pair;
  Column first;
  Column second;
  std::span<const Result> results;  ///< computed in one pass, at one solve a state
  Target<Phase> phase{};            ///< `none` for a failed point
  /// 0 for success, else the number of the message (diagnostics/messages.h).
  Target<short> status{};
  /// dP/dT of the saturation line at the temperature of a state of two phases, 0 of one phase.
  Target<double> lineSlope{};
  const Units* units = nullptr;  ///< null: the engine's own
};

/// Makes the tables that states of the pair start from, which the first evaluation would make: for
/// callers that can take care of an exception, as evaluation cannot.
/// \throws std::bad_alloc
void prepare(Pair pair);

/// Computes the points [begin, end) of the request on the calling thread. A failed point's results
/// are NaN, its phase is `none` and its status tells why; its neighbours are not touched by it. A
/// point fails when a member would fail: also when any one of the results asked for is not defined
/// there (message 106: of a mixture; 108: outside the range of a transport correlation).
void evaluate(const Request& request, std::size_t begin, std::size_t end) noexcept;

/// One state through the same code with one lane: `values[i]` receives `letters[i]`. Answers the
/// status; on failure the values are NaN. Model units. Allocates nothing for a state that it
/// answers, once the thread has made its first call from that pair.
int evaluate(Pair pair, double first, double second, std::span<const Letter> letters,
             double* values) noexcept;

/// Enthalpy, entropy, ... of one state, for callers that want a single number: NaN on failure.
[[nodiscard]] double evaluate(Pair pair, double first, double second, Letter letter) noexcept;

/// Saturation pressure and temperature, exact; the slope dP/dT of the line where `slope` is not
/// null. Status and NaN as above.
int saturationPressure(double T, double& P, double* slope = nullptr) noexcept;
int saturationTemperature(double P, double& T, double* slope = nullptr) noexcept;

/// The instruction sets that this machine can run, best first, by name ("AVX3", "AVX2", "SSE4",
/// "EMU128", "one lane"). The best one is used.
[[nodiscard]] std::span<const std::string_view> instructionSets() noexcept;
/// The lanes of the instruction set in use.
[[nodiscard]] int lanes() noexcept;
/// Uses that instruction set from now on, for measurements and tests; false if it is not in the
/// list. The empty name chooses the best.
bool useInstructionSet(std::string_view name) noexcept;

}  // namespace calvex::direct
