// The words for the members that are no properties: one row each. An equipment model and its
// spreadsheet variant share a row.
#include <algorithm>
#include <iterator>

#include "server/member_explanations.h"
#include "steam/constants.h"

namespace calvex::detail {

namespace {

using enum MemberHeading;

constexpr CommonWords commonWordTable[] = {
    {"HIn", "inlet enthalpy"},
    {"SIn", "inlet entropy"},
    {"PIn", "inlet pressure"},
    {"POut", "outlet pressure"},
    {"POut1", "pressure at outlet 1"},
    {"POut2", "pressure at outlet 2"},
    {"POut3", "pressure at outlet 3"},
    {"POp", "operating pressure"},
    {"TOp", "outlet temperature"},
    {"Eff", "isentropic efficiency"},
    {"Eff1", "isentropic efficiency to outlet 1"},
    {"Eff2", "isentropic efficiency from outlet 1 to outlet 2"},
    {"Eff3", "isentropic efficiency from outlet 2 to outlet 3"},
    {"MIn", "inlet flow"},
    {"Mout", "outlet flow"},
    {"MOut1", "flow that leaves at outlet 1"},
    {"MOut2", "flow that leaves at outlet 2"},
    {"MOut3", "flow that leaves at outlet 3"},
    {"Power", "shaft power"},
    {"TOut", "outlet temperature"},
    {"HOut", "outlet enthalpy"},
    {"SOut", "outlet entropy"},
    {"QOut", "outlet quality"},
    {"TOut1", "temperature at outlet 1"},
    {"TOut2", "temperature at outlet 2"},
    {"TOut3", "temperature at outlet 3"},
    {"HOut1", "enthalpy at outlet 1"},
    {"HOut2", "enthalpy at outlet 2"},
    {"HOut3", "enthalpy at outlet 3"},
    {"QOut1", "quality at outlet 1"},
    {"QOut2", "quality at outlet 2"},
    {"QOut3", "quality at outlet 3"},
    {"Hw", "enthalpy of the spray water"},
    {"BRatio", "blowdown flow per steam flow, plausibly 0 to 1"},
    {"MSP", "motive steam pressure"},
    {"MST", "motive steam temperature"},
    {"MSF", "motive steam flow"},
    {"SSP", "suction steam pressure"},
    {"SST", "suction steam temperature"},
    {"SSF", "suction steam flow"},
    {"DSP", "discharge pressure"},
    {"DSF", "discharge flow"},
    {"HXDuty", "heat given up by condensing the discharge"},
    {"Hms", "motive steam enthalpy"},
    {"pMs", "motive steam pressure"},
    {"Hss", "suction steam enthalpy"},
    {"Pss", "suction steam pressure"},
    {"Pds", "discharge pressure"},
    {"Rs", "motive flow per suction flow"},
    {"PF", "performance factor"},
    {"ColdFlowIn", "flow of the cold stream"},
    {"ColdPressureIn", "inlet pressure of the cold stream"},
    {"ColdDP", "pressure drop of the cold stream"},
    {"ColdTempIn", "inlet temperature of the cold stream"},
    {"ColdTempOut", "outlet temperature of the cold stream"},
    {"ColdQualityIn", "inlet quality of the cold stream, where it is on the saturation line"},
    {"ColdQualityOut", "outlet quality of the cold stream, where it is on the saturation line"},
    {"HotPressureIn", "inlet pressure of the hot stream"},
    {"HotDP", "pressure drop of the hot stream"},
    {"HotTempIn", "inlet temperature of the hot stream"},
    {"HotTempOut", "outlet temperature of the hot stream"},
    {"HotQualityIn", "inlet quality of the hot stream, where it is on the saturation line"},
    {"HotQualityOut", "outlet quality of the hot stream, where it is on the saturation line"},
    {"GTPower", "power of the gas turbine"},
    {"FPRatio", "power of the gas turbine per heat of its fuel, such as 0.3"},
    {"AirTemp", "temperature of the air"},
    {"ExhaustTemp", "temperature of the turbine's exhaust"},
    {"SteamPress", "steam pressure"},
    {"SteamTemp", "steam temperature"},
    {"BFWTemp", "temperature of the boiler feed water"},
    {"SteamDemand", "steam flow that is wanted"},
    {"DTMin", "least temperature difference of gas and water"},
    {"MinO2Stack", "oxygen that firing must leave in the stack, mole fraction such as 0.03"},
    {"strTokens", "which results, by their tokens"},
    {"RetArray", "a row for each token"},
};

constexpr std::string_view leavingFlows =
    "The flows are those that leave at each outlet: all of them pass the first stage. ";
constexpr std::string_view chart =
    "Motive steam draws suction steam and discharges the mixture at a pressure between, by a "
    "performance chart of expansion ratio (MSP/SSP), compression ratio (DSP/SSP) and flow ratio "
    "(MSF/SSF). MS is motive, SS suction and DS discharge steam; P, T and F are its pressure, "
    "temperature and flow. ";
constexpr std::string_view balance =
    "Motive steam draws suction steam and discharges the mixture at a pressure between, by "
    "balances "
    "of momentum and energy. The performance factor, above 0 up to 1, tells how good a machine "
    "is. ";
constexpr std::string_view qualityWhere =
    "A quality counts only where its temperature is the saturation temperature at the stream's "
    "pressure. Streams whose temperatures cross are warned of. ";

constexpr ExplanationRow rows[] = {
    // Constants.
    {"MolWeight", properties, "molar mass of water", "", "pVal=molar mass", "", "",
     "molecular weight"},
    {"CritT", properties, "critical temperature", "", "pVal=critical temperature", ""},
    {"CritP", properties, "critical pressure", "", "pVal=critical pressure", ""},
    {"CritV", properties, "critical specific volume", "", "pVal=critical specific volume", ""},
    {"CritR", properties, "critical density", "", "pVal=critical density", ""},
    {"CritZ", properties, "compressibility factor at the critical point", "",
     "pVal=critical compressibility factor", ""},
    {"TripleT", properties, "temperature of the triple point", "", "pVal=triple-point temperature",
     ""},
    {"TripleP", properties, "pressure of the triple point", "", "pVal=triple-point pressure", ""},

    // Turbines and compressors.
    {"TurbineA", equipment, "power of a steam turbine from its flow", "", "", "3374 10 1 0.8 10"},
    {"TurbineB", equipment, "flow of a steam turbine from its power",
     "At equal pressures there is no work, and the flow is infinite.", "", "3374 10 1 0.8 5000"},
    {"TurbineE", equipment, "power of a steam turbine, its inlet entropy given",
     "The entropy must be that of the inlet enthalpy and pressure (SPH).", "",
     "3374 10 1 0.8 10 6.597"},
    {"TurbineA2", equipment, "power of a steam turbine with two outlets from its flows",
     leavingFlows, "MIn=flow that leaves at outlet 1; MOut1=flow that leaves at outlet 2",
     "3374 10 3 1 0.8 0.8 4 6", "", "extraction"},
    {"TurbineB2", equipment, "last flow of a steam turbine with two outlets from its power",
     leavingFlows, "", "3374 10 3 1 0.8 0.8 5000 4", "", "extraction"},
    {"TurbineA3", equipment, "power of a steam turbine with three outlets from its flows",
     leavingFlows,
     "MIn=flow that leaves at outlet 1; MOut1=flow that leaves at outlet 2; "
     "MOut2=flow that leaves at outlet 3",
     "3374 10 3 1 0.3 0.8 0.8 0.8 3 3 4", "", "extraction"},
    {"TurbineB3", equipment, "last flow of a steam turbine with three outlets from its power",
     leavingFlows, "", "3374 10 3 1 0.3 0.8 0.8 0.8 6000 3 3", "", "extraction"},
    {"CompressorA", equipment, "power of a steam compressor from its flow", "", "",
     "2761 0.3 0.6 0.75 2"},
    {"CompressorB", equipment, "flow of a steam compressor from its power",
     "At equal pressures there is no work, and the flow is infinite.", "", "2761 0.3 0.6 0.75 400"},
    {"CompressorA2", equipment, "power of a steam compressor with two outlets from its flows",
     leavingFlows, "MIn=flow that leaves at outlet 1; MOut1=flow that leaves at outlet 2",
     "2761 0.3 0.6 1 0.75 0.75 1 1"},
    {"CompressorB2", equipment, "last flow of a steam compressor with two outlets from its power",
     leavingFlows, "", "2761 0.3 0.6 1 0.75 0.75 600 1"},

    // Auxiliaries.
    {"DeAerator", equipment, "steam and make-up water for a deaerator",
     "The deaerated water leaves as saturated liquid at the operating pressure, the vent as "
     "saturated vapour.",
     "Hs=enthalpy of the heating steam; Tw=temperature of the make-up water; "
     "Md=flow of deaerated water; MRatio=vent flow per flow of deaerated water, plausibly 0 to 1; "
     "pHd=enthalpy of the deaerated water; pTd=temperature of the deaerated water; "
     "pMw=flow of make-up water; pMs=flow of heating steam",
     "0.12 2800 320.15 10 0.01", "", "deaerator degasser feed tank"},
    {"DeSuperHeater", equipment, "spray water that cools steam, from the inlet flow",
     "On the saturation line the outlet is dry saturated steam.",
     "pHs=enthalpy of the cooled steam; pMw=flow of spray water; pMs=flow of cooled steam",
     "3374.52 444.54 0.4 453.15 2", "", "desuperheater attemperator"},
    {"DeSuperHeaterB", equipment, "spray water that cools steam, from the outlet flow",
     "On the saturation line the outlet is dry saturated steam.",
     "Mout=flow of cooled steam; pHs=enthalpy of the cooled steam; pMw=flow of spray water; "
     "pMs=inlet flow of steam",
     "3374.52 444.54 0.4 453.15 2", "", "desuperheater attemperator"},
    {"LetDownValve", equipment, "temperature and quality behind a let-down valve",
     "The enthalpy stays what it is.", "", "3374.5 6 0.4", "", "throttle reducing"},
    {"Boiler", equipment, "feed water, blowdown and duty of a boiler",
     "The blowdown is saturated liquid; at the saturation temperature the steam is dry saturated.",
     "HIn=enthalpy of the feed water; Mout=flow of steam; TOut=temperature of the steam; "
     "POut=pressure of the steam; pMBd=flow of blowdown; pDeltaH/Duty=heat taken up; "
     "pHOut=enthalpy of the steam; pHBd=enthalpy of the blowdown; pMIn=flow of feed water",
     "448.18 9.7 673.15 4.2 0.03"},
    {"Boiler_B", equipment, "feed water, blowdown, duty and firing of a boiler",
     "The blowdown is saturated liquid; at the saturation temperature the steam is dry saturated.",
     "HIn=enthalpy of the feed water; Mout=flow of steam; TOut=temperature of the steam; "
     "POut=pressure of the steam; Eff=firing efficiency; pMBd=flow of blowdown; pDuty=heat taken "
     "up; pHOut=enthalpy of the steam; pHBd=enthalpy of the blowdown; pMIn=flow of feed water; "
     "pQFired=heat of the fuel",
     "448.18 9.7 673.15 4.2 0.03 0.88"},
    {"FlashVessel", equipment, "vapour and liquid of a stream that is flashed",
     "The flows come in the unit of the inlet flow.",
     "pTOut=temperature in the vessel; pMVap=flow of vapour; pMLiq=flow of liquid; pHVap=enthalpy "
     "of the vapour, 0 without any; pHLiq=enthalpy of the liquid, 0 without any",
     "0.291 1101.4 0.12", "", "flash tank blowdown condensate"},
    {"WaterPump", equipment, "power of a pump for liquid water",
     "Water that is no liquid is refused.",
     "HIn=enthalpy of the water; m=flow; Eff=efficiency; pPower=shaft power",
     "439.38 0.12 6 10 0.7"},

    // Heat exchangers.
    {"XLHeatExchangerA", equipment, "duty and hot flow of a heat exchanger from its temperatures",
     qualityWhere, "", "10 1 0.05 320.15 360.15 0 0 0.3 0.02 423.15 393.15 1 0 \"D_Hx M_HOut\""},
    {"XLHeatExchangerB", equipment,
     "outlet temperature and hot flow of a heat exchanger from its duty",
     "A quality counts only where its temperature is the saturation temperature at the stream's "
     "pressure; ColdQualityOut is not used. Streams whose temperatures cross are warned of.",
     "HXDuty=heat from the hot to the cold stream",
     "10 1 0.05 320.15 1700 0 0 0.3 0.02 423.15 393.15 1 0 \"T_COut M_HOut\""},

    // Gas turbine.
    {"XLGasTurbineA", equipment, "gas turbine with a heat-recovery boiler and its firing",
     "What the exhaust raises alone is the base load; more steam is made by firing into the "
     "exhaust. "
     "A demand below the base load gives a negative fuel duty. Within 0.01 % of the base load "
     "nothing is fired: both dew points then read 278.4, as a plain number.",
     "", "5000 0.3 288.15 800 4 673.15 378.15 4 15 0.03 \"M_BaseLoad T_Whb D_WhbFuel M_Actual\"",
     "", "waste heat boiler HRSG WHB"},

    // Ejectors.
    {"XLThermoCompressorA", equipment,
     "discharge of a thermocompressor (steam ejector) from both flows", chart, "",
     "1 458.15 0.5 0.07 368.15 0.4 \"P_Out T_Out M_Out D_Hx\""},
    {"XLThermoCompressorB", equipment, "flows of a thermocompressor (steam ejector) from the duty",
     chart, "", "1 458.15 0.07 368.15 0.12 2000 \"M_Out M_Motive M_Suction\""},
    {"XLThermoCompressorC", equipment,
     "flows of a thermocompressor (steam ejector) from the discharge flow", chart, "",
     "1 458.15 0.07 368.15 0.12 1 \"M_Motive M_Suction D_Hx\""},
    {"XLThermoCompressorD", equipment,
     "flows of a thermocompressor (steam ejector) from the suction flow", chart, "",
     "1 458.15 0.07 368.15 0.12 0.5 \"M_Motive M_Out D_Hx\""},
    {"XLThermoCompressorE", equipment,
     "flows of a thermocompressor (steam ejector) from the motive flow", chart, "",
     "1 458.15 0.07 368.15 0.12 0.5 \"M_Suction M_Out D_Hx\""},
    {"XLThermoCompressorF", equipment,
     "discharge pressure of a thermocompressor (steam ejector) from duty and suction flow", chart,
     "", "1 458.15 0.07 368.15 0.4 2000 \"P_Out M_Motive M_Out\""},
    {"XLThermoCompressorG", equipment,
     "discharge pressure of a thermocompressor (steam ejector) from duty and motive flow", chart,
     "", "1 458.15 0.07 368.15 0.5 2000 \"P_Out M_Suction M_Out\""},
    {"XLThermoCompA", equipment,
     "performance factor of a thermocompressor (steam ejector) from its flow ratio", balance, "",
     "2790.59 1 2669.68 0.07 0.12 1.2 \"PerfF H_Out E_Ratio C_Ratio\""},
    {"XLThermoCompB", equipment,
     "flow ratio of a thermocompressor (steam ejector) from its performance factor", balance, "",
     "2790.59 1 2669.68 0.07 0.12 0.6 \"Rs_Out H_Out\""},
    {"SolvePoly5", equipment, "root of a polynomial of the fifth degree",
     "The polynomial is a + b T + c T^2 + d T^3 + e T^4 + f T^5. The answer is where the search "
     "ends, also when the polynomial has no root.",
     "T2=root; a=constant term; b=factor of T; c=factor of T^2; d=factor of T^3; e=factor of T^4; "
     "f=factor of T^5; T1=where the search starts",
     "-6 11 -6 1 0 0 0.5"},

    // Units.
    {"SetUserUnit", units, "choose the unit of a quantity", "",
     "groupStr=keyword of the quantity; newVal=name of the unit", "P bara"},
    {"GetUserUnit", units, "the unit of a quantity that is chosen now", "",
     "groupStr=keyword of the quantity; pVal/unit=chosen unit", "P"},
    {"SetUserUnitIndex", units, "choose the unit of a quantity by its number", "",
     "nGroupID=number of the quantity, 0 to 26; newVal=name of the unit", "1 bara"},
    {"GetUserUnitIndex", units, "the unit of a quantity, by its number, that is chosen now", "",
     "nGroupID=number of the quantity, 0 to 26; pVal/unit=chosen unit", "1"},
    {"SetCustomUserUnitIndex", units, "make a unit of one's own",
     "A value in the quantity's reference unit is (value + COffset) x CFactor; it needs AppLevel "
     "3.",
     "nGroupID=number of the quantity, 0 to 26; newVal=name of the new unit; CFactor=factor; "
     "COffset=offset",
     "1 mbar 100 0", "AppLevel 3"},
    {"Convert", units, "a value in another unit", "",
     "strGroup=keyword of the quantity; strFromUnit=unit of the value; strToUnit=unit of the "
     "answer; dblFromVal=value; dblToVal/value=converted value",
     "P psia bara 100"},
    {"ShowSelectUomDlg", units, "show the dialog that chooses units (Windows)",
     "It answers 1 when units were chosen and 2 when not. Elsewhere there is no dialog: 2.",
     "pRet=how the dialog ended", ""},

    // Diagnostics.
    {"LastError", diagnostics, "the reason of the last failure",
     "A call that succeeds does not empty it.", "pVal=last error", ""},
    {"ShowTraceDlg", diagnostics, "show the dialog with the traced calls (Windows)",
     "It answers 1 when it was closed, 999 when a call was chosen and 2 when it was cancelled. "
     "Elsewhere there is no dialog: 2.",
     "pRet=how the dialog ended", ""},
    {"ClearTraceInfo", diagnostics, "empty the trace and the last error", "", "", ""},
    {"AddCustomTraceTitle", diagnostics, "add a column of one's own to the trace", "",
     "strTitle=title of the column", "Cell"},
    {"SetCustomTraceText", diagnostics, "put a text into a column for the next traced call", "",
     "nIndex=number of the column, from 0; strText=text", "0 A1", "AddCustomTraceTitle Cell"},
    {"GetCustomTraceText", diagnostics, "the text that the next traced call will carry", "",
     "nIndex=number of the column, from 0; strText/text=text of the column", "0",
     "AddCustomTraceTitle Cell; SetCustomTraceText 0 A1"},
    {"AddExternalError", diagnostics, "record an error of one's own in the trace",
     "It becomes the last error.", "strName=where it happened; strText=what happened",
     "Budget \"The flows do not add up.\""},
    {"SetupExcelTracing", diagnostics, "give the trace the columns Book, Sheet and Cell", "", "",
     ""},
    {"SetCellRef", diagnostics, "name the cell that makes the next traced call", "",
     "strBook=workbook; strSheet=sheet; strCell=cell", "Plant.xlsx Boilers A1",
     "SetupExcelTracing"},
    {"GetCellRef", diagnostics, "the cell that makes the next traced call", "",
     "strCellRef/cell=cell with its workbook and sheet", "",
     "SetupExcelTracing; SetCellRef Plant.xlsx Boilers A1"},
    {"GetAlarms", diagnostics, "the list of alarms",
     "It has three fixed rows; there are no alarms behind them.", "pAlarmArray=names and messages",
     ""},

    // Settings. The example is a new value.
    {"SolverTol", settings, "tolerance of the solver",
     "How exactly a state meets its two given properties, relative.",
     "pVal=tolerance of the solver", "1e-10", "", "accuracy precision"},
    {"SolverIter", settings, "how many iterations the solver may take", "",
     "pVal=iterations of the solver", "500"},
    {"TraceLevel", settings, "what the trace records besides errors",
     "0 errors only, 1 also warnings, 2 also notes of the solver.", "pVal=reporting level", "2", "",
     "verbose warnings notes"},
    {"SatPolish", settings, "how exactly the saturation line is known",
     "0: the line is its correlation. 1: saturated states are solved exactly, and a pressure and "
     "temperature are tested against the correlation, so that within 0.16 % of the line the "
     "answer may be the other phase's. 2: the exact line decides there too: within 1e-4 of it "
     "the pressure and temperature do not determine the state, everywhere else the phase is the "
     "true one, and a quality that contradicts it is warned of. Any other number does what 1 does.",
     "pVal=exactness of the saturation line", "2", "", "phase boundary saturation"},
    {"FunctionCallTracing", settings, "whether calls and their errors are recorded",
     "1 yes, 0 no: failures then give no reason.", "pVal=recording of calls", "0"},
    {"MaxTraceSize", settings, "how many calls the trace keeps", "The oldest are dropped.",
     "pVal=calls that are kept", "100"},
    {"ReturnModelUnits", settings, "whether spreadsheet members answer the unit of each result",
     "0 no, anything else yes.", "pVal=units in the result arrays", "0"},
    {"ReturnThermoUnits", settings, "kept for clients that set it; nothing depends on it", "",
     "pVal=kept value", "1"},
    {"ReturnModelTokens", settings, "whether spreadsheet members answer the name of each result",
     "0 no, anything else yes.", "pVal=names in the result arrays", "0"},
    {"AppLevel", settings, "where units come from",
     "0 and 2: the catalogue; 1: a units server (Windows); 3: units of the client's own "
     "(SetCustomUserUnitIndex).",
     "pVal=source of units", "3"},
    {"AppName", settings, "name of the client, shown by the dialogs", "", "pVal=name of the client",
     "Plant"},
    {"AppHelpFile", settings, "help file of the client, opened by the dialogs", "",
     "pVal=help file of the client", "plant.chm"},
    {"UomHelpContext", settings, "page of the help file for the dialog of units", "",
     "pVal=page of the help file", "1"},
    {"VersionStr", settings, "version of the engine", "", "pVal=version", ""},
    {"hWnd", settings, "kept for clients that ask for a window; there is none", "",
     "pVal=no answer", ""},
    {"ShowOptionsDlg", settings, "kept for clients that ask for a dialog of options",
     "There is none: the answer is 2, cancelled.", "pRet=how the dialog ended", ""},
};

constexpr Limits onLineT{constants::triplePointTemperature, constants::criticalTemperature};
constexpr Limits onLineP{constants::triplePointPressure, constants::criticalPressure};
constexpr Limits none{};

constexpr SpecialLimits specialLimitTable[] = {
    // The ranges of the transport equations.
    {"MPT", "T", {273.15, 1073.15}},
    {"MPT", "P", {0.0, 1000.0, true}},
    {"KPT", "T", {273.15, 1073.15}},
    {"KPT", "P", {0.0, 100.0, true}},
    {"NPT", "T", {273.15, 1073.15}},
    {"NPT", "P", {0.0, 100.0, true}},
    {"EPT", "T", {273.15, 823.15}},
    {"EPT", "P", {0.0, 500.0, true}},
    // Models that ask for a saturated state at a pressure.
    {"DeAerator", "POp", onLineP},
    {"DeAerator", "Tw", onLineT},
    {"FlashVessel", "POp", onLineP},
    {"Boiler", "POut", onLineP},
    {"Boiler_B", "POut", onLineP},
    {"XLGasTurbineA", "SteamPress", onLineP},
    {"XLThermoCompressorB", "DSP", onLineP},
    {"XLThermoCompressorC", "DSP", onLineP},
    {"XLThermoCompressorD", "DSP", onLineP},
    {"XLThermoCompressorE", "DSP", onLineP},
    // Nothing is computed from it.
    {"LetDownValve", "PIn", {0.0, constants::highestPressure}},
    // Temperatures of a gas, which is no steam.
    {"XLGasTurbineA", "AirTemp", none},
    {"XLGasTurbineA", "ExhaustTemp", none},
    {"XLHeatExchangerB", "ColdQualityOut", none},
    {"XLThermoCompA", "Rs", {0.0}},
    {"XLThermoCompB", "PF", {0.0, 1.0, true}},
    {"SolverTol", "pVal", {1e-14, 1e-6, true, true}},
    {"SolverIter", "pVal", {51.0, 9998.0}},
    {"TraceLevel", "pVal", {0.0, 2.0}},
    {"MaxTraceSize", "pVal", {2.0, 32767.0}},
    {"AppLevel", "pVal", {0.0, 3.0}},
};

}  // namespace

const ExplanationRow* explanationRow(std::string_view member) noexcept {
  const auto* const found = std::ranges::find(rows, member, &ExplanationRow::member);
  return found == std::end(rows) ? nullptr : found;
}

std::string_view commonWords(std::string_view parameter) noexcept {
  const auto* const found = std::ranges::find(commonWordTable, parameter, &CommonWords::parameter);
  return found == std::end(commonWordTable) ? std::string_view() : found->words;
}

const Limits* specialLimits(std::string_view member, std::string_view parameter) noexcept {
  for (const SpecialLimits& special : specialLimitTable) {
    if (special.member == member && special.parameter == parameter) return &special.limits;
  }
  return nullptr;
}

}  // namespace calvex::detail
