/// \file
/// Transport properties, surface tension and dielectric constant: international correlations for
/// ordinary water substance. Model units: K, kg/m3; results in Pa.s, W/(m.K), N/m.
#pragma once

#include "steam/fundamental_equation.h"

namespace calvex {

/// Dynamic viscosity, Pa.s. J. V. Sengers, B. Kamgar-Parsi, J. Phys. Chem. Ref. Data 13 (1984) 185.
[[nodiscard]] double viscosity(double T, double density);

/// Thermal conductivity with its critical enhancement, W/(m.K). J. V. Sengers, J. T. R. Watson,
/// R. S. Basu, B. Kamgar-Parsi, R. C. Hendricks, J. Phys. Chem. Ref. Data 13 (1984) 893, as
/// released in 1985; `derivatives` are those of the fundamental equation at the same point.
[[nodiscard]] double thermalConductivity(double T, double density,
                                         const HelmholtzPoint::Derivatives& derivatives);

/// Surface tension, N/m; T at most 647.15 K. IAPS release on the surface tension of ordinary water
/// substance (1975), N. B. Vargaftik, B. N. Volkov, L. D. Voljak, JPCRD 12 (1983) 817.
[[nodiscard]] double surfaceTension(double T);

/// Static dielectric constant. M. Uematsu, E. U. Franck, J. Phys. Chem. Ref. Data 9 (1980) 1291.
[[nodiscard]] double dielectricConstant(double T, double density);

}  // namespace calvex
