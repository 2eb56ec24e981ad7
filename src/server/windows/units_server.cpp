#include "server/windows/units_server.h"

#include <algorithm>
#include <array>
#include <string>

#include "server/windows/boundary.h"
#include "server/windows/variants.h"

namespace calvex::com {

namespace {

// The server is known by the numbers of its members alone.
enum MemberId : DISPID {
  connection2 = 2,
  connection5 = 5,
  connection6 = 6,
  registerGroup = 7,
  setUnit = 10,
  getUnit = 12,
  declareInternalUnit = 17,
  showUnitsDialog = 19,
  convertBetween = 20,
  statusText = 23,
  internalToUser = 25,
  userToInternal = 26,
  connection29 = 29,
};

/// VARIANT_BOOL is a short like the status.
struct Flag {
  VARIANT_BOOL value = VARIANT_FALSE;
};

/// One argument; texts are freed with it.
struct Argument : VARIANT {
  Argument() { VariantInit(this); }
  explicit Argument(std::string_view text) : Argument() {
    bstrVal = toBstr(text);
    vt = VT_BSTR;
  }
  explicit Argument(bool flag) : Argument() {
    boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
    vt = VT_BOOL;
  }
  explicit Argument(double value) : Argument() {
    dblVal = value;
    vt = VT_R8;
  }
  explicit Argument(int value) : Argument() {
    lVal = value;
    vt = VT_I4;
  }
  explicit Argument(short value) : Argument() {
    iVal = value;
    vt = VT_I2;
  }
  explicit Argument(short* status) : Argument() {
    piVal = status;
    vt = VT_BYREF | VT_I2;
  }
  explicit Argument(double* value) : Argument() {
    pdblVal = value;
    vt = VT_BYREF | VT_R8;
  }
  explicit Argument(Flag* flag) : Argument() {
    pboolVal = &flag->value;
    vt = VT_BYREF | VT_BOOL;
  }
  explicit Argument(BSTR* text) : Argument() {
    pbstrVal = text;
    vt = VT_BYREF | VT_BSTR;
  }
  ~Argument() {
    if (vt == VT_BSTR) SysFreeString(bstrVal);
  }
  Argument(const Argument&) = delete;
  Argument& operator=(const Argument&) = delete;
};

struct OutText {
  BSTR text = nullptr;
  OutText() = default;
  ~OutText() { SysFreeString(text); }
  OutText(const OutText&) = delete;
  OutText& operator=(const OutText&) = delete;
};

/// An object that calls of every apartment reach: in its own one directly, in the others through a
/// proxy, so that it is only ever called by the thread that it belongs to.
class ForAllApartments {
 public:
  /// The calling thread's apartment is the object's.
  explicit ForAllApartments(IDispatch& object) {
    if (SUCCEEDED(CoCreateInstance(CLSID_StdGlobalInterfaceTable, nullptr, CLSCTX_INPROC_SERVER,
                                   IID_IGlobalInterfaceTable, reinterpret_cast<void**>(&table_)))) {
      table_->RegisterInterfaceInGlobal(&object, IID_IDispatch, &cookie_);
    }
  }
  ~ForAllApartments() {
    if (table_ == nullptr) return;
    if (cookie_ != 0) table_->RevokeInterfaceFromGlobal(cookie_);
    table_->Release();
  }
  ForAllApartments(const ForAllApartments&) = delete;
  ForAllApartments& operator=(const ForAllApartments&) = delete;

  /// For the calling thread, who releases it; null when the object cannot be reached.
  [[nodiscard]] IDispatch* get() const {
    void* object = nullptr;
    const bool found =
        cookie_ != 0 && SUCCEEDED(table_->GetInterfaceFromGlobal(cookie_, IID_IDispatch, &object));
    return found ? static_cast<IDispatch*>(object) : nullptr;
  }

