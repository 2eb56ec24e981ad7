#include "ui/windows/dialogs.h"

#include "ui/windows/trace_dialog.h"
#include "ui/windows/unit_dialog.h"

namespace calvex {

namespace {

class WindowsDialogs final : public Dialogs {
 public:
  explicit WindowsDialogs(HINSTANCE module) : module_(module) {}

  DialogResult showTrace(Diagnostics& diagnostics, const ClientApplication&) override {
    return TraceDialog(module_, diagnostics).run();
  }
  DialogResult selectUnits(UserUnits& units, const ClientApplication& client) override {
    return UnitDialog(module_, units, client).run();
  }

 private:
  HINSTANCE module_;
};

}  // namespace

std::unique_ptr<Dialogs> makeDialogs(HINSTANCE module) {
  return std::make_unique<WindowsDialogs>(module);
}

}  // namespace calvex
