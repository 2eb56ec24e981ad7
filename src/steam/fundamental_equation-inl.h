// The fundamental equation, for any number type N: double, vector lanes, numbers with derivatives,
// numbers with 50 digits. Included inside a namespace, more than once where lanes of several kinds
// are compiled; fundamental_equation.h is the header of its users.
//
// N has + - * / with itself and with double, a constructor from double, exp, log and anyBelow.

/// A value for each density exponent k.
template <class N>
using ByDensityExponent = std::array<N, coefficients::densityExponents.size()>;

/// A Gaussian factor below exp(-60) = 9e-27 is lost against energies of 1 kJ/kg in a double, also
/// after the two differentiations (each multiplies by less than 1e4).
template <class N>
inline constexpr double gaussianHorizon = 60.0;

/// Whether the number is below the limit; of many at once, whether any is.
template <class N>
bool anyBelow(const N& x, double limit) {
  return x < limit;
}

template <class N>
bool inSight(const N& exponent) {
  return anyBelow(exponent, gaussianHorizon<N>);
}

using EveryGaussian = std::make_index_sequence<coefficients::gaussianTerms>;
using EveryDensityExponent = std::make_index_sequence<coefficients::densityExponents.size()>;
using EveryTemperatureExponent =
    std::make_index_sequence<coefficients::highestTemperatureExponent + 1>;

/// The functions of temperature that the fundamental equation is made of.
template <class N>
struct TemperatureTermsOf {
  N b;                     ///< excluded volume of the base function, cm3/g
  N B;                     ///< second virial function, cm3/g
  N ideal;                 ///< Phi of A_ideal = -R T Phi(T)
  ByDensityExponent<N> G;  ///< residual coefficients by density exponent
  std::array<N, coefficients::gaussianTerms> gaussian;  ///< g_i exp(-beta_i tau_i^2)
};

/// The temperature part, computed only as far as it has been asked for.
template <class N>
class TemperaturePartOf {
 public:
  using Order = TemperatureOrder;

  // Written out: an instruction set holds for what is written, not for what is implied.
  TemperaturePartOf() : T_(N(0.0)) {}

  /// Moves to temperature T (K) and makes sure that all of `order` is known.
  void prepare(const N& T, Order order) {
    if (T != T_) {
      T_ = T;
      known_ = Order::none;
    }
    if (known_ < order) compute(order);
  }
  /// The same for a number type whose values are many at once: always all of it.
  void prepareAll(const N& T, Order order) {
    T_ = T;
    known_ = Order::none;
    compute(order);
  }

  [[nodiscard]] const N& T() const noexcept { return T_; }

  TemperatureTermsOf<N> value;      ///< f
  TemperatureTermsOf<N> slope;      ///< T df/dT
  TemperatureTermsOf<N> curvature;  ///< T^2 d2f/dT2

  /// Whether a N can still see a Gaussian term at this temperature, and its exponent
  /// beta_i tau_i^2; only then is it known.
  std::array<bool, coefficients::gaussianTerms> gaussianSeen;
  std::array<N, coefficients::gaussianTerms> gaussianExponent;

 private:
  void compute(Order order);
  void computeValues();
  void computeSlopes();
  void computeCurvatures();
  // G_k = sum_l g_kl x^l, or T^n d^n/dT^n of it, without the terms that are 0.
  template <int n, std::size_t... l>
  void sumResidual(ByDensityExponent<N>& G, std::index_sequence<l...> /*all*/) {
    G.fill(N(0.0));
    (addResidual<n, l>(G, EveryDensityExponent()), ...);
  }
  template <int n, std::size_t l, std::size_t... k>
  void addResidual(ByDensityExponent<N>& G, std::index_sequence<k...> /*all*/) {
    constexpr int exponent = static_cast<int>(l);
    constexpr double differentiated = n == 0 ? 1.0 : n == 1 ? -exponent : exponent * (exponent + 1);
    if constexpr (differentiated != 0.0) {
      const N factor = differentiated * power_[l];
      (addTerm<l, k>(G[k], factor), ...);
    }
  }
  template <std::size_t l, std::size_t k>
  void addTerm(N& sum, const N& factor) {
    constexpr double g = coefficients::residualByTemperature[l][k];
    if constexpr (g != 0.0) sum += g * factor;
  }
  template <std::size_t i>
  void computeGaussian();
  template <std::size_t... i>
  void computeGaussians(std::index_sequence<i...> /*all*/) {
    (computeGaussian<i>(), ...);
  }

