/// \file
/// The coefficients of the transport properties and the dielectric constant, as printed.
#pragma once

#include <array>

namespace calvex::coefficients {

// Reducing values of the 1984/1985 viscosity and conductivity equations.
inline constexpr double Tstar = 647.27;     // K
inline constexpr double rhoStar = 317.763;  // kg/m3
inline constexpr double Pstar = 22.115;     // MPa

// Viscosity of the dilute gas, mu0 = 1e-6 sqrt(Tr) / sum a_i/Tr^i
inline constexpr std::array<double, 4> viscosityGas{0.0181583, 0.0177624, 0.0105287, -0.0036744};

// b_ij of the residual viscosity: a row for each power i of (1/Tr - 1), a column for each power j
// of (rho_r - 1).
inline constexpr std::array<std::array<double, 5>, 6> viscosityResidual{{
    {0.501938, 0.235622, -0.274637, 0.145831, -0.0270448},
    {0.162888, 0.789393, -0.743539, 0.263129, -0.0253093},
    {-0.130356, 0.673665, -0.959456, 0.347247, -0.0267758},
    {0.907919, 1.207552, -0.687343, 0.213486, -0.0822904},
    {-0.551119, 0.0670665, -0.497089, 0.100754, 0.0602253},
    {0.146543, -0.084337, 0.195286, -0.032932, -0.0202595},
}};

// Thermal conductivity of the dilute gas, lambda0 = sqrt(Tr) / sum L_i/Tr^i
inline constexpr std::array<double, 4> conductivityGas{2.02223, 14.11166, 5.25597, -2.0187};

// b_ij of the residual thermal conductivity, as above.
inline constexpr std::array<std::array<double, 6>, 5> conductivityResidual{{
    {1.3293046, -0.40452437, 0.2440949, 0.018660751, -0.12961068, 0.044809953},
    {1.7018363, -2.2156845, 1.6511057, -0.76736002, 0.37283344, -0.1120316},
    {5.2246158, -10.124111, 4.9874687, -0.27297694, -0.43083393, 0.13333849},
    {8.7127675, -9.5000611, 4.3786606, -0.91783782, 0.0, 0.0},
    {-1.8525999, 0.9340469, 0.0, 0.0, 0.0, 0.0},
}};

// Critical enhancement of the thermal conductivity:
// lambda2 = C/mu (Tr/rho_r dPr/dTr)^2 chi^omega sqrt(rho_r) exp(-A (Tr - 1)^2 - (rho_r - 1)^2)
namespace enhancement {
inline constexpr double C = 3.7711e-08;
inline constexpr double omega = 0.4678;
inline constexpr double A = 18.66;
}  // namespace enhancement

// Surface tension, sigma = B theta^mu (1 + b theta) with theta = 1 - T/Tc
namespace tension {
inline constexpr double B = 0.2358;  // N/m
inline constexpr double b = -0.625;
inline constexpr double mu = 1.256;
inline constexpr double Tc = 647.15;  // K
}  // namespace tension

// Dielectric constant, A1..A10: Uematsu and Franck (1980).
inline constexpr std::array<double, 10> dielectric{7.62571, 244.003,  -140.569, 27.7841, -96.2805,
                                                   41.7909, -10.2099, -45.2059, 84.6395, -35.8644};

}  // namespace calvex::coefficients
