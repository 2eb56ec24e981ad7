// What automation adds to the engine's own cost: the same calls to an engine in this program, to
// the server through the table of functions, and to it through IDispatch with the member's number.
// The three take turns, and each round compares its own, so that a drift of the machine's speed
// does not count. A returned text is the system's to allocate and the client's to free, whoever
// makes it: that much is measured apart. Ends with 1 when a limit is missed.
//
//   calvex_bench_automation [ROUNDS]
#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "engine/thermo_engine.h"
#include "server/windows/automation.h"
#include "server/windows/guids.h"
// After the platform's declarations.
#include <calvex_interface.h>

namespace {

using calvex::ZvThermoInt;

constexpr double earlyLimit = 50.0;   // ns above the engine and the system
constexpr double lateLimit = 1000.0;  // likewise
// The engine here and the one in the module are two copies of the same code, which lie differently
// in memory: long calls differ by up to this part of their cost.
constexpr double copiesDiffer = 0.01;

/// Of the module beside this program's build, registered or not.
IZvCalvex* makeObject() {
  const HMODULE module = LoadLibraryA(CALVEX_SERVER);
  if (module == nullptr) return nullptr;
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto getClassObject = reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
  IClassFactory* factory = nullptr;
  IZvCalvex* object = nullptr;
  if (getClassObject == nullptr ||
      FAILED(getClassObject(calvex::com::classId, IID_IClassFactory,
                            reinterpret_cast<void**>(&factory))) ||
      FAILED(factory->CreateInstance(nullptr, __uuidof(IZvCalvex),
                                     reinterpret_cast<void**>(&object)))) {
    return nullptr;
  }
  return object;
}

/// Points around a given one, so that no call repeats its predecessor.
class Points {
 public:
  explicit Points(double first) : first_(first) {}
  double next() {
    index_ = (index_ + 1) % 64;
    return first_ * (1.0 + 1e-5 * index_);
  }

 private:
  double first_;
  int index_ = 0;
};

VARIANT variant(double value) {
  VARIANT argument;
  argument.vt = VT_R8;
  argument.dblVal = value;
  return argument;
}
VARIANT variant(double* place) {
  VARIANT argument;
  argument.vt = VT_BYREF | VT_R8;
  argument.pdblVal = place;
  return argument;
}
VARIANT variant(BSTR text) {
  VARIANT argument;
  argument.vt = VT_BSTR;
  argument.bstrVal = text;
  return argument;
}
VARIANT variant(BSTR* place) {
  VARIANT argument;
  argument.vt = VT_BYREF | VT_BSTR;
  argument.pbstrVal = place;
  return argument;
}

/// A late-bound call; `arguments` backwards. True when it succeeded.
bool invoke(IZvCalvex& steam, DISPID id, VARIANT* arguments, UINT count) {
  DISPPARAMS parameters{arguments, nullptr, count, 0};
  VARIANT result;
  VariantInit(&result);
  return steam.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, &result,
                      nullptr, nullptr) == S_OK &&
         (result.vt != VT_I4 || result.lVal == 1);
}

using Call = std::function<bool()>;  // once; whether it succeeded

struct Row {
  const wchar_t* name;
  int callsPerRound;
  Call engine, early, late;
  Call system = nullptr;  ///< what a returned text costs
};

double ticksPerNanosecond() {
  LARGE_INTEGER frequency;
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(frequency.QuadPart) * 1e-9;
}

