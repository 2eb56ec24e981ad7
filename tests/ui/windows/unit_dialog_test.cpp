#include <gtest/gtest.h>

#include <cwctype>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "ui/resource_ids.h"
#include "ui/windows/appearance.h"
#include "ui/windows/dialog_user.h"
#include "ui/windows/dialogs.h"
#include "units/user_units.h"

namespace calvex {
namespace {

using test::DialogUser;

constexpr int temperatureList = 1000, pressureList = 1001;

class UnitDialog : public testing::Test {
 protected:
  DialogResult show(std::vector<DialogUser::Turn> turns) {
    DialogUser user(std::move(turns));
    const DialogResult result =
        makeDialogs(GetModuleHandleW(nullptr))->selectUnits(units_, client_);
    dialogs_ = user.dialogs();
    return result;
  }
  [[nodiscard]] std::vector<std::string> userUnits() const {
    std::vector<std::string> names(unitGroupCount);
    for (int group = 0; group < unitGroupCount; ++group) {
      EXPECT_TRUE(units_.catalogue().getUserUnit(group, names[static_cast<std::size_t>(group)]));
    }
    return names;
  }

  UserUnits units_;
  ClientApplication client_;
  std::size_t dialogs_ = 0;
};

TEST_F(UnitDialog, OkWithoutChangesLeavesEveryUnit) {
  ASSERT_TRUE(units_.setCatalogueUnit(1, "psia"));
  const auto before = userUnits();
  EXPECT_EQ(show({[](HWND dialog) { test::click(dialog, IDOK); }}), DialogResult::ok);
  EXPECT_EQ(userUnits(), before);
  EXPECT_EQ(dialogs_, 1U);
}

TEST_F(UnitDialog, ChoosingFahrenheitMakesItTheUserUnit) {
  auto expected = userUnits();
  expected[0] = std::string("F");
  EXPECT_EQ(show({[](HWND dialog) {
              test::choose(dialog, temperatureList, L"F");
              test::click(dialog, IDOK);
            }}),
            DialogResult::ok);
  EXPECT_EQ(userUnits(), expected);
}

TEST_F(UnitDialog, CancelLeavesTheCatalogue) {
  const auto before = userUnits();
  EXPECT_EQ(show({[](HWND dialog) {
              test::choose(dialog, temperatureList, L"F");
              test::click(dialog, IDCANCEL);
            }}),
            DialogResult::cancel);
  EXPECT_EQ(userUnits(), before);
}

TEST_F(UnitDialog, EscCancelsAndEnterAccepts) {
  EXPECT_EQ(show({[](HWND dialog) {
              test::choose(dialog, temperatureList, L"F");
              test::press(VK_ESCAPE);
            }}),
            DialogResult::cancel);
  EXPECT_EQ(userUnits()[0], "K");
  EXPECT_EQ(show({[](HWND dialog) {
              test::choose(dialog, temperatureList, L"F");
              test::press(VK_RETURN);
            }}),
            DialogResult::ok);
  EXPECT_EQ(userUnits()[0], "F");
}

TEST_F(UnitDialog, AnotherAtmosphericPressureLeavesTheGaugeUnits) {
  ASSERT_TRUE(units_.setCatalogueUnit(1, "barg"));
  EXPECT_EQ(show({[](HWND dialog) {
              EXPECT_EQ(test::textOf(dialog, CALVEX_ATMOSPHERIC_PRESSURE), L"1.01325");
              SetDlgItemTextW(dialog, CALVEX_ATMOSPHERIC_PRESSURE, L"0.9");
              test::click(dialog, IDOK);
            }}),
            DialogResult::ok);
  EXPECT_NEAR(units_.toInternal(UnitGroup::pressure, 0), 0.101325, 1e-15);
  EXPECT_EQ(units_.catalogue().atmosphericPressure, 1.01325);
}

TEST_F(UnitDialog, NoNumberKeepsItOpenWithTheChoicesApplied) {
  EXPECT_EQ(show({[this](HWND dialog) {
                    test::choose(dialog, temperatureList, L"F");
                    SetDlgItemTextW(dialog, CALVEX_ATMOSPHERIC_PRESSURE, L"one");
                    test::click(dialog, IDOK);
                    EXPECT_TRUE(IsWindowVisible(dialog));
                    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, CALVEX_ATMOSPHERIC_PRESSURE));
                    EXPECT_EQ(userUnits()[0], "F");
                  },
                  [](HWND box) {
                    EXPECT_EQ(test::textOf(box), L"Select Units of Measure");
                    const std::wstring text = test::textOf(box, 0xFFFF);
                    EXPECT_NE(text.find(L"\"one\" is not a number."), std::wstring::npos);
                    EXPECT_NE(text.find(L"such as 1.01325"), std::wstring::npos);
                    test::click(box, IDOK);
                  }}),
            DialogResult::cancel);
  EXPECT_EQ(dialogs_, 2U);
  EXPECT_EQ(userUnits()[0], "F");
}

