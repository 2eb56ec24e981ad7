/// \file
/// The coefficients of the fundamental equation, as printed. Notation: fundamental_equation-inl.h.
#pragma once

#include <array>
#include <iterator>

#include "steam/constants.h"

namespace calvex::coefficients {

/// The density exponents k of the residual function, in the order of the arrays by k.
inline constexpr std::array<int, 8> densityExponents{1, 2, 3, 4, 5, 6, 7, 9};
inline constexpr int gaussianTerms = 4;

inline constexpr double R = constants::gasConstant;
inline constexpr double T0 = constants::reducingTemperature;

// Base function: Haar, Gallagher, Kell (1984), table A.1.
inline constexpr double alpha = 11.0;
inline constexpr double beta = 133.0 / 3.0;
inline constexpr double gamma = 3.5;

// b(T) = b1 + b2 ln(T/T0) + b4 x^3 + b6 x^5
inline constexpr double b1 = 0.7478629;
inline constexpr double b2 = -0.3540782;
inline constexpr double b4 = 0.007159876;
inline constexpr double b6 = -0.003528426;

// B(T) = B1 + B3 x + B4 x^2 + B6 x^4
inline constexpr double B1 = 1.1278334;
inline constexpr double B3 = -0.5944001;
inline constexpr double B4 = -5.010996;
inline constexpr double B6 = 0.63684256;

// Residual function, polynomial terms (g_i/k_i) x^l_i q^k_i: Haar, Gallagher, Kell (1984), table
// A.2.
struct ResidualTerm {
  int k;
  int l;
  double g;
};
inline constexpr ResidualTerm residualTerms[] = {
    {1, 1, -530.62968529023},  //  1
    {1, 2, 2274.4901424408},   //  2
    {1, 4, 787.79333020687},   //  3
    {1, 6, -69.830527374994},  //  4
    {2, 1, 17863.832875422},   //  5
    {2, 2, -39514.731563338},  //  6
    {2, 4, 33803.884280753},   //  7
    {2, 6, -13855.050202703},  //  8
    {3, 1, -256374.3661326},   //  9
    {3, 2, 482125.75981415},   // 10
    {3, 4, -341830.1696966},   // 11
    {3, 6, 122231.56417448},   // 12
    {4, 1, 1179743.3655832},   // 13
    {4, 2, -2173481.0110373},  // 14
    {4, 4, 1082995.216862},    // 15
    {4, 6, -254419.98064049},  // 16
    {5, 1, -3137777.4947767},  // 17
    {5, 2, 5291191.0757704},   // 18
    {5, 4, -1380257.7177877},  // 19
    {5, 6, -251099.14369001},  // 20
    {6, 1, 4656182.6115608},   // 21
    {6, 2, -7275277.3275387},  // 22
    {6, 4, 417742.46148294},   // 23
    {6, 6, 1401635.8244614},   // 24
    {7, 1, -3155523.1392127},  // 25
    {7, 2, 4792966.6384584},   // 26
    {7, 4, 409126.64781209},   // 27
    {7, 6, -1362636.9388386},  // 28
    {9, 1, 696252.20862664},   // 29
    {9, 2, -1083490.0096447},  // 30
    {9, 4, -227228.27401688},  // 31
    {9, 6, 383654.8600066},    // 32
    {3, 0, 6883.3257944332},   // 33
    {3, 3, 21757.245522644},   // 34
    {1, 3, -2662.794482977},   // 35
    {5, 3, -70730.418082074},  // 36
};
static_assert(std::size(residualTerms) == 36);

// Residual function, terms g_i d^l_i exp(-alpha_i d^k_i - beta_i tau^2) with d = r/r_i - 1 and
// tau = T/T_i - 1: three shape the critical region, one the cold compressed liquid.
struct GaussianTerm {
  double g;
  int k;
  int l;
  double r;  // g/cm3
  double T;  // K
  int alpha;
  int beta;
};
inline constexpr GaussianTerm gaussianTable[] = {
    {-0.225, 2, 0, 0.319, 640.0, 34, 20000},  // 37
    {-1.68, 2, 2, 0.319, 640.0, 40, 20000},   // 38
    {0.055, 2, 0, 0.319, 641.6, 30, 40000},   // 39
    {-93.0, 4, 0, 1.55, 270.0, 1050, 25},     // 40
};
static_assert(std::size(gaussianTable) == gaussianTerms);

/// Coefficients p_j of a polynomial in d that is multiplied by exp(-alpha d^k). The highest power
/// is the third derivative's of term 40.
using BellPolynomial = std::array<double, 10>;

/// The highest power that it has.
[[nodiscard]] constexpr std::size_t degree(const BellPolynomial& p) {
  std::size_t highest = p.size() - 1;
  while (highest > 0 && p[highest] == 0.0) --highest;
  return highest;
}

/// The polynomial of the n-th derivative by d of the Gaussian term's d^l exp(-alpha d^k): the
/// derivative of d^j exp(-alpha d^k) is (j d^(j-1) - alpha k d^(j+k-1)) exp(-alpha d^k).
[[nodiscard]] constexpr BellPolynomial bellPolynomial(const GaussianTerm& term, int n) {
  BellPolynomial p{};
  p[static_cast<std::size_t>(term.l)] = 1.0;
  for (; n > 0; --n) {
    BellPolynomial next{};
    for (std::size_t j = 0; j < p.size(); ++j) {
      if (p[j] == 0.0) continue;
      if (j > 0) next[j - 1] += static_cast<double>(j) * p[j];
      next[j + static_cast<std::size_t>(term.k) - 1] -= term.alpha * term.k * p[j];
    }
    p = next;
  }
  return p;
}

// Ideal-gas function, H. W. Woolley (1980):
// Phi(T) = 1 + (C1/tau + C2) ln tau + sum C_i tau^(i-6), i = 3..18, tau = T/100 K.
inline constexpr double C1 = 19.730271018;
inline constexpr double C2 = 20.9662681977;
inline constexpr double idealPowers[] = {
    -0.483429455355,     // C3, tau^-3
    6.05743189245,       // C4
    22.56023885,         // C5
    -9.87532442,         // C6, tau^0
    -4.3135538513,       // C7
    0.458155781,         // C8
    -0.047754901883,     // C9
    0.0041238460633,     // C10
    -0.00027929052852,   // C11
    1.4481695261e-05,    // C12
    -5.6473658748e-07,   // C13
    1.6200446e-08,       // C14
    -3.303822796e-10,    // C15
    4.51916067368e-12,   // C16
    -3.70734122708e-14,  // C17
    1.37546068238e-16,   // C18, tau^12
};
static_assert(std::size(idealPowers) == 16);
inline constexpr int firstIdealPower = -3;
inline constexpr double logReducing = 1.8672889305871085;  // ln(T0/100 K)

// The residual coefficients by temperature exponent l and density exponent k, so that G_k(T) is a
// polynomial in x for all k at once.
inline constexpr int highestTemperatureExponent = 6;
using ResidualRow = std::array<double, densityExponents.size()>;
inline constexpr std::array<ResidualRow, highestTemperatureExponent + 1> residualByTemperature =
    [] {
      std::array<ResidualRow, highestTemperatureExponent + 1> rows{};
      for (const ResidualTerm& term : residualTerms) {
        for (std::size_t k = 0; k < densityExponents.size(); ++k) {
          if (densityExponents[k] == term.k) rows[static_cast<std::size_t>(term.l)][k] += term.g;
        }
      }
      return rows;
    }();

}  // namespace calvex::coefficients
