/// \file
/// The spreadsheet variants of the equipment models: one row for each, with the tokens by which a
/// client asks for results.
#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "equipment/auxiliaries.h"
#include "equipment/ejectors.h"
#include "equipment/gas_turbine.h"
#include "equipment/heat_exchangers.h"
#include "equipment/thermocompressor_chart.h"
#include "equipment/turbines_compressors.h"
#include "units/unit_catalogue.h"

namespace calvex::spreadsheet {

/// Token that needs no flag of its model.
inline constexpr int always = -1;

/// A result that a client can ask for by a short text, whatever its case.
struct Token {
  std::string_view text;
  std::string_view label;
  UnitGroup group{};
  int output = 0;     ///< which of the model's outputs, counted from 0
  int flag = always;  ///< the model's flag that must be 1 for this output to be computed
};

inline constexpr std::size_t maxOutputs = 10;
inline constexpr std::size_t maxFlags = 2;
inline constexpr std::size_t maxTokens = 10;

/// An equipment model on lists: its outputs, inputs and flags, each in the order of its parameters.
using ModelRunner = int (*)(ZvThermoInt& engine, double* outputs, const double* inputs,
                            const int* flags);

/// A row of the table.
struct Variant {
  std::string_view name;  ///< the model's; its spreadsheet member has "XL" before it
  ModelRunner run;
  bool hasFlags;  ///< the tokens decide how much the model computes: they are read before it runs
  std::array<Token, maxTokens> tokenStore;
  std::size_t tokenCount;

  [[nodiscard]] constexpr std::span<const Token> tokens() const noexcept {
    return std::span(tokenStore).first(tokenCount);
  }
};

/// What the parameters of a model are: pointers its outputs, doubles its inputs, integers its
/// flags.
template <class Model>
struct ModelSignature;
template <class... A>
struct ModelSignature<int (*)(ZvThermoInt&, A...)> {
  using Arguments = std::tuple<A...>;
  template <class T>
  static constexpr std::size_t count = (std::size_t{0} + ... + (std::is_same_v<A, T> ? 1 : 0));

  static constexpr std::size_t outputs = count<double*>;
  static constexpr std::size_t inputs = count<double>;
  static constexpr std::size_t flags = count<int>;
  static_assert(outputs + inputs + flags == sizeof...(A));
  static_assert(outputs <= maxOutputs && flags <= maxFlags);

