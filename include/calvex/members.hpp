// Made by scripts/update-generated from the product's tables.
// clang-format off
#pragma once

// Included by calvex.hpp.
#include "calvex/results.hpp"

namespace calvex {

/// An engine with every member. Values are in the engine's units.
class Engine : public Core {
 public:
  /// tolerance of the solver
  double SolverTol() {
    return compute<1>(1, {}, {})[0];
  }
  void SetSolverTol(double value) { put(1, value); }
  /// how many iterations the solver may take
  int SolverIter() {
    return static_cast<int>(compute<1>(2, {}, {})[0]);
  }
  void SetSolverIter(int value) { put(2, value); }
  /// what the trace records besides errors
  int TraceLevel() {
    return static_cast<int>(compute<1>(3, {}, {})[0]);
  }
  void SetTraceLevel(int value) { put(3, value); }
  /// how exactly the saturation line is known
  int SatPolish() {
    return static_cast<int>(compute<1>(4, {}, {})[0]);
  }
  void SetSatPolish(int value) { put(4, value); }
  /// whether calls and their errors are recorded
  int FunctionCallTracing() {
    return static_cast<int>(compute<1>(5, {}, {})[0]);
  }
  void SetFunctionCallTracing(int value) { put(5, value); }
  /// how many calls the trace keeps
  int MaxTraceSize() {
    return static_cast<int>(compute<1>(6, {}, {})[0]);
  }
  void SetMaxTraceSize(int value) { put(6, value); }
  /// the reason of the last failure
  std::string LastError() {
    compute<0>(7, {}, {});
    return answeredText();
  }
  /// version of the engine
  std::string VersionStr() {
    compute<0>(8, {}, {});
    return answeredText();
  }
  /// molar mass of water
  double MolWeight() {
    return compute<1>(9, {}, {})[0];
  }
  /// critical temperature
  double CritT() {
    return compute<1>(10, {}, {})[0];
  }
  /// critical pressure
  double CritP() {
    return compute<1>(11, {}, {})[0];
  }
  /// critical specific volume
  double CritV() {
    return compute<1>(12, {}, {})[0];
  }
  /// critical density
  double CritR() {
    return compute<1>(13, {}, {})[0];
  }
  /// compressibility factor at the critical point
  double CritZ() {
    return compute<1>(14, {}, {})[0];
  }
  /// temperature of the triple point
  double TripleT() {
    return compute<1>(15, {}, {})[0];
  }
  /// pressure of the triple point
  double TripleP() {
    return compute<1>(16, {}, {})[0];
  }
  /// show the dialog with the traced calls (Windows)
  int ShowTraceDlg() {
    return static_cast<int>(compute<1>(17, {}, {})[0]);
  }
  /// show the dialog that chooses units (Windows)
  int ShowSelectUomDlg() {
    return static_cast<int>(compute<1>(18, {}, {})[0]);
  }
  /// kept for clients that ask for a dialog of options
  int ShowOptionsDlg() {
    return static_cast<int>(compute<1>(19, {}, {})[0]);
  }
  /// empty the trace and the last error
  void ClearTraceInfo() {
    compute<0>(21, {}, {});
  }
  /// add a column of one's own to the trace
  void AddCustomTraceTitle(std::string_view strTitle) {
    compute<0>(22, {}, {strTitle});
  }
  /// put a text into a column for the next traced call
  void SetCustomTraceText(int nIndex, std::string_view strText) {
    compute<0>(23, {double(nIndex)}, {strText});
  }
  /// the text that the next traced call will carry
  std::string GetCustomTraceText(int nIndex) {
    compute<0>(24, {double(nIndex)}, {});
    return answeredText();
  }
  /// record an error of one's own in the trace
  void AddExternalError(std::string_view strName, std::string_view strText) {
    compute<0>(25, {}, {strName, strText});
  }
  /// choose the unit of a quantity
  void SetUserUnit(std::string_view groupStr, std::string_view newVal) {
    compute<0>(26, {}, {groupStr, newVal});
  }
  /// the unit of a quantity that is chosen now
  std::string GetUserUnit(std::string_view groupStr) {
    compute<0>(27, {}, {groupStr});
    return answeredText();
  }
  /// choose the unit of a quantity by its number
  void SetUserUnitIndex(int nGroupID, std::string_view newVal) {
    compute<0>(28, {double(nGroupID)}, {newVal});
  }
  /// the unit of a quantity, by its number, that is chosen now
  std::string GetUserUnitIndex(int nGroupID) {
    compute<0>(29, {double(nGroupID)}, {});
    return answeredText();
  }
  /// a value in another unit
  double Convert(std::string_view strGroup, std::string_view strFromUnit, std::string_view strToUnit, double dblFromVal) {
    return compute<1>(30, {dblFromVal}, {strGroup, strFromUnit, strToUnit})[0];
  }
  /// saturation pressure from temperature
  double PSatT(double T) {
    return compute<1>(31, {T}, {})[0];
  }
  /// saturation temperature from pressure
  double TSatP(double P) {
    return compute<1>(32, {P}, {})[0];
  }
  /// saturated enthalpy from temperature and quality
  double HSatTQ(double T, double Q) {
    return compute<1>(33, {T, Q}, {})[0];
  }
  /// saturated enthalpy from pressure and quality
  double HSatPQ(double P, double Q) {
    return compute<1>(34, {P, Q}, {})[0];
  }
  /// saturated entropy from temperature and quality
  double SSatTQ(double T, double Q) {
    return compute<1>(35, {T, Q}, {})[0];
  }
  /// saturated entropy from pressure and quality
  double SSatPQ(double P, double Q) {
    return compute<1>(36, {P, Q}, {})[0];
  }
  /// saturated internal energy from temperature and quality
  double USatTQ(double T, double Q) {
    return compute<1>(37, {T, Q}, {})[0];
  }
  /// saturated internal energy from pressure and quality
  double USatPQ(double P, double Q) {
    return compute<1>(38, {P, Q}, {})[0];
  }
  /// saturated density from temperature and quality
  double RSatTQ(double T, double Q) {
    return compute<1>(39, {T, Q}, {})[0];
  }
  /// saturated density from pressure and quality
  double RSatPQ(double P, double Q) {
    return compute<1>(40, {P, Q}, {})[0];
  }
  /// pressure from temperature and enthalpy
  double PTH(double T, double H) {
    return compute<1>(41, {T, H}, {})[0];
  }
  /// pressure from temperature and entropy
  double PTS(double T, double S) {
    return compute<1>(42, {T, S}, {})[0];
  }
  /// pressure from temperature and internal energy
  double PTU(double T, double U) {
    return compute<1>(43, {T, U}, {})[0];
  }
  /// pressure from temperature and density
  double PTR(double T, double R) {
    return compute<1>(44, {T, R}, {})[0];
  }
  /// pressure from temperature and specific volume
  double PTV(double T, double V) {
    return compute<1>(45, {T, V}, {})[0];
  }
  /// temperature from pressure and enthalpy
  double TPH(double P, double H) {
    return compute<1>(46, {P, H}, {})[0];
  }
  /// temperature from pressure and entropy
  double TPS(double P, double S) {
    return compute<1>(47, {P, S}, {})[0];
  }
  /// temperature from pressure and internal energy
  double TPU(double P, double U) {
    return compute<1>(48, {P, U}, {})[0];
  }
  /// temperature from pressure and density
  double TPR(double P, double R) {
    return compute<1>(49, {P, R}, {})[0];
  }
  /// temperature from pressure and specific volume
  double TPV(double P, double V) {
    return compute<1>(50, {P, V}, {})[0];
  }
  /// enthalpy from pressure and temperature
  double HPT(double P, double T) {
    return compute<1>(51, {P, T}, {})[0];
  }
  /// enthalpy from pressure, temperature and quality
  double HPTQ(double P, double T, double Q) {
    return compute<1>(52, {P, T, Q}, {})[0];
  }
  /// enthalpy from pressure and entropy
  double HPS(double P, double S) {
    return compute<1>(53, {P, S}, {})[0];
  }
  /// enthalpy from pressure and internal energy
  double HPU(double P, double U) {
    return compute<1>(54, {P, U}, {})[0];
  }
  /// enthalpy from pressure and density
  double HPR(double P, double R) {
    return compute<1>(55, {P, R}, {})[0];
  }
  /// enthalpy from pressure and specific volume
  double HPV(double P, double V) {
    return compute<1>(56, {P, V}, {})[0];
  }
  /// enthalpy from temperature and entropy
  double HTS(double T, double S) {
    return compute<1>(57, {T, S}, {})[0];
  }
  /// enthalpy from temperature and internal energy
  double HTU(double T, double U) {
    return compute<1>(58, {T, U}, {})[0];
  }
  /// enthalpy from temperature and density
  double HTR(double T, double R) {
    return compute<1>(59, {T, R}, {})[0];
  }
  /// enthalpy from temperature and specific volume
  double HTV(double T, double V) {
    return compute<1>(60, {T, V}, {})[0];
  }
  /// entropy from pressure and temperature
  double SPT(double P, double T) {
    return compute<1>(61, {P, T}, {})[0];
  }
  /// entropy from pressure and enthalpy
  double SPH(double P, double H) {
    return compute<1>(62, {P, H}, {})[0];
  }
  /// entropy from pressure and internal energy
  double SPU(double P, double U) {
    return compute<1>(63, {P, U}, {})[0];
  }
  /// entropy from pressure and density
  double SPR(double P, double R) {
    return compute<1>(64, {P, R}, {})[0];
  }
  /// entropy from pressure and specific volume
  double SPV(double P, double V) {
    return compute<1>(65, {P, V}, {})[0];
  }
  /// entropy from temperature and enthalpy
  double STH(double T, double H) {
    return compute<1>(66, {T, H}, {})[0];
  }
  /// entropy from temperature and internal energy
  double STU(double T, double U) {
    return compute<1>(67, {T, U}, {})[0];
  }
  /// entropy from temperature and density
  double STR(double T, double R) {
    return compute<1>(68, {T, R}, {})[0];
  }
  /// entropy from temperature and specific volume
  double STV(double T, double V) {
    return compute<1>(69, {T, V}, {})[0];
  }
  /// internal energy from pressure and temperature
  double UPT(double P, double T) {
    return compute<1>(70, {P, T}, {})[0];
  }
  /// internal energy from pressure and enthalpy
  double UPH(double P, double H) {
    return compute<1>(71, {P, H}, {})[0];
  }
  /// internal energy from pressure and entropy
  double UPS(double P, double S) {
    return compute<1>(72, {P, S}, {})[0];
  }
  /// internal energy from pressure and density
  double UPR(double P, double R) {
    return compute<1>(73, {P, R}, {})[0];
  }
  /// internal energy from pressure and specific volume
  double UPV(double P, double V) {
    return compute<1>(74, {P, V}, {})[0];
  }
  /// internal energy from temperature and enthalpy
  double UTH(double T, double H) {
    return compute<1>(75, {T, H}, {})[0];
  }
  /// internal energy from temperature and entropy
  double UTS(double T, double S) {
    return compute<1>(76, {T, S}, {})[0];
  }
  /// internal energy from temperature and density
  double UTR(double T, double R) {
    return compute<1>(77, {T, R}, {})[0];
  }
  /// internal energy from temperature and specific volume
  double UTV(double T, double V) {
    return compute<1>(78, {T, V}, {})[0];
  }
  /// density from pressure and temperature
  double RPT(double P, double T) {
    return compute<1>(79, {P, T}, {})[0];
  }
  /// density from pressure and enthalpy
  double RPH(double P, double H) {
    return compute<1>(80, {P, H}, {})[0];
  }
  /// density from pressure and entropy
  double RPS(double P, double S) {
    return compute<1>(81, {P, S}, {})[0];
  }
  /// density from pressure and internal energy
  double RPU(double P, double U) {
    return compute<1>(82, {P, U}, {})[0];
  }
  /// density from temperature and enthalpy
  double RTH(double T, double H) {
    return compute<1>(83, {T, H}, {})[0];
  }
  /// density from temperature and entropy
  double RTS(double T, double S) {
    return compute<1>(84, {T, S}, {})[0];
  }
  /// density from temperature and internal energy
  double RTU(double T, double U) {
    return compute<1>(85, {T, U}, {})[0];
  }
  /// specific volume from pressure and temperature
  double VPT(double P, double T) {
    return compute<1>(86, {P, T}, {})[0];
  }
  /// specific volume from pressure and enthalpy
  double VPH(double P, double H) {
    return compute<1>(87, {P, H}, {})[0];
  }
  /// specific volume from pressure and entropy
  double VPS(double P, double S) {
    return compute<1>(88, {P, S}, {})[0];
  }
  /// specific volume from pressure and internal energy
  double VPU(double P, double U) {
    return compute<1>(89, {P, U}, {})[0];
  }
  /// specific volume from temperature and enthalpy
  double VTH(double T, double H) {
    return compute<1>(90, {T, H}, {})[0];
  }
  /// specific volume from temperature and entropy
  double VTS(double T, double S) {
    return compute<1>(91, {T, S}, {})[0];
  }
  /// specific volume from temperature and internal energy
  double VTU(double T, double U) {
    return compute<1>(92, {T, U}, {})[0];
  }
  /// quality from pressure and enthalpy
  double QPH(double P, double H) {
    return compute<1>(93, {P, H}, {})[0];
  }
  /// quality from pressure and entropy
  double QPS(double P, double S) {
    return compute<1>(94, {P, S}, {})[0];
  }
  /// quality from pressure and internal energy
  double QPU(double P, double U) {
    return compute<1>(95, {P, U}, {})[0];
  }
  /// quality from pressure and density
  double QPR(double P, double R) {
    return compute<1>(96, {P, R}, {})[0];
  }
  /// quality from pressure and specific volume
  double QPV(double P, double V) {
    return compute<1>(97, {P, V}, {})[0];
  }
  /// quality from temperature and enthalpy
  double QTH(double T, double H) {
    return compute<1>(98, {T, H}, {})[0];
  }
  /// quality from temperature and entropy
  double QTS(double T, double S) {
    return compute<1>(99, {T, S}, {})[0];
  }
  /// quality from temperature and internal energy
  double QTU(double T, double U) {
    return compute<1>(100, {T, U}, {})[0];
  }
  /// quality from temperature and density
  double QTR(double T, double R) {
    return compute<1>(101, {T, R}, {})[0];
  }
  /// quality from temperature and specific volume
  double QTV(double T, double V) {
    return compute<1>(102, {T, V}, {})[0];
  }
  /// Helmholtz energy from pressure and temperature
  double APT(double P, double T) {
    return compute<1>(103, {P, T}, {})[0];
  }
  /// Helmholtz energy from pressure and enthalpy
  double APH(double P, double H) {
    return compute<1>(104, {P, H}, {})[0];
  }
  /// Helmholtz energy from pressure and entropy
  double APS(double P, double S) {
    return compute<1>(105, {P, S}, {})[0];
  }
  /// Helmholtz energy from pressure and internal energy
  double APU(double P, double U) {
    return compute<1>(106, {P, U}, {})[0];
  }
  /// Helmholtz energy from pressure and density
  double APR(double P, double R) {
    return compute<1>(107, {P, R}, {})[0];
  }
  /// Helmholtz energy from pressure and specific volume
  double APV(double P, double V) {
    return compute<1>(108, {P, V}, {})[0];
  }
  /// Helmholtz energy from temperature and enthalpy
  double ATH(double T, double H) {
    return compute<1>(109, {T, H}, {})[0];
  }
  /// Helmholtz energy from temperature and entropy
  double ATS(double T, double S) {
    return compute<1>(110, {T, S}, {})[0];
  }
  /// Helmholtz energy from temperature and internal energy
  double ATU(double T, double U) {
    return compute<1>(111, {T, U}, {})[0];
  }
  /// Helmholtz energy from temperature and density
  double ATR(double T, double R) {
    return compute<1>(112, {T, R}, {})[0];
  }
  /// Helmholtz energy from temperature and specific volume
  double ATV(double T, double V) {
    return compute<1>(113, {T, V}, {})[0];
  }
  /// Gibbs energy from pressure and temperature
  double GPT(double P, double T) {
    return compute<1>(114, {P, T}, {})[0];
  }
  /// Gibbs energy from pressure and enthalpy
  double GPH(double P, double H) {
    return compute<1>(115, {P, H}, {})[0];
  }
  /// Gibbs energy from pressure and entropy
  double GPS(double P, double S) {
    return compute<1>(116, {P, S}, {})[0];
  }
  /// Gibbs energy from pressure and internal energy
  double GPU(double P, double U) {
    return compute<1>(117, {P, U}, {})[0];
  }
  /// Gibbs energy from pressure and density
  double GPR(double P, double R) {
    return compute<1>(118, {P, R}, {})[0];
  }
  /// Gibbs energy from pressure and specific volume
  double GPV(double P, double V) {
    return compute<1>(119, {P, V}, {})[0];
  }
  /// Gibbs energy from temperature and enthalpy
  double GTH(double T, double H) {
    return compute<1>(120, {T, H}, {})[0];
  }
  /// Gibbs energy from temperature and entropy
  double GTS(double T, double S) {
    return compute<1>(121, {T, S}, {})[0];
  }
  /// Gibbs energy from temperature and internal energy
  double GTU(double T, double U) {
    return compute<1>(122, {T, U}, {})[0];
  }
  /// Gibbs energy from temperature and density
  double GTR(double T, double R) {
    return compute<1>(123, {T, R}, {})[0];
  }
  /// Gibbs energy from temperature and specific volume
  double GTV(double T, double V) {
    return compute<1>(124, {T, V}, {})[0];
  }
  /// dynamic viscosity from pressure and temperature
  double MPT(double P, double T) {
    return compute<1>(125, {P, T}, {})[0];
  }
  /// thermal conductivity from pressure and temperature
  double KPT(double P, double T) {
    return compute<1>(126, {P, T}, {})[0];
  }
  /// isobaric heat capacity from pressure and temperature
  double CPT(double P, double T) {
    return compute<1>(127, {P, T}, {})[0];
  }
  /// isochoric heat capacity from pressure and temperature
  double DPT(double P, double T) {
    return compute<1>(128, {P, T}, {})[0];
  }
  /// compressibility factor from pressure and temperature
  double ZPT(double P, double T) {
    return compute<1>(129, {P, T}, {})[0];
  }
  /// speed of sound from pressure and temperature
  double WPT(double P, double T) {
    return compute<1>(130, {P, T}, {})[0];
  }
  /// Prandtl number from pressure and temperature
  double NPT(double P, double T) {
    return compute<1>(131, {P, T}, {})[0];
  }
  /// dielectric constant from pressure and temperature
  double EPT(double P, double T) {
    return compute<1>(132, {P, T}, {})[0];
  }
  /// isothermal throttling coefficient from pressure and temperature
  double IPT(double P, double T) {
    return compute<1>(133, {P, T}, {})[0];
  }
  /// Joule-Thomson coefficient from pressure and temperature
  double JPT(double P, double T) {
    return compute<1>(134, {P, T}, {})[0];
  }
  /// thermal expansion coefficient from pressure and temperature
  double BPT(double P, double T) {
    return compute<1>(135, {P, T}, {})[0];
  }
  /// isothermal compressibility from pressure and temperature
  double LPT(double P, double T) {
    return compute<1>(136, {P, T}, {})[0];
  }
  /// surface tension from temperature
  double XT(double T) {
    return compute<1>(137, {T}, {})[0];
  }
  /// power of a steam turbine from its flow
  TurbineAResult TurbineA(double HIn, double PIn, double POut, double Eff, double MIn) {
    const auto r = compute<4>(138, {HIn, PIn, POut, Eff, MIn}, {});
    return {r[0], r[1], r[2], r[3]};
  }
  /// flow of a steam turbine from its power
  TurbineBResult TurbineB(double HIn, double PIn, double POut, double Eff, double Power) {
    const auto r = compute<4>(139, {HIn, PIn, POut, Eff, Power}, {});
    return {r[0], r[1], r[2], r[3]};
  }
  /// power of a steam turbine with two outlets from its flows
  TurbineA2Result TurbineA2(double HIn, double PIn, double POut1, double POut2, double Eff1, double Eff2, double MIn, double MOut1) {
    const auto r = compute<7>(140, {HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1}, {});
    return {r[0], r[1], r[2], r[3], r[4], r[5], r[6]};
  }
  /// last flow of a steam turbine with two outlets from its power
  TurbineB2Result TurbineB2(double HIn, double PIn, double POut1, double POut2, double Eff1, double Eff2, double Power, double MOut1) {
    const auto r = compute<7>(141, {HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1}, {});
    return {r[0], r[1], r[2], r[3], r[4], r[5], r[6]};
  }
  /// power of a steam turbine with three outlets from its flows
  TurbineA3Result TurbineA3(double HIn, double PIn, double POut1, double POut2, double POut3, double Eff1, double Eff2, double Eff3, double MIn, double MOut1, double MOut2) {
    const auto r = compute<10>(142, {HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2}, {});
    return {r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7], r[8], r[9]};
  }
  /// last flow of a steam turbine with three outlets from its power
  TurbineB3Result TurbineB3(double HIn, double PIn, double POut1, double POut2, double POut3, double Eff1, double Eff2, double Eff3, double Power, double MOut1, double MOut2) {
    const auto r = compute<10>(143, {HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2}, {});
    return {r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7], r[8], r[9]};
  }
  /// power of a steam compressor from its flow
  CompressorAResult CompressorA(double HIn, double PIn, double POut, double Eff, double MIn) {
    const auto r = compute<4>(144, {HIn, PIn, POut, Eff, MIn}, {});
    return {r[0], r[1], r[2], r[3]};
  }
  /// flow of a steam compressor from its power
  CompressorBResult CompressorB(double HIn, double PIn, double POut, double Eff, double Power) {
    const auto r = compute<4>(145, {HIn, PIn, POut, Eff, Power}, {});
    return {r[0], r[1], r[2], r[3]};
  }
  /// power of a steam compressor with two outlets from its flows
  CompressorA2Result CompressorA2(double HIn, double PIn, double POut1, double POut2, double Eff1, double Eff2, double MIn, double MOut1) {
    const auto r = compute<7>(146, {HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1}, {});
    return {r[0], r[1], r[2], r[3], r[4], r[5], r[6]};
  }
  /// last flow of a steam compressor with two outlets from its power
  CompressorB2Result CompressorB2(double HIn, double PIn, double POut1, double POut2, double Eff1, double Eff2, double Power, double MOut1) {
    const auto r = compute<7>(147, {HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1}, {});
    return {r[0], r[1], r[2], r[3], r[4], r[5], r[6]};
  }
  /// steam and make-up water for a deaerator
  DeAeratorResult DeAerator(double POp, double Hs, double Tw, double Md, double MRatio) {
    const auto r = compute<4>(148, {POp, Hs, Tw, Md, MRatio}, {});
    return {r[0], r[1], r[2], r[3]};
  }
  /// spray water that cools steam, from the inlet flow
  DeSuperHeaterResult DeSuperHeater(double HIn, double Hw, double POp, double TOp, double MIn) {
    const auto r = compute<3>(149, {HIn, Hw, POp, TOp, MIn}, {});
    return {r[0], r[1], r[2]};
  }
  /// temperature and quality behind a let-down valve
  LetDownValveResult LetDownValve(double HIn, double PIn, double POut) {
    const auto r = compute<2>(150, {HIn, PIn, POut}, {});
    return {r[0], r[1]};
  }
  /// feed water, blowdown and duty of a boiler
  BoilerResult Boiler(double HIn, double Mout, double TOut, double POut, double BRatio) {
    const auto r = compute<5>(151, {HIn, Mout, TOut, POut, BRatio}, {});
    return {r[0], r[1], r[2], r[3], r[4]};
  }
  /// vapour and liquid of a stream that is flashed
  FlashVesselResult FlashVessel(double MIn, double HIn, double POp) {
    const auto r = compute<5>(152, {MIn, HIn, POp}, {});
    return {r[0], r[1], r[2], r[3], r[4]};
  }
  /// give the trace the columns Book, Sheet and Cell
  void SetupExcelTracing() {
    compute<0>(153, {}, {});
  }
  /// name the cell that makes the next traced call
  void SetCellRef(std::string_view strBook, std::string_view strSheet, std::string_view strCell) {
    compute<0>(154, {}, {strBook, strSheet, strCell});
  }
  /// the cell that makes the next traced call
  std::string GetCellRef() {
    compute<0>(155, {}, {});
    return answeredText();
  }
  /// power of a steam turbine from its flow, as an array of results
  Table XLTurbineA(double HIn, double PIn, double POut, double Eff, double MIn, std::string_view strTokens) {
    compute<0>(156, {HIn, PIn, POut, Eff, MIn}, {strTokens});
    return table();
  }
  /// whether spreadsheet members answer the unit of each result
  int ReturnModelUnits() {
    return static_cast<int>(compute<1>(157, {}, {})[0]);
  }
  void SetReturnModelUnits(int value) { put(157, value); }
  /// kept for clients that set it; nothing depends on it
  int ReturnThermoUnits() {
    return static_cast<int>(compute<1>(158, {}, {})[0]);
  }
  void SetReturnThermoUnits(int value) { put(158, value); }
  /// flow of a steam turbine from its power, as an array of results
  Table XLTurbineB(double HIn, double PIn, double POut, double Eff, double Power, std::string_view strTokens) {
    compute<0>(159, {HIn, PIn, POut, Eff, Power}, {strTokens});
    return table();
  }
  /// power of a steam turbine with two outlets from its flows, as an array of results
  Table XLTurbineA2(double HIn, double PIn, double POut1, double POut2, double Eff1, double Eff2, double MIn, double MOut1, std::string_view strTokens) {
    compute<0>(160, {HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1}, {strTokens});
    return table();
  }
  /// last flow of a steam turbine with two outlets from its power, as an array of results
  Table XLTurbineB2(double HIn, double PIn, double POut1, double POut2, double Eff1, double Eff2, double Power, double MOut1, std::string_view strTokens) {
    compute<0>(161, {HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1}, {strTokens});
    return table();
  }
  /// power of a steam turbine with three outlets from its flows, as an array of results
  Table XLTurbineA3(double HIn, double PIn, double POut1, double POut2, double POut3, double Eff1, double Eff2, double Eff3, double MIn, double MOut1, double MOut2, std::string_view strTokens) {
    compute<0>(162, {HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, MIn, MOut1, MOut2}, {strTokens});
    return table();
  }
  /// last flow of a steam turbine with three outlets from its power, as an array of results
  Table XLTurbineB3(double HIn, double PIn, double POut1, double POut2, double POut3, double Eff1, double Eff2, double Eff3, double Power, double MOut1, double MOut2, std::string_view strTokens) {
    compute<0>(163, {HIn, PIn, POut1, POut2, POut3, Eff1, Eff2, Eff3, Power, MOut1, MOut2}, {strTokens});
    return table();
  }
  /// power of a steam compressor from its flow, as an array of results
  Table XLCompressorA(double HIn, double PIn, double POut, double Eff, double MIn, std::string_view strTokens) {
    compute<0>(164, {HIn, PIn, POut, Eff, MIn}, {strTokens});
    return table();
  }
  /// flow of a steam compressor from its power, as an array of results
  Table XLCompressorB(double HIn, double PIn, double POut, double Eff, double Power, std::string_view strTokens) {
    compute<0>(165, {HIn, PIn, POut, Eff, Power}, {strTokens});
    return table();
  }
  /// power of a steam compressor with two outlets from its flows, as an array of results
  Table XLCompressorA2(double HIn, double PIn, double POut1, double POut2, double Eff1, double Eff2, double MIn, double MOut1, std::string_view strTokens) {
    compute<0>(166, {HIn, PIn, POut1, POut2, Eff1, Eff2, MIn, MOut1}, {strTokens});
    return table();
  }
  /// last flow of a steam compressor with two outlets from its power, as an array of results
  Table XLCompressorB2(double HIn, double PIn, double POut1, double POut2, double Eff1, double Eff2, double Power, double MOut1, std::string_view strTokens) {
    compute<0>(167, {HIn, PIn, POut1, POut2, Eff1, Eff2, Power, MOut1}, {strTokens});
    return table();
  }
  /// steam and make-up water for a deaerator, as an array of results
  Table XLDeAerator(double POp, double Hs, double Tw, double Md, double MRatio, std::string_view strTokens) {
    compute<0>(168, {POp, Hs, Tw, Md, MRatio}, {strTokens});
    return table();
  }
  /// spray water that cools steam, from the inlet flow, as an array of results
  Table XLDeSuperHeater(double HIn, double Hw, double POp, double TOp, double MIn, std::string_view strTokens) {
    compute<0>(169, {HIn, Hw, POp, TOp, MIn}, {strTokens});
    return table();
  }
  /// temperature and quality behind a let-down valve, as an array of results
  Table XLLetDownValve(double HIn, double PIn, double POut, std::string_view strTokens) {
    compute<0>(170, {HIn, PIn, POut}, {strTokens});
    return table();
  }
  /// feed water, blowdown and duty of a boiler, as an array of results
  Table XLBoiler(double HIn, double Mout, double TOut, double POut, double BRatio, std::string_view strTokens) {
    compute<0>(171, {HIn, Mout, TOut, POut, BRatio}, {strTokens});
    return table();
  }
  /// vapour and liquid of a stream that is flashed, as an array of results
  Table XLFlashVessel(double MIn, double HIn, double POp, std::string_view strTokens) {
    compute<0>(172, {MIn, HIn, POp}, {strTokens});
    return table();
  }
  /// gas turbine with a heat-recovery boiler and its firing
  Table XLGasTurbineA(double GTPower, double FPRatio, double AirTemp, double ExhaustTemp, double SteamPress, double SteamTemp, double BFWTemp, double SteamDemand, double DTMin, double MinO2Stack, std::string_view strTokens) {
    compute<0>(173, {GTPower, FPRatio, AirTemp, ExhaustTemp, SteamPress, SteamTemp, BFWTemp, SteamDemand, DTMin, MinO2Stack}, {strTokens});
    return table();
  }
  /// discharge of a thermocompressor (steam ejector) from both flows
  Table XLThermoCompressorA(double MSP, double MST, double MSF, double SSP, double SST, double SSF, std::string_view strTokens) {
    compute<0>(174, {MSP, MST, MSF, SSP, SST, SSF}, {strTokens});
    return table();
  }
  /// flows of a thermocompressor (steam ejector) from the duty
  Table XLThermoCompressorB(double MSP, double MST, double SSP, double SST, double DSP, double HXDuty, std::string_view strTokens) {
    compute<0>(175, {MSP, MST, SSP, SST, DSP, HXDuty}, {strTokens});
    return table();
  }
  /// flows of a thermocompressor (steam ejector) from the discharge flow
  Table XLThermoCompressorC(double MSP, double MST, double SSP, double SST, double DSP, double DSF, std::string_view strTokens) {
    compute<0>(176, {MSP, MST, SSP, SST, DSP, DSF}, {strTokens});
    return table();
  }
  /// flows of a thermocompressor (steam ejector) from the suction flow
  Table XLThermoCompressorD(double MSP, double MST, double SSP, double SST, double DSP, double SSF, std::string_view strTokens) {
    compute<0>(177, {MSP, MST, SSP, SST, DSP, SSF}, {strTokens});
    return table();
  }
  /// flows of a thermocompressor (steam ejector) from the motive flow
  Table XLThermoCompressorE(double MSP, double MST, double SSP, double SST, double DSP, double MSF, std::string_view strTokens) {
    compute<0>(178, {MSP, MST, SSP, SST, DSP, MSF}, {strTokens});
    return table();
  }
  /// discharge pressure of a thermocompressor (steam ejector) from duty and suction flow
  Table XLThermoCompressorF(double MSP, double MST, double SSP, double SST, double SSF, double HXDuty, std::string_view strTokens) {
    compute<0>(179, {MSP, MST, SSP, SST, SSF, HXDuty}, {strTokens});
    return table();
  }
  /// discharge pressure of a thermocompressor (steam ejector) from duty and motive flow
  Table XLThermoCompressorG(double MSP, double MST, double SSP, double SST, double MSF, double HXDuty, std::string_view strTokens) {
    compute<0>(180, {MSP, MST, SSP, SST, MSF, HXDuty}, {strTokens});
    return table();
  }
  /// where units come from
  int AppLevel() {
    return static_cast<int>(compute<1>(181, {}, {})[0]);
  }
  void SetAppLevel(int value) { put(181, value); }
  /// duty and hot flow of a heat exchanger from its temperatures
  Table XLHeatExchangerA(double ColdFlowIn, double ColdPressureIn, double ColdDP, double ColdTempIn, double ColdTempOut, double ColdQualityIn, double ColdQualityOut, double HotPressureIn, double HotDP, double HotTempIn, double HotTempOut, double HotQualityIn, double HotQualityOut, std::string_view strTokens) {
    compute<0>(182, {ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, ColdTempOut, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut}, {strTokens});
    return table();
  }
  /// outlet temperature and hot flow of a heat exchanger from its duty
  Table XLHeatExchangerB(double ColdFlowIn, double ColdPressureIn, double ColdDP, double ColdTempIn, double HXDuty, double ColdQualityIn, double ColdQualityOut, double HotPressureIn, double HotDP, double HotTempIn, double HotTempOut, double HotQualityIn, double HotQualityOut, std::string_view strTokens) {
    compute<0>(183, {ColdFlowIn, ColdPressureIn, ColdDP, ColdTempIn, HXDuty, ColdQualityIn, ColdQualityOut, HotPressureIn, HotDP, HotTempIn, HotTempOut, HotQualityIn, HotQualityOut}, {strTokens});
    return table();
  }
  /// whether spreadsheet members answer the name of each result
  int ReturnModelTokens() {
    return static_cast<int>(compute<1>(184, {}, {})[0]);
  }
  void SetReturnModelTokens(int value) { put(184, value); }
  /// the list of alarms
  Table GetAlarms() {
    compute<0>(185, {}, {});
    return table();
  }
  /// name of the client, shown by the dialogs
  std::string AppName() {
    compute<0>(188, {}, {});
    return answeredText();
  }
  void SetAppName(std::string_view value) { put(188, value); }
  /// help file of the client, opened by the dialogs
  std::string AppHelpFile() {
    compute<0>(189, {}, {});
    return answeredText();
  }
  void SetAppHelpFile(std::string_view value) { put(189, value); }
  /// kept for clients that ask for a window; there is none
  int hWnd() {
    return static_cast<int>(compute<1>(190, {}, {})[0]);
  }
  /// page of the help file for the dialog of units
  int UomHelpContext() {
    return static_cast<int>(compute<1>(191, {}, {})[0]);
  }
  void SetUomHelpContext(int value) { put(191, value); }
  /// quality and temperature from pressure and enthalpy
  QT_PHResult QT_PH(double P, double H) {
    const auto r = compute<2>(196, {P, H}, {});
    return {r[0], r[1]};
  }
  /// enthalpy, vapour enthalpy, liquid enthalpy and saturation temperature from pressure and quality
  HVLTSat_PQResult HVLTSat_PQ(double P, double Q) {
    const auto r = compute<4>(197, {P, Q}, {});
    return {r[0], r[1], r[2], r[3]};
  }
  /// quality, temperature and entropy from pressure and enthalpy
  QTS_PHResult QTS_PH(double P, double H) {
    const auto r = compute<3>(198, {P, H}, {});
    return {r[0], r[1], r[2]};
  }
  /// spray water that cools steam, from the outlet flow
  DeSuperHeaterBResult DeSuperHeaterB(double HIn, double Hw, double POp, double TOp, double Mout) {
    const auto r = compute<3>(199, {HIn, Hw, POp, TOp, Mout}, {});
    return {r[0], r[1], r[2]};
  }
  /// spray water that cools steam, from the outlet flow, as an array of results
  Table XLDeSuperHeaterB(double HIn, double Hw, double POp, double TOp, double Mout, std::string_view strTokens) {
    compute<0>(200, {HIn, Hw, POp, TOp, Mout}, {strTokens});
    return table();
  }
  /// power of a steam turbine, its inlet entropy given
  TurbineEResult TurbineE(double HIn, double PIn, double POut, double Eff, double MIn, double SIn) {
    const auto r = compute<5>(201, {HIn, PIn, POut, Eff, MIn, SIn}, {});
    return {r[0], r[1], r[2], r[3], r[4]};
  }
  /// power of a steam turbine, its inlet entropy given, as an array of results
  Table XLTurbineE(double HIn, double PIn, double POut, double Eff, double MIn, double SIn, std::string_view strTokens) {
    compute<0>(202, {HIn, PIn, POut, Eff, MIn, SIn}, {strTokens});
    return table();
  }
  /// make a unit of one's own
  void SetCustomUserUnitIndex(int nGroupID, std::string_view newVal, double CFactor, double COffset) {
    compute<0>(203, {double(nGroupID), CFactor, COffset}, {newVal});
  }
  /// root of a polynomial of the fifth degree
  double SolvePoly5(double a, double b, double c, double d, double e, double f, double T1) {
    return compute<1>(204, {a, b, c, d, e, f, T1}, {})[0];
  }
  /// power of a pump for liquid water
  WaterPumpResult WaterPump(double HIn, double PIn, double POut, double m, double Eff) {
    const auto r = compute<2>(205, {HIn, PIn, POut, m, Eff}, {});
    return {r[0], r[1]};
  }
  /// power of a pump for liquid water, as an array of results
  Table XLWaterPump(double HIn, double PIn, double POut, double m, double Eff, std::string_view strTokens) {
    compute<0>(206, {HIn, PIn, POut, m, Eff}, {strTokens});
    return table();
  }
  /// performance factor of a thermocompressor (steam ejector) from its flow ratio
  Table XLThermoCompA(double Hms, double pMs, double Hss, double Pss, double Pds, double Rs, std::string_view strTokens) {
    compute<0>(207, {Hms, pMs, Hss, Pss, Pds, Rs}, {strTokens});
    return table();
  }
  /// flow ratio of a thermocompressor (steam ejector) from its performance factor
  Table XLThermoCompB(double Hms, double pMs, double Hss, double Pss, double Pds, double PF, std::string_view strTokens) {
    compute<0>(208, {Hms, pMs, Hss, Pss, Pds, PF}, {strTokens});
    return table();
  }
  /// feed water, blowdown, duty and firing of a boiler
  Boiler_BResult Boiler_B(double HIn, double Mout, double TOut, double POut, double BRatio, double Eff) {
    const auto r = compute<6>(209, {HIn, Mout, TOut, POut, BRatio, Eff}, {});
    return {r[0], r[1], r[2], r[3], r[4], r[5]};
  }
  /// feed water, blowdown, duty and firing of a boiler, as an array of results
  Table XLBoiler_B(double HIn, double Mout, double TOut, double POut, double BRatio, double Eff, std::string_view strTokens) {
    compute<0>(210, {HIn, Mout, TOut, POut, BRatio, Eff}, {strTokens});
    return table();
  }
  /// saturated specific volume from temperature and quality
  double VSatTQ(double T, double Q) {
    return compute<1>(211, {T, Q}, {})[0];
  }
  /// saturated specific volume from pressure and quality
  double VSatPQ(double P, double Q) {
    return compute<1>(212, {P, Q}, {})[0];
  }
};

}  // namespace calvex
