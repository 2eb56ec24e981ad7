#include "commands.h"

#include <com/sun/star/awt/MessageBoxButtons.hpp>
#include <com/sun/star/awt/Toolkit.hpp>
#include <com/sun/star/awt/XMessageBoxFactory.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/system/SystemShellExecute.hpp>
#include <com/sun/star/system/SystemShellExecuteFlags.hpp>
#include <cppuhelper/supportsservice.hxx>

#include "dialogs.h"
#include "tables.h"
#include "texts.h"

namespace calvex::calc {

using css::uno::Sequence;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

namespace {

// The first cell of the selection.
struct Selected {
  Reference<css::table::XCellRange> sheet;
  sal_Int32 column;
  sal_Int32 row;

  explicit Selected(const Document& document) {
    const Reference<css::uno::XInterface> selection =
        Reference<css::frame::XModel>(document.model(), UNO_QUERY_THROW)->getCurrentSelection();
    const Reference<css::sheet::XSheetCellRange> range(selection, UNO_QUERY);
    if (!range.is()) throw Error(CALVEX_VALUE, "Select one cell first.");
    sheet.set(range->getSpreadsheet(), UNO_QUERY_THROW);
    const auto address =
        Reference<css::sheet::XCellRangeAddressable>(range, UNO_QUERY_THROW)->getRangeAddress();
    column = address.StartColumn;
    row = address.StartRow;
  }
};

// All that is done while it lives is undone in one step.
class UndoStep {
 public:
  UndoStep(const Document& document, const char* title)
      : manager_(Reference<css::document::XUndoManagerSupplier>(document.model(), UNO_QUERY_THROW)
                     ->getUndoManager()) {
    manager_->enterUndoContext(OUString::createFromAscii(title));
  }
  ~UndoStep() { manager_->leaveUndoContext(); }
  UndoStep(const UndoStep&) = delete;
  UndoStep& operator=(const UndoStep&) = delete;

 private:
  Reference<css::document::XUndoManager> manager_;
};

void run(const OUString& command, Document& document) {
  if (command == "units") return showUnits(document);
  if (command == "record") {
    const Selected at(document);
    return showRecord(document, at.sheet->getCellByPosition(at.column, at.row));
  }
  if (command == "saturation") {
    const UndoStep step(document, "Insert a saturation table");
    const Selected at(document);
    return insertSaturationTable(at.sheet, at.column, at.row);
  }
  if (command == "state") {
    const UndoStep step(document, "Insert a state table");
    const Selected at(document);
    return insertStateTable(at.sheet, at.column, at.row);
  }
  if (command == "mollier") {
    const UndoStep step(document, "Insert a Mollier chart");
    return insertMollierChart(document);
  }
  if (command == "help") {
    return css::system::SystemShellExecute::create(context())->execute(
        fileOfExtension("/help/index.html"), {}, css::system::SystemShellExecuteFlags::URIS_ONLY);
  }
  throw Error(CALVEX_UNKNOWN, "There is no command " + toUtf8(command) + ".");
}

void show(const OUString& text) {
  const auto toolkit = css::awt::Toolkit::create(context());
  const Reference<css::awt::XMessageBoxFactory> boxes(toolkit, UNO_QUERY_THROW);
  boxes
      ->createMessageBox(nullptr, css::awt::MessageBoxType_ERRORBOX,
                         css::awt::MessageBoxButtons::BUTTONS_OK, "Calvex", text)
      ->execute();
}

}  // namespace

void Commands::trigger(const OUString& command) {
  try {
    if (Document* const document = currentDocument()) run(command, *document);
  } catch (const css::uno::Exception& fault) {
    show(fault.Message);
  } catch (const std::exception& fault) {
    show(toOffice(fault.what()));
  }
}

OUString Commands::getImplementationName() { return serviceName; }

sal_Bool Commands::supportsService(const OUString& name) {
  return cppu::supportsService(this, name);
}

Sequence<OUString> Commands::getSupportedServiceNames() {
  const OUString name(serviceName);
  return {&name, 1};
}

}  // namespace calvex::calc
