/// \file
/// Thermocompressors (steam ejectors) by a performance chart of expansion, compression and
/// entrainment ratio.
///
/// MS, SS and DS are motive, suction and discharge steam; P, T and F its pressure, temperature and
/// flow; HXDuty the heat given up by condensing the discharge to saturated liquid. Values are in
/// the client's units. Answers 1, or 0 with the reason posted and nothing written.
///
/// A discharge within 0.01 % of saturated vapour counts as saturated, and a wet one gives up the
/// duty of saturated vapour.
#pragma once

namespace calvex {

class ZvThermoInt;

/// Compression ratio of an expansion ratio and an entrainment (motive/suction) ratio; -1 where the
/// chart has none.
double ChartCompressionRatio(double ER, double R);

/// Entrainment ratio of an expansion and a compression ratio; -1 where the chart has none.
double ChartEntrainmentRatio(double ER, double CR);

/// Discharge of given motive and suction steam.
int ThermoCompressorA(ZvThermoInt& engine, double* pDSP, double* pDST, double* pDSF,
                      double* pHXDuty, double MSP, double MST, double MSF, double SSP, double SST,
                      double SSF);

/// At a given discharge pressure, from the duty, the discharge, suction or motive flow.
int ThermoCompressorB(ZvThermoInt& engine, double* pDSF, double* pDST, double* pMSF, double* pSSF,
                      double MSP, double MST, double SSP, double SST, double DSP, double HXDuty);
int ThermoCompressorC(ZvThermoInt& engine, double* pDST, double* pHXDuty, double* pMSF,
                      double* pSSF, double MSP, double MST, double SSP, double SST, double DSP,
                      double DSF);
int ThermoCompressorD(ZvThermoInt& engine, double* pDST, double* pHXDuty, double* pDSF,
                      double* pMSF, double MSP, double MST, double SSP, double SST, double DSP,
                      double SSF);
int ThermoCompressorE(ZvThermoInt& engine, double* pDST, double* pHXDuty, double* pDSF,
                      double* pSSF, double MSP, double MST, double SSP, double SST, double DSP,
                      double MSF);

/// The discharge pressure at which a suction (F) or motive (G) flow meets the duty, with an
/// entrainment ratio of 1e-4 to 100. Fails if there is none, also for a duty that the step to a
/// saturated discharge jumps over (some 0.01 % wide).
int ThermoCompressorF(ZvThermoInt& engine, double* pDST, double* pDSP, double* pDSF, double* pMSF,
                      double MSP, double MST, double SSP, double SST, double SSF, double HXDuty);
int ThermoCompressorG(ZvThermoInt& engine, double* pDST, double* pDSP, double* pDSF, double* pSSF,
                      double MSP, double MST, double SSP, double SST, double MSF, double HXDuty);

}  // namespace calvex
