// Objects, the one engine behind them, and how long the module stays.
#include <functional>
#include <memory>
#include <thread>

#include "client.h"

namespace calvex::test {
namespace {

// tests/data/single-phase.csv
constexpr double P = 0.9934, T = 468.79, H = 2817.24632869232;
constexpr double tolerance = 1e-7 * H;

double enthalpy(IZvCalvex& steam) {
  double h = 0.0;
  LONG success = 0;
  EXPECT_EQ(steam.HPT(&h, P, T, &success), S_OK);
  EXPECT_EQ(success, 1);
  return h;
}

bool isLoaded() { return GetModuleHandleW(L"calvex.dll") != nullptr; }

Ref<IClassFactory> classFactory() {
  Ref<IClassFactory> factory;
  EXPECT_EQ(CoGetClassObject(classOf(programId), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                             factory.putVoid()),
            S_OK);
  return factory;
}

// One object ------------------------------------------------------------------------------------

TEST_F(Client, AnObjectHasOneIdentity) {
  const auto unknown = steam.as<IUnknown>();
  for (const auto& other :
       {steam.as<IDispatch>().get() == steam.get(), steam.as<IZvCalvex>().get() == steam.get(),
        steam.as<IDispatch>().as<IUnknown>().get() == unknown.get(),
        steam.as<ISupportErrorInfo>().as<IUnknown>().get() == unknown.get(),
        steam.as<IProvideClassInfo>().as<IUnknown>().get() == unknown.get(),
        steam.as<ISupportErrorInfo>().as<IZvCalvex>().get() == steam.get()}) {
    EXPECT_TRUE(other);
  }
  void* nothing = this;
  EXPECT_EQ(steam->QueryInterface(IID_IPersist, &nothing), E_NOINTERFACE);
  EXPECT_EQ(nothing, nullptr);
}

TEST_F(Client, AnObjectCountsItsReferences) {
  EXPECT_EQ(steam->AddRef(), 2U);
  {
    const auto unknown = steam.as<IUnknown>();
    EXPECT_EQ(steam->AddRef(), 4U);
    EXPECT_EQ(unknown->Release(), 3U);
  }
  EXPECT_EQ(steam->Release(), 1U);
}

// An outer object -------------------------------------------------------------------------------

/// Has an object of the server as a part of itself.
class Outer final : public IUnknown {
 public:
  Outer() {
    EXPECT_EQ(CoCreateInstance(classOf(programId), this, CLSCTX_INPROC_SERVER, IID_IUnknown,
                               part.putVoid()),
              S_OK);
  }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    if (id != IID_IUnknown) return part->QueryInterface(id, out);
    *out = this;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); }

  int references = 1;
  Ref<IUnknown> part;
};

TEST(Aggregation, MakesTheObjectAPartOfTheOuterOne) {
  const Apartment apartment;
  Outer outer;
  ASSERT_TRUE(outer.part);
  EXPECT_NE(outer.part.get(), &outer);
  EXPECT_EQ(outer.references, 1) << "a part must not hold its whole";
  {
    const auto steam = outer.part.as<IZvCalvex>();
    ASSERT_TRUE(steam);
    EXPECT_EQ(outer.references, 2);
    EXPECT_EQ(steam->AddRef(), 3U);
    EXPECT_EQ(steam->Release(), 2U);
    EXPECT_EQ(steam.as<IUnknown>().get(), &outer);
    EXPECT_EQ(steam.as<ISupportErrorInfo>().as<IUnknown>().get(), &outer);
    EXPECT_EQ(steam.as<IProvideClassInfo>().as<IUnknown>().get(), &outer);
    EXPECT_NEAR(enthalpy(*steam), H, tolerance);
    EXPECT_EQ(outer.references, 2);
  }
  EXPECT_EQ(outer.references, 1);
  EXPECT_EQ(outer.part.as<IUnknown>().get(), outer.part.get()) << "its own identity";
  EXPECT_EQ(outer.references, 1);
}

TEST(Aggregation, CountsAsALiveObject) {
  const Apartment apartment;
  const auto other = std::make_unique<Outer>();
  {
    const Ref<IZvCalvex> steam = makeObject();
    ASSERT_EQ(steam->put_SolverIter(77), S_OK);
  }
  short iterations = 0;
  EXPECT_EQ(other->part.as<IZvCalvex>()->get_SolverIter(&iterations), S_OK);
  EXPECT_EQ(iterations, 77);
}

