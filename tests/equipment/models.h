/// \file
/// The models without a plain member, as functions of lists, each with inputs that it accepts.
#pragma once

#include "equipment/call_checks.h"
#include "equipment/ejectors.h"
#include "equipment/gas_turbine.h"
#include "equipment/thermocompressor_chart.h"

namespace calvex::models {

using enum UnitGroup;

inline const ModelUnderTest thermoCompA{"ThermoCompA",
                                        {enthalpy, ratio, ratio, ratio},
                                        {enthalpy, pressure, enthalpy, pressure, pressure, ratio},
                                        [](ZvThermoInt& engine, double* o, const double* x) {
                                          return ThermoCompA(engine, o, o + 1, o + 2, o + 3, x[0],
                                                             x[1], x[2], x[3], x[4], x[5]);
                                        }};
inline const ModelUnderTest thermoCompB{"ThermoCompB",
                                        {enthalpy, ratio, ratio, ratio},
                                        {enthalpy, pressure, enthalpy, pressure, pressure, ratio},
                                        [](ZvThermoInt& engine, double* o, const double* x) {
                                          return ThermoCompB(engine, o, o + 1, o + 2, o + 3, x[0],
                                                             x[1], x[2], x[3], x[4], x[5]);
                                        }};
inline const std::vector<double> ejectorExample{2830.0, 1.0, 2675.0, 0.1, 0.17, 2.0};
inline const std::vector<double> ejectorInverseExample{2830.0, 1.0, 2675.0, 0.1, 0.17, 0.47};

inline const ModelUnderTest chartA{
    "ThermoCompressorA",
    {pressure, temperature, massFlow, heatDuty},
    {pressure, temperature, massFlow, pressure, temperature, massFlow},
    [](ZvThermoInt& engine, double* o, const double* x) {
      return ThermoCompressorA(engine, o, o + 1, o + 2, o + 3, x[0], x[1], x[2], x[3], x[4], x[5]);
    }};
inline const std::vector<double> chartAExample{1.0, 473.0, 2.0, 0.1, 380.0, 1.0};

inline const ModelUnderTest chartB{
    "ThermoCompressorB",
    {massFlow, temperature, massFlow, massFlow},
    {pressure, temperature, pressure, temperature, pressure, heatDuty},
    [](ZvThermoInt& engine, double* o, const double* x) {
      return ThermoCompressorB(engine, o, o + 1, o + 2, o + 3, x[0], x[1], x[2], x[3], x[4], x[5]);
    }};
inline const ModelUnderTest chartC{
    "ThermoCompressorC",
    {temperature, heatDuty, massFlow, massFlow},
    {pressure, temperature, pressure, temperature, pressure, massFlow},
    [](ZvThermoInt& engine, double* o, const double* x) {
      return ThermoCompressorC(engine, o, o + 1, o + 2, o + 3, x[0], x[1], x[2], x[3], x[4], x[5]);
    }};
inline const ModelUnderTest chartD{
    "ThermoCompressorD",
    {temperature, heatDuty, massFlow, massFlow},
    {pressure, temperature, pressure, temperature, pressure, massFlow},
    [](ZvThermoInt& engine, double* o, const double* x) {
      return ThermoCompressorD(engine, o, o + 1, o + 2, o + 3, x[0], x[1], x[2], x[3], x[4], x[5]);
    }};
inline const ModelUnderTest chartE{
    "ThermoCompressorE",
    {temperature, heatDuty, massFlow, massFlow},
    {pressure, temperature, pressure, temperature, pressure, massFlow},
    [](ZvThermoInt& engine, double* o, const double* x) {
      return ThermoCompressorE(engine, o, o + 1, o + 2, o + 3, x[0], x[1], x[2], x[3], x[4], x[5]);
    }};
inline const ModelUnderTest chartF{
    "ThermoCompressorF",
    {temperature, pressure, massFlow, massFlow},
    {pressure, temperature, pressure, temperature, massFlow, heatDuty},
    [](ZvThermoInt& engine, double* o, const double* x) {
      return ThermoCompressorF(engine, o, o + 1, o + 2, o + 3, x[0], x[1], x[2], x[3], x[4], x[5]);
    }};
inline const ModelUnderTest chartG{
    "ThermoCompressorG",
    {temperature, pressure, massFlow, massFlow},
    {pressure, temperature, pressure, temperature, massFlow, heatDuty},
    [](ZvThermoInt& engine, double* o, const double* x) {
      return ThermoCompressorG(engine, o, o + 1, o + 2, o + 3, x[0], x[1], x[2], x[3], x[4], x[5]);
    }};
// The last input: a duty for B, a flow for the others.
inline const std::vector<double> chartBExample{1.0, 473.0, 0.1, 380.0, 0.2, 6000.0};
inline const std::vector<double> chartCExample{1.0, 473.0, 0.1, 380.0, 0.2, 3.0};
inline const std::vector<double> chartFExample{1.0, 473.0, 0.1, 380.0, 1.0, 6000.0};

inline const ModelUnderTest gasTurbine{
    "GasTurbineA",
    {temperature, heatDuty, temperature, temperature, ratio, heatDuty, heatDuty, ratio, massFlow,
     massFlow},
    {power,
     {},
     temperature,
     temperature,
     pressure,
     temperature,
     temperature,
     massFlow,
     temperatureDifference,
     {}},
    [](ZvThermoInt& engine, double* o, const double* x) {
      return GasTurbineA(engine, o, o + 1, o + 2, o + 3, o + 4, o + 5, o + 6, o + 7, o + 8, o + 9,
                         x[0], x[1], x[2], x[3], x[4], x[5], x[6], x[7], x[8], x[9]);
    }};
inline const std::vector<double> gasTurbineExample{5000.0, 0.3,   288.15, 800.0, 4.0,
                                                   673.0,  378.0, 4.0,    15.0,  0.03};

}  // namespace calvex::models
