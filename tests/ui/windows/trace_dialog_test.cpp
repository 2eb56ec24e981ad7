#include <windows.h>
// The controls' messages come after the window's.
#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "engine/thermo_engine.h"
#include "equipment/turbines_compressors.h"
#include "ui/resource_ids.h"
#include "ui/windows/appearance.h"
#include "ui/windows/dialog_user.h"
#include "ui/windows/dialogs.h"

namespace calvex {
namespace {

using test::DialogUser;
using Texts = std::vector<std::wstring>;

HWND listOf(HWND dialog) { return GetDlgItem(dialog, CALVEX_TRACE_LIST); }

std::wstring cell(HWND dialog, int row, int column) {
  wchar_t text[256] = {};
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text;
  item.cchTextMax = 256;
  SendMessageW(listOf(dialog), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
               reinterpret_cast<LPARAM>(&item));
  return text;
}

Texts column(HWND dialog, int number) {
  Texts texts;
  const int rows = static_cast<int>(SendMessageW(listOf(dialog), LVM_GETITEMCOUNT, 0, 0));
  for (int row = 0; row < rows; ++row) texts.push_back(cell(dialog, row, number));
  return texts;
}

void selectRow(HWND dialog, int row) {
  LVITEMW item{};
  item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  SendMessageW(listOf(dialog), LVM_SETITEMSTATE, static_cast<WPARAM>(row),
               reinterpret_cast<LPARAM>(&item));
}

int selectedRow(HWND dialog) {
  return static_cast<int>(SendMessageW(listOf(dialog), LVM_GETNEXTITEM, static_cast<WPARAM>(-1),
                                       LVNI_SELECTED | LVNI_FOCUSED));
}

// A click of the mouse into the first column; the second of two is a double click.
void clickRow(HWND dialog, int row, bool twice) {
  RECT label{};
  label.left = LVIR_LABEL;
  SendMessageW(listOf(dialog), LVM_GETITEMRECT, static_cast<WPARAM>(row),
               reinterpret_cast<LPARAM>(&label));
  const LPARAM place = MAKELPARAM(label.left + 5, (label.top + label.bottom) / 2);
  for (const UINT down : {static_cast<UINT>(WM_LBUTTONDOWN), static_cast<UINT>(WM_LBUTTONDBLCLK)}) {
    PostMessageW(listOf(dialog), WM_LBUTTONUP, 0, place);  // read by the list in the button's loop
    SendMessageW(listOf(dialog), down, MK_LBUTTON, place);
    MSG message;
    while (PeekMessageW(&message, listOf(dialog), WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE)) {
      DispatchMessageW(&message);
    }
    if (!twice) return;
  }
}

// A line for each node of the tree: its depth as indent, its image, "+" where it is expanded.
void outline(HWND tree, HTREEITEM node, const std::wstring& indent, std::wstring& lines) {
  for (; node != nullptr; node = reinterpret_cast<HTREEITEM>(SendMessageW(
                              tree, TVM_GETNEXTITEM, TVGN_NEXT, reinterpret_cast<LPARAM>(node)))) {
    wchar_t text[256] = {};
    TVITEMW item{};
    item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE;
    item.hItem = node;
    item.stateMask = TVIS_EXPANDED;
    item.pszText = text;
    item.cchTextMax = 256;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(item.iImage, item.iSelectedImage);
    lines += indent + std::to_wstring(item.iImage) + L' ' + text +
             ((item.state & TVIS_EXPANDED) != 0 ? L" +\n" : L"\n");
    outline(tree,
            reinterpret_cast<HTREEITEM>(
                SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CHILD, reinterpret_cast<LPARAM>(node))),
            indent + L"  ", lines);
  }
}

std::wstring outlineOf(HWND dialog) {
  const HWND tree = GetDlgItem(dialog, CALVEX_TRACE_TREE);
  std::wstring lines;
  outline(tree, reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0)), {},
          lines);
  return lines;
}