 private:
  IGlobalInterfaceTable* table_ = nullptr;
  DWORD cookie_ = 0;
};

class AutomationUnitsServer final : public UnitsServer {
 public:
  explicit AutomationUnitsServer(IDispatch& object) : object_(object) {}

  /// What has to be called before anything else.
  bool setUp() {
    call(connection29, std::string_view());  // answers nothing
    return call(connection5, true) && call(connection6, true) && call(connection2, true);
  }

  bool declareGroup(std::string_view group, std::string_view internalUnit) override {
    short status = 0;
    // A server that knows the group already refuses to register it, and still needs the unit.
    const bool registered = call(registerGroup, group, true, &status);
    return call(declareInternalUnit, group, internalUnit, &status) && registered;
  }
  bool setUserUnit(std::string_view group, std::string_view unit, short& status) override {
    return call(setUnit, group, unit, &status);
  }
  bool getUserUnit(std::string_view group, std::string& unit, short& status) override {
    OutText answer;
    if (!call(getUnit, group, &answer.text, &status)) return false;
    unit = toText(answer.text);
    return true;
  }
  bool convert(std::string_view group, std::string_view from, std::string_view to, double value,
               double& result, short& status) override {
    return call(convertBetween, group, from, to, value, &result, &status);
  }
  bool toUser(std::string_view group, double value, double& result, short& status) override {
    return call(internalToUser, group, value, &result, &status);
  }
  bool toInternal(std::string_view group, double value, double& result, short& status) override {
    return call(userToInternal, group, value, &result, &status);
  }
  bool showDialog() override {
    Flag shown;
    return call(showUnitsDialog, 0, &shown) && shown.value != VARIANT_FALSE;
  }
  std::string errorText(short status) override {
    OutText answer;
    if (call(statusText, status, &answer.text) && answer.text != nullptr) {
      return toText(answer.text);
    }
    if (!reached_) {
      return "The units server cannot be reached: the thread that chose it has ended. Choose it "
             "again (AppLevel 2, then 1).";
    }
    return "The units server refused, and gave no reason (status " + std::to_string(status) + ").";
  }

 private:
  /// True when the member answers true.
  template <class... A>
  bool call(MemberId member, A... arguments) {
    // Automation lists arguments backwards.
    std::array<Argument, sizeof...(A)> forwards{Argument(arguments)...};
    std::array<VARIANT, sizeof...(A)> backwards;
    std::reverse_copy(forwards.begin(), forwards.end(), backwards.begin());
    DISPPARAMS parameters{backwards.data(), nullptr, static_cast<UINT>(backwards.size()), 0};
    VARIANT answer;
    VariantInit(&answer);
    IDispatch* const object = object_.get();
    reached_ = object != nullptr;
    if (!reached_) return false;
    const HRESULT result = [&] {
      const CallingOut away;
      return object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                            &answer, nullptr, nullptr);
    }();
    object->Release();
    reached_ = HRESULT_FACILITY(result) != FACILITY_RPC && result != CO_E_OBJNOTCONNECTED &&
               result != HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE);
    const bool succeeded = SUCCEEDED(result) &&
                           SUCCEEDED(VariantChangeType(&answer, &answer, 0, VT_BOOL)) &&
                           answer.boolVal != VARIANT_FALSE;
    VariantClear(&answer);
    return succeeded;
  }

  ForAllApartments object_;
  bool reached_ = true;  ///< by the last call
};

}  // namespace

std::unique_ptr<UnitsServer> connectUnitsServer() {
  CLSID id{};
  if (FAILED(CLSIDFromProgID(L"ZVMeasureSrv", &id))) return nullptr;
  IDispatch* object = nullptr;
  if (FAILED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                              IID_IDispatch, reinterpret_cast<void**>(&object)))) {
    return nullptr;
  }
  auto server = std::make_unique<AutomationUnitsServer>(*object);
  object->Release();
  if (!server->setUp()) return nullptr;
  return server;
}

}  // namespace calvex::com