  N T_;
  Order known_ = Order::none;
  N logReduced_;                                                       // ln(T/T0)
  std::array<N, coefficients::highestTemperatureExponent + 1> power_;  // x^0 .. x^6
};

/// The fundamental equation at one density and temperature.
///
/// Pressure, energy and enthalpy contain no logarithm: it cancels against the derivative of the
/// base function, so they stay analytic when a trial density of the solver crosses zero.
template <class N>
class HelmholtzPointOf {
 public:
  /// `temperature` must outlive the point; density in kg/m3.
  HelmholtzPointOf(const TemperaturePartOf<N>& temperature, const N& density);

  // Order::pressure ------------------------------------------------------------------------------
  [[nodiscard]] N pressure() const { return r_ * pressureOverDensity_; }        ///< MPa
  [[nodiscard]] N pressureOverDensity() const { return pressureOverDensity_; }  ///< kJ/kg

  /// dP/dr at constant T, kJ/kg; a stable phase has it positive.
  [[nodiscard]] N pressureSlope() const {
    return RT() + r_ * slopeBeyondIdealGas(densityCurvature());
  }

  /// dP/dr and d2P/dr2 at constant T, kJ/kg and kJ.cm3/(kg.g).
  struct PressureSlopes {
    N Pr;
    N Prr;
  };
  [[nodiscard]] PressureSlopes pressureSlopes() const;

  // Order::energy --------------------------------------------------------------------------------
  [[nodiscard]] N internalEnergy() const;  ///< kJ/kg
  [[nodiscard]] N helmholtz() const;       ///< kJ/kg
  [[nodiscard]] N enthalpy() const { return enthalpy(internalEnergy()); }
  [[nodiscard]] N gibbs() const { return gibbs(helmholtz()); }
  [[nodiscard]] N entropy() const { return entropy(internalEnergy(), helmholtz()); }
  // The same where u and A are known: h = u + P/r, g = A + P/r, s = (u - A)/T, kJ/(kg.K).
  [[nodiscard]] N enthalpy(const N& u) const { return u + pressureOverDensity_; }
  [[nodiscard]] N gibbs(const N& A) const { return A + pressureOverDensity_; }
  [[nodiscard]] N entropy(const N& u, const N& A) const { return (u - A) / t_->T(); }
  /// The part of the Gibbs energy that two phases of one temperature do not share; it needs no
  /// more than Order::pressure.
  [[nodiscard]] N gibbsOfPhase() const { return helmholtzOfDensity() + pressureOverDensity_; }

  /// Derivatives of the pressure, with the ideal gas split off so that nothing cancels at low
  /// density: P_r = R T + r X and T P_T = r (R T + r Y).
  struct Gradient {
    N Pr;  ///< dP/dr at constant T, kJ/kg
    N PT;  ///< dP/dT at constant r, MPa/K
    N X;
    N Y;
  };
  [[nodiscard]] Gradient gradient() const { return gradient(densityCurvature()); }

  // Order::curvature -----------------------------------------------------------------------------
  struct Derivatives : Gradient {
    N cv;  ///< kJ/(kg.K)
    N cp;  ///< kJ/(kg.K)
  };
  [[nodiscard]] Derivatives derivatives() const;

 private:
  /// exp(-alpha d^k) of a Gaussian term, d = r/r_i - 1, where a N can see it.
  struct Gaussian {
    bool seen;
    N d;
    N bell;
  };

  // A term's d^l exp(-alpha d^k), differentiated `order` times by r.
  template <std::size_t i, int order>
  [[nodiscard]] N gaussian() const;
  // The sum of all terms, with what depends on the temperature.
  template <int order>
  [[nodiscard]] N sumOfGaussians(const TemperatureTermsOf<N>& terms, N sum) const {
    return addGaussians<order>(terms, sum, EveryGaussian());
  }
  template <int order, std::size_t... i>
  [[nodiscard]] N addGaussians(const TemperatureTermsOf<N>& terms, N sum,
                               std::index_sequence<i...> /*all*/) const {
    ((gaussians_[i].seen ? void(sum += terms.gaussian[i] * gaussian<i, order>()) : void()), ...);
    return sum;
  }
  template <std::size_t i>
  void lookAtGaussian();
  template <std::size_t... i>
  void lookAtGaussians(std::index_sequence<i...> /*all*/) {
    (lookAtGaussian<i>(), ...);
  }