class TraceDialog : public testing::Test {
 protected:
  short show(std::vector<DialogUser::Turn> turns) {
    const DialogUser user(std::move(turns));
    const short result = engine_.ShowTraceDlg();
    EXPECT_EQ(user.dialogs(), 1U);
    return result;
  }

  // An equipment model whose property call fails, an efficiency above 1, a pressure above the
  // critical, a temperature beyond the strict range, a note and an error of the client: each of the
  // five icons, each call from its own cell.
  void calculateSheet() {
    engine_.SetTraceLevel(1);
    engine_.SetupExcelTracing();
    double power = 0, t = 0, h = 0, q = 0, vapour = 0, liquid = 0;
    engine_.SetCellRef("Plant.xls", "Turbines", "C12");
    EXPECT_EQ(TurbineA(engine_, &power, &t, &h, &q, 34000, 1500, 0.1, 0.85, 50, 1), 0);
    engine_.SetCellRef("Plant.xls", "Turbines", "C17");
    EXPECT_EQ(TurbineA(engine_, &power, &t, &h, &q, 3400, 10, 0.1, 1.85, 50, 1), 0);
    engine_.SetCellRef("Plant.xls", "Boiler", "A3");
    EXPECT_EQ(engine_.HVLTSat_PQ(&h, &vapour, &liquid, &t, 30, 0.5), 0);
    engine_.SetCellRef("Plant.xls", "Boiler", "B4");
    EXPECT_EQ(engine_.HPT(&h, 1, 1500), 1);
    engine_.SetCellRef("Plant.xls", "Boiler", "B9");
    EXPECT_EQ(engine_.SetTraceLevel(2), 1);
    engine_.SetCellRef("Plant.xls", "Summary", "D2");
    EXPECT_EQ(engine_.AddExternalError("Balance", "The flows of the header do not add up."), 1);
  }
  std::string cellReference() {
    std::string reference = "none";
    engine_.GetCellRef(&reference);
    return reference;
  }

  ZvThermoInt engine_{{}, makeDialogs(GetModuleHandleW(nullptr))};
};

TEST_F(TraceDialog, ListsWhatTheReportingLevelCovers) {
  calculateSheet();
  show({[](HWND dialog) {
    EXPECT_EQ(column(dialog, 0), (Texts{L"TurbineA", L"TurbineA", L"HVLTSat_PQ", L"HPT",
                                        L"SetTraceLevel", L"Balance"}));
    test::choose(dialog, CALVEX_TRACE_LEVEL, 1);
    EXPECT_EQ(column(dialog, 0),
              (Texts{L"TurbineA", L"TurbineA", L"HVLTSat_PQ", L"HPT", L"Balance"}));
    test::choose(dialog, CALVEX_TRACE_LEVEL, 0);
    EXPECT_EQ(column(dialog, 0), (Texts{L"TurbineA", L"TurbineA", L"HVLTSat_PQ", L"Balance"}));
    EXPECT_EQ(column(dialog, 1), Texts(4, L"Plant.xls"));
    EXPECT_EQ(column(dialog, 2), (Texts{L"Turbines", L"Turbines", L"Boiler", L"Summary"}));
    EXPECT_EQ(column(dialog, 3), (Texts{L"C12", L"C17", L"A3", L"D2"}));
  }});
}

TEST_F(TraceDialog, TheFirstRowIsSelectedAndHasTheFocusAtOpening) {
  calculateSheet();
  show({[](HWND dialog) {
    EXPECT_EQ(selectedRow(dialog), 0);
    EXPECT_EQ(GetFocus(), listOf(dialog));
  }});
}

TEST_F(TraceDialog, TheSelectedCallStaysSelectedAtALevelThatListsIt) {
  calculateSheet();
  show({[](HWND dialog) {
    selectRow(dialog, 5);
    test::choose(dialog, CALVEX_TRACE_LEVEL, 0);
    EXPECT_EQ(selectedRow(dialog), 3);
    test::choose(dialog, CALVEX_TRACE_LEVEL, 2);
    EXPECT_EQ(selectedRow(dialog), 5);
    selectRow(dialog, 4);
    test::choose(dialog, CALVEX_TRACE_LEVEL, 0);
    EXPECT_EQ(selectedRow(dialog), 0);
  }});
}

