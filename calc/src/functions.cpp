#include "functions.h"

#include <cppuhelper/supportsservice.hxx>

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

}  // namespace

Any Functions::calculate(const Reference<XPropertySet>& document, int member,
                         std::initializer_list<const Any*> arguments) {
  return guarded([&] {
    return calc::calculate(documentOf(document).engine(), signatureOf(member), arguments);
  });
}

Any Functions::Units(const Reference<XPropertySet>& document, const Sequence<Any>& choices) {
  return guarded([&] {
    const std::vector<Any> words(choices.begin(), choices.end());
    refreshSoon(document);
    if (words.empty()) return Any(toOffice(unitsText(documentOf(document).units())));
    return Any(toOffice(unitsText(unitsOf(words))));
  });
}

Any Functions::Unit(const Reference<XPropertySet>& document, const Any& quantity) {
  return guarded([&] { return unitName(documentOf(document).engine(), quantity); });
}

Any Functions::Why(const Reference<XPropertySet>& document, const Reference<XCellRange>& cell) {
  return guarded([&] {
    const CellCalls calls(documentOf(document), cell->getCellByPosition(0, 0));
    return Any(toOffice(calls.reason()));
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
    return rows.hasElements() ? Any(rows) : Any(OUString());
  });
}

Any Functions::Convert(const Reference<XPropertySet>& document, const Any& quantity,
                       const Any& from, const Any& to, const Any& value) {
  return guarded([&] {
    const Any* const arguments[] = {&quantity, &from, &to, &value};
    std::string reason;
    return convert(documentOf(document).engine(), arguments, reason);
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