  /// f''(y) of the base function; S = dA_residual/dr and dS/dr.
  struct DensityCurvature {
    N base;
    N S;
    N Sr;
  };
  [[nodiscard]] DensityCurvature densityCurvature() const;
  [[nodiscard]] Gradient gradient(const DensityCurvature& c) const;
  [[nodiscard]] N slopeBeyondIdealGas(const DensityCurvature& c) const;  // X
  [[nodiscard]] N helmholtzOfDensity() const;
  [[nodiscard]] N RT() const;

  const TemperaturePartOf<N>* t_;
  N r_;  // density, g/cm3
  N y_;
  N inverseZ_;
  N decay_;  // exp(-r)
  N q_;
  N baseSlope_;            // f'(y)
  N pressureOverDensity_;  // kJ/kg
  std::array<Gaussian, coefficients::gaussianTerms> gaussians_;
};

// sum_j p_j d^(j-power), j from `power` on, of the polynomial of a Gaussian term's derivative.
template <std::size_t i, int order, std::size_t power, class N>
N bellPolynomial(const N& d) {
  using namespace coefficients;
  constexpr BellPolynomial p = bellPolynomial(gaussianTable[i], order);
  if constexpr (power == degree(p)) {
    return N(p[power]);
  } else {
    const N higher = bellPolynomial<i, order, power + 1>(d) * d;
    if constexpr (p[power] != 0.0) return higher + p[power];
    return higher;
  }
}

template <int exponent, class N>
constexpr N integerPower(const N& base) {
  if constexpr (exponent == 0) {
    return N(1.0);
  } else if constexpr (exponent == 1) {
    return base;
  } else {
    const N half = integerPower<exponent / 2>(base);
    return exponent % 2 == 0 ? half * half : half * half * base;
  }
}

// sum_k c_k q^(k-1) for k = 1..7 and 9
template <class N>
N seriesInQ(const ByDensityExponent<N>& c, const N& q) {
  const N high = (c[7] * q * q + c[6]) * q + c[5];
  return ((((high * q + c[4]) * q + c[3]) * q + c[2]) * q + c[1]) * q + c[0];
}

// sum_k (k-1) c_k q^(k-2)
template <class N>
N slopeOfSeriesInQ(const ByDensityExponent<N>& c, const N& q) {
  const N high = (8.0 * c[7] * q * q + 6.0 * c[6]) * q + 5.0 * c[5];
  return (((high * q + 4.0 * c[4]) * q + 3.0 * c[3]) * q + 2.0 * c[2]) * q + c[1];
}

// sum_k (k-1)(k-2) c_k q^(k-3)
template <class N>
N curvatureOfSeriesInQ(const ByDensityExponent<N>& c, const N& q) {
  const N high = (56.0 * c[7] * q * q + 30.0 * c[6]) * q + 20.0 * c[5];
  return ((high * q + 12.0 * c[4]) * q + 6.0 * c[3]) * q + 2.0 * c[2];
}

// sum_k c_k/k q^k
template <class N>
N integralOfSeriesInQ(const ByDensityExponent<N>& c, const N& q) {
  const N high = (c[7] / 9.0 * q * q + c[6] / 7.0) * q + c[5] / 6.0;
  return (((((high * q + c[4] / 5.0) * q + c[3] / 4.0) * q + c[2] / 3.0) * q + c[1] / 2.0) * q +
          c[0]) *
         q;
}

template <class N>
void TemperaturePartOf<N>::compute(Order order) {
  if (known_ < Order::pressure) computeValues();
  if (order >= Order::energy && known_ < Order::energy) computeSlopes();
  if (order >= Order::curvature && known_ < Order::curvature) computeCurvatures();
  known_ = order;
}

