#include "steam/transport.h"

#include <array>
#include <cmath>

namespace calvex {

namespace {

// Reducing values of the 1984/1985 viscosity and conductivity equations.
constexpr double Tstar = 647.27;     // K
constexpr double rhoStar = 317.763;  // kg/m3
constexpr double Pstar = 22.115;     // MPa

// Viscosity of the dilute gas, mu0 = 1e-6 sqrt(Tr) / sum a_i/Tr^i
constexpr std::array<double, 4> viscosityGas{0.0181583, 0.0177624, 0.0105287, -0.0036744};

// b_ij of the residual viscosity: a row for each power i of (1/Tr - 1), a column for each power j
// of (rho_r - 1).
constexpr std::array<std::array<double, 5>, 6> viscosityResidual{{
    {0.501938, 0.235622, -0.274637, 0.145831, -0.0270448},
    {0.162888, 0.789393, -0.743539, 0.263129, -0.0253093},
    {-0.130356, 0.673665, -0.959456, 0.347247, -0.0267758},
    {0.907919, 1.207552, -0.687343, 0.213486, -0.0822904},
    {-0.551119, 0.0670665, -0.497089, 0.100754, 0.0602253},
    {0.146543, -0.084337, 0.195286, -0.032932, -0.0202595},
}};

// Thermal conductivity of the dilute gas, lambda0 = sqrt(Tr) / sum L_i/Tr^i
constexpr std::array<double, 4> conductivityGas{2.02223, 14.11166, 5.25597, -2.0187};

// b_ij of the residual thermal conductivity, as above.
constexpr std::array<std::array<double, 6>, 5> conductivityResidual{{
    {1.3293046, -0.40452437, 0.2440949, 0.018660751, -0.12961068, 0.044809953},
    {1.7018363, -2.2156845, 1.6511057, -0.76736002, 0.37283344, -0.1120316},
    {5.2246158, -10.124111, 4.9874687, -0.27297694, -0.43083393, 0.13333849},
    {8.7127675, -9.5000611, 4.3786606, -0.91783782, 0.0, 0.0},
    {-1.8525999, 0.9340469, 0.0, 0.0, 0.0, 0.0},
}};

// sum_i c_i x^i
template <std::size_t N>
double polynomial(const std::array<double, N>& c, double x) {
  double sum = 0.0;
  for (std::size_t i = N; i-- > 0;) sum = sum * x + c[i];
  return sum;
}

// exp(rho_r sum_ij b_ij (1/Tr - 1)^i (rho_r - 1)^j)
template <std::size_t I, std::size_t J>
double residualFactor(const std::array<std::array<double, J>, I>& b, double Tr, double rhoR) {
  double sum = 0.0;
  for (std::size_t i = I; i-- > 0;) sum = sum * (1.0 / Tr - 1.0) + polynomial(b[i], rhoR - 1.0);
  return std::exp(rhoR * sum);
}

}  // namespace

double viscosity(double T, double density) {
  const double Tr = T / Tstar;
  const double mu0 = 1e-06 * std::sqrt(Tr) / polynomial(viscosityGas, 1.0 / Tr);
  return mu0 * residualFactor(viscosityResidual, Tr, density / rhoStar);
}

double thermalConductivity(double T, double density,
                           const HelmholtzPoint::Derivatives& derivatives) {
  const double Tr = T / Tstar;
  const double rhoR = density / rhoStar;
  const double lambda0 = std::sqrt(Tr) / polynomial(conductivityGas, 1.0 / Tr);
  const double lambda1 = residualFactor(conductivityResidual, Tr, rhoR);

  // dPr/dTr at constant density and chi = rho_r drho_r/dPr at constant temperature, with dP/dr of
  // the fundamental equation per g/cm3.
  const double dPdT = derivatives.PT * Tstar / Pstar;
  const double chi = rhoR * Pstar / (0.001 * rhoStar * derivatives.Pr);
  const double fromCriticalT = Tr - 1.0;
  const double fromCriticalRho = (rhoR - 1.0) * (rhoR - 1.0);
  const double lambda2 =
      3.7711e-08 / viscosity(T, density) * (Tr / rhoR) * (Tr / rhoR) * dPdT * dPdT *
      std::pow(chi, 0.4678) * std::sqrt(rhoR) *
      std::exp(-18.66 * fromCriticalT * fromCriticalT - fromCriticalRho * fromCriticalRho);
  return lambda0 * lambda1 + lambda2;
}

double surfaceTension(double T) {
  const double theta = 1.0 - T / 647.15;
  return 0.2358 * std::pow(theta, 1.256) * (1.0 - 0.625 * theta);
}

double dielectricConstant(double T, double density) {
  constexpr std::array<double, 10> A{7.62571, 244.003,  -140.569, 27.7841, -96.2805,
                                     41.7909, -10.2099, -45.2059, 84.6395, -35.8644};
  const double t = T * 0.0033540164346805303;  // T/298.15 K
  const double r = 0.001 * density;
  const double first = A[0] / t;
  const double second = A[1] / t + A[2] + A[3] * t;
  const double third = A[4] / t + A[5] * t + A[6] * t * t;
  const double fourth = A[7] / (t * t) + A[8] / t + A[9];
  return 1.0 + (((fourth * r + third) * r + second) * r + first) * r;
}

}  // namespace calvex
