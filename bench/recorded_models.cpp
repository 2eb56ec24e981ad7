// The models' sources once more, with the recorder in the place of the engine: the calls that are
// compared with a model are those that it makes, also where it iterates.
#include "recorded_models.h"

// All that the sources include, under its own names.
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <span>

#include "equipment/brent.h"
#include "equipment/model.h"
#include "equipment/model_results.h"
#include "equipment/plausibility.h"
#include "spreadsheet/variants.h"
#include "steam/constants.h"
#include "steam/solver.h"

// One namespace for each source, as they share names.
namespace recorded {
namespace turbines {
using namespace calvex;
}
namespace auxiliaries {
using namespace calvex;
}
namespace exchangers {
using namespace calvex;
}
namespace ejectors {
using namespace calvex;
}
namespace chart {
using namespace calvex;
}
namespace gas {
using namespace calvex;
}
}  // namespace recorded

#define ZvThermoInt Recorder
#define calvex recorded::turbines
#include "equipment/turbines_compressors.cpp"
#undef calvex
#define calvex recorded::auxiliaries
#include "equipment/auxiliaries.cpp"
#undef calvex
#define calvex recorded::exchangers
#include "equipment/heat_exchangers.cpp"
#undef calvex
#define calvex recorded::ejectors
#include "equipment/ejectors.cpp"
#undef calvex
#define calvex recorded::chart
#include "equipment/thermocompressor_chart.cpp"
#undef calvex
#define calvex recorded::gas
#include "equipment/gas_turbine.cpp"
#undef calvex
#undef ZvThermoInt

namespace recorded {

namespace {

struct Model {
  std::string_view name;
  int (*run)(Recorder& recorder, double* outputs, const double* inputs, const int* flags);
};

template <auto Original, auto Recorded>
int run(Recorder& recorder, double* outputs, const double* inputs, const int* flags) {
  using Signature = calvex::spreadsheet::ModelSignature<decltype(Original)>;
  return std::apply([&](auto... arguments) { return Recorded(recorder, arguments...); },
                    Signature::arguments(outputs, inputs, flags));
}

#define MODEL(source, name) \
  { #name, &run < &calvex::name, &source::name> }
constexpr Model models[] = {
    MODEL(turbines, TurbineA),         MODEL(turbines, TurbineB),
    MODEL(turbines, TurbineE),         MODEL(turbines, TurbineA2),
    MODEL(turbines, TurbineB2),        MODEL(turbines, TurbineA3),
    MODEL(turbines, TurbineB3),        MODEL(turbines, CompressorA),
    MODEL(turbines, CompressorB),      MODEL(turbines, CompressorA2),
    MODEL(turbines, CompressorB2),     MODEL(auxiliaries, DeAerator),
    MODEL(auxiliaries, DeSuperHeater), MODEL(auxiliaries, DeSuperHeaterB),
    MODEL(auxiliaries, WaterPump),     MODEL(auxiliaries, LetDownValve),
    MODEL(auxiliaries, Boiler),        MODEL(auxiliaries, Boiler_B),
    MODEL(auxiliaries, FlashVessel),   MODEL(exchangers, HeatExchangerA),
    MODEL(exchangers, HeatExchangerB), MODEL(ejectors, ThermoCompA),
    MODEL(ejectors, ThermoCompB),      MODEL(chart, ThermoCompressorA),
    MODEL(chart, ThermoCompressorB),   MODEL(chart, ThermoCompressorC),
    MODEL(chart, ThermoCompressorD),   MODEL(chart, ThermoCompressorE),
    MODEL(chart, ThermoCompressorF),   MODEL(chart, ThermoCompressorG),
    MODEL(gas, GasTurbineA),
};
#undef MODEL

}  // namespace

std::vector<PropertyCall> propertyCalls(std::string_view model, const std::vector<double>& inputs,
                                        const int* flags) {
  Recorder recorder;
  std::array<double, calvex::spreadsheet::maxOutputs> outputs{};
  for (const Model& row : models) {
    if (row.name == model && row.run(recorder, outputs.data(), inputs.data(), flags) != 0) {
      return recorder.calls;
    }
  }
  return {};
}

}  // namespace recorded
