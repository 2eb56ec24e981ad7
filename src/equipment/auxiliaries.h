/// \file
/// Steam-system auxiliaries by mass and energy balance: deaerator, desuperheater, pump, let-down
/// valve, boiler and flash vessel.
///
/// Values are in the client's units. Outputs are written as they are found: those before a failure
/// stay written. Answers 1, or 0 with the reason posted.
#pragma once

namespace calvex {

class ZvThermoInt;

/// Steam and make-up water in, deaerated water and a vent of MRatio times it out.
int DeAerator(ZvThermoInt& engine, double* pHd, double* pTd, double* pMw, double* pMs, double POp,
              double Hs, double Tw, double Md, double MRatio);

/// Steam cooled by spray water. pMs is the outlet flow of DeSuperHeater and the inlet flow of
/// DeSuperHeaterB.
int DeSuperHeater(ZvThermoInt& engine, double* pHs, double* pMw, double* pMs, double HIn, double Hw,
                  double POp, double TOp, double MIn);
int DeSuperHeaterB(ZvThermoInt& engine, double* pHs, double* pMw, double* pMs, double HIn,
                   double Hw, double POp, double TOp, double Mout);

/// Power and outlet enthalpy of a pump for liquid water.
int WaterPump(ZvThermoInt& engine, double* pHOut, double* pPower, double HIn, double PIn,
              double POut, double m, double Eff);

/// Isenthalpic throttle; the outlet pressure may be the higher one.
int LetDownValve(ZvThermoInt& engine, double* pTOut, double* pQOut, double HIn, double PIn,
                 double POut);

/// Duty of a boiler with a blowdown of BRatio times the steam; Boiler_B also fires it.
int Boiler(ZvThermoInt& engine, double* pMBd, double* pDeltaH, double* pHOut, double* pHBd,
           double* pMIn, double HIn, double Mout, double TOut, double POut, double BRatio);
int Boiler_B(ZvThermoInt& engine, double* pMBd, double* pDuty, double* pHOut, double* pHBd,
             double* pMIn, double* pQFired, double HIn, double Mout, double TOut, double POut,
             double BRatio, double Eff);

/// Vapour and liquid of a stream flashed at POp; the flows stay in the unit of MIn.
int FlashVessel(ZvThermoInt& engine, double* pTOut, double* pMVap, double* pMLiq, double* pHVap,
                double* pHLiq, double MIn, double HIn, double POp);

}  // namespace calvex
