/// \file
/// The engine: everything that a client can compute, in the client's units, with a record of every
/// call.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "diagnostics/diagnostics.h"
#include "engine/dialogs.h"
#include "engine/property_members.h"
#include "engine/result_array.h"
#include "steam/constants.h"
#include "steam/steam_model.h"
#include "units/user_units.h"

namespace calvex {

/// Limits of the hard and of the strictly valid range. K, MPa.
struct RangeLimits {
  double TMin = constants::lowestTemperature;
  double TMax = constants::highestTemperature;
  double PMin = 0.0;
  double PMax = constants::highestPressure;
  double TStrictMin = 273.15;
  double TStrictMax = 1273.15;
  double PStrictMin = 0.0;
};

/// The engine. Every operation returns 1 for success and 0 for failure unless it says otherwise,
/// takes and returns values in the client's units (texts in UTF-8), writes its outputs only
/// on success, lets no exception out, and leaves the reason of a failure in the trace and in
/// `LastError`.
///
/// One engine serves one thread at a time; engines share nothing.
class ZvThermoInt {
 public:
  explicit ZvThermoInt(UnitsServerFactory unitsServer = {}, std::unique_ptr<Dialogs> dialogs = {});

  /// All settings, the trace and the last error back to their defaults. The units that the client
  /// chose stay.
  void Reset();

  /// Takes over another engine's units and the settings that results depend on: those of the solver
  /// and of the saturation line.
  void TakeSettings(const ZvThermoInt& other);

  // Properties from two others
  // --------------------------------------------------------------------- The letters: result, then
  // the two inputs in the order of the arguments. P pressure, T temperature, H enthalpy, S entropy,
  // U internal energy, R density, V specific volume, Q vapour mass fraction, A Helmholtz energy, G
  // Gibbs energy, M dynamic viscosity, K thermal conductivity, C and D isobaric and isochoric heat
  // capacity, Z compressibility factor, W speed of sound, N Prandtl number, E static dielectric
  // constant, I isothermal throttling coefficient, J Joule-Thomson coefficient, B thermal expansion
  // coefficient, L isothermal compressibility.
#define X(result, first, second, twoPhases)                                           \
  int result##first##second(double* p##result, double first, double second) {         \
    return property(PropertyMember::result##first##second, p##result, first, second); \
  }
  CALVEX_PROPERTY_MEMBERS(X)
#undef X

  /// Enthalpy from pressure and temperature, on the saturation line with quality Q.
  int HPTQ(double* pH, double P, double T, double Q);
  /// Quality and temperature (and entropy, density) from pressure and enthalpy.
  int QT_PH(double* pQ, double* pT, double P, double H);
  int QTS_PH(double* pQ, double* pT, double* pS, double P, double H);
  int QTR_PH(double* pQ, double* pT, double* pR, double P, double H);
  /// Surface tension of saturated water.
  int XT(double* pX, double T);

  // Saturation line: temperature within [TripleT, CritT], pressure within [TripleP, CritP]
  // ---------
  int PSatT(double* pP, double T);
  int TSatP(double* pT, double P);
#define X(result)                                                                                \
  int result##SatTQ(double* p##result, double T, double Q) {                                     \
    return saturation(#result "SatTQ", Quantity::Letter::result, Quantity::Letter::T, p##result, \
                      T, Q);                                                                     \
  }                                                                                              \
  int result##SatPQ(double* p##result, double P, double Q) {                                     \
    return saturation(#result "SatPQ", Quantity::Letter::result, Quantity::Letter::P, p##result, \
                      P, Q);                                                                     \
  }
  CALVEX_SATURATION_RESULTS(X)
