/// \file
/// Gas turbine with a heat-recovery boiler.
///
/// Values are in the client's units. Answers 1, or 0 with the reason posted.
#pragma once

namespace calvex {

class ZvThermoInt;

/// Steam that the exhaust raises, and the supplementary firing that a steam demand needs.
int GasTurbineA(ZvThermoInt& engine, double* pTWhb, double* pDWhbFuel, double* pTDewPtActual,
                double* pTDewPtMax, double* pRExhaustO2, double* pDGTFuel, double* pDHeatLoss,
                double* pRHeatUtil, double* pMBaseLoad, double* pMActual, double GTPower,
                double FPRatio, double AirTemp, double ExhaustTemp, double SteamPress,
                double SteamTemp, double BFWTemp, double SteamDemand, double DTMin,
                double MinO2Stack);

}  // namespace calvex