TEST(Aggregation, MustAskForTheUnknown) {
  const Apartment apartment;
  Outer outer;
  void* out = &outer;
  EXPECT_EQ(classFactory()->CreateInstance(&outer, __uuidof(IZvCalvex), &out),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(outer.references, 1);
}

// The class factory -----------------------------------------------------------------------------

TEST(ClassFactory, IsOneForTheModule) {
  const Apartment apartment;
  EXPECT_EQ(classFactory().get(), classFactory().get());
}

TEST(ClassFactory, MakesObjectsOfItsInterfacesOnly) {
  const Apartment apartment;
  const auto factory = classFactory();
  void* out = nullptr;
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IPersist, &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(factory->QueryInterface(IID_IDispatch, &out), E_NOINTERFACE);
}

TEST(ClassFactory, AnswersForItsOwnClassOnly) {
  const Apartment apartment;
  const auto factory = classFactory();
  const HMODULE module = GetModuleHandleW(L"calvex.dll");
  ASSERT_NE(module, nullptr);
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto getClassObject = reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
  ASSERT_NE(getClassObject, nullptr);
  void* out = module;
  EXPECT_EQ(getClassObject(IID_IUnknown, IID_IClassFactory, &out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(out, nullptr);
  out = module;
  EXPECT_EQ(getClassObject(classOf(programId), IID_IDispatch, &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(getClassObject(classOf(programId), IID_IClassFactory, nullptr), E_POINTER);
}

// The engine ------------------------------------------------------------------------------------

TEST(Engine, IsSharedByAllObjects) {
  const Apartment apartment;
  const Ref<IZvCalvex> one = makeObject(), other = makeObject();
  EXPECT_NE(one.get(), other.get());
  double tol = 0.0;
  EXPECT_EQ(one->put_SolverTol(1e-7), S_OK);
  EXPECT_EQ(other->get_SolverTol(&tol), S_OK);
  EXPECT_EQ(tol, 1e-7);
  LONG success = 0;
  EXPECT_EQ(other->HPT(&tol, 10, 100, &success), S_OK);
  EXPECT_EQ(lastError(*one),
            "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).");
}

TEST(Engine, GoesBackToItsDefaultsWithTheLastObjectAndKeepsTheUnits) {
  const Apartment apartment;
  LONG success = 0;
  {
    const Ref<IZvCalvex> one = makeObject();
    EXPECT_EQ(one->put_SolverTol(1e-7), S_OK);
    EXPECT_EQ(one->put_TraceLevel(2), S_OK);
    EXPECT_EQ(one->put_MaxTraceSize(5), S_OK);
    EXPECT_EQ(one->AddExternalError(Text(L"a").get(), Text(L"b").get()), S_OK);
    EXPECT_EQ(one->SetUserUnit(Text(L"T").get(), Text(L"C").get(), &success), S_OK);
    EXPECT_EQ(success, 1);
    Ref<IZvCalvex> two = makeObject();
    two.reset();
    double tol = 0.0;
    EXPECT_EQ(one->get_SolverTol(&tol), S_OK);
    EXPECT_EQ(tol, 1e-7) << "one object was still there";
  }
  const Ref<IZvCalvex> fresh = makeObject();
  double tol = 0.0;
  short level = 9, iterations = 0, size = 0, mode = 0;
  EXPECT_EQ(fresh->get_SolverTol(&tol), S_OK);
  EXPECT_EQ(fresh->get_TraceLevel(&level), S_OK);
  EXPECT_EQ(fresh->get_SolverIter(&iterations), S_OK);
  EXPECT_EQ(fresh->get_MaxTraceSize(&size), S_OK);
  EXPECT_EQ(fresh->get_AppLevel(&mode), S_OK);
  EXPECT_EQ(tol, 1e-9);
  EXPECT_EQ(level, 0);
  EXPECT_EQ(iterations, 200);
  EXPECT_EQ(size, 1000);
  EXPECT_EQ(mode, 2);
  EXPECT_EQ(lastError(*fresh), "");
  Text unit;
  EXPECT_EQ(fresh->GetUserUnit(Text(L"T").get(), unit.place(), &success), S_OK);
  EXPECT_EQ(unit.ascii(), "C");
}

// The module ------------------------------------------------------------------------------------

TEST(ServerModule, IsUnloadedWithoutObjectsAndBeginsAnewWhenLoadedAgain) {
  const Apartment apartment;
  for (int i = 0; i < 3; ++i) {
    Ref<IZvCalvex> steam = makeObject();
    EXPECT_TRUE(isLoaded());
    LONG success = 0;
    Text unit;
    EXPECT_EQ(steam->GetUserUnit(Text(L"T").get(), unit.place(), &success), S_OK);
    EXPECT_EQ(unit.ascii(), "K") << "a new engine has no chosen units";
    EXPECT_EQ(steam->SetUserUnit(Text(L"T").get(), Text(L"C").get(), &success), S_OK);
    Ref<ITypeInfo> type;  // the module's type library is another thing that it holds
    EXPECT_EQ(steam->GetTypeInfo(0, 0, type.put()), S_OK);
    type.reset();
    steam.reset();
    CoFreeUnusedLibrariesEx(0, 0);
    EXPECT_FALSE(isLoaded());
  }
}

/// Of which a process has 1,088.
TEST(ServerModule, GivesTheSlotsOfThreadLocalStorageBack) {
  const Apartment apartment;
  DWORD slot = TLS_OUT_OF_INDEXES;
  for (int i = 0; i < 20; ++i) {
    Ref<IZvCalvex> steam = makeObject();
    EXPECT_NEAR(enthalpy(*steam), H, tolerance);
    const DWORD free = TlsAlloc();
    TlsFree(free);
    if (i == 0) slot = free;
    EXPECT_EQ(free, slot) << "at loading " << i + 1;
    steam.reset();
    CoFreeUnusedLibrariesEx(0, 0);
    ASSERT_FALSE(isLoaded());
  }
}

TEST(ServerModule, IsKeptByALiveObject) {
  const Apartment apartment;
  const Ref<IZvCalvex> steam = makeObject();
  CoFreeUnusedLibrariesEx(0, 0);
  ASSERT_TRUE(isLoaded());
  EXPECT_NEAR(enthalpy(*steam), H, tolerance);
}

TEST(ServerModule, IsKeptByALockedServer) {
  const Apartment apartment;
  Ref<IClassFactory> factory = classFactory();
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  CoFreeUnusedLibrariesEx(0, 0);
  ASSERT_TRUE(isLoaded());
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  factory.reset();
  CoFreeUnusedLibrariesEx(0, 0);
  EXPECT_FALSE(isLoaded());
}

TEST(ServerModule, SurvivesALibraryThatIsFreedWhileItsTypeInformationIsHeld) {
  const Apartment apartment;
  Ref<ITypeInfo> type;
  {
    const Ref<IZvCalvex> steam = makeObject();
    ASSERT_EQ(steam->GetTypeInfo(0, 0, type.put()), S_OK);
  }
  CoFreeUnusedLibrariesEx(0, 0);
  EXPECT_FALSE(isLoaded());
  Text name;
  EXPECT_EQ(type->GetDocumentation(0x33, name.place(), nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(name.ascii(), "HPT");
}

// Other apartments ------------------------------------------------------------------------------

bool isProxy(const Ref<IZvCalvex>& object) {
  return static_cast<bool>(object.as<IClientSecurity>());
}

/// What crosses between apartments: numbers, texts, arrays and results by reference.
void expectWholeInterface(IZvCalvex& steam) {
  EXPECT_NEAR(enthalpy(steam), H, tolerance);
  LONG success = 9;
  double constant = 0.0;
  EXPECT_EQ(steam.CritT(&constant), S_OK);
  EXPECT_EQ(constant, 647.126);
  Text unit;
  EXPECT_EQ(steam.GetUserUnit(Text(L"P").get(), unit.place(), &success), S_OK);
  EXPECT_EQ(success, 1);
  EXPECT_EQ(unit.ascii(), "MPa");
  EXPECT_EQ(steam.put_SolverTol(1.0), S_FALSE);
  EXPECT_EQ(lastError(steam), "Invalid solver tolerance specified.");
  Variant rows;
  EXPECT_EQ(
      steam.XLFlashVessel(5, 1000, 0.46975345809, Text(L"T_Vap,M_Vap").get(), &rows, &success),
      S_OK);
  EXPECT_EQ(success, 1);
  ASSERT_EQ(rows.vt, VT_ARRAY | VT_VARIANT);
  LONG index[] = {1, 1};
  Variant cell;
  EXPECT_EQ(SafeArrayGetElement(rows.parray, index, &cell), S_OK);
  // tests/data/saturation.csv at 422.68 K
  EXPECT_NEAR(cell.dblVal, 5 * (1000 - 630.286201417) / (2745.81173437 - 630.286201417), 1e-6);
  const LateCall call = callMethod(steam, L"HPT", {Variant(), P, T});
  EXPECT_EQ(call.result, S_OK);
  EXPECT_EQ(call.value.lVal, 1);
}

TEST(OtherApartments, AnObjectMadeFromThemLivesInAnApartmentOfItsOwn) {
  const Apartment apartment(COINIT_MULTITHREADED);
  const Ref<IZvCalvex> steam = makeObject();
  ASSERT_TRUE(steam);
  EXPECT_TRUE(isProxy(steam));
  expectWholeInterface(*steam);
}

TEST(OtherApartments, CallAnObjectOfThisOne) {
  const Apartment apartment;
  const Ref<IZvCalvex> steam = makeObject();
  EXPECT_FALSE(isProxy(steam));
  IStream* stream = nullptr;
  ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(__uuidof(IZvCalvex), steam.get(), &stream), S_OK);
  const DWORD thisThread = GetCurrentThreadId();
  std::thread caller([&] {
    {
      const Apartment other(COINIT_MULTITHREADED);
      Ref<IZvCalvex> proxy;
      EXPECT_EQ(CoGetInterfaceAndReleaseStream(stream, __uuidof(IZvCalvex), proxy.putVoid()), S_OK);
      if (proxy) {
        EXPECT_TRUE(isProxy(proxy));
        expectWholeInterface(*proxy);
      }
    }
    PostThreadMessageW(thisThread, WM_QUIT, 0, 0);
  });
  // Calls from other apartments arrive as messages.
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  caller.join();
  // It was the same engine.
  EXPECT_EQ(lastError(*steam), "Invalid solver tolerance specified.");
}

// Growth ----------------------------------------------------------------------------------------

struct Usage {
  long long privateBytes;
  long long handles;
};

Usage usage() {
  Usage now{};
  MEMORY_BASIC_INFORMATION region;
  for (const char* at = nullptr; VirtualQuery(at, &region, sizeof region) != 0;
       at = static_cast<const char*>(region.BaseAddress) + region.RegionSize) {
    if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) {
      now.privateBytes += static_cast<long long>(region.RegionSize);
    }
  }
  // A new handle has the first free number; the system's own count is not kept everywhere.
  const HANDLE handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  now.handles = reinterpret_cast<intptr_t>(handle) / 4;
  CloseHandle(handle);
  return now;
}

/// What 10 000 times of it cost, when 1000 have made room for whatever stays.
Usage growth(const std::function<void()>& action) {
  for (int i = 0; i < 1000; ++i) action();
  const Usage before = usage();
  for (int i = 0; i < 10000; ++i) action();
  const Usage after = usage();
  return {after.privateBytes - before.privateBytes, after.handles - before.handles};
}

constexpr long long noGrowth = 256 * 1024;

void expectNoGrowth(const std::function<void()>& action) {
  const Usage grown = growth(action);
  EXPECT_LE(grown.privateBytes, noGrowth);
  EXPECT_EQ(grown.handles, 0);
}

TEST(Growth, IsSeenWhenFortyBytesStay) {
  std::vector<std::unique_ptr<char[]>> kept;
  EXPECT_GT(growth([&] { kept.push_back(std::make_unique<char[]>(40)); }).privateBytes, noGrowth);
  std::vector<HANDLE> handles;
  EXPECT_EQ(
      growth([&] { handles.push_back(CreateEventW(nullptr, FALSE, FALSE, nullptr)); }).handles,
      10000);
  for (const HANDLE handle : handles) CloseHandle(handle);
}

TEST(Growth, ThereIsNoneFromObjects) {
  const Apartment apartment;
  const Ref<IClassFactory> factory = classFactory();
  expectNoGrowth([&] {
    Ref<IZvCalvex> steam;
    EXPECT_EQ(factory->CreateInstance(nullptr, __uuidof(IZvCalvex), steam.putVoid()), S_OK);
    double h = 0.0;
    LONG success = 0;
    EXPECT_EQ(steam->HPT(&h, P, 100, &success), S_OK);  // leaves a trace and an error
  });
}

TEST(Growth, ThereIsNoneFromObjectsInsideOthers) {
  const Apartment apartment;
  const Ref<IClassFactory> factory = classFactory();
  expectNoGrowth([] { const Outer outer; });
}

TEST_F(Client, CallsLeaveNothingBehind) {
  Variant variable;
  Text unit;
  expectNoGrowth([&] {
    EXPECT_EQ(callMethod(*steam, L"GetUserUnit", {L"T", unit.place()}).result, S_OK);
    EXPECT_EQ(callMethod(*steam, L"GetUserUnit", {L"T", static_cast<VARIANT*>(&variable)}).result,
              S_OK);
    EXPECT_EQ(callMethod(*steam, L"GetAlarms", {static_cast<VARIANT*>(&variable)}).result, S_OK);
    EXPECT_EQ(callMethod(*steam, L"HPT", {static_cast<VARIANT*>(&variable), L"ten", T}).result,
              DISP_E_TYPEMISMATCH);
    Variant rows;
    LONG success = 0;
    EXPECT_EQ(steam->XLFlashVessel(5, 1000, 0.3, Text(L"M_Vap").get(), &rows, &success), S_OK);
    EXPECT_EQ(steam->XLFlashVessel(5, 1000, 0.3, Text(L"no").get(), &rows, &success), S_OK);
    EXPECT_EQ(steam->HPT(nullptr, P, T, &success), E_POINTER);
    EXPECT_EQ(steam->put_AppName(Text(L"a name that is longer than most").get()), S_OK);
  });
}

}  // namespace
}  // namespace calvex::test
