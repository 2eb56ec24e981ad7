// Units mode 1: the server's calls to an external units server, here an automation object of the
// test's own under that program's name.
#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <future>
#include <thread>

#include "client.h"
#include "support/table.h"

namespace calvex::test {
namespace {

using Log = std::vector<std::string>;

/// Logs its calls with the types of their arguments. Its user units are twice the internal numbers.
class UnitsServer final : public ClientObject {
 public:
  explicit UnitsServer(Log& log) : log_(log) {}
  DISPID refused = 0;  ///< the member that answers false, with status 7
  VARIANT_BOOL shown = VARIANT_TRUE;
  std::function<void()> during = [] {};  ///< what else happens in each call

  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* given,
                                   VARIANT* result, EXCEPINFO*, UINT*) override {
    EXPECT_EQ(flags, DISPATCH_METHOD);
    EXPECT_EQ(given->cNamedArgs, 0U);
    std::string call = fmt::format("{}:", id);
    for (UINT i = given->cArgs; i-- > 0;) call += fmt::format(" {}", text(given->rgvarg[i]));
    log_.push_back(call);
    during();
    const bool accepted = id != refused;
    for (UINT i = 0; i < given->cArgs; ++i) answer(id, accepted, given->rgvarg[i], *given);
    if (result != nullptr && id != 29) {  // which answers nothing
      result->vt = VT_BOOL;
      result->boolVal = accepted ? VARIANT_TRUE : VARIANT_FALSE;
    }
    return S_OK;
  }

 private:
  static std::string text(const VARIANT& argument) {
    switch (argument.vt) {
      case VT_BSTR:
        return fmt::format("'{}'", narrow(argument.bstrVal));
      case VT_BOOL:
        return argument.boolVal == VARIANT_TRUE ? "true" : "false";
      case VT_R8:
        return fmt::format("{:g}", argument.dblVal);
      case VT_I4:
        return fmt::format("long {}", argument.lVal);
      case VT_I2:
        return fmt::format("short {}", argument.iVal);
      case VT_BYREF | VT_I2:
        return "&short";
      case VT_BYREF | VT_R8:
        return "&double";
      case VT_BYREF | VT_BOOL:
        return "&bool";
      case VT_BYREF | VT_BSTR:
        return "&text";
      default:
        return fmt::format("an argument of type {}", argument.vt);
    }
  }
  void answer(DISPID id, bool accepted, const VARIANT& argument, const DISPPARAMS& given) const {
    switch (argument.vt) {
      case VT_BYREF | VT_I2:
        *argument.piVal = accepted ? short{0} : short{7};
        break;
      case VT_BYREF | VT_BOOL:
        *argument.pboolVal = shown;
        break;
      case VT_BYREF | VT_BSTR:
        *argument.pbstrVal = SysAllocString(id == 23 ? L"The units server's own words." : L"half");
        break;
      case VT_BYREF | VT_R8: {
        const double value = given.rgvarg[2].dblVal;  // before the result and the status
        *argument.pdblVal = id == 25 ? 2.0 * value : id == 26 ? 0.5 * value : 100.0 + value;
        break;
      }
      default:
        break;
    }
  }

  Log& log_;
};

class Factory final : public IClassFactory {
 public:
  explicit Factory(IDispatch& object) : object_(object) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *out = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** out) override {
    return object_.QueryInterface(id, out);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  IDispatch& object_;
};

/// The program's name, as long as it lives.
class RegisteredName {
 public:
  RegisteredName() {
    HKEY made = nullptr;
    EXPECT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, (key + L"\\CLSID").c_str(), 0, nullptr, 0,
                              KEY_WRITE, nullptr, &made, nullptr),
              ERROR_SUCCESS);
    const std::wstring id = L"{6B1F2C5E-93B5-4E57-8E0F-0D2C5D0B7A11}";
    RegSetValueExW(made, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(id.c_str()),
                   static_cast<DWORD>((id.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(made);
  }
  ~RegisteredName() { RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str()); }
  RegisteredName(const RegisteredName&) = delete;
  RegisteredName& operator=(const RegisteredName&) = delete;

 private:
  const std::wstring key = L"Software\\Classes\\ZVMeasureSrv";
};

class UnitsMode : public Client {
 protected:
  UnitsMode() {
    EXPECT_EQ(CoRegisterClassObject(classOf(L"ZVMeasureSrv"), &factory, CLSCTX_INPROC_SERVER,
                                    REGCLS_MULTIPLEUSE, &registration),
              S_OK);
  }
  ~UnitsMode() override {
    steam.reset();
    EXPECT_EQ(units.references, 1);
    CoRevokeClassObject(registration);
  }