#undef X
  /// Mixture, saturated vapour and saturated liquid enthalpy and the saturation temperature.
  int HVLTSat_PQ(double* pH, double* pHVap, double* pHLiq, double* pTSat, double P, double Q);

  // Constants (the value itself is returned; none, a NaN, when the units server refuses)
  // --------------------------------------------------------
  double MolWeight() const;
  double CritT() const;
  double CritP() const;
  double CritV() const;
  double CritR() const;
  double CritZ() const;
  double TripleT() const;
  double TripleP() const;

  // Units
  // ------------------------------------------------------------------------------------------
  int SetUserUnit(std::string_view groupStr, std::string_view newVal);
  int GetUserUnit(std::string_view groupStr, std::string* pVal);
  int SetUserUnitIndex(short nGroupID, std::string_view newVal);
  int GetUserUnitIndex(short nGroupID, std::string* pVal);
  int SetCustomUserUnitIndex(short nGroupID, std::string_view newVal, double CFactor,
                             double COffset);
  int Convert(std::string_view strGroup, std::string_view strFromUnit, std::string_view strToUnit,
              double dblFromVal, double* dblToVal);

  // Trace, errors, cell references, alarms
  // ------------------------------------------------------------
  int ClearTraceInfo();
  int AddCustomTraceTitle(std::string_view strTitle);
  int SetCustomTraceText(int nIndex, std::string_view strText);
  int GetCustomTraceText(int nIndex, std::string* strText);
  int AddExternalError(std::string_view strName, std::string_view strText);
  int SetupExcelTracing();
  int SetCellRef(std::string_view strBook, std::string_view strSheet, std::string_view strCell);
  int GetCellRef(std::string* strCellRef);
  int GetAlarms(ResultArray* pAlarmArray);

  // Dialogs: the DialogResult as a number; 2, cancelled, where the platform gave none
  // ----------------------------------
  short ShowTraceDlg();
  short ShowSelectUomDlg();
  short ShowOptionsDlg();

  // Settings
  // -----------------------------------------------------------------------------------------
  double SolverTol() const { return steam_.solver().tolerance(); }
  int SetSolverTol(double newVal);
  short SolverIter() const { return static_cast<short>(steam_.solver().iterations()); }
  int SetSolverIter(short newVal);
  short TraceLevel() const { return diagnostics_.level(); }
  int SetTraceLevel(short newVal);
  int SatPolish() const { return steam_.satPolish(); }
  int SetSatPolish(int newVal);
  int FunctionCallTracing() const { return diagnostics_.tracingFlag(); }
  int SetFunctionCallTracing(int newVal);
  short MaxTraceSize() const { return static_cast<short>(diagnostics_.maxTraceSize()); }
  int SetMaxTraceSize(short newVal);
  int ReturnModelUnits() const { return returnModelUnits_; }
  int SetReturnModelUnits(int newVal);
  int ReturnThermoUnits() const { return returnThermoUnits_; }
  int SetReturnThermoUnits(int newVal);
  int ReturnModelTokens() const { return returnModelTokens_; }
  int SetReturnModelTokens(int newVal);
  short AppLevel() const { return static_cast<short>(units_.mode()); }
  int SetAppLevel(short newVal);
  const std::string& AppName() const { return appName_; }
  int SetAppName(std::string_view newVal);
  const std::string& AppHelpFile() const { return appHelpFile_; }
  int SetAppHelpFile(std::string_view newVal);
  int UomHelpContext() const { return uomHelpContext_; }
  int SetUomHelpContext(int newVal);
  const std::string& LastError() const { return diagnostics_.lastError(); }
  std::string_view VersionStr() const { return messageText(Message::version); }

  // Live automation objects: the last release resets the engine
  // ---------------------------------------
  void AddObject() noexcept { ++liveObjects_; }
  void ReleaseObject();
  int liveObjects() const noexcept { return liveObjects_; }

  // For the models built on the engine
  // ------------------------------------------------------------------
  Diagnostics& diagnostics() noexcept { return diagnostics_; }
  const Diagnostics& diagnostics() const noexcept { return diagnostics_; }
  const UserUnits& units() const noexcept { return units_; }
  SteamModel& steam() noexcept { return steam_; }

  /// Traces `body` as a call of that name (static storage) and turns an exception into a posted
  /// error and 0. `body` answers true for success.
  template <class Body>
  int call(std::string_view name, Body&& body) {
    const ZvFuncTrace trace(diagnostics_, name);
    try {
      return body() ? 1 : 0;
    } catch (const std::exception& failure) {
      diagnostics_.postError(failure.what());
      return 0;
    }
  }

  /// Hard limits: message 108 and false. Strict limits: warning 201 and true. K, MPa; the strict
  /// upper pressure depends on the temperature. A value that only the conversion from the client's
  /// unit moved past a hard limit is at the limit.
  bool validTemperature(std::string_view name, double& T);
  bool validPressure(std::string_view name, double& P, double T = temperatureOfNone);
  /// Within [lower, upper], else message 108 with the bounds in the client's unit; moved onto a
  /// bound as above.
  bool validRange(std::string_view name, double& value, double lower, double upper,
                  UnitGroup group);
  // The same for a value that is only looked at.
  bool validTemperature(std::string_view name, const double& T) {
    double looked = T;
    return validTemperature(name, looked);
  }
  bool validPressure(std::string_view name, const double& P, double T = temperatureOfNone) {
    double looked = P;
    return validPressure(name, looked, T);
  }
  bool validRange(std::string_view name, const double& value, double lower, double upper,
                  UnitGroup group) {
    double looked = value;
    return validRange(name, looked, lower, upper, group);
  }
  /// At least zero, else message 102.
  bool notNegative(std::string_view name, UnitGroup group, double value);
  /// Posts the error, and what is behind it where that is given, and answers false.
  bool fail(Message message, std::string_view cause = {});
  bool fail(std::string_view text, std::string_view cause = {});

  /// The name of the unit in which the client has that quantity.
  [[nodiscard]] std::string unitName(UnitGroup group) const;
  /// A value in model units as the client reads it: "10 bara".
  [[nodiscard]] std::string inUserUnit(UnitGroup group, double value, int digits = 10) const;

  /// Writes a result of that group in the client's unit. A value that is not finite is none:
  /// message 104 and false.
  bool give(double* out, UnitGroup group, double value);
  bool give(double* out, double value);
  /// Stores what the value in the unit `from` is in the unit `to`; where that is not finite the
  /// error tells which conversion it was.
  bool giveConverted(double* out, double result, double value, std::string_view from,
                     std::string_view to);

  /// Where no temperature is known the strict pressure limit is that of 400 K.
  static constexpr double temperatureOfNone = 400.0;

 private:
  /// Two properties that a state is asked for by, in model units.
  struct GivenPair {
    Quantity::Letter first;
    double x1;
    Quantity::Letter second;
    double x2;
  };

  int property(PropertyMember::Index index, double* out, double first, double second);
  void moveOntoBound(double& value, double lower, double upper, UnitGroup group) const;
  bool validInputs(const PropertyMember& member, double& first, double& second);
  bool validTransportRange(Quantity::Letter result, double& P, double& T);
  Phases stateOf(const PropertyMember& member, double first, double second);
  bool onLine(const PropertyMember& member, double* out, double userFirst);
  template <class Solve>
  std::optional<Phases> solved(const GivenPair& given, Solve&& solve);
  void explainNoState(const GivenPair& given);
  bool failBetweenPhases(const PropertyMember& member, const GivenPair& given);
  bool validOnLine(Quantity::Letter given, double& value);
  int saturation(std::string_view name, Quantity::Letter result, Quantity::Letter given,
                 double* out, double first, double Q);
  int fromPH(std::string_view name, double* pQ, double* pT, Property third, UnitGroup thirdGroup,
             double* pThird, double P, double H);
  [[nodiscard]] double constant(UnitGroup group, double value) const;
  bool isOnLine(double P, double T);
  void warnOfQuality(double P, double T, double Q);
  void warnOfUnstableWater();
  void explainRange(std::string_view name, double value, double lower, double upper,
                    UnitGroup group);
  bool failWithServer(short status);
  template <class Show>
  short show(Show&& dialog);

  RangeLimits limits_;
  Diagnostics diagnostics_;
  UserUnits units_;
  SteamModel steam_;
  std::unique_ptr<Dialogs> dialogs_;
  std::string appName_;
  std::string appHelpFile_;
  int uomHelpContext_ = 0;
  int returnThermoUnits_ = 1;
  int returnModelUnits_ = 1;
  int returnModelTokens_ = 1;
  int liveObjects_ = 0;
};

}  // namespace calvex
