/// \file
/// A run of every spreadsheet variant with inputs of an ordinary plant, the plain model's results
/// for it, and the tokens that the variant must know.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/thermo_engine.h"
#include "equipment/auxiliaries.h"
#include "equipment/ejectors.h"
#include "equipment/gas_turbine.h"
#include "equipment/heat_exchangers.h"
#include "equipment/thermocompressor_chart.h"
#include "equipment/turbines_compressors.h"
#include "server/member_table.h"
#include "server/zv_calvex.h"
#include "units/unit_data.h"

namespace calvex::test {

/// A token, as tests/data/tokens.csv has it.
struct ExpectedToken {
  std::string member;
  std::string text;
  std::string label;
  short group;
  std::string output;
};

inline const std::vector<ExpectedToken>& expectedTokens() {
  static const std::vector<ExpectedToken> tokens = [] {
    std::vector<ExpectedToken> list;
    for (const std::vector<std::string>& row : readCells("tokens.csv")) {
      list.push_back(
          {row.at(0), row.at(1), row.at(2), static_cast<short>(std::stoi(row.at(3))), row.at(4)});
    }
    return list;
  }();
  return tokens;
}

inline std::vector<ExpectedToken> tokensOf(std::string_view member) {
  std::vector<ExpectedToken> tokens;
  for (const ExpectedToken& token : expectedTokens()) {
    if (token.member == member) tokens.push_back(token);
  }
  return tokens;
}

using PlainModel = int (*)(ZvThermoInt&, std::vector<double>& outputs,
                           const std::vector<double>& inputs);

/// The model called as written, every flag 1. The numbers are typed here, not asked of the engine.
template <auto Model, std::size_t Outputs, std::size_t Inputs, std::size_t Flags>
int plainModel(ZvThermoInt& engine, std::vector<double>& out, const std::vector<double>& in) {
  out.resize(Outputs);
  const auto call = [&]<std::size_t... O, std::size_t... I, std::size_t... F>(
      std::index_sequence<O...>, std::index_sequence<I...>, std::index_sequence<F...>) {
    return Model(engine, &out.at(O)..., in.at(I)..., (static_cast<void>(F), 1)...);
  };
  return call(std::make_index_sequence<Outputs>(), std::make_index_sequence<Inputs>(),
              std::make_index_sequence<Flags>());
}

struct Sample {
  std::string member;
  std::vector<double> inputs;
  std::string outputs;  ///< names, in the order of the model's parameters
  bool tokensFirst;
  PlainModel model;

