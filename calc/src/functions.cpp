#include "functions.h"

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <cppuhelper/supportsservice.hxx>
#include <set>
#include <utility>

#include "errors.h"
#include "formula.h"
#include "texts.h"

namespace calvex::calc {

using css::uno::Sequence;
using rtl::OUString;

namespace {

// Runs a function; a fault of it, or of the spreadsheet beneath it, is an error value.
template <class Body>
Any guarded(Body body) noexcept {
  try {
    return body();
  } catch (const css::uno::Exception&) {
    return Any(errorValue(CellError::value));
  } catch (const std::exception&) {
    return Any(errorValue(CellError::value));
  }
}

// The cells that are being explained, by their addresses in memory and in the document.
class Asked {
 public:
  Asked(const Document& document, const Reference<css::table::XCell>& cell)
      : isNew_(cells().insert({document.model().get(), nameOf(cell)}).second),
        key_(document.model().get(), nameOf(cell)) {}
  ~Asked() {
    if (isNew_) cells().erase(key_);
  }
  Asked(const Asked&) = delete;
  Asked& operator=(const Asked&) = delete;

  [[nodiscard]] bool isNew() const { return isNew_; }

 private:
  using Key = std::pair<const css::beans::XPropertySet*, std::string>;
  bool isNew_;
  Key key_;

  static std::set<Key>& cells() {
    static std::set<Key> asked;
    return asked;
  }
};

// Why a cell has no value. A cell that asks for its own reason reads itself.
Any why(Document& document, const Reference<css::table::XCell>& cell) {
  const Asked asked(document, cell);
  if (!asked.isNew()) return Any(errorValue(CellError::circular));
  if (cell->getError() == 0) return Any(OUString());
  return Any(toOffice(CellCalls(document, cell).reason()));
}

// What one should know of these units.
std::string noticesOf(const Units& units) {
  std::string notices;
  for (const auto& [group, unit] : units) {
    const std::string notice = textOf(
        [&, number = group, &name = unit](char* text, std::size_t size, std::size_t* needed) {
          calvex_unit_notice(number, name.data(), name.size(), text, size, needed);
        });
    if (!notice.empty()) notices.append(" (").append(unit).append(": ").append(notice) += ')';
  }
  return notices;
}

}  // namespace

Any Functions::calculate(const Reference<XPropertySet>& document, int member,
                         std::initializer_list<const Any*> arguments) {
  return guarded([&] {
    Document& known = documentOf(document);
    if (!known.fault().empty()) return Any(errorValue(CellError::value));
    return calc::calculate(known.engine(), signatureOf(member), arguments);
  });
}

Any Functions::Units(const Reference<XPropertySet>& document, const Sequence<Any>& choices) {
  return guarded([&] {
    const std::vector<Any> words(choices.begin(), choices.end());
    refreshSoon(document);
    const Document& known = documentOf(document);
    if (words.empty()) {
      const std::string text = unitsText(known.units());
      return Any(toOffice(text.empty() ? "model units" : text));
    }
    const calc::Units units = unitsOf(words);
    return Any(toOffice(unitsText(units) + known.overruled(units) + noticesOf(units)));
  });
}

Any Functions::Unit(const Reference<XPropertySet>& document, const Any& quantity) {
  return guarded([&] { return unitNames(documentOf(document).engine(), quantity); });
}

Any Functions::Why(const Reference<XPropertySet>& document, const Reference<XCellRange>& cell) {
  return guarded([&] {
    constexpr sal_Int32 most = 10000;
    const auto area = Reference<css::sheet::XCellRangeAddressable>(cell, css::uno::UNO_QUERY_THROW)
                          ->getRangeAddress();
    const sal_Int32 rows = area.EndRow - area.StartRow + 1;
    const sal_Int32 columns = area.EndColumn - area.StartColumn + 1;
    if (rows > most / columns) {
      return Any(OUString("CALVEX.WHY takes a range of 10000 cells at most."));
    }
    Sequence<Sequence<Any>> reasons(rows);
    for (sal_Int32 i = 0; i < rows; ++i) {
      Sequence<Any> row(columns);
      for (sal_Int32 j = 0; j < columns; ++j) {
        row.getArray()[j] = why(documentOf(document), cell->getCellByPosition(j, i));
      }
      reasons.getArray()[i] = row;
    }
    return rows * columns == 1 ? reasons[0][0] : Any(reasons);
  });
}

Any Functions::Trace(const Reference<XPropertySet>& document, const Reference<XCellRange>& cell) {
  return guarded([&] {
    const CellCalls calls(documentOf(document), cell->getCellByPosition(0, 0));
    Sequence<Sequence<Any>> rows(static_cast<sal_Int32>(calls.record().size()));
    sal_Int32 i = 0;
    for (const RecordRow& row : calls.record()) {
      const Any cells[] = {Any(static_cast<double>(row.depth)), Any(toOffice(row.kind)),
                           Any(toOffice(row.text))};
      rows.getArray()[i++] = Sequence<Any>(cells, std::size(cells));
    }
    return Any(rows);
  });
}

Any Functions::Convert(const Reference<XPropertySet>& document, const Any& quantity,
                       const Any& from, const Any& to, const Any& value) {
  return guarded([&] {
    const Any* const arguments[] = {&quantity, &from, &to, &value};
    return convert(documentOf(document).engine(), arguments);
  });
}

OUString Functions::getImplementationName() { return "calvex.calc.Functions"; }

sal_Bool Functions::supportsService(const OUString& name) {
  return cppu::supportsService(this, name);
}

Sequence<OUString> Functions::getSupportedServiceNames() {
  const OUString name = getImplementationName();
  return {&name, 1};
}

}  // namespace calvex::calc