template <class N>
void TemperaturePartOf<N>::computeValues() {
  using namespace coefficients;
  const N x = T0 / T_;
  logReduced_ = -log(x);
  power_[0] = N(1.0);
  for (std::size_t n = 1; n < power_.size(); ++n) power_[n] = power_[n - 1] * x;

  value.b = b1 + b2 * logReduced_ + b4 * power_[3] + b6 * power_[5];
  value.B = B1 + B3 * x + B4 * power_[2] + B6 * power_[4];

  sumResidual<0>(value.G, EveryTemperatureExponent());

  computeGaussians(EveryGaussian());
}

template <class N>
template <std::size_t i>
void TemperaturePartOf<N>::computeGaussian() {
  constexpr coefficients::GaussianTerm term = coefficients::gaussianTable[i];
  const N tau = T_ / term.T - 1.0;
  gaussianExponent[i] = term.beta * tau * tau;
  gaussianSeen[i] = inSight(gaussianExponent[i]);
  if (gaussianSeen[i]) value.gaussian[i] = term.g * exp(-gaussianExponent[i]);
}

// T d/dT: x^n gives -n x^n, ln(T/T0) gives 1.
template <class N>
void TemperaturePartOf<N>::computeSlopes() {
  using namespace coefficients;
  slope.b = b2 - 3.0 * b4 * power_[3] - 5.0 * b6 * power_[5];
  slope.B = -(B3 * power_[1] + 2.0 * B4 * power_[2] + 4.0 * B6 * power_[4]);

  sumResidual<1>(slope.G, EveryTemperatureExponent());

  for (std::size_t i = 0; i < gaussianTerms; ++i) {
    if (!gaussianSeen[i]) continue;
    const GaussianTerm& term = gaussianTable[i];
    const N tau = T_ / term.T - 1.0;
    slope.gaussian[i] = value.gaussian[i] * (-2.0 * term.beta * tau * (T_ / term.T));
  }

  // Phi and T dPhi/dT
  const N tau = 0.01 * T_;
  const N logTau = logReduced_ + logReducing;
  N powers = N(0.0);
  N weighted = N(0.0);
  for (std::size_t i = std::size(idealPowers); i-- > 0;) {
    powers = powers * tau + idealPowers[i];
    weighted = weighted * tau + (static_cast<int>(i) + firstIdealPower) * idealPowers[i];
  }
  const N lowest = 1.0 / (tau * tau * tau);
  value.ideal = 1.0 + (C1 / tau + C2) * logTau + powers * lowest;
  slope.ideal = C1 / tau * (1.0 - logTau) + C2 + weighted * lowest;
}

// T^2 d2/dT2: x^n gives n (n+1) x^n, ln(T/T0) gives -1.
template <class N>
void TemperaturePartOf<N>::computeCurvatures() {
  using namespace coefficients;
  curvature.b = -b2 + 12.0 * b4 * power_[3] + 30.0 * b6 * power_[5];
  curvature.B = 2.0 * B3 * power_[1] + 6.0 * B4 * power_[2] + 20.0 * B6 * power_[4];

  sumResidual<2>(curvature.G, EveryTemperatureExponent());

  for (std::size_t i = 0; i < gaussianTerms; ++i) {
    if (!gaussianSeen[i]) continue;
    const GaussianTerm& term = gaussianTable[i];
    const N reduced = T_ / term.T;
    const N first = -2.0 * term.beta * (reduced - 1.0) * reduced;
    curvature.gaussian[i] =
        value.gaussian[i] * (first * first - 2.0 * term.beta * reduced * reduced);
  }

  const N tau = 0.01 * T_;
  const N logTau = logReduced_ + logReducing;
  N weighted = N(0.0);
  for (std::size_t i = std::size(idealPowers); i-- > 0;) {
    const int n = static_cast<int>(i) + firstIdealPower;
    weighted = weighted * tau + n * (n - 1) * idealPowers[i];
  }
  curvature.ideal = C1 / tau * (2.0 * logTau - 3.0) - C2 + weighted / (tau * tau * tau);
}

