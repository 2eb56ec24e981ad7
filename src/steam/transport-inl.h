// Transport properties, surface tension and dielectric constant for any number type N, which has
// what the fundamental equation asks for, sqrt, and pow with an exponent of type double. Included
// inside a namespace, after fundamental_equation-inl.h; transport.h is the header of its users.

// sum_i c_i x^i
template <class N, std::size_t I>
N polynomial(const std::array<double, I>& c, const N& x) {
  N sum = N(0.0);
  for (std::size_t i = I; i-- > 0;) sum = sum * x + c[i];
  return sum;
}

// exp(rho_r sum_ij b_ij (1/Tr - 1)^i (rho_r - 1)^j)
template <class N, std::size_t I, std::size_t J>
N residualFactor(const std::array<std::array<double, J>, I>& b, const N& Tr, const N& rhoR) {
  const N x = 1.0 / Tr - 1.0;
  const N y = rhoR - 1.0;
  N sum = N(0.0);
  for (std::size_t i = I; i-- > 0;) sum = sum * x + polynomial(b[i], y);
  return exp(rhoR * sum);
}

/// Dynamic viscosity, Pa.s. J. V. Sengers, B. Kamgar-Parsi, J. Phys. Chem. Ref. Data 13 (1984) 185.
template <class N>
[[nodiscard]] N viscosity(const N& T, const N& density) {
  using namespace coefficients;
  const N Tr = T / Tstar;
  const N mu0 = 1e-06 * sqrt(Tr) / polynomial(viscosityGas, 1.0 / Tr);
  return mu0 * residualFactor(viscosityResidual, Tr, density / rhoStar);
}

/// Thermal conductivity with its critical enhancement, W/(m.K). J. V. Sengers, J. T. R. Watson,
/// R. S. Basu, B. Kamgar-Parsi, R. C. Hendricks, J. Phys. Chem. Ref. Data 13 (1984) 893, as
/// released in 1985; `derivatives` are those of the fundamental equation and `mu` the viscosity at
/// the same point.
template <class N>
[[nodiscard]] N thermalConductivity(const N& T, const N& density,
                                    const typename HelmholtzPointOf<N>::Derivatives& derivatives,
                                    const N& mu) {
  using namespace coefficients;
  const N Tr = T / Tstar;
  const N rhoR = density / rhoStar;
  const N lambda0 = sqrt(Tr) / polynomial(conductivityGas, 1.0 / Tr);
  const N lambda1 = residualFactor(conductivityResidual, Tr, rhoR);

  // dPr/dTr at constant density and chi = rho_r drho_r/dPr at constant temperature, with dP/dr of
  // the fundamental equation per g/cm3.
  const N dPdT = derivatives.PT * Tstar / Pstar;
  const N chi = rhoR * Pstar / (0.001 * rhoStar * derivatives.Pr);
  const N fromCriticalT = Tr - 1.0;
  const N fromCriticalRho = (rhoR - 1.0) * (rhoR - 1.0);
  const N lambda2 =
      enhancement::C / mu * (Tr / rhoR) * (Tr / rhoR) * dPdT * dPdT * pow(chi, enhancement::omega) *
      sqrt(rhoR) *
      exp(-enhancement::A * fromCriticalT * fromCriticalT - fromCriticalRho * fromCriticalRho);
  return lambda0 * lambda1 + lambda2;
}

/// Surface tension, N/m; T at most 647.15 K. IAPS release on the surface tension of ordinary water
/// substance (1975), N. B. Vargaftik, B. N. Volkov, L. D. Voljak, JPCRD 12 (1983) 817.
template <class N>
[[nodiscard]] N surfaceTension(const N& T) {
  namespace c = coefficients::tension;
  const N theta = 1.0 - T / c::Tc;
  return c::B * pow(theta, c::mu) * (1.0 + c::b * theta);
}

/// Static dielectric constant. M. Uematsu, E. U. Franck, J. Phys. Chem. Ref. Data 9 (1980) 1291.
template <class N>
[[nodiscard]] N dielectricConstant(const N& T, const N& density) {
  using namespace coefficients;
  const auto& A = dielectric;
  const N t = T * 0.0033540164346805303;  // T/298.15 K
  const N r = 0.001 * density;
  const N first = A[0] / t;
  const N second = A[1] / t + A[2] + A[3] * t;
  const N third = A[4] / t + A[5] * t + A[6] * t * t;
  const N fourth = A[7] / (t * t) + A[8] / t + A[9];
  return 1.0 + (((fourth * r + third) * r + second) * r + first) * r;
}