TEST_F(TraceDialog, TheTreeShowsTheSelectedCallExpanded) {
  calculateSheet();
  show({[](HWND dialog) {
    EXPECT_EQ(
        outlineOf(dialog),
        L"0 TurbineA +\n"
        L"  1 Inlet Pressure parameter out of strictly valid range.\n"
        L"  0 SPH +\n"
        L"    1 Pressure parameter out of strictly valid range.\n"
        L"    0 Solution Error.\n"
        L"    0 Enthalpy 34000 kJ/kg is above any that water has at 1500 MPa: the highest is "
        L"8653.84 "
        L"kJ/kg, at 2500 K.\n"
        L"  0 Inlet enthalpy 34000 kJ/kg is above 8653.84 kJ/kg, that of the hottest steam at the "
        L"inlet pressure: there is no such steam.\n");
    selectRow(dialog, 3);
    EXPECT_EQ(outlineOf(dialog),
              L"1 HPT +\n  1 Temperature parameter out of strictly valid range.\n");
    selectRow(dialog, 4);
    EXPECT_EQ(outlineOf(dialog), L"3 SetTraceLevel +\n  2 Reporting level set to 2.\n");
    selectRow(dialog, 5);
    EXPECT_EQ(outlineOf(dialog), L"4 Balance +\n  4 The flows of the header do not add up.\n");
  }});
}

TEST_F(TraceDialog, CloseMakesTheChosenLevelTheEngines) {
  EXPECT_EQ(show({[](HWND dialog) {
              EXPECT_EQ(test::textOf(dialog, CALVEX_TRACE_LEVEL), L"Errors Only");
              test::choose(dialog, CALVEX_TRACE_LEVEL, L"Errors & Warnings");
              test::click(dialog, IDOK);
            }}),
            1);
  EXPECT_EQ(engine_.TraceLevel(), 1);
}

TEST_F(TraceDialog, EscLeavesTheLevel) {
  EXPECT_EQ(show({[](HWND dialog) {
              test::choose(dialog, CALVEX_TRACE_LEVEL, 2);
              test::press(VK_ESCAPE);
            }}),
            2);
  EXPECT_EQ(engine_.TraceLevel(), 0);
}

TEST_F(TraceDialog, ItsMnemonicCloses) {
  EXPECT_EQ(show({[](HWND dialog) {
              EXPECT_EQ(test::textOf(dialog, IDOK), L"&Close");
              PostMessageW(GetFocus(), WM_SYSCHAR, 'c', 1 << 29);
            }}),
            1);
}

TEST_F(TraceDialog, AClickOrTheSpaceBarTakesTheCellAndStaysOpen) {
  calculateSheet();
  EXPECT_EQ(show({[this](HWND dialog) {
              clickRow(dialog, 1, false);
              EXPECT_EQ(cellReference(), "'[Plant.xls]Turbines'!C17");
              EXPECT_TRUE(IsWindowVisible(dialog));
              selectRow(dialog, 3);
              EXPECT_EQ(cellReference(), "'[Plant.xls]Turbines'!C17");
              SendMessageW(listOf(dialog), WM_KEYDOWN, VK_SPACE, 0);
              EXPECT_EQ(cellReference(), "'[Plant.xls]Boiler'!B4");
              EXPECT_TRUE(IsWindowVisible(dialog));
            }}),
            2);
  EXPECT_EQ(cellReference(), "'[Plant.xls]Boiler'!B4");
}

TEST_F(TraceDialog, ADoubleClickGoesToTheCell) {
  calculateSheet();
  EXPECT_EQ(show({[](HWND dialog) { clickRow(dialog, 5, true); }}), 999);
  EXPECT_EQ(cellReference(), "'[Plant.xls]Summary'!D2");
  EXPECT_EQ(engine_.TraceLevel(), 2);
}

