/// \file
/// Thermocompressors (steam ejectors) by momentum and energy balance.
///
/// Values are in the client's units. Answers 1, or 0 with the reason posted and nothing
/// written. The pressures' order is not tested.
#pragma once

namespace calvex {

class ZvThermoInt;

/// The empirical diffuser efficiency of a performance factor and the mixed stream's kinetic energy
/// ke, kJ/kg; 1 where there is next to none.
double DiffuserCorrelation(double pf, double ke);

/// Performance factor from the motive/suction flow ratio Rs.
int ThermoCompA(ZvThermoInt& engine, double* pHOut, double* pPerfF, double* pERatio,
                double* pCRatio, double Hms, double pMs, double Hss, double Pss, double Pds,
                double Rs);

/// Motive/suction flow ratio from the performance factor PF, above 0 up to 1; known to within
/// 5e-7 + 6e-8 of itself. Reports under the name of ThermoCompA.
int ThermoCompB(ZvThermoInt& engine, double* pHOut, double* pRs, double* pERatio, double* pCRatio,
                double Hms, double pMs, double Hss, double Pss, double Pds, double PF);

}  // namespace calvex