/// ns a call; ends the program when one fails.
double timeOf(const Call& call, int calls) {
  static const double ticks = ticksPerNanosecond();
  LARGE_INTEGER begin, end;
  bool good = true;
  QueryPerformanceCounter(&begin);
  for (int i = 0; i < calls; ++i) good &= call();
  QueryPerformanceCounter(&end);
  if (!good) {
    fmt::print("a call failed\n");
    std::exit(2);
  }
  return static_cast<double>(end.QuadPart - begin.QuadPart) / ticks / calls;
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

std::string narrow(const wchar_t* text) {
  std::string result;
  for (; *text != L'\0'; ++text) result += static_cast<char>(*text);
  return result;
}

/// Measures a row and prints its line of the table; false when a limit is missed.
bool measure(IZvCalvex& steam, const Row& row, int rounds) {
  const Call lookUp = [&] {
    auto* name = const_cast<wchar_t*>(row.name);
    DISPID id;
    return steam.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id) == S_OK;
  };
  std::vector<double> engine, system, early, late, names;
  for (int i = 0; i < rounds; ++i) {
    engine.push_back(timeOf(row.engine, row.callsPerRound));
    system.push_back(row.system != nullptr ? timeOf(row.system, row.callsPerRound) : 0.0);
    const double own = engine.back() + system.back();
    early.push_back(timeOf(row.early, row.callsPerRound) - own);
    late.push_back(timeOf(row.late, row.callsPerRound) - own);
    names.push_back(timeOf(lookUp, 500));
  }
  const double earlyCost = median(early), lateCost = median(late);
  const double allowance = copiesDiffer * median(engine);
  const bool kept = earlyCost <= earlyLimit + allowance && lateCost <= lateLimit + allowance;
  fmt::print("{:<14}{:>10.0f}{:>10.0f}{:>+10.0f}{:>+10.0f}{:>10.0f}{}\n", narrow(row.name),
             median(engine), median(system), earlyCost, lateCost, median(names),
             kept ? "" : "  MISSED");
  return kept;
}

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 401;
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 2;
  IZvCalvex* const object = makeObject();
  if (object == nullptr) {
    fmt::print("no server: {}\n", CALVEX_SERVER);
    return 2;
  }
  IZvCalvex& steam = *object;
  ZvThermoInt engine;

  double out = 0.0;
  LONG success = 0;
  std::string text;
  const BSTR group = SysAllocString(L"Pressure");
  BSTR unit = nullptr;
  // In turns each, so that all three see the same points.
  Points a(10.0), b(10.0), c(10.0), d(1.0), e(1.0), f(1.0);
  const std::vector<Row> rows{
      {L"HPT", 50, [&] { return engine.HPT(&out, a.next(), 773.15) == 1; },
       [&] { return steam.HPT(&out, b.next(), 773.15, &success) == S_OK && success == 1; },
       [&] {
         VARIANT arguments[]{variant(773.15), variant(c.next()), variant(&out)};
         return invoke(steam, 0x33, arguments, 3);
       }},
      {L"TPH", 20, [&] { return engine.TPH(&out, d.next(), 3093.0) == 1; },
       [&] { return steam.TPH(&out, e.next(), 3093.0, &success) == S_OK && success == 1; },
       [&] {
         VARIANT arguments[]{variant(3093.0), variant(f.next()), variant(&out)};
         return invoke(steam, 0x2e, arguments, 3);
       }},
      {L"CritT", 5000, [&] { return (out = engine.CritT()) > 0.0; },
       [&] { return steam.CritT(&out) == S_OK; }, [&] { return invoke(steam, 0x0a, nullptr, 0); }},
      {L"GetUserUnit", 500, [&] { return engine.GetUserUnit("Pressure", &text) == 1; },
       [&] { return steam.GetUserUnit(group, &unit, &success) == S_OK && success == 1; },
       [&] {
         VARIANT arguments[]{variant(&unit), variant(group)};
         return invoke(steam, 0x1b, arguments, 2);
       },
       [&] { return SysReAllocString(&unit, L"MPa") != FALSE; }},
  };
  fmt::print("ns{:>22}{:>10}{:>10}{:>10}{:>10}\n", "engine", "system", "early", "late", "name");
  bool kept = true;
  for (const Row& row : rows) {
    // What the machine does besides can cost more than the limit, but not every time.
    bool rowKept = false;
    for (int attempt = 0; attempt < 3 && !rowKept; ++attempt) rowKept = measure(steam, row, rounds);
    kept = kept && rowKept;
  }
  fmt::print("{:<34}{:>+10.0f}{:>+10.0f}  and {:g} % of the engine's\n", "limit", earlyLimit,
             lateLimit, 100.0 * copiesDiffer);
  SysFreeString(group);
  SysFreeString(unit);
  steam.Release();
  CoUninitialize();
  return kept ? 0 : 1;
}