TEST_F(TraceDialog, EnterInTheListGoesToTheCellAndElsewhereCloses) {
  calculateSheet();
  EXPECT_EQ(show({[](HWND dialog) {
              selectRow(dialog, 1);
              test::press(VK_RETURN);
            }}),
            999);
  EXPECT_EQ(cellReference(), "'[Plant.xls]Turbines'!C17");
  EXPECT_EQ(show({[](HWND dialog) {
              SetFocus(GetDlgItem(dialog, CALVEX_TRACE_LEVEL));
              test::press(VK_RETURN);
            }}),
            1);
}

TEST_F(TraceDialog, ACallWhileItIsUpNeitherShowsNorSpoilsTheChosenCell) {
  calculateSheet();
  EXPECT_EQ(show({[this](HWND dialog) {
              engine_.ClearTraceInfo();
              engine_.AddExternalError("later", "into recycled nodes");
              EXPECT_EQ(column(dialog, 0).size(), 6U);
              clickRow(dialog, 5, true);
              double enthalpy = 0;
              engine_.HPT(&enthalpy, 1, 500);  // empties the column texts
              EXPECT_EQ(cellReference(), "");
            }}),
            999);
  EXPECT_EQ(cellReference(), "'[Plant.xls]Summary'!D2");
}

TEST_F(TraceDialog, ColumnsHaveTheirTitlesAndSharesOfTheWidth) {
  engine_.SetupExcelTracing();
  show({[](HWND dialog) {
    RECT client{};
    GetClientRect(listOf(dialog), &client);
    const wchar_t* const titles[] = {L"Function", L"Book", L"Sheet", L"Cell"};
    const double widths[] = {0.5, 0.16, 0.16, 0.16};
    for (int i = 0; i < 4; ++i) {
      wchar_t title[32] = {};
      LVCOLUMNW shown{};
      shown.mask = LVCF_TEXT | LVCF_WIDTH;
      shown.pszText = title;
      shown.cchTextMax = 32;
      SendMessageW(listOf(dialog), LVM_GETCOLUMNW, static_cast<WPARAM>(i),
                   reinterpret_cast<LPARAM>(&shown));
      EXPECT_STREQ(title, titles[i]);
      EXPECT_EQ(shown.cx, static_cast<int>(widths[i] * static_cast<double>(client.right)));
    }
  }});
}

TEST_F(TraceDialog, ShowsTheClientsTextsInAnyScript) {
  engine_.SetupExcelTracing();
  const std::pair<const char*, const wchar_t*> texts[] = {
      {"Łódź.xlsx", L"Łódź.xlsx"},           {"Котельная.xlsx", L"Котельная.xlsx"},
      {"锅炉.xlsx", L"锅炉.xlsx"},           {"🔥.xlsx", L"🔥.xlsx"},
      {"\xED\xA0\xBD.xlsx", L"\xD83D.xlsx"},  // half a surrogate pair
  };
  Texts expected;
  std::wstring last;
  for (const auto& [text, shown] : texts) {
    engine_.SetCellRef(text, text, "B1");
    EXPECT_EQ(engine_.AddExternalError(text, text), 1);
    expected.emplace_back(shown);
  }
  engine_.SetCellRef(std::string("a\0b", 3), "", "");
  EXPECT_EQ(engine_.AddExternalError("Насос", std::string(200, 'x') + "й"), 1);
  show({[&](HWND dialog) {
    expected.emplace_back(L"Насос");
    EXPECT_EQ(column(dialog, 0), expected);
    expected.back() = L"a\u2400b";
    EXPECT_EQ(column(dialog, 1), expected);
    EXPECT_EQ(outlineOf(dialog), L"4 Łódź.xlsx +\n  4 Łódź.xlsx\n");
    selectRow(dialog, 3);
    EXPECT_EQ(outlineOf(dialog), L"4 🔥.xlsx +\n  4 🔥.xlsx\n");
    selectRow(dialog, 5);
    EXPECT_EQ(outlineOf(dialog), L"4 Насос +\n  4 " + std::wstring(200, L'x') + L"й\n");
  }});
}

TEST_F(TraceDialog, OpensAtTheMiddleOfItsOwner) {
  test::expectCentred([this](DialogUser::Turn turn) { show({std::move(turn)}); });
}

