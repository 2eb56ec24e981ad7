/// \file
/// Steam turbines and compressors by isentropic efficiency, with one to three outlets in series.
///
/// Values are in the client's units. Outputs are written as they are found: those before a failure
/// stay written. Answers 1, or 0 with the reason posted. `bCalcTQ` asks for the last outlet's
/// temperature and quality, `bCalcS` for its entropy.
#pragma once

namespace calvex {

class ZvThermoInt;

/// Power from the flow; positive when the turbine delivers it.
int TurbineA(ZvThermoInt& engine, double* pPower, double* pTOut, double* pHOut, double* pQOut,
             double HIn, double PIn, double POut, double Eff, double MIn, int bCalcTQ);

/// Flow from the power. Equal pressures divide by zero and give an infinite flow.
int TurbineB(ZvThermoInt& engine, double* pMIn, double* pTOut, double* pHOut, double* pQOut,
             double HIn, double PIn, double POut, double Eff, double Power, int bCalcTQ);

/// As TurbineA, with the inlet entropy given.
int TurbineE(ZvThermoInt& engine, double* pPower, double* pTOut, double* pHOut, double* pQOut,
             double* pSOut, double HIn, double PIn, double POut, double Eff, double MIn, double SIn,
             int bCalcTQ, int bCalcS);

/// Two outlets. The flows of the A members are those that leave: MIn at outlet 1, MOut1 at
/// outlet 2.
int TurbineA2(ZvThermoInt& engine, double* pPower, double* pTOut1, double* pTOut2, double* pHOut1,
              double* pHOut2, double* pQOut1, double* pQOut2, double HIn, double PIn, double POut1,
              double POut2, double Eff1, double Eff2, double MIn, double MOut1, int bCalcTQ);
int TurbineB2(ZvThermoInt& engine, double* pMOut2, double* pTOut1, double* pTOut2, double* pHOut1,
              double* pHOut2, double* pQOut1, double* pQOut2, double HIn, double PIn, double POut1,
              double POut2, double Eff1, double Eff2, double Power, double MOut1, int bCalcTQ);

/// Three outlets: MIn, MOut1 and MOut2 leave at outlets 1, 2 and 3.
int TurbineA3(ZvThermoInt& engine, double* pPower, double* pTOut1, double* pTOut2, double* pTOut3,
              double* pHOut1, double* pHOut2, double* pHOut3, double* pQOut1, double* pQOut2,
              double* pQOut3, double HIn, double PIn, double POut1, double POut2, double POut3,
              double Eff1, double Eff2, double Eff3, double MIn, double MOut1, double MOut2,
              int bCalcTQ);
int TurbineB3(ZvThermoInt& engine, double* pMOut3, double* pTOut1, double* pTOut2, double* pTOut3,
              double* pHOut1, double* pHOut2, double* pHOut3, double* pQOut1, double* pQOut2,
              double* pQOut3, double HIn, double PIn, double POut1, double POut2, double POut3,
              double Eff1, double Eff2, double Eff3, double Power, double MOut1, double MOut2,
              int bCalcTQ);

/// Compressors; the power is what they absorb.
int CompressorA(ZvThermoInt& engine, double* pPower, double* pTOut, double* pHOut, double* pQOut,
                double HIn, double PIn, double POut, double Eff, double MIn, int bCalcTQ);
int CompressorB(ZvThermoInt& engine, double* pMIn, double* pTOut, double* pHOut, double* pQOut,
                double HIn, double PIn, double POut, double Eff, double Power, int bCalcTQ);
int CompressorA2(ZvThermoInt& engine, double* pPower, double* pTOut1, double* pTOut2,
                 double* pHOut1, double* pHOut2, double* pQOut1, double* pQOut2, double HIn,
                 double PIn, double POut1, double POut2, double Eff1, double Eff2, double MIn,
                 double MOut1, int bCalcTQ);
int CompressorB2(ZvThermoInt& engine, double* pMOut2, double* pTOut1, double* pTOut2,
                 double* pHOut1, double* pHOut2, double* pQOut1, double* pQOut2, double HIn,
                 double PIn, double POut1, double POut2, double Eff1, double Eff2, double Power,
                 double MOut1, int bCalcTQ);

}  // namespace calvex