  /// The next argument of type T. Braces evaluate them in order.
  static Arguments arguments(double* output, const double* input, const int* flag) {
    const auto next = [&]<class T>(std::type_identity<T>) -> T {
      if constexpr (std::is_same_v<T, double*>) {
        return output++;
      } else if constexpr (std::is_same_v<T, double>) {
        return *input++;
      } else {
        return *flag++;
      }
    };
    return Arguments{next(std::type_identity<A>{})...};
  }
};

template <auto Model>
int runModel(ZvThermoInt& engine, double* outputs, const double* inputs, const int* flags) {
  return std::apply([&](auto... arguments) { return Model(engine, arguments...); },
                    ModelSignature<decltype(Model)>::arguments(outputs, inputs, flags));
}

/// A row: the variant's own tokens, then those that it shares with its family.
template <auto Model>
consteval Variant variant(std::string_view name, std::initializer_list<Token> own,
                          std::span<const Token> shared = {}) {
  using Signature = ModelSignature<decltype(Model)>;
  Variant row{name, &runModel<Model>, Signature::flags != 0, {}, own.size() + shared.size()};
  std::ranges::copy(shared, std::ranges::copy(own, row.tokenStore.begin()).out);
  for (const Token& token : row.tokens()) {
    if (token.output >= static_cast<int>(Signature::outputs)) throw "no such output";
    if (token.flag >= static_cast<int>(Signature::flags)) throw "no such flag";
  }
  return row;
}

namespace table {

using enum UnitGroup;

// The flags of turbines and compressors.
inline constexpr int bCalcTQ = 0;
inline constexpr int bCalcS = 1;

// Outputs of turbines and compressors: power or flow, then temperatures, enthalpies and qualities.
inline constexpr Token oneOutlet[] = {
    {"T_Out", "Outlet Temperature", temperature, 1, bCalcTQ},
    {"H_Out", "Outlet Enthalpy", enthalpy, 2},
    {"Q_Out", "Outlet Quality", quality, 3, bCalcTQ},
};
inline constexpr Token twoOutlets[] = {
    {"H_Out1", "Outlet 1 Enthalpy", enthalpy, 3},
    {"T_Out1", "Outlet 1 Temperature", temperature, 1},
    {"Q_Out1", "Outlet 1 Quality", quality, 5},
    {"H_Out2", "Outlet 2 Enthalpy", enthalpy, 4},
    {"T_Out2", "Outlet 2 Temperature", temperature, 2, bCalcTQ},
    {"Q_Out2", "Outlet 2 Quality", quality, 6, bCalcTQ},
};
inline constexpr Token threeOutlets[] = {
    {"H_Out1", "Outlet 1 Enthalpy", enthalpy, 4},
    {"T_Out1", "Outlet 1 Temperature", temperature, 1},
    {"Q_Out1", "Outlet 1 Quality", quality, 7},
    {"H_Out2", "Outlet 2 Enthalpy", enthalpy, 5},
    {"T_Out2", "Outlet 2 Temperature", temperature, 2},
    {"Q_Out2", "Outlet 2 Quality", quality, 8},
    {"H_Out3", "Outlet 3 Enthalpy", enthalpy, 6},
    {"T_Out3", "Outlet 3 Temperature", temperature, 3, bCalcTQ},
    {"Q_Out3", "Outlet 3 Quality", quality, 9, bCalcTQ},
};
// Outputs of both boilers begin with blowdown flow, duty, enthalpies of steam and blowdown, feed
// flow.
inline constexpr Token boiler[] = {
    {"M_In", "Inlet Flow Rate", massFlow, 4},  {"M_Bd", "Blowdown Flow Rate", massFlow, 0},
    {"H_Out", "Outlet Enthalpy", enthalpy, 2}, {"Q_Abs", "Absorbed Duty", heatDuty, 1},
    {"H_delta", "Absorbed Duty", heatDuty, 1}, {"H_Bd", "Blowdown Enthalpy", enthalpy, 3},
};
// Of both heat exchangers: the inlet enthalpies, the cold outlet's and the hot flow.
inline constexpr Token heatExchanger[] = {
    {"H_CIn", "Cold Inlet Enthalpy", enthalpy, 0},
    {"H_COut", "Cold Outlet Enthalpy", enthalpy, 1},
    {"H_HIn", "Hot Inlet Enthalpy", enthalpy, 2},
    {"M_HOut", "Hot Outlet Flow Rate", massFlow, 4},
};
// Of both ejectors.
inline constexpr Token ejector[] = {
    {"H_Out", "Discharge Enthalpy", enthalpy, 0},
    {"E_Ratio", "Expansion Ratio", ratio, 2},
    {"C_Ratio", "Compression Ratio", ratio, 3},
};

inline constexpr Variant variants[] = {
    variant<&TurbineA>("TurbineA", {{"Pow", "Turbine Power", power, 0}}, oneOutlet),
    variant<&TurbineB>("TurbineB",
                       {{"M_In", "Flow Rate", massFlow, 0}, {"M", "Flow Rate", massFlow, 0}},
                       oneOutlet),
    variant<&TurbineE>(
        "TurbineE",
        {{"Pow", "Turbine Power", power, 0}, {"S_Out", "Outlet Entropy", entropy, 4, bCalcS}},
        oneOutlet),
    variant<&TurbineA2>("TurbineA2", {{"Pow", "Turbine Power", power, 0}}, twoOutlets),
    variant<&TurbineB2>("TurbineB2", {{"M_Out2", "Outlet 2 Flow Rate", massFlow, 0}}, twoOutlets),
    variant<&TurbineA3>("TurbineA3", {{"Pow", "Turbine Power", power, 0}}, threeOutlets),
    variant<&TurbineB3>("TurbineB3", {{"M_Out3", "Outlet 3 Flow Rate", massFlow, 0}}, threeOutlets),
    variant<&CompressorA>("CompressorA", {{"Pow", "Compressor Power", power, 0}}, oneOutlet),
    variant<&CompressorB>("CompressorB",
                          {{"M", "Flow Rate", massFlow, 0}, {"M_In", "Flow Rate", massFlow, 0}},
                          oneOutlet),
    variant<&CompressorA2>("CompressorA2", {{"Pow", "Compressor Power", power, 0}}, twoOutlets),
    variant<&CompressorB2>("CompressorB2", {{"M_Out2", "Outlet 2 Flow Rate", massFlow, 0}},
                           twoOutlets),
    variant<&DeAerator>("DeAerator", {{"M_Water", "Water Flow Rate", massFlow, 2},
                                      {"M_Steam", "Steam Flow Rate", massFlow, 3},
                                      {"H_Out", "Outlet Enthalpy", enthalpy, 0},
                                      {"T_Out", "Outlet Temperature", temperature, 1}}),
    variant<&DeSuperHeater>("DeSuperHeater", {{"M_Water", "Water Flow Rate", massFlow, 1},
                                              {"M_Out", "Outlet Flow Rate", massFlow, 2},
                                              {"H_Out", "Outlet Enthalpy", enthalpy, 0}}),
    variant<&DeSuperHeaterB>("DeSuperHeaterB", {{"M_Water", "Water Flow Rate", massFlow, 1},
                                                {"M_in", "Inlet Flow Rate", massFlow, 2},
                                                {"H_Out", "Outlet Enthalpy", enthalpy, 0}}),
    variant<&WaterPump>("WaterPump",
                        {{"Pow", "Power", power, 1}, {"H_Out", "Outlet Enthalpy", enthalpy, 0}}),
    variant<&LetDownValve>("LetDownValve", {{"T_Out", "Outlet Temperature", temperature, 0},
                                            {"Q_Out", "Outlet Quality", quality, 1}}),
    variant<&Boiler>("Boiler", {}, boiler),
    variant<&Boiler_B>("Boiler_B", {{"Q_Fired", "Fired Duty", heatDuty, 5}}, boiler),
    variant<&FlashVessel>("FlashVessel", {{"M_Vap", "Steam Flow Rate", massFlow, 1},
                                          {"M_Liq", "Water Flow Rate", massFlow, 2},
                                          {"T_Vap", "Steam Temperature", temperature, 0},
                                          {"H_Vap", "Steam Enthalpy", enthalpy, 3},
                                          {"H_Liq", "Water Enthalpy", enthalpy, 4}}),
    variant<&GasTurbineA>("GasTurbineA",
                          {{"T_Whb", "WHB Temperature", temperature, 0},
                           {"D_WhbFuel", "WHB Fuel Duty", heatDuty, 1},
                           {"T_DewPtActual", "Actual Dew Point Temperature", temperature, 2},
                           {"T_DewPtMax", "Dew Point Temperature", temperature, 3},
                           {"R_ExhaustO2", "Exhaust Oxygen Content", ratio, 4},
                           {"D_GTFuel", "GT Fuel Duty", heatDuty, 5},
                           {"R_HeatUtil", "Heat Utilisation", ratio, 7},
                           {"M_BaseLoad", "Base Load Flow Rate", massFlow, 8},
                           {"M_Actual", "Actual Flow Rate", massFlow, 9},
                           {"D_HeatLoss", "Heat Loss", heatDuty, 6}}),
    // The hot outlet's label says "Inlet" here, as clients know it; HeatExchangerB's does not.
    variant<&HeatExchangerA>(
        "HeatExchangerA",
        {{"H_HOut", "Hot Inlet Enthalpy", enthalpy, 3}, {"D_Hx", "Duty", heatDuty, 5}},
        heatExchanger),
    variant<&HeatExchangerB>("HeatExchangerB",
                             {{"H_HOut", "Hot Outlet Enthalpy", enthalpy, 3},
                              {"T_COut", "Cold Outlet Temperature", temperature, 5}},
                             heatExchanger),
    variant<&ThermoCompA>("ThermoCompA", {{"PerfF", "Performance Factor", ratio, 1}}, ejector),
    variant<&ThermoCompB>("ThermoCompB", {{"Rs_Out", "Motive/Suction steam ratio", ratio, 1}},
                          ejector),
    variant<&ThermoCompressorA>("ThermoCompressorA",
                                {{"P_Out", "Discharge Pressure", pressure, 0},
                                 {"T_Out", "Discharge Temperature", temperature, 1},
                                 {"M_Out", "Discharge Flow Rate", massFlow, 2},
                                 {"D_Hx", "Duty", heatDuty, 3}}),
    variant<&ThermoCompressorB>("ThermoCompressorB",
                                {{"M_Out", "Discharge Flow Rate", massFlow, 0},
                                 {"T_Out", "Discharge Temperature", temperature, 1},
                                 {"M_Motive", "Motive Flow Rate", massFlow, 2},
                                 {"M_Suction", "Suction Flow Rate", massFlow, 3}}),
    variant<&ThermoCompressorC>("ThermoCompressorC",
                                {{"T_Out", "Discharge Temperature", temperature, 0},
                                 {"D_Hx", "Duty", heatDuty, 1},
                                 {"M_Motive", "Motive Flow Rate", massFlow, 2},
                                 {"M_Suction", "Suction Flow Rate", massFlow, 3}}),
    variant<&ThermoCompressorD>("ThermoCompressorD",
                                {{"T_Out", "Discharge Temperature", temperature, 0},
                                 {"D_Hx", "Duty", heatDuty, 1},
                                 {"M_Out", "Discharge Flow Rate", massFlow, 2},
                                 {"M_Motive", "Motive Flow Rate", massFlow, 3}}),
    variant<&ThermoCompressorE>("ThermoCompressorE",
                                {{"T_Out", "Discharge Temperature", temperature, 0},
                                 {"D_Hx", "Duty", heatDuty, 1},
                                 {"M_Out", "Discharge Flow Rate", massFlow, 2},
                                 {"M_Suction", "Suction Flow Rate", massFlow, 3}}),
    variant<&ThermoCompressorF>("ThermoCompressorF",
                                {{"T_Out", "Discharge Temperature", temperature, 0},
                                 {"P_Out", "Discharge Pressure", pressure, 1},
                                 {"M_Out", "Discharge Flow Rate", massFlow, 2},
                                 {"M_Motive", "Motive Flow Rate", massFlow, 3}}),
    variant<&ThermoCompressorG>("ThermoCompressorG",
                                {{"T_Out", "Discharge Temperature", temperature, 0},
                                 {"P_Out", "Discharge Pressure", pressure, 1},
                                 {"M_Out", "Discharge Flow Rate", massFlow, 2},
                                 {"M_Suction", "Suction Flow Rate", massFlow, 3}}),
};

}  // namespace table

/// All variants.
[[nodiscard]] constexpr std::span<const Variant> variantTable() noexcept { return table::variants; }

/// The row of a model that has one. (Looked up once, not by the compiler: g++ 12 does not compare
/// functions in a constant expression under the undefined behaviour sanitizer.)
template <auto Model>
const Variant& variantOf() {
  static const Variant& row = *std::ranges::find(table::variants, &runModel<Model>, &Variant::run);
  return row;
}

}  // namespace calvex::spreadsheet