  void enter() {
    EXPECT_EQ(steam->put_AppLevel(1), S_OK);
    log.clear();
  }
  [[nodiscard]] short mode() const {
    short level = -1;
    EXPECT_EQ(steam->get_AppLevel(&level), S_OK);
    return level;
  }
  double HPT(double pressure, double temperature) {
    double h = 0.0;
    LONG success = 0;
    EXPECT_EQ(steam->HPT(&h, pressure, temperature, &success), S_OK);
    EXPECT_EQ(success, 1) << lastError(*steam);
    return h;
  }

  RegisteredName name;
  Log log;
  UnitsServer units{log};
  Factory factory{units};
  DWORD registration = 0;
};

TEST_F(UnitsMode, IsEnteredWithTheSetUpAndAllGroups) {
  EXPECT_EQ(steam->put_AppLevel(1), S_OK);
  EXPECT_EQ(mode(), 1);
  Log expected{"29: ''", "5: true", "6: true", "2: true"};
  for (const Row& row : readTable("unit-groups.csv")) {
    expected.push_back(fmt::format("7: '{}' true &short", row.text("name")));
    expected.push_back(
        fmt::format("17: '{}' '{}' &short", row.text("name"), row.text("internal unit")));
  }
  ASSERT_EQ(expected.size(), 58U);
  EXPECT_EQ(log, expected);
  log.clear();
  EXPECT_EQ(steam->put_AppLevel(1), S_OK);  // as it is
  EXPECT_EQ(log, Log());
}

TEST_F(UnitsMode, DeclaresTheInternalUnitOfAGroupThatTheServerRefusesToRegister) {
  units.refused = 7;
  EXPECT_EQ(steam->put_AppLevel(1), S_OK);
  EXPECT_EQ(mode(), 1);
  for (const Row& row : readTable("unit-groups.csv")) {
    EXPECT_EQ(std::ranges::count(log, fmt::format("17: '{}' '{}' &short", row.text("name"),
                                                  row.text("internal unit"))),
              1)
        << row.text("name");
  }
}

TEST_F(UnitsMode, ConvertsThroughTheServer) {
  enter();
  // tests/data/single-phase.csv: 0.9934 MPa, 468.79 K, 2817.24632869232 kJ/kg
  EXPECT_NEAR(HPT(2 * 0.9934, 2 * 468.79), 2 * 2817.24632869232, 1e-3);
  EXPECT_EQ(log.size(), 3U);
  EXPECT_EQ(log.front(), "26: 'Pressure' 1.9868 &double &short");
  EXPECT_EQ(log.at(1), "26: 'Temperature' 937.58 &double &short");
  EXPECT_EQ(log.back(), "25: 'Mass Specific Enthalpy' 2817.25 &double &short");
  double t = 0.0;
  EXPECT_EQ(steam->CritT(&t), S_OK);
  EXPECT_EQ(t, 2 * 647.126);
}

TEST_F(UnitsMode, ShowsBoundsInTheServersUnits) {
  enter();
  double h = 0.0;
  LONG success = 9;
  EXPECT_EQ(steam->HPT(&h, 20, 200, &success), S_OK);
  EXPECT_EQ(success, 0);
  EXPECT_EQ(lastError(*steam),
            "Temperature parameter out of range (Valid range 520.00 to 5000.00 half).");
}

TEST_F(UnitsMode, UnitMembersAskTheServer) {
  enter();
  LONG success = 0;
  EXPECT_EQ(steam->SetUserUnit(Text(L"T").get(), Text(L"X").get(), &success), S_OK);
  EXPECT_EQ(success, 1);
  EXPECT_EQ(steam->SetUserUnitIndex(1, Text(L"Y").get(), &success), S_OK);
  EXPECT_EQ(success, 1);
  Text unit;
  EXPECT_EQ(steam->GetUserUnit(Text(L"pressure").get(), unit.place(), &success), S_OK);
  EXPECT_EQ(unit.ascii(), "half");
  EXPECT_EQ(steam->GetUserUnitIndex(26, unit.place(), &success), S_OK);
  double value = 0.0;
  EXPECT_EQ(
      steam->Convert(Text(L"P").get(), Text(L"a").get(), Text(L"b").get(), 1.5, &value, &success),
      S_OK);
  EXPECT_EQ(value, 101.5);
  EXPECT_EQ(log, (Log{"10: 'Temperature' 'X' &short", "10: 'Pressure' 'Y' &short",
                      "12: 'Pressure' &text &short", "12: 'Pressure Difference' &text &short",
                      "20: 'Pressure' 'a' 'b' 1.5 &double &short"}));
}

TEST_F(UnitsMode, ResultArraysHaveTheServersUnits) {
  enter();
  Variant rows;
  LONG success = 0;
  EXPECT_EQ(steam->XLFlashVessel(10, 2000, 0.6, Text(L"T_Vap").get(), &rows, &success), S_OK);
  EXPECT_EQ(success, 1) << lastError(*steam);
  ASSERT_EQ(rows.vt, VT_ARRAY | VT_VARIANT);
  LONG index[] = {0, 2};
  Variant unit;
  EXPECT_EQ(SafeArrayGetElement(rows.parray, index, &unit), S_OK);
  EXPECT_EQ(narrow(unit.bstrVal), "half");
}

TEST_F(UnitsMode, RefusalsAreToldInTheServersWords) {
  enter();
  LONG success = 9;
  double value = 1.0;
  Text unit(L"before");
  const auto expectRefused = [&](const char* askedAgain) {
    EXPECT_EQ(success, 0);
    EXPECT_EQ(lastError(*steam), "The units server's own words.");
    ASSERT_EQ(log.size(), 2U);
    EXPECT_EQ(log[0], askedAgain);
    EXPECT_EQ(log[1], "23: short 7 &text");
    EXPECT_EQ(steam->ClearTraceInfo(), S_OK);
    log.clear();
    success = 9;
  };
  units.refused = 10;
  EXPECT_EQ(steam->SetUserUnit(Text(L"T").get(), Text(L"X").get(), &success), S_OK);
  expectRefused("10: 'Temperature' 'X' &short");
  EXPECT_EQ(steam->SetUserUnitIndex(0, Text(L"X").get(), &success), S_OK);
  expectRefused("10: 'Temperature' 'X' &short");
  units.refused = 12;
  EXPECT_EQ(steam->GetUserUnit(Text(L"T").get(), unit.place(), &success), S_OK);
  expectRefused("12: 'Temperature' &text &short");
  units.refused = 20;
  EXPECT_EQ(
      steam->Convert(Text(L"P").get(), Text(L"a").get(), Text(L"b").get(), 1.5, &value, &success),
      S_OK);
  expectRefused("20: 'Pressure' 'a' 'b' 1.5 &double &short");
  EXPECT_EQ(value, 1.0);
  EXPECT_EQ(unit.ascii(), "before");
}

TEST_F(UnitsMode, UnknownGroupsAreNotTheServersBusiness) {
  enter();
  LONG success = 9;
  EXPECT_EQ(steam->SetUserUnit(Text(L"none").get(), Text(L"X").get(), &success), S_OK);
  EXPECT_EQ(success, 0);
  EXPECT_EQ(lastError(*steam), "none is not a defined unit group.");
  EXPECT_EQ(steam->SetUserUnitIndex(27, Text(L"X").get(), &success), S_OK);
  EXPECT_EQ(lastError(*steam), "Illegal Units-Of-Measure group index.");
  EXPECT_EQ(log, Log());
}

TEST_F(UnitsMode, TheUnitDialogIsTheServers) {
  enter();
  short result = 9;
  EXPECT_EQ(steam->ShowSelectUomDlg(&result), S_OK);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(log, Log{"19: long 0 &bool"});
  units.refused = 19;
  EXPECT_EQ(steam->ShowSelectUomDlg(&result), S_OK);
  EXPECT_EQ(result, 0);
}

TEST_F(UnitsMode, LeavingReleasesTheServer) {
  enter();
  EXPECT_GT(units.references, 1);
  EXPECT_EQ(steam->put_AppLevel(4), S_FALSE);
  EXPECT_GT(units.references, 1);
  EXPECT_EQ(steam->put_AppLevel(2), S_OK);
  EXPECT_EQ(units.references, 1);
  EXPECT_NEAR(HPT(0.9934, 468.79), 2817.24632869232, 1e-3);
  EXPECT_EQ(log, Log());
}

TEST_F(UnitsMode, TheLastObjectReleasesTheServer) {
  enter();
  {
    const Ref<IZvCalvex> other = makeObject();
    EXPECT_GT(units.references, 1);
  }
  EXPECT_GT(units.references, 1);
  steam.reset();
  EXPECT_EQ(units.references, 1);
  steam = makeObject();
  EXPECT_EQ(mode(), 2);
  EXPECT_EQ(log, Log());
}

/// Answers 42.
class Answering final : public ClientObject {
 public:
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    result->vt = VT_I4;
    result->lVal = 42;
    return S_OK;
  }
};

