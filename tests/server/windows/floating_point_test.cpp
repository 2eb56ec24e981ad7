// A call leaves the client's floating-point unit alone, and does not depend on its state.
#include <xmmintrin.h>

#include <bit>
#include <cmath>

#include "client.h"

namespace calvex::test {
namespace {

constexpr double P = 0.9934, T = 468.79;  // steam near saturation

unsigned short x87Control() {
  unsigned short control;
  __asm__ __volatile__("fnstcw %0" : "=m"(control));
  return control;
}
void setX87Control(unsigned short control) { __asm__ __volatile__("fldcw %0" : : "m"(control)); }
unsigned short x87Status() {
  unsigned short status;
  __asm__ __volatile__("fnstsw %0" : "=m"(status));
  return status;
}

class FloatingPoint : public Client {
 protected:
  ~FloatingPoint() override {
    _mm_setcsr(defaultSse);
    __asm__ __volatile__("fnclex");
    setX87Control(defaultX87);
  }
  /// Calls that round, divide by zero, overflow and underflow inside; answers their results' bits.
  std::vector<unsigned long long> calls() {
    std::vector<unsigned long long> results;
    const auto keep = [&](double value) {
      results.push_back(std::bit_cast<unsigned long long>(value));
    };
    LONG success = 0;
    double x = 0.0, t = 0.0, h = 0.0, q = 0.0;
    for (const auto& [pressure, temperature] : {std::pair(P, T),
                                                {53.7316, 619.03},
                                                {0.0, 500.0},
                                                {1e-300, 400.0},
                                                {10.0, 100.0},
                                                {1e300, 1e300}}) {
      EXPECT_EQ(steam->HPT(&x, pressure, temperature, &success), S_OK);
      keep(x);
      EXPECT_EQ(steam->MPT(&x, pressure, temperature, &success), S_OK);
      keep(x);
      EXPECT_EQ(steam->KPT(&x, pressure, temperature, &success), S_OK);
      keep(x);
      EXPECT_EQ(steam->TPS(&x, pressure, 6.6, &success), S_OK);
      keep(x);
    }
    // power between equal pressures: an infinite flow
    EXPECT_EQ(steam->TurbineB(&x, &t, &h, &q, 3213, 4, 4, 0.8, 100, &success), S_OK);
    keep(x);
    EXPECT_EQ(
        steam->Convert(Text(L"T").get(), Text(L"C").get(), Text(L"K").get(), 1e308, &x, &success),
        S_OK);
    keep(x);
    Variant rows, variable;
    EXPECT_EQ(steam->XLFlashVessel(5, 1000, 0.3, Text(L"M_Vap").get(), &rows, &success), S_OK);
    EXPECT_EQ(callMethod(*steam, L"HPT", {static_cast<VARIANT*>(&variable), L"0.9934", T}).result,
              S_OK);
    keep(variable.dblVal);
    return results;
  }

  static constexpr unsigned defaultSse = 0x1F80;
  static constexpr unsigned short defaultX87 = 0x037F;
};

TEST_F(FloatingPoint, IsLeftAsItWas) {
  const std::vector<unsigned long long> expected = calls();
  __asm__ __volatile__("fnclex");
  const unsigned short control = x87Control();
  // No flag set; all flags set; another rounding, flushing to zero.
  for (const unsigned state : {0x1F80U, 0x1FBFU, 0x5F80U, 0x9F80U}) {
    _mm_setcsr(state);
    const std::vector<unsigned long long> results = calls();
    EXPECT_EQ(_mm_getcsr(), state);
    _mm_setcsr(defaultSse);
    EXPECT_EQ(results, expected) << state;
    EXPECT_EQ(x87Control(), control);
    EXPECT_EQ(x87Status() & 0x3F, 0);
  }
}

TEST_F(FloatingPoint, MayRaiseExceptionsInTheClient) {
  const std::vector<unsigned long long> expected = calls();
  constexpr unsigned unmasked = 0x0000;           // all six
  constexpr unsigned short unmaskedX87 = 0x0340;  // likewise
  _mm_setcsr(unmasked);
  setX87Control(unmaskedX87);
  LONG success = 0;
  double x = 0.0, infinite = 0.0, t = 0.0, h = 0.0, q = 0.0;
  const HRESULT first = steam->HPT(&x, P, T, &success);
  const HRESULT second = steam->TurbineB(&infinite, &t, &h, &q, 3213, 4, 4, 0.8, 100, &success);
  const unsigned sse = _mm_getcsr();
  const unsigned short x87 = x87Control();
  _mm_setcsr(defaultSse);
  __asm__ __volatile__("fnclex");
  setX87Control(defaultX87);
  EXPECT_EQ(first, S_OK);
  EXPECT_EQ(second, S_OK);
  EXPECT_EQ(sse, unmasked);
  EXPECT_EQ(x87, unmaskedX87);
  EXPECT_EQ(std::bit_cast<unsigned long long>(x), expected[0]);
  EXPECT_TRUE(std::isinf(infinite));
}

}  // namespace
}  // namespace calvex::test
