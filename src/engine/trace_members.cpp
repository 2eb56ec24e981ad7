// The members of the diagnostic record, and the dialogs.
#include "engine/thermo_engine.h"

namespace calvex {

int ZvThermoInt::ClearTraceInfo() {
  diagnostics_.clear();
  return 1;
}

int ZvThermoInt::AddCustomTraceTitle(std::string_view strTitle) {
  diagnostics_.addColumn(strTitle);
  return 1;
}

int ZvThermoInt::SetCustomTraceText(int nIndex, std::string_view strText) {
  return diagnostics_.setColumnText(nIndex, strText) ? 1 : 0;
}

int ZvThermoInt::GetCustomTraceText(int nIndex, std::string* strText) {
  return diagnostics_.getColumnText(nIndex, *strText) ? 1 : 0;
}

int ZvThermoInt::AddExternalError(std::string_view strName, std::string_view strText) {
  return diagnostics_.addExternalError(strName, strText) ? 1 : 0;
}

int ZvThermoInt::SetupExcelTracing() {
  diagnostics_.setupCellColumns();
  return 1;
}

int ZvThermoInt::SetCellRef(std::string_view strBook, std::string_view strSheet,
                            std::string_view strCell) {
  return diagnostics_.setCellReference(strBook, strSheet, strCell) ? 1 : 0;
}

int ZvThermoInt::GetCellRef(std::string* strCellRef) {
  return diagnostics_.getCellReference(*strCellRef) ? 1 : 0;
}

// The list is fixed.
int ZvThermoInt::GetAlarms(ResultArray* pAlarmArray) {
  ResultArray alarms;
  for (const char* name : {"Alarm Name0", "Alarm Name1", "Alarm Name2"}) {
    alarms.push_back({Cell(std::string(name)), Cell(std::string("Alarm Message"))});
  }
  *pAlarmArray = std::move(alarms);
  return 1;
}

template <class Show>
short ZvThermoInt::show(Show&& dialog) {
  if (!dialogs_) return static_cast<short>(DialogResult::cancel);
  return static_cast<short>(dialog(ClientApplication{appName_, appHelpFile_, uomHelpContext_}));
}

short ZvThermoInt::ShowTraceDlg() {
  return show([&](const auto& client) { return dialogs_->showTrace(diagnostics_, client); });
}

// In units mode 1 the units server shows its own.
short ZvThermoInt::ShowSelectUomDlg() {
  if (UnitsServer* server = units_.server()) return server->showDialog() ? 1 : 0;
  return show([&](const auto& client) { return dialogs_->selectUnits(units_, client); });
}

// The options are the settings; there is no dialog of them.
short ZvThermoInt::ShowOptionsDlg() { return static_cast<short>(DialogResult::cancel); }

}  // namespace calvex
