// Vector lanes of the instruction set that this is compiled for, as a number type with the
// functions of one_lane-inl.h. Included inside the namespace of an instruction set, after that
// file.

namespace hn = hwy::HWY_NAMESPACE;

struct LaneMask {
  hn::Mask<hn::ScalableTag<double>> m;

  friend HWY_INLINE LaneMask operator&&(LaneMask a, LaneMask b) { return {hn::And(a.m, b.m)}; }
  friend HWY_INLINE LaneMask operator||(LaneMask a, LaneMask b) { return {hn::Or(a.m, b.m)}; }
  friend HWY_INLINE LaneMask operator!(LaneMask a) { return {hn::Not(a.m)}; }
};

/// As many doubles as a register holds.
struct Lanes {
  using Tag = hn::ScalableTag<double>;
  hn::Vec<Tag> v;

  Lanes() = default;  // uninitialised, as a double is
  HWY_INLINE Lanes(hn::Vec<Tag> vector) : v(vector) {}
  HWY_INLINE Lanes(double x) : v(hn::Set(Tag(), x)) {}

  friend HWY_INLINE Lanes operator+(Lanes a, Lanes b) { return hn::Add(a.v, b.v); }
  friend HWY_INLINE Lanes operator-(Lanes a, Lanes b) { return hn::Sub(a.v, b.v); }
  friend HWY_INLINE Lanes operator*(Lanes a, Lanes b) { return hn::Mul(a.v, b.v); }
  friend HWY_INLINE Lanes operator/(Lanes a, Lanes b) { return hn::Div(a.v, b.v); }
  friend HWY_INLINE Lanes operator-(Lanes a) { return hn::Neg(a.v); }
  HWY_INLINE Lanes& operator+=(Lanes b) { return *this = *this + b; }
  friend HWY_INLINE LaneMask operator<(Lanes a, Lanes b) { return {hn::Lt(a.v, b.v)}; }
  friend HWY_INLINE LaneMask operator>(Lanes a, Lanes b) { return {hn::Lt(b.v, a.v)}; }
  friend HWY_INLINE LaneMask operator<=(Lanes a, Lanes b) { return {hn::Le(a.v, b.v)}; }
  friend HWY_INLINE LaneMask operator>=(Lanes a, Lanes b) { return {hn::Le(b.v, a.v)}; }
};

HWY_INLINE Lanes exp(Lanes x) { return hn::Exp(Lanes::Tag(), x.v); }
HWY_INLINE Lanes log(Lanes x) { return hn::Log(Lanes::Tag(), x.v); }
HWY_INLINE Lanes sqrt(Lanes x) { return hn::Sqrt(x.v); }
HWY_INLINE Lanes pow(Lanes x, double exponent) { return exp(exponent * log(x)); }
HWY_INLINE Lanes max(Lanes a, Lanes b) { return hn::Max(a.v, b.v); }
HWY_INLINE Lanes min(Lanes a, Lanes b) { return hn::Min(a.v, b.v); }
HWY_INLINE Lanes abs(Lanes a) { return hn::Abs(a.v); }
HWY_INLINE bool any(LaneMask mask) { return !hn::AllFalse(Lanes::Tag(), mask.m); }
HWY_INLINE bool every(LaneMask mask) { return hn::AllTrue(Lanes::Tag(), mask.m); }
HWY_INLINE bool anyBelow(Lanes x, double limit) { return any(x < limit); }
HWY_INLINE Lanes select(LaneMask mask, Lanes yes, Lanes no) {
  return hn::IfThenElse(mask.m, yes.v, no.v);
}

template <>
struct NumberOf<Lanes> {
  using Mask = LaneMask;
  using Index = hn::Vec<hn::RebindToSigned<Lanes::Tag>>;
  static constexpr int count = static_cast<int>(hn::MaxLanes(Lanes::Tag()));

  static HWY_INLINE Lanes load(const double* from) { return hn::LoadU(Lanes::Tag(), from); }
  static HWY_INLINE void store(Lanes x, double* to) { hn::StoreU(x.v, Lanes::Tag(), to); }

  /// The whole number nearest to x, and as a number.
  static HWY_INLINE Index nearest(Lanes x, Lanes& whole) {
    const hn::RebindToSigned<Lanes::Tag> integers;
    const auto shifted = hn::Add(x.v, hn::Set(Lanes::Tag(), wholeNumbers));
    whole = hn::Sub(shifted, hn::Set(Lanes::Tag(), wholeNumbers));
    return hn::Sub(hn::BitCast(integers, shifted),
                   hn::BitCast(integers, hn::Set(Lanes::Tag(), wholeNumbers)));
  }
  static HWY_INLINE Lanes gather(const double* table, Index index) {
    return hn::GatherIndex(Lanes::Tag(), table, index);
  }
  /// Two floats that lie side by side.
  static HWY_INLINE void gatherPair(const FloatPair* table, Index index, Lanes& first,
                                    Lanes& second) {
    const hn::RebindToUnsigned<Lanes::Tag> integers;
    const hn::Rebind<std::uint32_t, Lanes::Tag> halves;
    const hn::Rebind<float, Lanes::Tag> floats;
    const auto both = hn::BitCast(
        integers, hn::GatherIndex(Lanes::Tag(), reinterpret_cast<const double*>(table), index));
    const auto low = hn::TruncateTo(halves, both);
    const auto high = hn::TruncateTo(halves, hn::ShiftRight<32>(both));
    first = hn::PromoteTo(Lanes::Tag(), hn::BitCast(floats, low));
    second = hn::PromoteTo(Lanes::Tag(), hn::BitCast(floats, high));
  }
};
