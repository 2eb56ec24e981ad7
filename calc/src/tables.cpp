#include "tables.h"

#include <fmt/format.h>

#include <com/sun/star/awt/Rectangle.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/chart/XAxisXSupplier.hpp>
#include <com/sun/star/chart/XAxisYSupplier.hpp>
#include <com/sun/star/chart/XChartDocument.hpp>
#include <com/sun/star/document/XEmbeddedObjectSupplier.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/table/XTableCharts.hpp>
#include <com/sun/star/table/XTableChartsSupplier.hpp>
#include <com/sun/star/util/XProtectable.hpp>

#include "formula.h"
#include "texts.h"

namespace calvex::calc {

using css::beans::XPropertySet;
using css::table::XCellRange;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

namespace {

// A place in a sheet to write at.
struct Corner {
  Reference<XCellRange> sheet;
  sal_Int32 column;
  sal_Int32 row;

  [[nodiscard]] Reference<css::table::XCell> at(sal_Int32 right, sal_Int32 down) const {
    return sheet->getCellByPosition(column + right, row + down);
  }
  void put(sal_Int32 right, sal_Int32 down, const std::string& formula) const {
    at(right, down)->setFormula(toOffice(formula));
  }
  // A result of four decimals: Calc keeps the values of formatted cells without the extension.
  void putResult(sal_Int32 right, sal_Int32 down, const std::string& formula) const {
    put(right, down, formula);
    constexpr sal_Int32 twoDecimals = 2;
    Reference<XPropertySet>(at(right, down), UNO_QUERY_THROW)
        ->setPropertyValue("NumberFormat", css::uno::Any(twoDecimals));
  }
  void putHeading(sal_Int32 right, sal_Int32 down, const std::string& text) const {
    put(right, down, text);
    constexpr float bold = 150.0F;
    Reference<XPropertySet>(at(right, down), UNO_QUERY_THROW)
        ->setPropertyValue("CharWeight", css::uno::Any(bold));
  }
  // "A1", with "$A" where the column stays and "A$1" where the row stays.
  [[nodiscard]] std::string name(sal_Int32 right, sal_Int32 down) const {
    std::string full = nameOf(at(right, down));
    return full.substr(full.rfind('.') + 1);
  }
};

// A value of the model in the document's unit, as a formula.
std::string inUnits(const std::string& keyword, const std::string& unit, const std::string& value) {
  return "=CALVEX.CONVERT(\"" + keyword + "\";\"" + unit + "\";CALVEX.UNIT(\"" + keyword + "\");" +
         value + ")";
}

std::string unitFormula(int group) {
  if (group < 0) return {};
  return "=CALVEX.UNIT(\"" + textOf([&](char* text, std::size_t size, std::size_t* needed) {
           calvex_group_text(group, CALVEX_GROUP_KEYWORD, text, size, needed);
         }) +
         "\")";
}

std::string wordsOf(int member, std::size_t parameter) {
  return textOf([&](char* text, std::size_t size, std::size_t* needed) {
    calvex_parameter_text(member, parameter, CALVEX_PARAMETER_WORDS, text, size, needed);
  });
}

// Throws unless the cells of a table can be written there: nothing that stands there is lost, and
// no table is cut off.
void checkRoom(const Corner& corner, sal_Int32 columns, sal_Int32 rows) {
  const auto refuse = [](const std::string& why) { throw Error(CALVEX_VALUE, why); };
  if (Reference<css::util::XProtectable>(corner.sheet, UNO_QUERY_THROW)->isProtected()) {
    refuse("The sheet is protected: take its protection off (Tools > Protect Sheet) first.");
  }
  const Reference<css::table::XColumnRowRange> all(corner.sheet, UNO_QUERY_THROW);
  if (corner.column + columns > all->getColumns()->getCount() ||
      corner.row + rows > all->getRows()->getCount()) {
    refuse(
        fmt::format("The table has {} columns and {} rows: select a cell further from the "
                    "sheet's end.",
                    columns, rows));
  }
  const Reference<css::sheet::XCellRangesQuery> place(
      corner.sheet->getCellRangeByPosition(corner.column, corner.row, corner.column + columns - 1,
                                           corner.row + rows - 1),
      UNO_QUERY_THROW);
  constexpr sal_Int16 contents = css::sheet::CellFlags::VALUE | css::sheet::CellFlags::DATETIME |
                                 css::sheet::CellFlags::STRING | css::sheet::CellFlags::FORMULA;
  if (place->queryContentCells(contents)->getCount() > 0) {
    refuse(
        fmt::format("The cells from {} to {} are not empty: select a cell with room for {} "
                    "columns and {} rows.",
                    corner.name(0, 0), corner.name(columns - 1, rows - 1), columns, rows));
  }
}

// So that the headings can be read.
void widen(const Corner& corner, sal_Int32 columns) {
  const auto all =
      Reference<css::table::XColumnRowRange>(corner.sheet, UNO_QUERY_THROW)->getColumns();
  for (sal_Int32 i = 0; i < columns; ++i) {
    Reference<XPropertySet>(all->getByIndex(corner.column + i), UNO_QUERY_THROW)
        ->setPropertyValue("OptimalWidth", css::uno::Any(true));
  }
}

// A member of the saturation line with the quality that it is asked for.
struct SaturationColumn {
  const char* member;
  const char* quality;  // null: the member takes none
};

constexpr SaturationColumn saturationColumns[] = {
    {"PSatT", nullptr}, {"VSatTQ", "0"}, {"VSatTQ", "1"}, {"HSatTQ", "0"},
    {"HSatTQ", "1"},    {"SSatTQ", "0"}, {"SSatTQ", "1"},
};

}  // namespace

void insertSaturationTable(const Reference<XCellRange>& sheet, sal_Int32 column, sal_Int32 row) {
  const Corner corner{sheet, column, row};
  constexpr int first = 10, last = 370, step = 10;  // °C
  constexpr int rows = (last - first) / step + 3, columns = std::size(saturationColumns) + 1;
  checkRoom(corner, columns, rows);
  const std::string vapour = inUnits("Q", "Fraction", "1").substr(1);  // 100 in per cent
  corner.putHeading(0, 0, "temperature");
  corner.put(0, 1, "=CALVEX.UNIT(\"T\")");
  sal_Int32 right = 1;
  for (const SaturationColumn& shown : saturationColumns) {
    const Signature& signature = *findSignature(shown.member);
    const std::string phase = shown.quality == nullptr  ? ""
                              : shown.quality[0] == '0' ? ", liquid"
                                                        : ", vapour";
    corner.putHeading(right, 0, wordsOf(signature.member, 0) + phase);
    corner.put(right++, 1, unitFormula(signature.outputs[0].group));
  }
  for (int T = first, down = 2; T <= last; T += step, ++down) {
    corner.putResult(0, down, inUnits("T", "C", std::to_string(T)));
    right = 1;
    for (const SaturationColumn& shown : saturationColumns) {
      const std::string quality = shown.quality == nullptr  ? ""
                                  : shown.quality[0] == '0' ? ";0"
                                                            : ";" + vapour;
      corner.put(right++, down,
                 "=" + std::string(shown.member) + "($" + corner.name(0, down) + quality + ")");
    }
  }
  widen(corner, columns);
}

void insertStateTable(const Reference<XCellRange>& sheet, sal_Int32 column, sal_Int32 row) {
  const Corner corner{sheet, column, row};
  constexpr std::string_view properties = "HSUVRCDWMKAGZNEIJBL";
  checkRoom(corner, 3, static_cast<sal_Int32>(properties.size()) + 2);
  corner.putHeading(0, 0, "pressure");
  corner.put(1, 0, inUnits("P", "MPa", "10"));
  corner.put(2, 0, "=CALVEX.UNIT(\"P\")");
  corner.putHeading(0, 1, "temperature");
  corner.put(1, 1, inUnits("T", "C", "500"));
  corner.put(2, 1, "=CALVEX.UNIT(\"T\")");
  sal_Int32 down = 2;
  for (const char letter : properties) {
    const Signature* signature = findSignature(std::string(1, letter) + "PT");
    corner.put(0, down, wordsOf(signature->member, 0));
    corner.put(1, down,
               "=" + signature->name + "(" + corner.name(1, 0) + ";" + corner.name(1, 1) + ")");
    corner.put(2, down++, unitFormula(signature->outputs[0].group));
  }
  widen(corner, 3);
}

namespace {

constexpr const char* isobars[] = {"0.01", "0.1", "1", "5", "10", "20", "50"};  // MPa
constexpr int isobarCount = std::size(isobars);

// Rows of entropy, enthalpies along the isobars and along the saturation line; answers how many.
sal_Int32 writeMollier(const Corner& corner) {
  corner.putHeading(0, 0, "entropy");
  corner.put(0, 1, "=CALVEX.UNIT(\"S\")");
  for (int i = 0; i < isobarCount; ++i) {
    corner.putHeading(i + 1, 0, inUnits("P", "MPa", isobars[i]));
    // What the legend shows.
    corner.put(i + 1, 1, "=ROUND(" + corner.name(i + 1, 0) + R"(;4)&" "&CALVEX.UNIT("P"))");
  }
  corner.putHeading(isobarCount + 1, 1, "saturation");
  const std::string hottest = inUnits("T", "C", "800").substr(1);
  sal_Int32 down = 2;
  constexpr int first = 50, last = 950, step = 25;  // hundredths of kJ/(kg.K)
  for (int s = first; s <= last; s += step, ++down) {
    corner.put(0, down, inUnits("S", "kJ/(kg.K)", std::to_string(s) + "/100"));
    for (int i = 0; i < isobarCount; ++i) {
      // Above 800 °C there is nothing to see; #N/A leaves a gap.
      const std::string state = "PS(" + corner.name(i + 1, 0) + ";$" + corner.name(0, down) + ")";
      corner.put(i + 1, down,
                 fmt::format("=IF(IFERROR(T{};1E9)>{};NA();H{})", state, hottest, state));
    }
  }
  // Up the liquid and down the vapour.
  const auto line = [&](int T, const char* quality) {
    const std::string state = inUnits("T", "C", std::to_string(T)).substr(1) + ";" +
                              inUnits("Q", "Fraction", quality).substr(1) + ")";
    corner.put(0, down, "=SSatTQ(" + state);
    corner.put(isobarCount + 1, down++, "=HSatTQ(" + state);
  };
  constexpr int cold = 10, hot = 370, between = 10;  // °C
  for (int T = cold; T <= hot; T += between) line(T, "0");
  for (int T = hot; T >= cold; T -= between) line(T, "1");
  return down;
}

void setTitle(const Reference<css::uno::XInterface>& title, const std::string& text) {
  Reference<XPropertySet>(title, UNO_QUERY_THROW)
      ->setPropertyValue("String", css::uno::Any(toOffice(text)));
}

}  // namespace

void insertMollierChart(const Document& document) {
  if (Reference<css::util::XProtectable>(document.model(), UNO_QUERY_THROW)->isProtected()) {
    throw Error(
        CALVEX_VALUE,
        "The sheets of this document are protected: take the protection off (Tools > Protect "
        "Spreadsheet Structure) first.");
  }
  const auto sheets =
      Reference<css::sheet::XSpreadsheetDocument>(document.model(), UNO_QUERY_THROW)->getSheets();
  OUString name("Mollier");
  for (int i = 2; sheets->hasByName(name); ++i) name = "Mollier " + OUString::number(i);
  sheets->insertNewByName(name, static_cast<sal_Int16>(sheets->getElementNames().getLength()));
  const Reference<XCellRange> sheet(sheets->getByName(name), UNO_QUERY_THROW);
  const sal_Int32 rows = writeMollier({sheet, 0, 0});

  const auto charts =
      Reference<css::table::XTableChartsSupplier>(sheet, UNO_QUERY_THROW)->getCharts();
  const auto data =  // with the row of the legend
      Reference<css::sheet::XCellRangeAddressable>(
          sheet->getCellRangeByPosition(0, 1, isobarCount + 1, rows - 1), UNO_QUERY_THROW)
          ->getRangeAddress();
  const css::awt::Rectangle place(22000, 500, 20000, 15000);  // hundredths of a millimetre
  charts->addNewByName(name, place, {&data, 1}, true, true);  // unique in the document
  const Reference<css::chart::XChartDocument> chart(
      Reference<css::document::XEmbeddedObjectSupplier>(charts->getByName(name), UNO_QUERY_THROW)
          ->getEmbeddedObject(),
      UNO_QUERY_THROW);
  const Reference<css::chart::XDiagram> diagram(
      Reference<css::lang::XMultiServiceFactory>(chart, UNO_QUERY_THROW)
          ->createInstance("com.sun.star.chart.XYDiagram"),
      UNO_QUERY_THROW);
  chart->setDiagram(diagram);
  const Reference<XPropertySet> look(diagram, UNO_QUERY_THROW);
  constexpr sal_Int32 noSymbol = -3;
  look->setPropertyValue("Lines", css::uno::Any(true));
  look->setPropertyValue("SymbolType", css::uno::Any(noSymbol));
  const Reference<XPropertySet> frame(chart, UNO_QUERY_THROW);
  frame->setPropertyValue("HasMainTitle", css::uno::Any(true));
  frame->setPropertyValue("HasLegend", css::uno::Any(true));
  setTitle(chart->getTitle(), "Enthalpy over entropy, along isobars");
  look->setPropertyValue("HasXAxisTitle", css::uno::Any(true));
  look->setPropertyValue("HasYAxisTitle", css::uno::Any(true));
  setTitle(Reference<css::chart::XAxisXSupplier>(diagram, UNO_QUERY_THROW)->getXAxisTitle(),
           "entropy");
  setTitle(Reference<css::chart::XAxisYSupplier>(diagram, UNO_QUERY_THROW)->getYAxisTitle(),
           "enthalpy");
  Reference<css::sheet::XSpreadsheetView>(
      Reference<css::frame::XModel>(document.model(), UNO_QUERY_THROW)->getCurrentController(),
      UNO_QUERY_THROW)
      ->setActiveSheet(Reference<css::sheet::XSpreadsheet>(sheet, UNO_QUERY_THROW));
}

}  // namespace calvex::calc