TEST_F(TraceDialog, IsDrawnWholeAtEverySize) {
  show({[](HWND dialog) { test::expectDrawnWhole(dialog); }});
}

TEST_F(TraceDialog, GrowsWithItsControlsAndDoesNotShrink) {
  engine_.SetupExcelTracing();
  show({[](HWND dialog) {
    test::expectResizable(dialog);
    const RECT list = test::placeOf(listOf(dialog));
    const RECT tree = test::placeOf(GetDlgItem(dialog, CALVEX_TRACE_TREE));
    const RECT close = test::placeOf(GetDlgItem(dialog, IDOK));
    const RECT level = test::placeOf(GetDlgItem(dialog, CALVEX_TRACE_LEVEL));
    test::enlarge(dialog, 200, 100);
    const RECT largerTree = test::placeOf(GetDlgItem(dialog, CALVEX_TRACE_TREE));
    EXPECT_EQ(test::placeOf(listOf(dialog)).bottom, list.bottom + 50);
    EXPECT_EQ(test::placeOf(listOf(dialog)).right, list.right + 200);
    EXPECT_EQ(largerTree.top, tree.top + 50);
    EXPECT_EQ(largerTree.bottom, tree.bottom + 100);
    EXPECT_EQ(largerTree.right, tree.right + 200);
    EXPECT_EQ(test::placeOf(GetDlgItem(dialog, IDOK)).left, close.left + 200);
    EXPECT_EQ(test::placeOf(GetDlgItem(dialog, CALVEX_TRACE_LEVEL)).left, level.left);
    EXPECT_EQ(test::placeOf(GetDlgItem(dialog, CALVEX_TRACE_LEVEL)).top, level.top + 100);
    RECT client{};
    GetClientRect(listOf(dialog), &client);
    EXPECT_EQ(SendMessageW(listOf(dialog), LVM_GETCOLUMNWIDTH, 0, 0), client.right / 2);
    test::expectEverythingFits(dialog);
  }});
}

TEST_F(TraceDialog, TheLetterOfTheLevelLeadsToIt) {
  show({[](HWND dialog) {
    test::pressWithAlt(dialog, L'l');
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, CALVEX_TRACE_LEVEL));
  }});
}

TEST_F(TraceDialog, AnEmptyRecordShowsNothingAndOffersNothing) {
  EXPECT_EQ(show({[](HWND dialog) {
              EXPECT_EQ(test::textOf(dialog), L"Diagnostic Information");
              EXPECT_EQ(column(dialog, 0), Texts{});
              EXPECT_EQ(outlineOf(dialog), L"");
              SendMessageW(listOf(dialog), WM_KEYDOWN, VK_RETURN, 0);
              EXPECT_TRUE(IsWindowVisible(dialog));
            }}),
            2);
}

TEST_F(TraceDialog, BothControlsShowTheFiveIconsInTheSizeOfSmallIcons) {
  show({[](HWND dialog) {
    const LRESULT images = SendMessageW(listOf(dialog), LVM_GETIMAGELIST, LVSIL_SMALL, 0);
    EXPECT_EQ(SendDlgItemMessageW(dialog, CALVEX_TRACE_TREE, TVM_GETIMAGELIST, TVSIL_NORMAL, 0),
              images);
    const auto list = reinterpret_cast<HIMAGELIST>(images);
    EXPECT_EQ(ImageList_GetImageCount(list), 5);
    int width = 0, height = 0;
    EXPECT_TRUE(ImageList_GetIconSize(list, &width, &height));
    EXPECT_EQ(width, GetSystemMetrics(SM_CXSMICON));
    EXPECT_EQ(height, GetSystemMetrics(SM_CYSMICON));
  }});
}

TEST_F(TraceDialog, EverythingFits) {
  calculateSheet();
  show({[](HWND dialog) {
    test::expectEverythingFits(dialog);
    test::takePicture(dialog, "dialog-trace");
  }});
}

}  // namespace
}  // namespace calvex
