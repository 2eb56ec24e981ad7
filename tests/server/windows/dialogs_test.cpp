// The two dialogs as a client shows them, driven as a user drives them.
#include "server/windows/client.h"
#include "ui/windows/dialog_user.h"
// After the platform's declarations.
#include <commctrl.h>

#include "ui/resource_ids.h"

namespace calvex::test {
namespace {

constexpr int temperatureList = 1000;

class Dialogs : public Client {
 protected:
  short selectUnits(std::vector<DialogUser::Turn> turns) {
    const DialogUser user(turns);
    short result = -1;
    EXPECT_EQ(steam->ShowSelectUomDlg(&result), S_OK);
    EXPECT_EQ(user.dialogs(), turns.size());
    return result;
  }
  short showTrace(DialogUser::Turn turn) {
    const DialogUser user({std::move(turn)});
    short result = -1;
    EXPECT_EQ(steam->ShowTraceDlg(&result), S_OK);
    EXPECT_EQ(user.dialogs(), 1U);
    return result;
  }
  std::string unitOf(const wchar_t* group) {
    Text unit;
    LONG success = 0;
    EXPECT_EQ(steam->GetUserUnit(Text(group).get(), unit.place(), &success), S_OK);
    EXPECT_EQ(success, 1);
    return unit.ascii();
  }
  double gaugeOfOneBar() {
    double gauge = 0;
    LONG success = 0;
    steam->Convert(Text(L"P").get(), Text(L"bara").get(), Text(L"barg").get(), 1.0, &gauge,
                   &success);
    EXPECT_EQ(success, 1);
    return gauge;
  }
  /// A failing call from a cell.
  void failAt(const wchar_t* cell, double P, double T) {
    EXPECT_EQ(steam->SetCellRef(Text(L"Plant.xls").get(), Text(L"Boiler").get(), Text(cell).get()),
              S_OK);
    double h = 0;
    LONG success = 1;
    EXPECT_EQ(steam->HPT(&h, P, T, &success), S_OK);
    EXPECT_EQ(success, 0);
  }
  std::string cellReference() {
    Text reference;
    EXPECT_EQ(steam->GetCellRef(reference.place()), S_OK);
    return reference.ascii();
  }
};

int rowsOf(HWND dialog) {
  return static_cast<int>(SendDlgItemMessageW(dialog, CALVEX_TRACE_LIST, LVM_GETITEMCOUNT, 0, 0));
}

void selectRow(HWND dialog, int row) {
  LVITEMW item{};
  item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  SendDlgItemMessageW(dialog, CALVEX_TRACE_LIST, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                      reinterpret_cast<LPARAM>(&item));
}

TEST_F(Dialogs, OkWithoutChangesLeavesTheUnits) {
  EXPECT_EQ(selectUnits({[](HWND dialog) { click(dialog, IDOK); }}), 1);
  EXPECT_EQ(unitOf(L"T"), "K");
  EXPECT_EQ(unitOf(L"P"), "MPa");
}

TEST_F(Dialogs, AChosenUnitIsThatOfTheNextCall) {
  EXPECT_EQ(selectUnits({[](HWND dialog) {
              choose(dialog, temperatureList, L"F");
              click(dialog, IDOK);
            }}),
            1);
  EXPECT_EQ(unitOf(L"T"), "F");
  double t = 0;
  LONG success = 0;
  // The critical temperature of the formulation, 647.126 K.
  EXPECT_EQ(steam->CritT(&t), S_OK);
  EXPECT_NEAR(t, 647.126 * 1.8 - 459.67, 1e-6);
  EXPECT_EQ(steam->SetUserUnit(Text(L"T").get(), Text(L"K").get(), &success), S_OK);
}

TEST_F(Dialogs, CancelLeavesTheUnits) {
  EXPECT_EQ(selectUnits({[](HWND dialog) {
              choose(dialog, temperatureList, L"F");
              click(dialog, IDCANCEL);
            }}),
            2);
  EXPECT_EQ(unitOf(L"T"), "K");
}

TEST_F(Dialogs, TheAtmosphericPressureDoesNotMoveTheGaugeUnits) {
  const double before = gaugeOfOneBar();
  EXPECT_EQ(selectUnits({[](HWND dialog) {
              SetDlgItemTextW(dialog, CALVEX_ATMOSPHERIC_PRESSURE, L"0.9");
              click(dialog, IDOK);
            }}),
            1);
  EXPECT_EQ(gaugeOfOneBar(), before);
  EXPECT_NEAR(before, 1.0 - 1.01325, 1e-9);
}

TEST_F(Dialogs, ANonNumberKeepsTheDialogWithTheChoicesApplied) {
  EXPECT_EQ(selectUnits({[this](HWND dialog) {
                           choose(dialog, temperatureList, L"C");
                           SetDlgItemTextW(dialog, CALVEX_ATMOSPHERIC_PRESSURE, L"high");
                           click(dialog, IDOK);  // returns when the message is closed
                           EXPECT_TRUE(IsWindowVisible(dialog));
                           EXPECT_EQ(unitOf(L"T"), "C");
                         },
                         [](HWND message) { click(message, IDOK); }}),
            2);
  EXPECT_EQ(unitOf(L"T"), "C");
}

TEST_F(Dialogs, TheReportingLevelListsItsCallsAndIsKeptByClose) {
  ASSERT_EQ(steam->put_TraceLevel(1), S_OK);
  ASSERT_EQ(steam->SetupExcelTracing(), S_OK);
  failAt(L"A1", -1, 500);
  double h = 0;
  LONG success = 0;
  ASSERT_EQ(steam->HPT(&h, 1, 1300, &success), S_OK);  // a warning: above 1273.15 K
  EXPECT_EQ(success, 1);
  EXPECT_EQ(showTrace([](HWND dialog) {
              EXPECT_EQ(rowsOf(dialog), 2);
              choose(dialog, CALVEX_TRACE_LEVEL, L"Errors Only");
              EXPECT_EQ(rowsOf(dialog), 1);
              click(dialog, IDOK);
            }),
            1);
  short level = -1;
  EXPECT_EQ(steam->get_TraceLevel(&level), S_OK);
  EXPECT_EQ(level, 0);
}

TEST_F(Dialogs, TheSpaceBarTakesTheCellAndEnterGoesToIt) {
  ASSERT_EQ(steam->SetupExcelTracing(), S_OK);
  failAt(L"A1", -1, 500);
  failAt(L"B2", 10, 1);
  EXPECT_EQ(showTrace([this](HWND dialog) {
              selectRow(dialog, 1);
              SendDlgItemMessageW(dialog, CALVEX_TRACE_LIST, WM_KEYDOWN, VK_SPACE, 0);
              EXPECT_TRUE(IsWindowVisible(dialog));
              EXPECT_EQ(cellReference(), "'[Plant.xls]Boiler'!B2");
            }),
            2);
  EXPECT_EQ(showTrace([](HWND dialog) {
              selectRow(dialog, 0);
              press(VK_RETURN);
            }),
            999);
  EXPECT_EQ(cellReference(), "'[Plant.xls]Boiler'!A1");
}

TEST_F(Dialogs, TheOptionsAreNeverShown) {
  const DialogUser user({});
  short result = -1;
  EXPECT_EQ(steam->ShowOptionsDlg(&result), S_OK);
  EXPECT_EQ(result, 2);
  EXPECT_EQ(user.dialogs(), 0U);
}

}  // namespace
}  // namespace calvex::test