TEST_F(UnitDialog, ControlsComeInTabOrderWithTheirLabels) {
  const std::vector<std::pair<std::wstring, int>> expected = {
      {L"&Pressure", 1001},
      {L"&Temperature", 1000},
      {L"Mass Specific &Enthalpy", 1002},
      {L"Mass Specific E&ntropy", 1003},
      {L"&Internal Energy", 1013},
      {L"&Quality", 1004},
      {L"Specific &Density", 1008},
      {L"Specific &Volume", 1007},
      {L"Helmholtz &Free Energy", 1018},
      {L"&Gibbs Free Energy", 1019},
      {L"D&ynamic Viscosity", 1010},
      {L"Specific Heat &Capacity", 1005},
      {L"Thermal Cond&uctivity", 1006},
      {L"Thermal E&xp. Coeff.", 1011},
      {L"Isothermal Co&mp.", 1012},
      {L"&Surface Tension", 1014},
      {L"Ve&locity", 1015},
      {L"&J.T. Coeff.", 1016},
      {L"Is&o. J.T. Coeff.", 1017},
      {L"Molecular &Weight", 1009},
  };
  show({[&](HWND dialog) {
    EXPECT_EQ(test::textOf(dialog), L"Select Units of Measure");
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), pressureList);
    const std::vector<HWND> controls = test::controlsOf(dialog);
    ASSERT_EQ(controls.size(), 46U);
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(test::textOf(controls[2 * i]), expected[i].first);
      EXPECT_EQ(GetDlgCtrlID(controls[2 * i + 1]), expected[i].second);
    }
    const wchar_t* const texts[] = {L"OK",      L"Cancel", L"&Help", L"&Atmospheric Pressure",
                                    L"1.01325", L"Bara"};
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(test::textOf(controls[40 + i]), texts[i]);
    EXPECT_EQ(GetDlgCtrlID(controls[40]), 1);
    EXPECT_EQ(GetDlgCtrlID(controls[41]), 2);
    EXPECT_EQ(GetDlgCtrlID(controls[44]), 201);
    for (const HWND control : controls) {
      EXPECT_EQ(IsWindowEnabled(control), test::textOf(control) != L"&Help");
    }
  }});
}

TEST_F(UnitDialog, IsAsLargeAsItsTemplate) {
  show({[](HWND dialog) {
    RECT expected = {0, 0, 307, 210}, client{};
    MapDialogRect(dialog, &expected);
    GetClientRect(dialog, &client);
    EXPECT_TRUE(EqualRect(&client, &expected));
  }});
}

TEST_F(UnitDialog, AListShowsItsUnitsAsTextAndTheCurrentOneChosen) {
  ASSERT_TRUE(units_.setCatalogueUnit(2, "kg/m³"));
  show({[](HWND dialog) {
    EXPECT_EQ(test::textOf(dialog, 1008), L"kg/m\u00B3");
    const HWND list = GetDlgItem(dialog, temperatureList);
    std::vector<std::wstring> entries;
    for (int i = 0; i < SendMessageW(list, CB_GETCOUNT, 0, 0); ++i) {
      entries.push_back(test::entryOf(list, i));
    }
    EXPECT_EQ(entries, (std::vector<std::wstring>{L"C", L"F", L"K", L"R"}));
    EXPECT_EQ(test::textOf(list), L"K");
  }});
}

