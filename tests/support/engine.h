/// \file
/// How the tests call an engine and read its trace.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "engine/thermo_engine.h"

namespace calvex::test {

/// What an output holds before a call.
inline constexpr double untouched = -987654.321;

/// The result of a member that must succeed.
template <class... Parameters, class... Inputs>
double valueOf(ZvThermoInt& engine, int (ZvThermoInt::*member)(double*, Parameters...),
               Inputs... inputs) {
  double value = untouched;
  EXPECT_EQ((engine.*member)(&value, inputs...), 1) << engine.LastError();
  return value;
}

/// The error of a member that must fail and leave its output alone.
template <class... Parameters, class... Inputs>
std::string errorOf(ZvThermoInt& engine, int (ZvThermoInt::*member)(double*, Parameters...),
                    Inputs... inputs) {
  engine.ClearTraceInfo();
  double value = untouched;
  EXPECT_EQ((engine.*member)(&value, inputs...), 0) << "answered " << value;
  EXPECT_EQ(value, untouched);
  return engine.LastError();
}

/// True when the member succeeds.
template <class... Parameters, class... Inputs>
bool succeeds(ZvThermoInt& engine, int (ZvThermoInt::*member)(double*, Parameters...),
              Inputs... inputs) {
  double value = untouched;
  return (engine.*member)(&value, inputs...) == 1 && std::isfinite(value);
}

/// A node and all below it as indented lines: "HPT", "  error: Solution Error.".
inline std::string textOf(const ZvFunctionCall& node, int depth = 0) {
  static constexpr std::array<std::string_view, 6> prefixes{
      "root: ", "", "error: ", "warning: ", "note: ", "external: "};
  std::string text(static_cast<std::size_t>(2 * depth), ' ');
  text += prefixes.at(static_cast<std::size_t>(node.kind()));
  text += node.text();
  text += '\n';
  for (const ZvFunctionCall* child = node.firstChild(); child != nullptr;
       child = child->nextSibling()) {
    text += textOf(*child, depth + 1);
  }
  return text;
}

/// All kept calls.
inline std::string traceOf(const ZvThermoInt& engine) {
  std::string text;
  for (const ZvFunctionCall* call = engine.diagnostics().root().firstChild(); call != nullptr;
       call = call->nextSibling()) {
    text += textOf(*call);
  }
  return text;
}

inline int keptCalls(const ZvThermoInt& engine) { return engine.diagnostics().root().childCount(); }

inline bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

/// The first node of that text directly below `parent`, or null.
inline const ZvFunctionCall* childOf(const ZvFunctionCall& parent, std::string_view text) {
  const ZvFunctionCall* child = parent.firstChild();
  while (child != nullptr && child->text() != text) child = child->nextSibling();
  return child;
}

using PairOperation = int (ZvThermoInt::*)(double*, double, double);

/// A member from two inputs, described by the letters of its name.
struct PairMember {
  std::string_view name;
  PairOperation call;

  [[nodiscard]] char result() const { return name[0]; }
  [[nodiscard]] char first() const { return name[1]; }
  [[nodiscard]] char second() const { return name[2]; }
  [[nodiscard]] bool isFromPT() const { return first() == 'P' && second() == 'T'; }
};

/// The 95 members from two properties.
inline const std::vector<PairMember>& pairMembers() {
  static const std::vector<PairMember> members{
#define X(name) {#name, &ZvThermoInt::name}
      X(PTH), X(PTS), X(PTU), X(PTR), X(PTV), X(TPH), X(TPS), X(TPU), X(TPR), X(TPV), X(HPT),
      X(HPS), X(HPU), X(HPR), X(HPV), X(HTS), X(HTU), X(HTR), X(HTV), X(SPT), X(SPH), X(SPU),
      X(SPR), X(SPV), X(STH), X(STU), X(STR), X(STV), X(UPT), X(UPH), X(UPS), X(UPR), X(UPV),
      X(UTH), X(UTS), X(UTR), X(UTV), X(RPT), X(RPH), X(RPS), X(RPU), X(RTH), X(RTS), X(RTU),
      X(VPT), X(VPH), X(VPS), X(VPU), X(VTH), X(VTS), X(VTU), X(QPH), X(QPS), X(QPU), X(QPR),
      X(QPV), X(QTH), X(QTS), X(QTU), X(QTR), X(QTV), X(APT), X(APH), X(APS), X(APU), X(APR),
      X(APV), X(ATH), X(ATS), X(ATU), X(ATR), X(ATV), X(GPT), X(GPH), X(GPS), X(GPU), X(GPR),
      X(GPV), X(GTH), X(GTS), X(GTU), X(GTR), X(GTV), X(MPT), X(KPT), X(CPT), X(DPT), X(ZPT),
      X(WPT), X(NPT), X(EPT), X(IPT), X(JPT), X(BPT), X(LPT)
#undef X
  };
  return members;
}

/// The 10 saturation members from temperature or pressure and quality.
inline const std::vector<PairMember>& saturationMembers() {
  static const std::vector<PairMember> members{
#define X(name) {#name, &ZvThermoInt::name}
      X(HSatTQ), X(SSatTQ), X(USatTQ), X(VSatTQ), X(RSatTQ), X(HSatPQ),
      X(SSatPQ), X(USatPQ), X(VSatPQ), X(RSatPQ)
#undef X
  };
  return members;
}

// The saturation pressure correlation of the engine: the saturation line of the 1967 IFC
// Formulation for Industrial Use with the critical point of the 1984 formulation. K, MPa.
inline double correlatedPSat(double T) {
  constexpr double Tc = 647.126, Pc = 22.055;
  constexpr std::array<double, 5> k{-7.691234564, -26.08023696, -168.1706546, 64.23285504,
                                    -118.9646225};
  const double t = 1.0 - T / Tc;
  double sum = 0.0;
  for (std::size_t i = 0; i < k.size(); ++i) sum += k[i] * std::pow(t, static_cast<double>(i + 1));
  return Pc * std::exp(sum / ((T / Tc) * (1.0 + 4.16711732 * t + 20.9750676 * t * t)) -
                       t / (1.0e9 * t * t + 6.0));
}

constexpr double criticalT = 647.126;   // K
constexpr double criticalP = 22.055;    // MPa
constexpr double tripleT = 273.16;      // K
constexpr double tripleP = 0.00061173;  // MPa

}  // namespace calvex::test
