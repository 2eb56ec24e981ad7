/// \file
/// Thermocompressors (steam ejectors) by momentum and energy balance.
///
/// Values are in the client's units. Answers 1, or 0 with the reason posted.
#pragma once

namespace calvex {

class ZvThermoInt;

/// Performance factor from the motive/suction flow ratio Rs.
int ThermoCompA(ZvThermoInt& engine, double* pHOut, double* pPerfF, double* pERatio,
                double* pCRatio, double Hms, double pMs, double Hss, double Pss, double Pds,
                double Rs);

/// Motive/suction flow ratio from the performance factor PF.
int ThermoCompB(ZvThermoInt& engine, double* pHOut, double* pRs, double* pERatio, double* pCRatio,
                double Hms, double pMs, double Hss, double Pss, double Pds, double PF);

}  // namespace calvex