// Both would wait for ever otherwise: what a units server needs may live in the other's apartment.
TEST_F(UnitsMode, ACallerThatWaitsForItsTurnAnswersTheOneWhoseTurnItIs) {
  enter();
  std::promise<IStream*> made;
  std::atomic<bool> inside = false, hadItsTurn = false;
  std::atomic<DWORD> otherThread = 0;
  std::thread other([&] {
    const Apartment its;
    Answering object;
    const Ref<IZvCalvex> own = makeObject();
    otherThread = GetCurrentThreadId();
    IStream* stream = nullptr;
    EXPECT_EQ(CoMarshalInterThreadInterfaceInStream(IID_IDispatch, &object, &stream), S_OK);
    made.set_value(stream);
    MSG message;
    while (!inside) {
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
      Sleep(1);
    }
    short iterations = 0;
    EXPECT_EQ(own->get_SolverIter(&iterations), S_OK);
    hadItsTurn = true;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    CoDisconnectObject(&object, 0);
  });
  Ref<IDispatch> proxy;
  EXPECT_EQ(CoGetInterfaceAndReleaseStream(made.get_future().get(), IID_IDispatch, proxy.putVoid()),
            S_OK);
  ASSERT_TRUE(proxy);
  LateCall answer;
  units.during = [&] {
    if (inside.exchange(true)) return;
    Sleep(300);  // the other comes, and waits
    answer = invoke(*proxy, 7, DISPATCH_METHOD, {});
    EXPECT_FALSE(hadItsTurn);
  };
  HPT(2 * 0.9934, 2 * 468.79);
  EXPECT_EQ(answer.result, S_OK);
  EXPECT_EQ(answer.value.lVal, 42);
  units.during = [] {};
  proxy.reset();
  PostThreadMessageW(otherThread, WM_QUIT, 0, 0);
  other.join();
  EXPECT_TRUE(hadItsTurn);
}

