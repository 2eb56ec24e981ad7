/// \file
/// Gas turbine with a heat-recovery boiler.
///
/// Values are in the client's units. Answers 1, or 0 with the reason posted and nothing written.
#pragma once

namespace calvex {

class ZvThermoInt;

/// Steam that the exhaust raises, and the supplementary firing that a steam demand needs.
///
/// FPRatio is the turbine's power per fuel heat input, MinO2Stack the oxygen mole fraction that
/// firing must leave in the stack, DTMin the least approach of gas and water at the two ends of the
/// economiser. A demand below the base load gives a negative fuel duty. A demand within 0.01 % of
/// the base load needs no firing: pTWhb is then 278.4 K and both dew points are the plain number
/// 278.4 in any unit.
///
/// Two simplifications of the model to know of: the composition of the exhaust uses the mass
/// fractions of air (23.3 % oxygen) as mole fractions, and the heat loss of a fired boiler is its
/// stack loss plus the exhaust heat that the unfired boiler leaves unused.
int GasTurbineA(ZvThermoInt& engine, double* pTWhb, double* pDWhbFuel, double* pTDewPtActual,
                double* pTDewPtMax, double* pRExhaustO2, double* pDGTFuel, double* pDHeatLoss,
                double* pRHeatUtil, double* pMBaseLoad, double* pMActual, double GTPower,
                double FPRatio, double AirTemp, double ExhaustTemp, double SteamPress,
                double SteamTemp, double BFWTemp, double SteamDemand, double DTMin,
                double MinO2Stack);

}  // namespace calvex
