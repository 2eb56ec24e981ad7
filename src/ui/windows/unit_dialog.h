/// \file
/// The dialog "Select Units of Measure".
#pragma once

#include "ui/unit_selection.h"
#include "ui/windows/modal_dialog.h"

namespace calvex {

class UnitDialog final : public ModalDialog {
 public:
  UnitDialog(HINSTANCE module, UserUnits& units, const ClientApplication& client);
  DialogResult run() { return show(); }

 private:
  void opened() override;
  [[nodiscard]] Growth growth(int control) const override;
  void command(int control, int notification) override;
  void helpRequested() override;

  void accept();

  UnitSelection selection_;
  const ClientApplication& client_;
};

}  // namespace calvex
