// The one file that knows instruction sets: the formulas and what is built on them, compiled for
// each set of the machine's kind, and the choice between them.
#include "direct/kernels.h"

#include <array>
#include <atomic>
#include <bit>
#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "direct/starting_tables.h"
#include "steam/constants.h"
#include "steam/fundamental_coefficients.h"
#include "steam/saturation_coefficients.h"
#include "steam/transport_coefficients.h"

// Two lanes need no older set than SSE 4; a machine without it has one.
#undef HWY_DISABLED_TARGETS
#ifdef _WIN32
// GCC for Windows aligns the stack to 16 bytes only (its bug 54412): longer vectors fault there.
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_AVX2 | HWY_AVX3 | HWY_AVX3_DL)
#elif defined(CALVEX_FEW_INSTRUCTION_SETS)
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_SSE4 | HWY_AVX3 | HWY_AVX3_DL)
#else
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_AVX3_DL)
#endif

// What foreach_target.h includes for each of the sets.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "direct/kernels.cpp"
#include <hwy/foreach_target.h>
//
#include <hwy/contrib/math/math-inl.h>
#include <hwy/highway.h>
#ifdef __wasm_simd128__
#include <wasm_simd128.h>

#include <limits>
#endif

HWY_BEFORE_NAMESPACE();
namespace calvex::direct::HWY_NAMESPACE {

#include "direct/one_lane-inl.h"
//
#ifdef __wasm_simd128__
#include "direct/wasm_lanes-inl.h"
#else
#include "direct/lanes-inl.h"
#endif
//
#include "direct/dual-inl.h"
//
#include "steam/fundamental_equation-inl.h"
//
#include "steam/transport-inl.h"
//
#include "steam/property-inl.h"
namespace saturation {
#include "steam/saturation_correlations-inl.h"
}
#include "direct/states-inl.h"
//
#include "direct/lookup-inl.h"
//
#include "direct/pairs-inl.h"
//
#include "direct/kernels-inl.h"

Kernels lanesHere() { return kernelsOf<Lanes>(hwy::TargetName(HWY_TARGET)); }
#if HWY_TARGET == HWY_AVX2 || HWY_TARGET == HWY_STATIC_TARGET
Kernels oneLaneHere() { return kernelsOf<double>("one lane"); }
#endif

}  // namespace calvex::direct::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace calvex::direct {

namespace {

// Whether the machine has all that an instruction set of Highway takes for granted.
bool machineHas([[maybe_unused]] std::int64_t target) {
#if HWY_ARCH_X86
  __builtin_cpu_init();
  const bool sse4 = __builtin_cpu_supports("sse4.2") != 0 &&
                    __builtin_cpu_supports("pclmul") != 0 && __builtin_cpu_supports("aes") != 0;
  const bool avx2 = sse4 && __builtin_cpu_supports("avx2") != 0 &&
                    __builtin_cpu_supports("fma") != 0 && __builtin_cpu_supports("bmi2") != 0;
  const bool avx3 =
      avx2 && __builtin_cpu_supports("avx512f") != 0 && __builtin_cpu_supports("avx512vl") != 0 &&
      __builtin_cpu_supports("avx512dq") != 0 && __builtin_cpu_supports("avx512bw") != 0;
  switch (target) {
    case HWY_AVX3:
      return avx3;
    case HWY_AVX2:
      return avx2;
    case HWY_SSE4:
      return sse4;
    default:
      break;
  }
#endif
  return (target & (HWY_BASELINE_TARGETS | HWY_STATIC_TARGET)) != 0;
}

struct Compiled {
  std::int64_t target;
  Kernels (*kernels)();
};
// Best first.
constexpr Compiled compiled[] = {
#if HWY_TARGETS & HWY_AVX3
    {HWY_AVX3, &N_AVX3::lanesHere},
#endif
#if HWY_TARGETS & HWY_AVX2
    {HWY_AVX2, &N_AVX2::lanesHere},
#endif
#if HWY_TARGETS & HWY_SSE4
    {HWY_SSE4, &N_SSE4::lanesHere},
#endif
#if HWY_TARGETS & HWY_AVX2
    {HWY_AVX2, &N_AVX2::oneLaneHere},
#else
    {HWY_STATIC_TARGET, &HWY_STATIC_DISPATCH(lanesHere)},
#endif
    {HWY_STATIC_TARGET, &HWY_STATIC_DISPATCH(oneLaneHere)},
};

// The sets that the machine has; the last one has one lane.
struct Machine {
  std::array<Kernels, std::size(compiled)> sets{};
  std::array<std::string_view, std::size(compiled)> names;
  std::size_t count = 0;

  Machine() {
    for (const Compiled& set : compiled) {
      if (!machineHas(set.target)) continue;
      sets[count] = set.kernels();
      names[count] = sets[count].name;
      if (sets[count++].lanes == 1) break;
    }
  }
};

const Machine& machine() {
  static const Machine it;
  return it;
}

std::atomic<const Kernels*> chosen = nullptr;

}  // namespace

const Kernels& kernels() noexcept {
  const Kernels* set = chosen.load(std::memory_order_relaxed);
  return set != nullptr ? *set : machine().sets[0];
}

const Kernels& oneLane() noexcept {
  const Machine& here = machine();
  return here.sets[here.count - 1];
}

std::span<const std::string_view> instructionSets() noexcept {
  const Machine& here = machine();
  return {here.names.data(), here.count};
}

int lanes() noexcept { return kernels().lanes; }

bool useInstructionSet(std::string_view name) noexcept {
  const Machine& here = machine();
  for (std::size_t i = 0; i < here.count; ++i) {
    if (!name.empty() && here.names[i] != name) continue;
    chosen.store(&here.sets[i], std::memory_order_relaxed);
    return true;
  }
  return false;
}

}  // namespace calvex::direct

#endif  // HWY_ONCE