/// Does it in another thread, and meanwhile answers the calls that reach this one's apartment.
void inAnotherThread(const std::function<void()>& work) {
  HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  std::thread other([&] {
    work();
    SetEvent(done);
  });
  DWORD index = 0;
  EXPECT_EQ(CoWaitForMultipleHandles(0, INFINITE, 1, &done, &index), S_OK);
  other.join();
  CloseHandle(done);
}

TEST_F(UnitsMode, TheServerIsCalledByItsOwnThreadWhoeverCalls) {
  enter();
  std::vector<DWORD> threads;
  units.during = [&] { threads.push_back(GetCurrentThreadId()); };
  inAnotherThread([&] {
    const Apartment its;
    const Ref<IZvCalvex> own = makeObject();
    double h = 0.0;
    LONG success = 0;
    EXPECT_EQ(own->HPT(&h, 2 * 0.9934, 2 * 468.79, &success), S_OK);
    EXPECT_EQ(success, 1) << lastError(*own);
    EXPECT_NEAR(h, 2 * 2817.24632869232, 1e-3);
    Text unit;
    EXPECT_EQ(own->GetUserUnit(Text(L"P").get(), unit.place(), &success), S_OK);
    EXPECT_EQ(unit.ascii(), "half");
    units.refused = 10;
    EXPECT_EQ(own->SetUserUnit(Text(L"T").get(), Text(L"X").get(), &success), S_OK);
    EXPECT_EQ(lastError(*own), "The units server's own words.");
  });
  EXPECT_EQ(
      log,
      (Log{"26: 'Pressure' 1.9868 &double &short", "26: 'Temperature' 937.58 &double &short",
           "25: 'Mass Specific Enthalpy' 2817.25 &double &short", "12: 'Pressure' &text &short",
           "10: 'Temperature' 'X' &short", "23: short 7 &text"}));
  EXPECT_EQ(threads, std::vector<DWORD>(6, GetCurrentThreadId()));
}

