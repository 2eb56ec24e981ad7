// The members of `IZvCalvex`, by dispatch id. The ids 14, ba, bb, c0, c1, c2 and c3 are reserved
// and never given to a member.
#include "server/member_table.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "engine/thermo_engine.h"
#include "equipment/auxiliaries.h"
#include "equipment/polynomial.h"
#include "equipment/turbines_compressors.h"
#include "server/operation.h"
#include "spreadsheet/result_arrays.h"

namespace calvex {

namespace {

using Engine = ZvThermoInt;
using detail::action;
using detail::method;
using detail::model;
using detail::setting;
using detail::silentSetting;
using detail::value;
using spreadsheet::XL;

// Outputs first, then inputs, each with the number of its unit group.
constexpr Member members[] = {
    setting<&Engine::SolverTol, &Engine::SetSolverTol>(0x01, "SolverTol"),
    setting<&Engine::SolverIter, &Engine::SetSolverIter>(0x02, "SolverIter"),
    setting<&Engine::TraceLevel, &Engine::SetTraceLevel>(0x03, "TraceLevel"),
    setting<&Engine::SatPolish, &Engine::SetSatPolish>(0x04, "SatPolish"),
    setting<&Engine::FunctionCallTracing, &Engine::SetFunctionCallTracing>(0x05,
                                                                           "FunctionCallTracing"),
    setting<&Engine::MaxTraceSize, &Engine::SetMaxTraceSize>(0x06, "MaxTraceSize"),
    setting<&Engine::LastError>(0x07, "LastError"),
    setting<&Engine::VersionStr>(0x08, "VersionStr"),
    value<&Engine::MolWeight>(0x09, "MolWeight", "pVal", 21),
    value<&Engine::CritT>(0x0a, "CritT", "pVal", 0),
    value<&Engine::CritP>(0x0b, "CritP", "pVal", 1),
    value<&Engine::CritV>(0x0c, "CritV", "pVal", 3),
    value<&Engine::CritR>(0x0d, "CritR", "pVal", 2),
    value<&Engine::CritZ>(0x0e, "CritZ", "pVal"),
    value<&Engine::TripleT>(0x0f, "TripleT", "pVal", 0),
    value<&Engine::TripleP>(0x10, "TripleP", "pVal", 1),
    value<&Engine::ShowTraceDlg>(0x11, "ShowTraceDlg", "pRet"),
    value<&Engine::ShowSelectUomDlg>(0x12, "ShowSelectUomDlg", "pRet"),
    value<&Engine::ShowOptionsDlg>(0x13, "ShowOptionsDlg", "pRet"),
    action<&Engine::ClearTraceInfo>(0x15, "ClearTraceInfo"),
    action<&Engine::AddCustomTraceTitle>(0x16, "AddCustomTraceTitle", "strTitle"),
    action<&Engine::SetCustomTraceText>(0x17, "SetCustomTraceText", "nIndex strText"),
    action<&Engine::GetCustomTraceText>(0x18, "GetCustomTraceText", "nIndex strText"),
    action<&Engine::AddExternalError>(0x19, "AddExternalError", "strName strText"),
    method<&Engine::SetUserUnit>(0x1a, "SetUserUnit", "groupStr newVal"),
    method<&Engine::GetUserUnit>(0x1b, "GetUserUnit", "groupStr pVal"),
    method<&Engine::SetUserUnitIndex>(0x1c, "SetUserUnitIndex", "nGroupID newVal"),
    method<&Engine::GetUserUnitIndex>(0x1d, "GetUserUnitIndex", "nGroupID pVal"),
    method<&Engine::Convert>(0x1e, "Convert", "strGroup strFromUnit strToUnit dblFromVal dblToVal"),
    method<&Engine::PSatT>(0x1f, "PSatT", "pP:1 T:0"),
    method<&Engine::TSatP>(0x20, "TSatP", "pT:0 P:1"),
    method<&Engine::HSatTQ>(0x21, "HSatTQ", "pH:5 T:0 Q:7"),
    method<&Engine::HSatPQ>(0x22, "HSatPQ", "pH:5 P:1 Q:7"),
    method<&Engine::SSatTQ>(0x23, "SSatTQ", "pS:4 T:0 Q:7"),
    method<&Engine::SSatPQ>(0x24, "SSatPQ", "pS:4 P:1 Q:7"),
    method<&Engine::USatTQ>(0x25, "USatTQ", "pU:6 T:0 Q:7"),
    method<&Engine::USatPQ>(0x26, "USatPQ", "pU:6 P:1 Q:7"),
    method<&Engine::RSatTQ>(0x27, "RSatTQ", "pR:2 T:0 Q:7"),
    method<&Engine::RSatPQ>(0x28, "RSatPQ", "pR:2 P:1 Q:7"),
    method<&Engine::PTH>(0x29, "PTH", "pP:1 T:0 H:5"),
    method<&Engine::PTS>(0x2a, "PTS", "pP:1 T:0 S:4"),
    method<&Engine::PTU>(0x2b, "PTU", "pP:1 T:0 U:6"),
    method<&Engine::PTR>(0x2c, "PTR", "pP:1 T:0 R:2"),
    method<&Engine::PTV>(0x2d, "PTV", "pP:1 T:0 V:3"),
    method<&Engine::TPH>(0x2e, "TPH", "pT:0 P:1 H:5"),
    method<&Engine::TPS>(0x2f, "TPS", "pT:0 P:1 S:4"),
    method<&Engine::TPU>(0x30, "TPU", "pT:0 P:1 U:6"),
    method<&Engine::TPR>(0x31, "TPR", "pT:0 P:1 R:2"),
    method<&Engine::TPV>(0x32, "TPV", "pT:0 P:1 V:3"),
    method<&Engine::HPT>(0x33, "HPT", "pH:5 P:1 T:0"),
    method<&Engine::HPTQ>(0x34, "HPTQ", "pH:5 P:1 T:0 Q:7"),
    method<&Engine::HPS>(0x35, "HPS", "pH:5 P:1 S:4"),
    method<&Engine::HPU>(0x36, "HPU", "pH:5 P:1 U:6"),
    method<&Engine::HPR>(0x37, "HPR", "pH:5 P:1 R:2"),
    method<&Engine::HPV>(0x38, "HPV", "pH:5 P:1 V:3"),
    method<&Engine::HTS>(0x39, "HTS", "pH:5 T:0 S:4"),
    method<&Engine::HTU>(0x3a, "HTU", "pH:5 T:0 U:6"),
    method<&Engine::HTR>(0x3b, "HTR", "pH:5 T:0 R:2"),
    method<&Engine::HTV>(0x3c, "HTV", "pH:5 T:0 V:3"),
    method<&Engine::SPT>(0x3d, "SPT", "pS:4 P:1 T:0"),
    method<&Engine::SPH>(0x3e, "SPH", "pS:4 P:1 H:5"),
    method<&Engine::SPU>(0x3f, "SPU", "pS:4 P:1 U:6"),
    method<&Engine::SPR>(0x40, "SPR", "pS:4 P:1 R:2"),
    method<&Engine::SPV>(0x41, "SPV", "pS:4 P:1 V:3"),
    method<&Engine::STH>(0x42, "STH", "pS:4 T:0 H:5"),
    method<&Engine::STU>(0x43, "STU", "pS:4 T:0 U:6"),
    method<&Engine::STR>(0x44, "STR", "pS:4 T:0 R:2"),
    method<&Engine::STV>(0x45, "STV", "pS:4 T:0 V:3"),
    method<&Engine::UPT>(0x46, "UPT", "pU:6 P:1 T:0"),
    method<&Engine::UPH>(0x47, "UPH", "pU:6 P:1 H:5"),
    method<&Engine::UPS>(0x48, "UPS", "pU:6 P:1 S:4"),
    method<&Engine::UPR>(0x49, "UPR", "pU:6 P:1 R:2"),
    method<&Engine::UPV>(0x4a, "UPV", "pU:6 P:1 V:3"),
    method<&Engine::UTH>(0x4b, "UTH", "pU:6 T:0 H:5"),
    method<&Engine::UTS>(0x4c, "UTS", "pU:6 T:0 S:4"),
    method<&Engine::UTR>(0x4d, "UTR", "pU:6 T:0 R:2"),
    method<&Engine::UTV>(0x4e, "UTV", "pU:6 T:0 V:3"),
    method<&Engine::RPT>(0x4f, "RPT", "pR:2 P:1 T:0"),
    method<&Engine::RPH>(0x50, "RPH", "pR:2 P:1 H:5"),
    method<&Engine::RPS>(0x51, "RPS", "pR:2 P:1 S:4"),
    method<&Engine::RPU>(0x52, "RPU", "pR:2 P:1 U:6"),
    method<&Engine::RTH>(0x53, "RTH", "pR:2 T:0 H:5"),
    method<&Engine::RTS>(0x54, "RTS", "pR:2 T:0 S:4"),
    method<&Engine::RTU>(0x55, "RTU", "pR:2 T:0 U:6"),
    method<&Engine::VPT>(0x56, "VPT", "pV:3 P:1 T:0"),
    method<&Engine::VPH>(0x57, "VPH", "pV:3 P:1 H:5"),
    method<&Engine::VPS>(0x58, "VPS", "pV:3 P:1 S:4"),
    method<&Engine::VPU>(0x59, "VPU", "pV:3 P:1 U:6"),
    method<&Engine::VTH>(0x5a, "VTH", "pV:3 T:0 H:5"),
    method<&Engine::VTS>(0x5b, "VTS", "pV:3 T:0 S:4"),
    method<&Engine::VTU>(0x5c, "VTU", "pV:3 T:0 U:6"),
    method<&Engine::QPH>(0x5d, "QPH", "pQ:7 P:1 H:5"),
    method<&Engine::QPS>(0x5e, "QPS", "pQ:7 P:1 S:4"),
    method<&Engine::QPU>(0x5f, "QPU", "pQ:7 P:1 U:6"),
    method<&Engine::QPR>(0x60, "QPR", "pQ:7 P:1 R:2"),
    method<&Engine::QPV>(0x61, "QPV", "pQ:7 P:1 V:3"),
    method<&Engine::QTH>(0x62, "QTH", "pQ:7 T:0 H:5"),
    method<&Engine::QTS>(0x63, "QTS", "pQ:7 T:0 S:4"),
    method<&Engine::QTU>(0x64, "QTU", "pQ:7 T:0 U:6"),
    method<&Engine::QTR>(0x65, "QTR", "pQ:7 T:0 R:2"),
    method<&Engine::QTV>(0x66, "QTV", "pQ:7 T:0 V:3"),
    method<&Engine::APT>(0x67, "APT", "pA:23 P:1 T:0"),
    method<&Engine::APH>(0x68, "APH", "pA:23 P:1 H:5"),
    method<&Engine::APS>(0x69, "APS", "pA:23 P:1 S:4"),
    method<&Engine::APU>(0x6a, "APU", "pA:23 P:1 U:6"),
    method<&Engine::APR>(0x6b, "APR", "pA:23 P:1 R:2"),
    method<&Engine::APV>(0x6c, "APV", "pA:23 P:1 V:3"),
    method<&Engine::ATH>(0x6d, "ATH", "pA:23 T:0 H:5"),
    method<&Engine::ATS>(0x6e, "ATS", "pA:23 T:0 S:4"),
    method<&Engine::ATU>(0x6f, "ATU", "pA:23 T:0 U:6"),
    method<&Engine::ATR>(0x70, "ATR", "pA:23 T:0 R:2"),
    method<&Engine::ATV>(0x71, "ATV", "pA:23 T:0 V:3"),
    method<&Engine::GPT>(0x72, "GPT", "pG:24 P:1 T:0"),
    method<&Engine::GPH>(0x73, "GPH", "pG:24 P:1 H:5"),
    method<&Engine::GPS>(0x74, "GPS", "pG:24 P:1 S:4"),
    method<&Engine::GPU>(0x75, "GPU", "pG:24 P:1 U:6"),
    method<&Engine::GPR>(0x76, "GPR", "pG:24 P:1 R:2"),
    method<&Engine::GPV>(0x77, "GPV", "pG:24 P:1 V:3"),
    method<&Engine::GTH>(0x78, "GTH", "pG:24 T:0 H:5"),
    method<&Engine::GTS>(0x79, "GTS", "pG:24 T:0 S:4"),
    method<&Engine::GTU>(0x7a, "GTU", "pG:24 T:0 U:6"),
    method<&Engine::GTR>(0x7b, "GTR", "pG:24 T:0 R:2"),
    method<&Engine::GTV>(0x7c, "GTV", "pG:24 T:0 V:3"),
    method<&Engine::MPT>(0x7d, "MPT", "pM:13 P:1 T:0"),
    method<&Engine::KPT>(0x7e, "KPT", "pK:14 P:1 T:0"),
    method<&Engine::CPT>(0x7f, "CPT", "pC:8 P:1 T:0"),
    method<&Engine::DPT>(0x80, "DPT", "pD:8 P:1 T:0"),
    method<&Engine::ZPT>(0x81, "ZPT", "pZ P:1 T:0"),
    method<&Engine::WPT>(0x82, "WPT", "pW:16 P:1 T:0"),
    method<&Engine::NPT>(0x83, "NPT", "pN P:1 T:0"),
    method<&Engine::EPT>(0x84, "EPT", "pE P:1 T:0"),
    method<&Engine::IPT>(0x85, "IPT", "pI:17 P:1 T:0"),
    method<&Engine::JPT>(0x86, "JPT", "pJ:18 P:1 T:0"),
    method<&Engine::BPT>(0x87, "BPT", "pB:19 P:1 T:0"),
    method<&Engine::LPT>(0x88, "LPT", "pL:20 P:1 T:0"),
    method<&Engine::XT>(0x89, "XT", "pX:15 T:0"),
    model<&TurbineA>(0x8a, "TurbineA",
                     "pPower:22 pTOut:0 pHOut:5 pQOut:7 HIn:5 PIn:1 POut:1 Eff:11 MIn:9"),
    model<&TurbineB>(0x8b, "TurbineB",
                     "pMIn:9 pTOut:0 pHOut:5 pQOut:7 HIn:5 PIn:1 POut:1 Eff:11 Power:22"),
    model<&TurbineA2>(0x8c, "TurbineA2",
                      "pPower:22 pTOut1:0 pTOut2:0 pHOut1:5 pHOut2:5 pQOut1:7 pQOut2:7 HIn:5 PIn:1 "
                      "POut1:1 POut2:1 Eff1:11 Eff2:11 MIn:9 MOut1:9"),
    model<&TurbineB2>(0x8d, "TurbineB2",
                      "pMOut2:9 pTOut1:0 pTOut2:0 pHOut1:5 pHOut2:5 pQOut1:7 pQOut2:7 HIn:5 PIn:1 "
                      "POut1:1 POut2:1 Eff1:11 Eff2:11 Power:22 MOut1:9"),
    model<&TurbineA3>(0x8e, "TurbineA3",
                      "pPower:22 pTOut1:0 pTOut2:0 pTOut3:0 pHOut1:5 pHOut2:5 pHOut3:5 pQOut1:7 "
                      "pQOut2:7 pQOut3:7 HIn:5 PIn:1 POut1:1 POut2:1 POut3:1 Eff1:11 Eff2:11 "
                      "Eff3:11 MIn:9 MOut1:9 MOut2:9"),
    model<&TurbineB3>(
        0x8f, "TurbineB3",
        "pMOut3:9 pTOut1:0 pTOut2:0 pTOut3:0 pHOut1:5 pHOut2:5 pHOut3:5 pQOut1:7 pQOut2:7 pQOut3:7 "
        "HIn:5 PIn:1 POut1:1 POut2:1 POut3:1 Eff1:11 Eff2:11 Eff3:11 Power:22 MOut1:9 MOut2:9"),
    model<&CompressorA>(0x90, "CompressorA",
                        "pPower:22 pTOut:0 pHOut:5 pQOut:7 HIn:5 PIn:1 POut:1 Eff:11 MIn:9"),
    model<&CompressorB>(0x91, "CompressorB",
                        "pMIn:9 pTOut:0 pHOut:5 pQOut:7 HIn:5 PIn:1 POut:1 Eff:11 Power:22"),
    model<&CompressorA2>(0x92, "CompressorA2",
                         "pPower:22 pTOut1:0 pTOut2:0 pHOut1:5 pHOut2:5 pQOut1:7 pQOut2:7 HIn:5 "
                         "PIn:1 POut1:1 POut2:1 Eff1:11 Eff2:11 MIn:9 MOut1:9"),
    model<&CompressorB2>(0x93, "CompressorB2",
                         "pMOut2:9 pTOut1:0 pTOut2:0 pHOut1:5 pHOut2:5 pQOut1:7 pQOut2:7 HIn:5 "
                         "PIn:1 POut1:1 POut2:1 Eff1:11 Eff2:11 Power:22 MOut1:9"),
    method<&DeAerator>(0x94, "DeAerator", "pHd:5 pTd:0 pMw:9 pMs:9 POp:1 Hs:5 Tw:0 Md:9 MRatio:12"),
    method<&DeSuperHeater>(0x95, "DeSuperHeater", "pHs:5 pMw:9 pMs:9 HIn:5 Hw:5 POp:1 TOp:0 MIn:9"),
    method<&LetDownValve>(0x96, "LetDownValve", "pTOut:0 pQOut:7 HIn:5 PIn:1 POut:1"),
    method<&Boiler>(0x97, "Boiler",
                    "pMBd:9 pDeltaH:10 pHOut:5 pHBd:5 pMIn:9 HIn:5 Mout:9 TOut:0 POut:1 BRatio:12"),
    method<&FlashVessel>(0x98, "FlashVessel",
                         "pTOut:0 pMVap:9 pMLiq:9 pHVap:5 pHLiq:5 MIn:9 HIn:5 POp:1"),
    action<&Engine::SetupExcelTracing>(0x99, "SetupExcelTracing"),
    action<&Engine::SetCellRef>(0x9a, "SetCellRef", "strBook strSheet strCell"),
    action<&Engine::GetCellRef>(0x9b, "GetCellRef", "strCellRef"),
    method<XL<&TurbineA>>(0x9c, "XLTurbineA",
                          "HIn:5 PIn:1 POut:1 Eff:11 MIn:9 strTokens pRetArray"),
    setting<&Engine::ReturnModelUnits, &Engine::SetReturnModelUnits>(0x9d, "ReturnModelUnits"),
    setting<&Engine::ReturnThermoUnits, &Engine::SetReturnThermoUnits>(0x9e, "ReturnThermoUnits"),
    method<XL<&TurbineB>>(0x9f, "XLTurbineB",
                          "HIn:5 PIn:1 POut:1 Eff:11 Power:22 strTokens pRetArray"),
    method<XL<&TurbineA2>>(
        0xa0, "XLTurbineA2",
        "HIn:5 PIn:1 POut1:1 POut2:1 Eff1:11 Eff2:11 MIn:9 MOut1:9 strTokens pRetArray"),
    method<XL<&TurbineB2>>(
        0xa1, "XLTurbineB2",
        "HIn:5 PIn:1 POut1:1 POut2:1 Eff1:11 Eff2:11 Power:22 MOut1:9 strTokens pRetArray"),
    method<XL<&TurbineA3>>(0xa2, "XLTurbineA3",
                           "HIn:5 PIn:1 POut1:1 POut2:1 POut3:1 Eff1:11 Eff2:11 Eff3:11 MIn:9 "
                           "MOut1:9 MOut2:9 strTokens pRetArray"),
    method<XL<&TurbineB3>>(0xa3, "XLTurbineB3",
                           "HIn:5 PIn:1 POut1:1 POut2:1 POut3:1 Eff1:11 Eff2:11 Eff3:11 Power:22 "
                           "MOut1:9 MOut2:9 strTokens pRetArray"),
    method<XL<&CompressorA>>(0xa4, "XLCompressorA",
                             "HIn:5 PIn:1 POut:1 Eff:11 MIn:9 strTokens pRetArray"),
    method<XL<&CompressorB>>(0xa5, "XLCompressorB",
                             "HIn:5 PIn:1 POut:1 Eff:11 Power:22 strTokens pRetArray"),
    method<XL<&CompressorA2>>(
        0xa6, "XLCompressorA2",
        "HIn:5 PIn:1 POut1:1 POut2:1 Eff1:11 Eff2:11 MIn:9 MOut1:9 strTokens pRetArray"),
    method<XL<&CompressorB2>>(
        0xa7, "XLCompressorB2",
        "HIn:5 PIn:1 POut1:1 POut2:1 Eff1:11 Eff2:11 Power:22 MOut1:9 strTokens pRetArray"),
    method<XL<&DeAerator>>(0xa8, "XLDeAerator",
                           "POp:1 Hs:5 Tw:0 Md:9 MRatio:12 strTokens pRetArray"),
    method<XL<&DeSuperHeater>>(0xa9, "XLDeSuperHeater",
                               "HIn:5 Hw:5 POp:1 TOp:0 MIn:9 strTokens pRetArray"),
    method<XL<&LetDownValve>>(0xaa, "XLLetDownValve", "HIn:5 PIn:1 POut:1 strTokens pRetArray"),
    method<XL<&Boiler>>(0xab, "XLBoiler",
                        "HIn:5 Mout:9 TOut:0 POut:1 BRatio:12 strTokens pRetArray"),
    method<XL<&FlashVessel>>(0xac, "XLFlashVessel", "MIn:9 HIn:5 POp:1 strTokens pRetArray"),
    method<XL<&GasTurbineA>>(0xad, "XLGasTurbineA",
                             "GTPower:22 FPRatio AirTemp:0 ExhaustTemp:0 SteamPress:1 SteamTemp:0 "
                             "BFWTemp:0 SteamDemand:9 DTMin:25 MinO2Stack strTokens pRetArray"),
    method<XL<&ThermoCompressorA>>(0xae, "XLThermoCompressorA",
                                   "MSP:1 MST:0 MSF:9 SSP:1 SST:0 SSF:9 strTokens pRetArray"),
    method<XL<&ThermoCompressorB>>(0xaf, "XLThermoCompressorB",
                                   "MSP:1 MST:0 SSP:1 SST:0 DSP:1 HXDuty:10 strTokens pRetArray"),
    method<XL<&ThermoCompressorC>>(0xb0, "XLThermoCompressorC",
                                   "MSP:1 MST:0 SSP:1 SST:0 DSP:1 DSF:9 strTokens pRetArray"),
    method<XL<&ThermoCompressorD>>(0xb1, "XLThermoCompressorD",
                                   "MSP:1 MST:0 SSP:1 SST:0 DSP:1 SSF:9 strTokens pRetArray"),
    method<XL<&ThermoCompressorE>>(0xb2, "XLThermoCompressorE",
                                   "MSP:1 MST:0 SSP:1 SST:0 DSP:1 MSF:9 strTokens pRetArray"),
    method<XL<&ThermoCompressorF>>(0xb3, "XLThermoCompressorF",
                                   "MSP:1 MST:0 SSP:1 SST:0 SSF:9 HXDuty:10 strTokens pRetArray"),
    method<XL<&ThermoCompressorG>>(0xb4, "XLThermoCompressorG",
                                   "MSP:1 MST:0 SSP:1 SST:0 MSF:9 HXDuty:10 strTokens pRetArray"),
    setting<&Engine::AppLevel, &Engine::SetAppLevel>(0xb5, "AppLevel"),
    method<XL<&HeatExchangerA>>(
        0xb6, "XLHeatExchangerA",
        "ColdFlowIn:9 ColdPressureIn:1 ColdDP:26 ColdTempIn:0 ColdTempOut:0 ColdQualityIn:7 "
        "ColdQualityOut:7 HotPressureIn:1 HotDP:26 HotTempIn:0 HotTempOut:0 HotQualityIn:7 "
        "HotQualityOut:7 strTokens pRetArray"),
    method<XL<&HeatExchangerB>>(
        0xb7, "XLHeatExchangerB",
        "ColdFlowIn:9 ColdPressureIn:1 ColdDP:26 ColdTempIn:0 HXDuty:10 ColdQualityIn:7 "
        "ColdQualityOut:7 HotPressureIn:1 HotDP:26 HotTempIn:0 HotTempOut:0 HotQualityIn:7 "
        "HotQualityOut:7 strTokens pRetArray"),
    setting<&Engine::ReturnModelTokens, &Engine::SetReturnModelTokens>(0xb8, "ReturnModelTokens"),
    action<&Engine::GetAlarms>(0xb9, "GetAlarms", "pAlarmArray"),
    setting<&Engine::AppName, &Engine::SetAppName>(0xbc, "AppName"),
    setting<&Engine::AppHelpFile, &Engine::SetAppHelpFile>(0xbd, "AppHelpFile"),
    silentSetting(0xbe, "hWnd", ValueType::longInteger),
    setting<&Engine::UomHelpContext, &Engine::SetUomHelpContext>(0xbf, "UomHelpContext"),
    method<&Engine::QT_PH>(0xc4, "QT_PH", "pQ:7 pT:0 P:1 H:5"),
    method<&Engine::HVLTSat_PQ>(0xc5, "HVLTSat_PQ", "pH:5 pHVap:5 pHLiq:5 pTSat:0 P:1 Q:7"),
    method<&Engine::QTS_PH>(0xc6, "QTS_PH", "pQ:7 pT:0 pS:4 P:1 H:5"),
    method<&DeSuperHeaterB>(0xc7, "DeSuperHeaterB",
                            "pHs:5 pMw:9 pMs:9 HIn:5 Hw:5 POp:1 TOp:0 Mout:9"),
    method<XL<&DeSuperHeaterB>>(0xc8, "XLDeSuperHeaterB",
                                "HIn:5 Hw:5 POp:1 TOp:0 Mout:9 strTokens pRetArray"),
    model<&TurbineE>(
        0xc9, "TurbineE",
        "pPower:22 pTOut:0 pHOut:5 pQOut:7 pSOut:4 HIn:5 PIn:1 POut:1 Eff:11 MIn:9 SIn:4"),
    method<XL<&TurbineE>>(0xca, "XLTurbineE",
                          "HIn:5 PIn:1 POut:1 Eff:11 MIn:9 SIn:4 strTokens pRetArray"),
    method<&Engine::SetCustomUserUnitIndex>(0xcb, "SetCustomUserUnitIndex",
                                            "nGroupID newVal CFactor COffset"),
    method<&SolvePoly5>(0xcc, "SolvePoly5", "T2 a b c d e f T1"),
    method<&WaterPump>(0xcd, "WaterPump", "pHOut:5 pPower:22 HIn:5 PIn:1 POut:1 m:9 Eff:11"),
    method<XL<&WaterPump>>(0xce, "XLWaterPump",
                           "HIn:5 PIn:1 POut:1 m:9 Eff:11 strTokens pRetArray"),
    method<XL<&ThermoCompA>>(0xcf, "XLThermoCompA",
                             "Hms:5 pMs:1 Hss:5 Pss:1 Pds:1 Rs:12 strTokens pRetArray"),
    method<XL<&ThermoCompB>>(0xd0, "XLThermoCompB",
                             "Hms:5 pMs:1 Hss:5 Pss:1 Pds:1 PF:12 strTokens pRetArray"),
    method<&Boiler_B>(0xd1, "Boiler_B",
                      "pMBd:9 pDuty:10 pHOut:5 pHBd:5 pMIn:9 pQFired:10 HIn:5 Mout:9 TOut:0 POut:1 "
                      "BRatio:12 Eff:11"),
    method<XL<&Boiler_B>>(0xd2, "XLBoiler_B",
                          "HIn:5 Mout:9 TOut:0 POut:1 BRatio:12 Eff:11 strTokens pRetArray"),
    method<&Engine::VSatTQ>(0xd3, "VSatTQ", "pV:3 T:0 Q:7"),
    method<&Engine::VSatPQ>(0xd4, "VSatPQ", "pV:3 P:1 Q:7"),
};

static_assert(std::ranges::is_sorted(members, {}, &Member::dispatchId));

std::string lowerCase(std::string_view name) {
  std::string lower(name);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

}  // namespace

std::string_view directionName(Direction direction) noexcept {
  switch (direction) {
    case Direction::in:
      return "in";
    case Direction::out:
      return "out";
    case Direction::inOut:
      return "in, out";
    case Direction::retval:
      return "out, retval";
  }
  return {};
}

std::span<const Member> memberTable() noexcept { return members; }

const Member* findMember(std::string_view name) {
  static const auto byName = [] {
    std::unordered_map<std::string, const Member*> map;
    for (const Member& member : members) map.emplace(lowerCase(member.name), &member);
    return map;
  }();
  const auto found = byName.find(lowerCase(name));
  return found == byName.end() ? nullptr : found->second;
}

const Member* findMember(int dispatchId) noexcept {
  const Member* found = std::ranges::lower_bound(members, dispatchId, {}, &Member::dispatchId);
  return found != std::end(members) && found->dispatchId == dispatchId ? found : nullptr;
}

}  // namespace calvex