TEST_F(UnitDialog, EveryListIsReachedByALetterOfItsOwn) {
  show({[](HWND dialog) {
    std::set<wchar_t> letters;
    const std::vector<HWND> controls = test::controlsOf(dialog);
    for (std::size_t i = 0; i + 1 < controls.size(); ++i) {
      const std::wstring label = test::textOf(controls[i]);
      const auto mark = label.find(L'&');
      if (mark == std::wstring::npos || label == L"&Help") continue;
      const wchar_t letter = static_cast<wchar_t>(std::towlower(label.at(mark + 1)));
      EXPECT_TRUE(letters.insert(letter).second) << testing::PrintToString(label);
      SetFocus(GetDlgItem(dialog, IDOK));
      test::pressWithAlt(dialog, letter);
      EXPECT_EQ(GetFocus(), controls[i + 1]) << testing::PrintToString(label);
    }
    EXPECT_EQ(letters.size(), 21U);        // the lists and the atmospheric pressure
    EXPECT_FALSE(letters.contains(L'h'));  // Help
  }});
}

TEST_F(UnitDialog, OpensAtTheMiddleOfItsOwner) {
  test::expectCentred([this](DialogUser::Turn turn) { show({std::move(turn)}); });
}

TEST_F(UnitDialog, IsDrawnWholeAtEverySize) {
  show({[](HWND dialog) { test::expectDrawnWhole(dialog); }});
}

TEST_F(UnitDialog, GrowsWithItsControlsAndDoesNotShrink) {
  show({[](HWND dialog) {
    test::expectResizable(dialog);
    const RECT list = test::placeOf(GetDlgItem(dialog, pressureList));
    const RECT opposite = test::placeOf(GetDlgItem(dialog, 1010));
    const RECT cancel = test::placeOf(GetDlgItem(dialog, IDCANCEL));
    test::enlarge(dialog, 200, 100);
    EXPECT_EQ(test::placeOf(GetDlgItem(dialog, pressureList)).right, list.right + 100);
    EXPECT_EQ(test::placeOf(GetDlgItem(dialog, 1010)).right, opposite.right + 200);
    EXPECT_EQ(test::placeOf(GetDlgItem(dialog, IDCANCEL)).right, cancel.right + 200);
    EXPECT_EQ(test::placeOf(GetDlgItem(dialog, IDCANCEL)).bottom, cancel.bottom + 100);
    test::expectEverythingFits(dialog);
    // A list opens as far as before.
    RECT open{};
    SendDlgItemMessageW(dialog, pressureList, CB_GETDROPPEDCONTROLRECT, 0,
                        reinterpret_cast<LPARAM>(&open));
    EXPECT_GT(open.bottom - open.top, 3 * (list.bottom - list.top));
    EXPECT_EQ(test::placeOf(GetDlgItem(dialog, pressureList)).bottom -
                  test::placeOf(GetDlgItem(dialog, pressureList)).top,
              list.bottom - list.top);
  }});
}

TEST_F(UnitDialog, HelpThatCannotBeOpenedIsReported) {
  client_.helpFile = "Z:/no such folder/help.chm";
  client_.unitsHelpContext = 7;
  show({[](HWND dialog) {
          EXPECT_TRUE(IsWindowEnabled(GetDlgItem(dialog, CALVEX_HELP)));
          test::click(dialog, CALVEX_HELP);
          EXPECT_TRUE(IsWindowVisible(dialog));
        },
        [](HWND box) {
          EXPECT_NE(test::textOf(box, 0xFFFF).find(L"Z:/no such folder/help.chm"),
                    std::wstring::npos);
        }});
  EXPECT_EQ(dialogs_, 2U);
}

TEST_F(UnitDialog, EverythingFits) {
  show({[](HWND dialog) {
    test::expectEverythingFits(dialog);
    test::takePicture(dialog, "dialog-units");
  }});
}

}  // namespace
}  // namespace calvex