// It would wait for ever otherwise: the caller that it works for has the turn.
TEST_F(UnitsMode, TheServerMayCallBackWhileItWorksForAnotherThread) {
  enter();
  short iterations = 0;
  units.during = [&] { EXPECT_EQ(steam->get_SolverIter(&iterations), S_OK); };
  inAnotherThread([&] {
    const Apartment its;
    const Ref<IZvCalvex> own = makeObject();
    double h = 0.0;
    LONG success = 0;
    EXPECT_EQ(own->HPT(&h, 2 * 0.9934, 2 * 468.79, &success), S_OK);
    EXPECT_EQ(success, 1) << lastError(*own);
    EXPECT_NEAR(h, 2 * 2817.24632869232, 1e-3);
  });
  EXPECT_EQ(log.size(), 3U);
  EXPECT_EQ(iterations, 200);
}

TEST_F(UnitsMode, AServerWhoseThreadHasEndedIsToldSoAndCanBeChosenAgain) {
  inAnotherThread([&] {
    const Apartment its;
    DWORD here = 0;
    EXPECT_EQ(CoRegisterClassObject(classOf(L"ZVMeasureSrv"), &factory, CLSCTX_INPROC_SERVER,
                                    REGCLS_MULTIPLEUSE, &here),
              S_OK);
    const Ref<IZvCalvex> own = makeObject();
    EXPECT_EQ(own->put_AppLevel(1), S_OK);
    CoRevokeClassObject(here);
  });
  log.clear();
  double h = 0.0;
  LONG success = 9;
  EXPECT_EQ(steam->HPT(&h, 20, 200, &success), S_OK);
  EXPECT_EQ(success, 0);
  EXPECT_EQ(lastError(*steam),
            "The units server cannot be reached: the thread that chose it has ended. Choose it "
            "again (AppLevel 2, then 1).");
  EXPECT_EQ(log, Log());
  EXPECT_EQ(steam->put_AppLevel(2), S_OK);
  enter();
  EXPECT_NEAR(HPT(2 * 0.9934, 2 * 468.79), 2 * 2817.24632869232, 1e-3);
}

TEST_F(UnitsMode, AServerThatRefusesItsSetUpIsNone) {
  for (const DISPID member : {2, 5, 6}) {
    units.refused = member;
    EXPECT_EQ(steam->put_AppLevel(1), S_FALSE) << member;
    EXPECT_EQ(mode(), 2);
    EXPECT_EQ(units.references, 1);
  }
}

TEST_F(Client, WithoutAUnitsServerTheModeStays) {
  CLSID id{};
  ASSERT_NE(CLSIDFromProgID(L"ZVMeasureSrv", &id), S_OK);
  EXPECT_EQ(steam->put_AppLevel(3), S_OK);
  EXPECT_EQ(steam->put_AppLevel(1), S_FALSE);
  short level = 0;
  EXPECT_EQ(steam->get_AppLevel(&level), S_OK);
  EXPECT_EQ(level, 3);
  EXPECT_EQ(lastError(*steam), "");
  const RegisteredName nameOnly;  // a name without a program behind it
  EXPECT_EQ(steam->put_AppLevel(1), S_FALSE);
  EXPECT_EQ(steam->get_AppLevel(&level), S_OK);
  EXPECT_EQ(level, 3);
}

}  // namespace
}  // namespace calvex::test
