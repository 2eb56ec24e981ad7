// Two lanes of WebAssembly, for which Highway has no doubles: what lanes-inl.h has for the others.
// Included inside the namespace of an instruction set, after one_lane-inl.h.

struct LaneMask {
  v128_t m;  // all bits of a lane, or none

  friend HWY_INLINE LaneMask operator&&(LaneMask a, LaneMask b) {
    return {wasm_v128_and(a.m, b.m)};
  }
  friend HWY_INLINE LaneMask operator||(LaneMask a, LaneMask b) { return {wasm_v128_or(a.m, b.m)}; }
  friend HWY_INLINE LaneMask operator!(LaneMask a) { return {wasm_v128_not(a.m)}; }
};

struct Lanes {
  v128_t v;

  Lanes() = default;  // uninitialised, as a double is
  HWY_INLINE Lanes(v128_t vector) : v(vector) {}
  HWY_INLINE Lanes(double x) : v(wasm_f64x2_splat(x)) {}

  friend HWY_INLINE Lanes operator+(Lanes a, Lanes b) { return wasm_f64x2_add(a.v, b.v); }
  friend HWY_INLINE Lanes operator-(Lanes a, Lanes b) { return wasm_f64x2_sub(a.v, b.v); }
  friend HWY_INLINE Lanes operator*(Lanes a, Lanes b) { return wasm_f64x2_mul(a.v, b.v); }
  friend HWY_INLINE Lanes operator/(Lanes a, Lanes b) { return wasm_f64x2_div(a.v, b.v); }
  friend HWY_INLINE Lanes operator-(Lanes a) { return wasm_f64x2_neg(a.v); }
  HWY_INLINE Lanes& operator+=(Lanes b) { return *this = *this + b; }
  friend HWY_INLINE LaneMask operator<(Lanes a, Lanes b) { return {wasm_f64x2_lt(a.v, b.v)}; }
  friend HWY_INLINE LaneMask operator>(Lanes a, Lanes b) { return {wasm_f64x2_gt(a.v, b.v)}; }
  friend HWY_INLINE LaneMask operator<=(Lanes a, Lanes b) { return {wasm_f64x2_le(a.v, b.v)}; }
  friend HWY_INLINE LaneMask operator>=(Lanes a, Lanes b) { return {wasm_f64x2_ge(a.v, b.v)}; }
};

HWY_INLINE Lanes sqrt(Lanes x) { return wasm_f64x2_sqrt(x.v); }
HWY_INLINE Lanes max(Lanes a, Lanes b) { return wasm_f64x2_pmax(b.v, a.v); }
HWY_INLINE Lanes min(Lanes a, Lanes b) { return wasm_f64x2_pmin(b.v, a.v); }
HWY_INLINE Lanes abs(Lanes a) { return wasm_f64x2_abs(a.v); }
HWY_INLINE bool any(LaneMask mask) { return wasm_v128_any_true(mask.m); }
HWY_INLINE bool every(LaneMask mask) { return wasm_i64x2_all_true(mask.m); }
HWY_INLINE bool anyBelow(Lanes x, double limit) { return any(x < limit); }
HWY_INLINE Lanes select(LaneMask mask, Lanes yes, Lanes no) {
  return wasm_v128_bitselect(yes.v, no.v, mask.m);
}

// ln 2 in two parts, the first with 32 bits: its multiples by an exponent are exact.
constexpr double ln2High = 0x1.62e42feep-1;
constexpr double ln2Low = 0x1.a39ef35793c76p-33;

// c0 + c1 x + c2 x^2 + ...
template <std::size_t n>
HWY_INLINE Lanes polynomial(const double (&c)[n], Lanes x) {
  Lanes sum = c[n - 1];
  for (std::size_t i = n - 1; i-- > 0;) sum = sum * x + c[i];
  return sum;
}