template <class N>
HelmholtzPointOf<N>::HelmholtzPointOf(const TemperaturePartOf<N>& temperature, const N& density)
    : t_(&temperature),
      r_(0.001 * density),
      y_(0.25 * temperature.value.b * r_),
      inverseZ_(1.0 / (1.0 - y_)),
      decay_(exp(-r_)),
      q_(1.0 - decay_) {
  using namespace coefficients;
  // f(y) = -ln z - (beta-1)/z + (alpha+beta+1)/(2 z^2) - 4 gamma y - (alpha-beta+3)/2, whose
  // derivative, brought over z^3, is (alpha+3 + (beta-3) y + y^2)/z^3 - 4 gamma.
  baseSlope_ =
      (alpha + 3.0 + (beta - 3.0 + y_) * y_) * inverseZ_ * inverseZ_ * inverseZ_ - 4.0 * gamma;
  N S = decay_ * seriesInQ(temperature.value.G, q_);  // dA_residual/dr
  lookAtGaussians(EveryGaussian());
  S = sumOfGaussians<1>(temperature.value, S);
  // P/r = R T (1 + y f' + r B) + r S
  pressureOverDensity_ =
      R * temperature.T() * (1.0 + y_ * baseSlope_ + r_ * temperature.value.B) + r_ * S;
}

template <class N>
template <std::size_t i>
void HelmholtzPointOf<N>::lookAtGaussian() {
  constexpr coefficients::GaussianTerm term = coefficients::gaussianTable[i];
  gaussians_[i].seen = t_->gaussianSeen[i];
  if (!gaussians_[i].seen) return;
  const N d = r_ / term.r - 1.0;
  const N exponent = term.alpha * integerPower<term.k>(d);
  gaussians_[i].seen = inSight(exponent + t_->gaussianExponent[i]);
  if (!gaussians_[i].seen) return;
  gaussians_[i].d = d;
  gaussians_[i].bell = exp(-exponent);
}

template <class N>
template <std::size_t i, int order>
N HelmholtzPointOf<N>::gaussian() const {
  constexpr double perR = 1.0 / coefficients::gaussianTable[i].r;
  constexpr double factor = integerPower<order>(perR);
  return bellPolynomial<i, order, 0>(gaussians_[i].d) * gaussians_[i].bell * factor;
}

// u = A - T A_T; in the base function R T F(y, r B, ln r T) this is -R T (T F_T).
template <class N>
N HelmholtzPointOf<N>::internalEnergy() const {
  using namespace coefficients;
  const TemperatureTermsOf<N>& f = t_->value;
  const TemperatureTermsOf<N>& f1 = t_->slope;
  N u = R * t_->T() * (f1.ideal - 1.0 - 0.25 * r_ * f1.b * baseSlope_ - r_ * f1.B);
  ByDensityExponent<N> energy;
  for (std::size_t k = 0; k < energy.size(); ++k) energy[k] = f.G[k] - f1.G[k];
  u += integralOfSeriesInQ(energy, q_);
  u += sumOfGaussians<0>(f, N(0.0)) - sumOfGaussians<0>(f1, N(0.0));
  return u + constants::referenceEnergy;
}

// A_base + A_residual
template <class N>
N HelmholtzPointOf<N>::helmholtzOfDensity() const {
  using namespace coefficients;
  const N RT = R * t_->T();
  // One logarithm for -ln z + ln(r R T/p0), which is why the sign of r matters here and only here.
  const N logarithm = log(r_ * RT * inverseZ_ / constants::standardAtmosphere);
  N a = RT * (logarithm + (0.5 * (alpha + beta + 1.0) * inverseZ_ - (beta - 1.0)) * inverseZ_ -
              4.0 * gamma * y_ - 0.5 * (alpha - beta + 3.0) + r_ * t_->value.B);
  a += integralOfSeriesInQ(t_->value.G, q_);
  return sumOfGaussians<0>(t_->value, a);
}

template <class N>
N HelmholtzPointOf<N>::helmholtz() const {
  using namespace coefficients;
  const N T = t_->T();
  return helmholtzOfDensity() - R * T * t_->value.ideal + constants::referenceEntropy * T +
         constants::referenceEnergy;
}

template <class N>
N HelmholtzPointOf<N>::RT() const {
  return coefficients::R * t_->T();
}

template <class N>
typename HelmholtzPointOf<N>::DensityCurvature HelmholtzPointOf<N>::densityCurvature() const {
  using namespace coefficients;
  const TemperatureTermsOf<N>& f = t_->value;
  DensityCurvature c;
  c.base = (beta - 3.0 + 2.0 * y_) * inverseZ_ * inverseZ_ * inverseZ_ +
           3.0 * (baseSlope_ + 4.0 * gamma) * inverseZ_;
  c.S = decay_ * seriesInQ(f.G, q_);
  c.Sr = decay_ * decay_ * slopeOfSeriesInQ(f.G, q_) - c.S;
  c.S = sumOfGaussians<1>(f, c.S);
  c.Sr = sumOfGaussians<2>(f, c.Sr);
  return c;
}

