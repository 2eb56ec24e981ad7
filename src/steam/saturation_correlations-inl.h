// Explicit approximations of the saturation line for any number type N, which has what the
// fundamental equation asks for, and pow with an exponent of type double. Included inside a
// namespace; saturation_correlations.h is the header of its users.

/// Saturation pressure in the form of the 1967 IFC Formulation for Industrial Use, with this
/// engine's critical point; T at most Tc.
template <class N>
[[nodiscard]] N pressure(const N& T) {
  // Ps = Pc exp(S/((T/Tc) (1 + k6 tau + k7 tau^2)) - tau/(k8 tau^2 + k9)), S = sum k_i tau^i,
  // i = 1..5
  using namespace coefficients::saturationPressure;
  const N tau = 1.0 - T / constants::criticalTemperature;
  const N S = ((((k5 * tau + k4) * tau + k3) * tau + k2) * tau + k1) * tau;
  return constants::criticalPressure *
         exp(S / ((1.0 - tau) * (1.0 + (k7 * tau + k6) * tau)) - tau / (k8 * tau * tau + k9));
}

// theta = 1 - T/647.3 K of the density guesses
template <class N>
N theta(const N& T) {
  return (647.3 - T) / 647.3;
}

// 1 + c[0] theta^(1/3) + c[1] theta^(5/6) + c[2] theta^(7/8) + sum a[i] theta^(i+1)
template <class N>
N densityBracket(const N& th, const double (&c)[3], const double (&a)[5]) {
  const N polynomial = ((((a[4] * th + a[3]) * th + a[2]) * th + a[1]) * th + a[0]) * th;
  return 1.0 + c[0] * pow(th, 1.0 / 3.0) + c[1] * pow(th, 5.0 / 6.0) + c[2] * pow(th, 7.0 / 8.0) +
         polynomial;
}

/// Densities of saturated liquid and vapour, in powers of 1 - T/647.3 K. Their critical temperature
/// is not the engine's 647.126 K; they only start the solver, so the difference is kept.
template <class N>
[[nodiscard]] N liquidDensityGuess(const N& T) {
  constexpr double c[] = {-1.9153882, 12.015186, -7.8464025};
  constexpr double a[] = {-3.888614, 2.0582238, -2.0829991, 0.82180004, 0.47549742};
  return 1.0 / (0.003155 * densityBracket(theta(T), c, a));
}

template <class N>
[[nodiscard]] N vapourDensityGuess(const N& T) {
  constexpr double c[] = {1.6351057, 52.584599, -44.694653};
  constexpr double a[] = {-8.9751114, -0.4384553, -19.179576, 36.765319, -19.462437};
  return pressure(T) / (0.06969079499999999 * densityBracket(theta(T), c, a));
}
