/// \file
/// Two-stream water and steam heat exchangers.
///
/// Values are in the client's units. Outputs are written as they are found: those before a failure
/// stay written. Answers 1, or 0 with the reason posted.
#pragma once

namespace calvex {

class ZvThermoInt;

/// Duty and hot flow from all four temperatures.
int HeatExchangerA(ZvThermoInt& engine, double* pHCIn, double* pHCOut, double* pHHIn,
                   double* pHHOut, double* pMHOut, double* pDuty, double ColdFlowIn,
                   double ColdPressureIn, double ColdDP, double ColdTempIn, double ColdTempOut,
                   double ColdQualityIn, double ColdQualityOut, double HotPressureIn, double HotDP,
                   double HotTempIn, double HotTempOut, double HotQualityIn, double HotQualityOut);

/// Cold outlet temperature and hot flow from the duty; ColdQualityOut is not used.
int HeatExchangerB(ZvThermoInt& engine, double* pHCIn, double* pHCOut, double* pHHIn,
                   double* pHHOut, double* pMHOut, double* pTCOut, double ColdFlowIn,
                   double ColdPressureIn, double ColdDP, double ColdTempIn, double HXDuty,
                   double ColdQualityIn, double ColdQualityOut, double HotPressureIn, double HotDP,
                   double HotTempIn, double HotTempOut, double HotQualityIn, double HotQualityOut);

}  // namespace calvex