  [[nodiscard]] std::string modelName() const { return member.substr(2); }
  /// The engine's result of that name.
  [[nodiscard]] double result(ZvThermoInt& engine, const std::string& output) const {
    std::vector<double> values;
    EXPECT_EQ(model(engine, values, inputs), 1) << member << ": " << engine.LastError();
    const std::vector<std::string> names = split(outputs, ' ');
    EXPECT_EQ(names.size(), values.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (names[i] == output) return values.at(i);
    }
    ADD_FAILURE() << member << " has no output " << output;
    return 0.0;
  }
};

// Turbines end and compressors begin in wet steam, so that no two outlets have the same quality.
inline const std::vector<Sample>& samples() {
  constexpr bool tokensFirst = true, modelFirst = false;
  static const std::vector<Sample> list{
      {"XLTurbineA",
       {3214, 4, 0.01, 0.8, 10},
       "pPower pTOut pHOut pQOut",
       tokensFirst,
       &plainModel<&TurbineA, 4, 5, 1>},
      {"XLTurbineB",
       {3214, 4, 0.01, 0.8, 5000},
       "pMIn pTOut pHOut pQOut",
       tokensFirst,
       &plainModel<&TurbineB, 4, 5, 1>},
      {"XLTurbineE",
       {3214, 4, 0.01, 0.8, 10, 6.77},
       "pPower pTOut pHOut pQOut pSOut",
       tokensFirst,
       &plainModel<&TurbineE, 5, 6, 2>},
      {"XLTurbineA2",
       {3214, 4, 0.05, 0.01, 0.8, 0.75, 6, 4},
       "pPower pTOut1 pTOut2 pHOut1 pHOut2 pQOut1 pQOut2",
       tokensFirst,
       &plainModel<&TurbineA2, 7, 8, 1>},
      {"XLTurbineB2",
       {3214, 4, 0.05, 0.01, 0.8, 0.75, 9000, 4},
       "pMOut2 pTOut1 pTOut2 pHOut1 pHOut2 pQOut1 pQOut2",
       tokensFirst,
       &plainModel<&TurbineB2, 7, 8, 1>},
      {"XLTurbineA3",
       {3214, 4, 0.1, 0.05, 0.01, 0.8, 0.78, 0.75, 6, 4, 2},
       "pPower pTOut1 pTOut2 pTOut3 pHOut1 pHOut2 pHOut3 pQOut1 pQOut2 pQOut3",
       tokensFirst,
       &plainModel<&TurbineA3, 10, 11, 1>},
      {"XLTurbineB3",
       {3214, 4, 0.1, 0.05, 0.01, 0.8, 0.78, 0.75, 9000, 4, 2},
       "pMOut3 pTOut1 pTOut2 pTOut3 pHOut1 pHOut2 pHOut3 pQOut1 pQOut2 pQOut3",
       tokensFirst,
       &plainModel<&TurbineB3, 10, 11, 1>},
      {"XLCompressorA",
       {1500, 0.01, 0.05, 0.7, 10},
       "pPower pTOut pHOut pQOut",
       tokensFirst,
       &plainModel<&CompressorA, 4, 5, 1>},
      {"XLCompressorB",
       {1500, 0.01, 0.05, 0.7, 500},
       "pMIn pTOut pHOut pQOut",
       tokensFirst,
       &plainModel<&CompressorB, 4, 5, 1>},
      {"XLCompressorA2",
       {1500, 0.01, 0.05, 0.1, 0.7, 0.75, 6, 4},
       "pPower pTOut1 pTOut2 pHOut1 pHOut2 pQOut1 pQOut2",
       tokensFirst,
       &plainModel<&CompressorA2, 7, 8, 1>},
      {"XLCompressorB2",
       {1500, 0.01, 0.05, 0.1, 0.7, 0.75, 3000, 4},
       "pMOut2 pTOut1 pTOut2 pHOut1 pHOut2 pQOut1 pQOut2",
       tokensFirst,
       &plainModel<&CompressorB2, 7, 8, 1>},
      {"XLDeAerator",
       {0.12, 2800, 320, 10, 0.01},
       "pHd pTd pMw pMs",
       modelFirst,
       &plainModel<&DeAerator, 4, 5, 0>},
      {"XLDeSuperHeater",
       {3214, 420, 1, 500, 10},
       "pHs pMw pMs",
       modelFirst,
       &plainModel<&DeSuperHeater, 3, 5, 0>},
      {"XLDeSuperHeaterB",
       {3214, 420, 1, 500, 10},
       "pHs pMw pMs",
       modelFirst,
       &plainModel<&DeSuperHeaterB, 3, 5, 0>},
      {"XLWaterPump",
       {437, 0.12, 6, 10, 0.7},
       "pHOut pPower",
       modelFirst,
       &plainModel<&WaterPump, 2, 5, 0>},
      {"XLLetDownValve",
       {2600, 4, 0.3},
       "pTOut pQOut",
       modelFirst,
       &plainModel<&LetDownValve, 2, 3, 0>},
      {"XLBoiler",
       {420, 10, 673.15, 4, 0.02},
       "pMBd pDeltaH pHOut pHBd pMIn",
       modelFirst,
       &plainModel<&Boiler, 5, 5, 0>},
      {"XLBoiler_B",
       {420, 10, 673.15, 4, 0.02, 0.85},
       "pMBd pDuty pHOut pHBd pMIn pQFired",
       modelFirst,
       &plainModel<&Boiler_B, 6, 6, 0>},
      {"XLFlashVessel",
       {10, 1000, 0.3},
       "pTOut pMVap pMLiq pHVap pHLiq",
       modelFirst,
       &plainModel<&FlashVessel, 5, 3, 0>},
      {"XLGasTurbineA",
       {5000, 0.3, 288.15, 800, 4, 673, 378, 4, 15, 0.03},
       "pTWhb pDWhbFuel pTDewPtActual pTDewPtMax pRExhaustO2 pDGTFuel pDHeatLoss pRHeatUtil "
       "pMBaseLoad pMActual",
       modelFirst,
       &plainModel<&GasTurbineA, 10, 10, 0>},
      {"XLHeatExchangerA",
       {10, 1, 0.05, 300, 400, 0, 0, 0.5, 0.02, 500, 430, 1, 1},
       "pHCIn pHCOut pHHIn pHHOut pMHOut pDuty",
       modelFirst,
       &plainModel<&HeatExchangerA, 6, 13, 0>},
      {"XLHeatExchangerB",
       {10, 1, 0.05, 300, 4000, 0, 0, 0.5, 0.02, 500, 430, 1, 1},
       "pHCIn pHCOut pHHIn pHHOut pMHOut pTCOut",
       modelFirst,
       &plainModel<&HeatExchangerB, 6, 13, 0>},
      {"XLThermoCompA",
       {2900, 1, 2609, 0.02, 0.04, 1.5},
       "pHOut pPerfF pERatio pCRatio",
       modelFirst,
       &plainModel<&ThermoCompA, 4, 6, 0>},
      {"XLThermoCompB",
       {2900, 1, 2609, 0.02, 0.04, 0.7},
       "pHOut pRs pERatio pCRatio",
       modelFirst,
       &plainModel<&ThermoCompB, 4, 6, 0>},
      {"XLThermoCompressorA",
       {0.5, 430, 5, 0.1, 380, 2},
       "pDSP pDST pDSF pHXDuty",
       modelFirst,
       &plainModel<&ThermoCompressorA, 4, 6, 0>},
      {"XLThermoCompressorB",
       {0.5, 430, 0.1, 380, 0.15, 5000},
       "pDSF pDST pMSF pSSF",
       modelFirst,
       &plainModel<&ThermoCompressorB, 4, 6, 0>},
      {"XLThermoCompressorC",
       {0.5, 430, 0.1, 380, 0.15, 3},
       "pDST pHXDuty pMSF pSSF",
       modelFirst,
       &plainModel<&ThermoCompressorC, 4, 6, 0>},
      {"XLThermoCompressorD",
       {0.5, 430, 0.1, 380, 0.15, 1},
       "pDST pHXDuty pDSF pMSF",
       modelFirst,
       &plainModel<&ThermoCompressorD, 4, 6, 0>},
      {"XLThermoCompressorE",
       {0.5, 430, 0.1, 380, 0.15, 2},
       "pDST pHXDuty pDSF pSSF",
       modelFirst,
       &plainModel<&ThermoCompressorE, 4, 6, 0>},
      {"XLThermoCompressorF",
       {0.5, 430, 0.1, 380, 1, 6000},
       "pDST pDSP pDSF pMSF",
       modelFirst,
       &plainModel<&ThermoCompressorF, 4, 6, 0>},
      {"XLThermoCompressorG",
       {0.5, 430, 0.1, 380, 2, 7000},
       "pDST pDSP pDSF pSSF",
       modelFirst,
       &plainModel<&ThermoCompressorG, 4, 6, 0>},
  };
  return list;
}

inline const Sample& sampleOf(std::string_view member) {
  for (const Sample& sample : samples()) {
    if (sample.member == member) return sample;
  }
  throw std::invalid_argument("no sample of " + std::string(member));
}

/// What a result array holds before a call that must not touch it.
inline ResultArray oldContent() { return {{Cell(std::string("old")), Cell(1.5)}}; }

/// What a call answers.
struct Answer {
  int success;
  ResultArray array;
  std::string error;
};

/// Calls the variant through the member table as a client does, its array full of `oldContent`.
inline Answer call(ZvCalvex& client, std::string_view memberName, const std::vector<double>& inputs,
                   const std::string& tokens) {
  const Member* member = findMember(memberName);
  if (member == nullptr) throw std::invalid_argument("no member " + std::string(memberName));
  std::vector<Value> arguments(inputs.begin(), inputs.end());
  arguments.emplace_back(tokens);
  arguments.emplace_back(oldContent());
  const ZvCalvex::Result result = client.invoke(*member, arguments);
  EXPECT_EQ(result.hresult, HResult::ok) << memberName;
  return {result.success, std::get<ResultArray>(arguments.back()), client.engine().LastError()};
}
inline Answer call(ZvCalvex& client, const Sample& sample, const std::string& tokens) {
  return call(client, sample.member, sample.inputs, tokens);
}

/// A call that must succeed.
inline ResultArray resultsOf(ZvCalvex& client, const Sample& sample, const std::string& tokens) {
  Answer answer = call(client, sample, tokens);
  EXPECT_EQ(answer.success, 1) << sample.member << " \"" << tokens << "\": " << answer.error;
  return std::move(answer.array);
}

/// A call that must fail and leave the array alone; answers the error.
inline std::string errorOf(ZvCalvex& client, std::string_view member,
                           const std::vector<double>& inputs, const std::string& tokens) {
  client.engine().ClearTraceInfo();
  Answer answer = call(client, member, inputs, tokens);
  EXPECT_EQ(answer.success, 0) << member << " \"" << tokens << "\"";
  EXPECT_EQ(answer.array, oldContent()) << member << " \"" << tokens << "\"";
  return answer.error;
}
inline std::string errorOf(ZvCalvex& client, const Sample& sample, const std::string& tokens) {
  return errorOf(client, sample.member, sample.inputs, tokens);
}

inline std::string unitOf(ZvThermoInt& engine, short group) {
  std::string unit;
  EXPECT_EQ(engine.GetUserUnitIndex(group, &unit), 1);
  return unit;
}

/// All tokens of a variant in one text.
inline std::string allTokens(const Sample& sample) {
  std::string text;
  for (const ExpectedToken& token : tokensOf(sample.member)) text += token.text + ",";
  return text;
}

/// Inputs at which every model fails on a check of its own.
inline std::vector<double> badInputs(const Sample& sample) {
  return std::vector<double>(sample.inputs.size(), -1.0e6);
}

}  // namespace calvex::test
