#include "formulation.h"

#include <fmt/format.h>

#include <string_view>

#include "steam/constants.h"
#include "steam/fundamental_coefficients.h"
#include "steam/saturation_coefficients.h"
#include "steam/transport_coefficients.h"

namespace calvex {

namespace {

// As printed in the tables: fewest digits that read back to the same number, which JSON takes too.
std::string json(double number) { return fmt::format("{}", number); }

template <class Range, class ToJson>
std::string list(const Range& range, ToJson toJson) {
  std::string text;
  for (const auto& element : range) {
    text += fmt::format("{}{}", text.empty() ? "" : ",", toJson(element));
  }
  return fmt::format("[{}]", text);
}

template <class Range>
std::string numbers(const Range& range) {
  return list(range, json);
}

template <class Matrix>
std::string rows(const Matrix& matrix) {
  return list(matrix, [](const auto& row) { return numbers(row); });
}

// "name":value for what stands in the sources under that name.
#define ONE(name) fmt::format("\"{}\":{}", #name, json(name))

std::string constantsJson() {
  using namespace constants;
  const std::string all[] = {
      ONE(molecularWeight),        ONE(gasConstant),         ONE(standardAtmosphere),
      ONE(reducingTemperature),    ONE(criticalTemperature), ONE(criticalPressure),
      ONE(criticalDensity),        ONE(phasesMeet),          ONE(criticalRegion),
      ONE(triplePointTemperature), ONE(triplePointPressure), ONE(celsiusZero),
      ONE(lowestTemperature),      ONE(highestTemperature),  ONE(highestPressure),
      ONE(referenceEnergy),        ONE(referenceEntropy)};
  return fmt::format("{{{}}}", fmt::join(all, ","));
}

std::string baseJson() {
  using namespace coefficients;
  const std::string all[] = {ONE(alpha), ONE(beta), ONE(gamma), ONE(b1), ONE(b2), ONE(b4),
                             ONE(b6),    ONE(B1),   ONE(B3),    ONE(B4), ONE(B6)};
  return fmt::format("{{{}}}", fmt::join(all, ","));
}

std::string idealJson() {
  using namespace coefficients;
  return fmt::format(R"({{{},{},"powers":{},"firstPower":{}}})", ONE(C1), ONE(C2),
                     numbers(idealPowers), firstIdealPower);
}

std::string residualJson() {
  using namespace coefficients;
  const auto term = [](const ResidualTerm& t) {
    return fmt::format(R"({{"k":{},"l":{},"g":{}}})", t.k, t.l, json(t.g));
  };
  const auto gaussian = [](const GaussianTerm& t) {
    return fmt::format(R"({{"g":{},"k":{},"l":{},"r":{},"T":{},"alpha":{},"beta":{}}})", json(t.g),
                       t.k, t.l, json(t.r), json(t.T), t.alpha, t.beta);
  };
  return fmt::format(R"({{"terms":{},"gaussian":{}}})", list(residualTerms, term),
                     list(gaussianTable, gaussian));
}

std::string transportJson() {
  using namespace coefficients;
  using enhancement::A, enhancement::C, enhancement::omega;
  return fmt::format(R"({{{},{},{},"viscosityGas":{},"viscosityResidual":{},"conductivityGas":{},)"
                     R"("conductivityResidual":{},{},{},{},"dielectric":{}}})",
                     ONE(Tstar), ONE(rhoStar), ONE(Pstar), numbers(viscosityGas),
                     rows(viscosityResidual), numbers(conductivityGas), rows(conductivityResidual),
                     ONE(C), ONE(omega), ONE(A), numbers(dielectric));
}

std::string tensionJson() {
  using namespace coefficients::tension;
  return fmt::format("{{{},{},{},{}}}", ONE(B), ONE(b), ONE(mu), ONE(Tc));
}

std::string saturationJson() {
  using namespace coefficients::saturationPressure;
  using namespace coefficients::scalingLaw;
  const double pressure[] = {k1, k2, k3, k4, k5, k6, k7, k8, k9};
  return fmt::format(R"({{"pressure":{},{},{},{}}})", numbers(pressure), ONE(criticalDensity),
                     ONE(amplitude), ONE(exponent));
}

#undef ONE

}  // namespace

std::string formulation() {
  return fmt::format(
      R"({{"constants":{},"base":{},"ideal":{},"residual":{},"transport":{},"tension":{},)"
      "\"saturation\":{}}}\n",
      constantsJson(), baseJson(), idealJson(), residualJson(), transportJson(), tensionJson(),
      saturationJson());
}

}  // namespace calvex