// P_r = R T + r X
template <class N>
N HelmholtzPointOf<N>::slopeBeyondIdealGas(const DensityCurvature& c) const {
  const TemperatureTermsOf<N>& f = t_->value;
  return RT() * (0.25 * f.b * (2.0 * baseSlope_ + y_ * c.base) + 2.0 * f.B) + 2.0 * c.S + r_ * c.Sr;
}

// P_rr = R T (b/4 (2 f' + 4 y f'' + y^2 f''') + 2 B) + 2 S + 4 r S_r + r^2 S_rr
template <class N>
typename HelmholtzPointOf<N>::PressureSlopes HelmholtzPointOf<N>::pressureSlopes() const {
  using namespace coefficients;
  const TemperatureTermsOf<N>& f = t_->value;
  const DensityCurvature c = densityCurvature();
  const N perZ3 = inverseZ_ * inverseZ_ * inverseZ_;
  const N base =  // f'''(y)
      (2.0 + 6.0 * (beta - 3.0 + 2.0 * y_) * inverseZ_) * perZ3 +
      12.0 * (baseSlope_ + 4.0 * gamma) * inverseZ_ * inverseZ_;
  // The same without the Gaussian terms: S_r + S = e^(-2r) Q'(q), S_rr = e^(-3r) Q'' - 2 e^(-2r) Q'
  // - S_r.
  const N fromQ = decay_ * decay_ * slopeOfSeriesInQ(f.G, q_);
  N Srr = decay_ * decay_ * decay_ * curvatureOfSeriesInQ(f.G, q_) - 3.0 * fromQ +
          decay_ * seriesInQ(f.G, q_);
  Srr = sumOfGaussians<3>(f, Srr);
  return {RT() + r_ * slopeBeyondIdealGas(c),
          RT() * (0.25 * f.b * (2.0 * baseSlope_ + y_ * (4.0 * c.base + y_ * base)) + 2.0 * f.B) +
              2.0 * c.S + r_ * (4.0 * c.Sr + r_ * Srr)};
}

template <class N>
typename HelmholtzPointOf<N>::Gradient HelmholtzPointOf<N>::gradient(
    const DensityCurvature& c) const {
  const TemperatureTermsOf<N>& f = t_->value;
  const TemperatureTermsOf<N>& f1 = t_->slope;
  // T dS/dT of the residual function
  const N ST = sumOfGaussians<1>(f1, decay_ * seriesInQ(f1.G, q_));
  Gradient d;
  d.X = slopeBeyondIdealGas(c);
  d.Y =
      RT() * (0.25 * f.b * baseSlope_ + f.B + 0.25 * f1.b * (baseSlope_ + y_ * c.base) + f1.B) + ST;
  d.Pr = RT() + r_ * d.X;
  d.PT = r_ * (RT() + r_ * d.Y) / t_->T();
  return d;
}

template <class N>
typename HelmholtzPointOf<N>::Derivatives HelmholtzPointOf<N>::derivatives() const {
  using namespace coefficients;
  const TemperatureTermsOf<N>& f1 = t_->slope;
  const TemperatureTermsOf<N>& f2 = t_->curvature;
  const N T = t_->T();
  const DensityCurvature c = densityCurvature();
  const Gradient d = gradient(c);

  // cv = -T A_TT, the base function's A being R T F
  const N ATT = sumOfGaussians<0>(f2, integralOfSeriesInQ(f2.G, q_));  // T^2 A_TT, residual
  const N TFT = r_ * (0.25 * f1.b * baseSlope_ + f1.B) + 1.0;
  const N TTFTT =
      r_ * r_ * 0.0625 * f1.b * f1.b * c.base + r_ * (0.25 * f2.b * baseSlope_ + f2.B) - 1.0;
  const N cv = R * (2.0 * f1.ideal + f2.ideal - 2.0 * TFT - TTFTT) - ATT / T;
  const N beyond = RT() + r_ * d.Y;
  return {d, cv, cv + beyond * beyond / (T * d.Pr)};
}
