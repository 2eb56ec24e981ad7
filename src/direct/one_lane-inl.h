// What the direct road asks of a number type, for a double: one lane. lanes-inl.h has the same for
// many; a formula sees only what both have. Included inside a namespace.

/// What a type itself does not say.
template <class N>
struct NumberOf;

// A double below 2^51 plus this has its nearest whole number in the lowest bits.
constexpr double wholeNumbers = 6755399441055744.0;

using std::abs;
using std::exp;
using std::log;
using std::pow;
using std::sqrt;

HWY_INLINE double select(bool mask, double yes, double no) { return mask ? yes : no; }
HWY_INLINE double max(double a, double b) { return a > b ? a : b; }
HWY_INLINE double min(double a, double b) { return a < b ? a : b; }
HWY_INLINE bool any(bool mask) { return mask; }
HWY_INLINE bool every(bool mask) { return mask; }

template <>
struct NumberOf<double> {
  using Mask = bool;
  using Index = std::ptrdiff_t;
  static constexpr int count = 1;

  static HWY_INLINE double load(const double* from) { return *from; }
  static HWY_INLINE void store(double x, double* to) { *to = x; }
  static HWY_INLINE Index nearest(double x, double& whole) {
    whole = (x + wholeNumbers) - wholeNumbers;
    return static_cast<Index>(whole);
  }
  static HWY_INLINE double gather(const double* table, Index index) { return table[index]; }
  static HWY_INLINE void gatherPair(const FloatPair* table, Index index, double& first,
                                    double& second) {
    first = static_cast<double>(table[index].first);
    second = static_cast<double>(table[index].second);
  }
};
