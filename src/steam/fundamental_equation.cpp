#include "steam/fundamental_equation.h"

#include <cmath>

#include "steam/constants.h"

namespace calvex {

namespace {

using constants::gasConstant;

constexpr double R = gasConstant;
constexpr double T0 = constants::reducingTemperature;

// Base function: Haar, Gallagher, Kell (1984), table A.1.
constexpr double alpha = 11.0;
constexpr double beta = 133.0 / 3.0;
constexpr double gamma = 3.5;

// b(T) = b1 + b2 ln(T/T0) + b4 x^3 + b6 x^5
constexpr double b1 = 0.7478629;
constexpr double b2 = -0.3540782;
constexpr double b4 = 0.007159876;
constexpr double b6 = -0.003528426;

// B(T) = B1 + B3 x + B4 x^2 + B6 x^4
constexpr double B1 = 1.1278334;
constexpr double B3 = -0.5944001;
constexpr double B4 = -5.010996;
constexpr double B6 = 0.63684256;

// Residual function, polynomial terms (g_i/k_i) x^l_i q^k_i: Haar, Gallagher, Kell (1984), table
// A.2.
struct ResidualTerm {
  int k;
  int l;
  double g;
};
constexpr ResidualTerm residualTerms[] = {
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
constexpr GaussianTerm gaussianTable[] = {
    {-0.225, 2, 0, 0.319, 640.0, 34, 20000},  // 37
    {-1.68, 2, 2, 0.319, 640.0, 40, 20000},   // 38
    {0.055, 2, 0, 0.319, 641.6, 30, 40000},   // 39
    {-93.0, 4, 0, 1.55, 270.0, 1050, 25},     // 40
};
static_assert(std::size(gaussianTable) == gaussianTerms);

// A Gaussian factor below exp(-60) = 9e-27 is lost against energies of 1 kJ/kg in a double, also
// after the two differentiations (each multiplies by less than 1e4).
constexpr double gaussianHorizon = 60.0;

// Ideal-gas function, H. W. Woolley (1980):
// Phi(T) = 1 + (C1/tau + C2) ln tau + sum C_i tau^(i-6), i = 3..18, tau = T/100 K.
constexpr double C1 = 19.730271018;
constexpr double C2 = 20.9662681977;
constexpr double idealPowers[] = {
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
constexpr int firstIdealPower = -3;
constexpr double logReducing = 1.8672889305871085;  // ln(T0/100 K)

// The residual coefficients by temperature exponent l and density exponent k, so that G_k(T) is a
// polynomial in x for all k at once.
constexpr int highestTemperatureExponent = 6;
using Row = std::array<double, densityExponents.size()>;
constexpr std::array<Row, highestTemperatureExponent + 1> residualByTemperature = [] {
  std::array<Row, highestTemperatureExponent + 1> rows{};
  for (const ResidualTerm& term : residualTerms) {
    for (std::size_t k = 0; k < densityExponents.size(); ++k) {
      if (densityExponents[k] == term.k) rows[static_cast<std::size_t>(term.l)][k] += term.g;
    }
  }
  return rows;
}();
// The exponents l that occur.
constexpr int temperatureExponents[] = {0, 1, 2, 3, 4, 6};

constexpr double integerPower(double base, int exponent) {
  double power = 1.0;
  for (; exponent > 0; --exponent) power *= base;
  return power;
}

// sum_k c_k q^(k-1) for k = 1..7 and 9
double seriesInQ(const Row& c, double q) {
  const double high = (c[7] * q * q + c[6]) * q + c[5];
  return ((((high * q + c[4]) * q + c[3]) * q + c[2]) * q + c[1]) * q + c[0];
}

// sum_k (k-1) c_k q^(k-2)
double slopeOfSeriesInQ(const Row& c, double q) {
  const double high = (8.0 * c[7] * q * q + 6.0 * c[6]) * q + 5.0 * c[5];
  return (((high * q + 4.0 * c[4]) * q + 3.0 * c[3]) * q + 2.0 * c[2]) * q + c[1];
}

// sum_k c_k/k q^k
double integralOfSeriesInQ(const Row& c, double q) {
  const double high = (c[7] / 9.0 * q * q + c[6] / 7.0) * q + c[5] / 6.0;
  return (((((high * q + c[4] / 5.0) * q + c[3] / 4.0) * q + c[2] / 3.0) * q + c[1] / 2.0) * q +
          c[0]) *
         q;
}

}  // namespace

void TemperaturePart::compute(Order order) {
  if (known_ < Order::pressure) computeValues();
  if (order >= Order::energy && known_ < Order::energy) computeSlopes();
  if (order >= Order::curvature && known_ < Order::curvature) computeCurvatures();
  known_ = order;
}

void TemperaturePart::computeValues() {
  const double x = T0 / T_;
  logReduced_ = -std::log(x);
  power_[0] = 1.0;
  for (std::size_t n = 1; n < power_.size(); ++n) power_[n] = power_[n - 1] * x;

  value.b = b1 + b2 * logReduced_ + b4 * power_[3] + b6 * power_[5];
  value.B = B1 + B3 * x + B4 * power_[2] + B6 * power_[4];

  value.G = {};
  for (const int l : temperatureExponents) {
    const Row& row = residualByTemperature[static_cast<std::size_t>(l)];
    const double factor = power_[static_cast<std::size_t>(l)];
    for (std::size_t k = 0; k < row.size(); ++k) value.G[k] += row[k] * factor;
  }

  activeGaussians = 0;
  for (std::size_t i = 0; i < gaussianTerms; ++i) {
    const GaussianTerm& term = gaussianTable[i];
    const double tau = T_ / term.T - 1.0;
    gaussianExponent[i] = term.beta * tau * tau;
    if (!(gaussianExponent[i] < gaussianHorizon)) continue;
    value.gaussian[i] = term.g * std::exp(-gaussianExponent[i]);
    activeGaussian[static_cast<std::size_t>(activeGaussians++)] = static_cast<int>(i);
  }
}

// T d/dT: x^n gives -n x^n, ln(T/T0) gives 1.
void TemperaturePart::computeSlopes() {
  slope.b = b2 - 3.0 * b4 * power_[3] - 5.0 * b6 * power_[5];
  slope.B = -(B3 * power_[1] + 2.0 * B4 * power_[2] + 4.0 * B6 * power_[4]);

  slope.G = {};
  for (const int l : temperatureExponents) {
    const Row& row = residualByTemperature[static_cast<std::size_t>(l)];
    const double factor = -l * power_[static_cast<std::size_t>(l)];
    for (std::size_t k = 0; k < row.size(); ++k) slope.G[k] += row[k] * factor;
  }

  for (int n = 0; n < activeGaussians; ++n) {
    const auto i = static_cast<std::size_t>(activeGaussian[static_cast<std::size_t>(n)]);
    const GaussianTerm& term = gaussianTable[i];
    const double tau = T_ / term.T - 1.0;
    slope.gaussian[i] = value.gaussian[i] * (-2.0 * term.beta * tau * (T_ / term.T));
  }

  // Phi and T dPhi/dT
  const double tau = 0.01 * T_;
  const double logTau = logReduced_ + logReducing;
  double powers = 0.0;
  double weighted = 0.0;
  for (std::size_t i = std::size(idealPowers); i-- > 0;) {
    powers = powers * tau + idealPowers[i];
    weighted = weighted * tau + (static_cast<int>(i) + firstIdealPower) * idealPowers[i];
  }
  const double lowest = 1.0 / (tau * tau * tau);
  value.ideal = 1.0 + (C1 / tau + C2) * logTau + powers * lowest;
  slope.ideal = C1 / tau * (1.0 - logTau) + C2 + weighted * lowest;
}

// T^2 d2/dT2: x^n gives n (n+1) x^n, ln(T/T0) gives -1.
void TemperaturePart::computeCurvatures() {
  curvature.b = -b2 + 12.0 * b4 * power_[3] + 30.0 * b6 * power_[5];
  curvature.B = 2.0 * B3 * power_[1] + 6.0 * B4 * power_[2] + 20.0 * B6 * power_[4];

  curvature.G = {};
  for (const int l : temperatureExponents) {
    const Row& row = residualByTemperature[static_cast<std::size_t>(l)];
    const double factor = l * (l + 1) * power_[static_cast<std::size_t>(l)];
    for (std::size_t k = 0; k < row.size(); ++k) curvature.G[k] += row[k] * factor;
  }

  for (int n = 0; n < activeGaussians; ++n) {
    const auto i = static_cast<std::size_t>(activeGaussian[static_cast<std::size_t>(n)]);
    const GaussianTerm& term = gaussianTable[i];
    const double reduced = T_ / term.T;
    const double first = -2.0 * term.beta * (reduced - 1.0) * reduced;
    curvature.gaussian[i] =
        value.gaussian[i] * (first * first - 2.0 * term.beta * reduced * reduced);
  }

  const double tau = 0.01 * T_;
  const double logTau = logReduced_ + logReducing;
  double weighted = 0.0;
  for (std::size_t i = std::size(idealPowers); i-- > 0;) {
    const int n = static_cast<int>(i) + firstIdealPower;
    weighted = weighted * tau + n * (n - 1) * idealPowers[i];
  }
  curvature.ideal = C1 / tau * (2.0 * logTau - 3.0) - C2 + weighted / (tau * tau * tau);
}

HelmholtzPoint::HelmholtzPoint(const TemperaturePart& temperature, double density)
    : t_(&temperature),
      r_(0.001 * density),
      y_(0.25 * temperature.value.b * r_),
      inverseZ_(1.0 / (1.0 - y_)),
      decay_(std::exp(-r_)),
      q_(1.0 - decay_),
      // f(y) = -ln z - (beta-1)/z + (alpha+beta+1)/(2 z^2) - 4 gamma y - (alpha-beta+3)/2, whose
      // derivative, brought over z^3, is (alpha+3 + (beta-3) y + y^2)/z^3 - 4 gamma.
      baseSlope_((alpha + 3.0 + (beta - 3.0 + y_) * y_) * inverseZ_ * inverseZ_ * inverseZ_ -
                 4.0 * gamma) {
  double S = decay_ * seriesInQ(temperature.value.G, q_);  // dA_residual/dr
  for (int n = 0; n < temperature.activeGaussians; ++n) {
    const int i = temperature.activeGaussian[static_cast<std::size_t>(n)];
    const GaussianTerm& term = gaussianTable[static_cast<std::size_t>(i)];
    const double d = r_ / term.r - 1.0;
    const double exponent = term.alpha * integerPower(d, term.k);
    if (!(exponent + temperature.gaussianExponent[static_cast<std::size_t>(i)] < gaussianHorizon)) {
      continue;
    }
    // d/dd of d^l exp(-alpha d^k) = (l d^(l-1) - alpha k d^(k+l-1)) exp(-alpha d^k)
    const double bell = std::exp(-exponent);
    const double lowered = term.l == 0 ? 0.0 : term.l * integerPower(d, term.l - 1);
    gaussians_[static_cast<std::size_t>(gaussianCount_++)] = {
        i, integerPower(d, term.l) * bell,
        (lowered - term.alpha * term.k * integerPower(d, term.k + term.l - 1)) * bell / term.r};
    S += temperature.value.gaussian[static_cast<std::size_t>(i)] *
         gaussians_[static_cast<std::size_t>(gaussianCount_ - 1)].slope;
  }
  // P/r = R T (1 + y f' + r B) + r S
  pressureOverDensity_ =
      R * temperature.T() * (1.0 + y_ * baseSlope_ + r_ * temperature.value.B) + r_ * S;
}

// u = A - T A_T; in the base function R T F(y, r B, ln r T) this is -R T (T F_T).
double HelmholtzPoint::internalEnergy() const {
  const TemperatureTerms& f = t_->value;
  const TemperatureTerms& f1 = t_->slope;
  double u = R * t_->T() * (f1.ideal - 1.0 - 0.25 * r_ * f1.b * baseSlope_ - r_ * f1.B);
  Row energy;
  for (std::size_t k = 0; k < energy.size(); ++k) energy[k] = f.G[k] - f1.G[k];
  u += integralOfSeriesInQ(energy, q_);
  for (int n = 0; n < gaussianCount_; ++n) {
    const Gaussian& bell = gaussians_[static_cast<std::size_t>(n)];
    const auto i = static_cast<std::size_t>(bell.term);
    u += (f.gaussian[i] - f1.gaussian[i]) * bell.value;
  }
  return u + constants::referenceEnergy;
}

// A_base + A_residual
double HelmholtzPoint::helmholtzOfDensity() const {
  const double RT = R * t_->T();
  // One logarithm for -ln z + ln(r R T/p0), which is why the sign of r matters here and only here.
  const double logarithm = std::log(r_ * RT * inverseZ_ / constants::standardAtmosphere);
  double a = RT * (logarithm + (0.5 * (alpha + beta + 1.0) * inverseZ_ - (beta - 1.0)) * inverseZ_ -
                   4.0 * gamma * y_ - 0.5 * (alpha - beta + 3.0) + r_ * t_->value.B);
  a += integralOfSeriesInQ(t_->value.G, q_);
  for (int n = 0; n < gaussianCount_; ++n) {
    const Gaussian& bell = gaussians_[static_cast<std::size_t>(n)];
    a += t_->value.gaussian[static_cast<std::size_t>(bell.term)] * bell.value;
  }
  return a;
}

double HelmholtzPoint::helmholtz() const {
  const double T = t_->T();
  return helmholtzOfDensity() - R * T * t_->value.ideal + constants::referenceEntropy * T +
         constants::referenceEnergy;
}

double HelmholtzPoint::RT() const { return R * t_->T(); }

HelmholtzPoint::DensityCurvature HelmholtzPoint::densityCurvature() const {
  const TemperatureTerms& f = t_->value;
  DensityCurvature c;
  c.base = (beta - 3.0 + 2.0 * y_) * inverseZ_ * inverseZ_ * inverseZ_ +
           3.0 * (baseSlope_ + 4.0 * gamma) * inverseZ_;
  c.S = decay_ * seriesInQ(f.G, q_);
  c.Sr = decay_ * decay_ * slopeOfSeriesInQ(f.G, q_) - c.S;
  for (int n = 0; n < gaussianCount_; ++n) {
    const Gaussian& bell = gaussians_[static_cast<std::size_t>(n)];
    const auto i = static_cast<std::size_t>(bell.term);
    const GaussianTerm& term = gaussianTable[i];
    // second derivative of d^l exp(-alpha d^k)
    const double d = r_ / term.r - 1.0;
    const double ak = term.alpha * term.k;
    const double lowered = term.l < 2 ? 0.0 : term.l * (term.l - 1) * integerPower(d, term.l - 2);
    const double second =
        (lowered - ak * (term.k + 2 * term.l - 1) * integerPower(d, term.k + term.l - 2) +
         ak * ak * integerPower(d, 2 * term.k + term.l - 2)) *
        std::exp(-term.alpha * integerPower(d, term.k)) / (term.r * term.r);
    c.S += f.gaussian[i] * bell.slope;
    c.Sr += f.gaussian[i] * second;
  }
  return c;
}

// P_r = R T + r X
double HelmholtzPoint::slopeBeyondIdealGas(const DensityCurvature& c) const {
  const TemperatureTerms& f = t_->value;
  return RT() * (0.25 * f.b * (2.0 * baseSlope_ + y_ * c.base) + 2.0 * f.B) + 2.0 * c.S + r_ * c.Sr;
}

HelmholtzPoint::Derivatives HelmholtzPoint::derivatives() const {
  const TemperatureTerms& f = t_->value;
  const TemperatureTerms& f1 = t_->slope;
  const TemperatureTerms& f2 = t_->curvature;
  const double T = t_->T();
  const DensityCurvature c = densityCurvature();

  // T dS/dT and T^2 A_TT of the residual function
  double ST = decay_ * seriesInQ(f1.G, q_);
  double ATT = integralOfSeriesInQ(f2.G, q_);
  for (int n = 0; n < gaussianCount_; ++n) {
    const Gaussian& bell = gaussians_[static_cast<std::size_t>(n)];
    const auto i = static_cast<std::size_t>(bell.term);
    ST += f1.gaussian[i] * bell.slope;
    ATT += f2.gaussian[i] * bell.value;
  }

  Derivatives d;
  d.X = slopeBeyondIdealGas(c);
  d.Y =
      RT() * (0.25 * f.b * baseSlope_ + f.B + 0.25 * f1.b * (baseSlope_ + y_ * c.base) + f1.B) + ST;
  d.Pr = RT() + r_ * d.X;
  d.PT = r_ * (RT() + r_ * d.Y) / T;

  // cv = -T A_TT, the base function's A being R T F
  const double TFT = r_ * (0.25 * f1.b * baseSlope_ + f1.B) + 1.0;
  const double TTFTT =
      r_ * r_ * 0.0625 * f1.b * f1.b * c.base + r_ * (0.25 * f2.b * baseSlope_ + f2.B) - 1.0;
  d.cv = R * (2.0 * f1.ideal + f2.ideal - 2.0 * TFT - TTFTT) - ATT / T;
  const double beyond = RT() + r_ * d.Y;
  d.cp = d.cv + beyond * beyond / (T * d.Pr);
  return d;
}

}  // namespace calvex
