// A number that knows its derivatives with respect to temperature and density: the equation,
// evaluated with it, gives any property with its two derivatives (forward differentiation; A.
// Griewank, A. Walther, Evaluating Derivatives, 2nd ed. (2008), ch. 3). Included inside a
// namespace.

template <class N>
struct Dual {
  N value;
  N byT;
  N byR;

  Dual() = default;
  HWY_INLINE Dual(const N& x) : value(x), byT(N(0.0)), byR(N(0.0)) {}
  HWY_INLINE Dual(double x) requires(!std::is_same_v<N, double>)
      : value(N(x)), byT(N(0.0)), byR(N(0.0)) {}
  HWY_INLINE Dual(const N& x, const N& dT, const N& dR) : value(x), byT(dT), byR(dR) {}

  /// f(x) from f and f' at x.
  [[nodiscard]] HWY_INLINE Dual chain(const N& f, const N& slope) const {
    return {f, slope * byT, slope * byR};
  }

  friend HWY_INLINE Dual operator+(const Dual& a, const Dual& b) {
    return {a.value + b.value, a.byT + b.byT, a.byR + b.byR};
  }
  friend HWY_INLINE Dual operator-(const Dual& a, const Dual& b) {
    return {a.value - b.value, a.byT - b.byT, a.byR - b.byR};
  }
  friend HWY_INLINE Dual operator*(const Dual& a, const Dual& b) {
    return {a.value * b.value, a.byT * b.value + a.value * b.byT,
            a.byR * b.value + a.value * b.byR};
  }
  friend HWY_INLINE Dual operator/(const Dual& a, const Dual& b) {
    const N f = a.value / b.value;
    return {f, (a.byT - f * b.byT) / b.value, (a.byR - f * b.byR) / b.value};
  }
  friend HWY_INLINE Dual operator-(const Dual& a) { return {-a.value, -a.byT, -a.byR}; }
  // A constant has no derivatives.
  friend HWY_INLINE Dual operator+(const Dual& a, double c) { return {a.value + c, a.byT, a.byR}; }
  friend HWY_INLINE Dual operator+(double c, const Dual& a) { return a + c; }
  friend HWY_INLINE Dual operator-(const Dual& a, double c) { return {a.value - c, a.byT, a.byR}; }
  friend HWY_INLINE Dual operator-(double c, const Dual& a) {
    return {c - a.value, -a.byT, -a.byR};
  }
  friend HWY_INLINE Dual operator*(const Dual& a, double c) {
    return {a.value * c, a.byT * c, a.byR * c};
  }
  friend HWY_INLINE Dual operator*(double c, const Dual& a) { return a * c; }
  friend HWY_INLINE Dual operator/(const Dual& a, double c) {
    return {a.value / c, a.byT / c, a.byR / c};
  }
  friend HWY_INLINE Dual operator/(double c, const Dual& a) {
    const N f = c / a.value;
    return a.chain(f, -f / a.value);
  }
  HWY_INLINE Dual& operator+=(const Dual& b) { return *this = *this + b; }
};

template <class N>
HWY_INLINE Dual<N> exp(const Dual<N>& x) {
  const N f = exp(x.value);
  return x.chain(f, f);
}
template <class N>
HWY_INLINE Dual<N> log(const Dual<N>& x) {
  return x.chain(log(x.value), 1.0 / x.value);
}
template <class N>
HWY_INLINE Dual<N> sqrt(const Dual<N>& x) {
  const N f = sqrt(x.value);
  return x.chain(f, 0.5 / f);
}
template <class N>
HWY_INLINE Dual<N> pow(const Dual<N>& x, double exponent) {
  const N f = pow(x.value, exponent);
  return x.chain(f, exponent * f / x.value);
}
template <class N>
HWY_INLINE bool anyBelow(const Dual<N>& x, double limit) {
  return anyBelow(x.value, limit);
}