/// e^x = 2^k e^r with |r| <= ln 2 / 2, where 1 + r + r^2/2! + ... + r^13/13! is exact to 4e-18.
/// Below -708, where it leaves the normal numbers, 0; above 709 infinite.
HWY_INLINE Lanes exp(Lanes x) {
  constexpr double even[] = {1.0,           1.0 / 2.0,       1.0 / 24.0,       1.0 / 720.0,
                             1.0 / 40320.0, 1.0 / 3628800.0, 1.0 / 479001600.0};
  constexpr double odd[] = {1.0,
                            1.0 / 6.0,
                            1.0 / 120.0,
                            1.0 / 5040.0,
                            1.0 / 362880.0,
                            1.0 / 39916800.0,
                            1.0 / 6227020800.0};
  const Lanes shifted = x * 1.4426950408889634 + wholeNumbers;  // 1/ln 2
  const Lanes k = shifted - wholeNumbers;
  const Lanes r = (x - k * ln2High) - k * ln2Low;
  const Lanes fraction = polynomial(even, r * r) + r * polynomial(odd, r * r);
  // k stands in the lowest bits of the shifted number; added to an exponent it multiplies by 2^k.
  const Lanes power = wasm_i64x2_add(fraction.v, wasm_i64x2_shl(shifted.v, 52));
  const Lanes large = select(x > 709.0, Lanes(std::numeric_limits<double>::infinity()), power);
  return select(x < -708.0, Lanes(0.0), large);
}

/// ln x = k ln 2 + ln m with 1/sqrt 2 <= m < sqrt 2, and ln m = 2 (s + s^3/3 + s^5/5 + ...) with
/// s = (m - 1)/(m + 1); its first eleven terms are exact to 2e-17. For positive normal numbers.
HWY_INLINE Lanes log(Lanes x) {
  constexpr double c[] = {2.0 / 3.0,  2.0 / 5.0,  2.0 / 7.0,  2.0 / 9.0,  2.0 / 11.0,
                          2.0 / 13.0, 2.0 / 15.0, 2.0 / 17.0, 2.0 / 19.0, 2.0 / 21.0};
  // The exponent of x/(1/sqrt 2) is k.
  const v128_t bits = wasm_i64x2_sub(x.v, wasm_f64x2_splat(0x1.6a09e667f3bcdp-1));
  const v128_t exponent = wasm_i64x2_shr(bits, 52);
  const Lanes k = Lanes(wasm_i64x2_add(exponent, wasm_f64x2_splat(wholeNumbers))) - wholeNumbers;
  const Lanes m = wasm_i64x2_sub(x.v, wasm_i64x2_shl(exponent, 52));
  const Lanes f = m - 1.0;
  const Lanes s = f / (m + 1.0);
  const Lanes z = s * s;
  return k * ln2High + (2.0 * s + (s * z * polynomial(c, z) + k * ln2Low));
}

HWY_INLINE Lanes pow(Lanes x, double exponent) { return exp(exponent * log(x)); }

template <>
struct NumberOf<Lanes> {
  using Mask = LaneMask;
  using Index = v128_t;
  static constexpr int count = 2;

  static HWY_INLINE Lanes load(const double* from) { return wasm_v128_load(from); }
  static HWY_INLINE void store(Lanes x, double* to) { wasm_v128_store(to, x.v); }

  /// The whole number nearest to x, and as a number.
  static HWY_INLINE Index nearest(Lanes x, Lanes& whole) {
    const Lanes shifted = x + wholeNumbers;
    whole = shifted - wholeNumbers;
    return wasm_i64x2_sub(shifted.v, wasm_f64x2_splat(wholeNumbers));
  }
  static HWY_INLINE Lanes gather(const double* table, Index index) {
    return wasm_f64x2_make(table[wasm_i64x2_extract_lane(index, 0)],
                           table[wasm_i64x2_extract_lane(index, 1)]);
  }
  /// Two floats that lie side by side.
  static HWY_INLINE void gatherPair(const FloatPair* table, Index index, Lanes& first,
                                    Lanes& second) {
    const v128_t a = wasm_v128_load64_zero(table + wasm_i64x2_extract_lane(index, 0));
    const v128_t b = wasm_v128_load64_zero(table + wasm_i64x2_extract_lane(index, 1));
    first = wasm_f64x2_promote_low_f32x4(wasm_i32x4_shuffle(a, b, 0, 4, 1, 5));
    second = wasm_f64x2_promote_low_f32x4(wasm_i32x4_shuffle(a, b, 1, 5, 0, 4));
  }
};
