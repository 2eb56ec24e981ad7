#include "dialogs.h"

#include <com/sun/star/awt/DialogProvider2.hpp>
#include <com/sun/star/awt/XControl.hpp>
#include <com/sun/star/awt/XControlContainer.hpp>
#include <com/sun/star/awt/XDialog.hpp>
#include <com/sun/star/awt/XFixedText.hpp>
#include <com/sun/star/awt/XListBox.hpp>
#include <com/sun/star/awt/XWindow.hpp>
#include <com/sun/star/awt/tree/XMutableTreeDataModel.hpp>
#include <com/sun/star/awt/tree/XTreeControl.hpp>
#include <com/sun/star/deployment/PackageInformationProvider.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>

#include "formula.h"
#include "texts.h"
#include "unit_lists.h"

namespace calvex::calc {

using css::awt::XControlContainer;
using css::uno::Sequence;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

namespace {

constexpr short okButton = 1;

// A dialog of the extension, disposed of at the end.
class Dialog {
 public:
  explicit Dialog(const char* file)
      : dialog_(css::awt::DialogProvider2::create(context())->createDialog(fileOfExtension(file))) {
  }
  ~Dialog() { Reference<css::lang::XComponent>(dialog_, UNO_QUERY_THROW)->dispose(); }
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  [[nodiscard]] Reference<XControlContainer> controls() const { return {dialog_, UNO_QUERY_THROW}; }
  [[nodiscard]] bool execute() const { return dialog_->execute() == okButton; }

 private:
  Reference<css::awt::XDialog> dialog_;
};

void setText(const Reference<XControlContainer>& window, const char* control,
             const std::string& text) {
  Reference<css::awt::XFixedText>(window->getControl(OUString::createFromAscii(control)),
                                  UNO_QUERY_THROW)
      ->setText(toOffice(text));
}

Reference<css::awt::XListBox> listOf(const Reference<XControlContainer>& window, int group) {
  return {window->getControl("unit" + OUString::number(group)), UNO_QUERY_THROW};
}

// The list boxes unit0, unit1, ... Those of units that cells set cannot be chosen from.
void fillUnits(const Reference<XControlContainer>& window, const Document& document) {
  for (int group = 0; group < groupCount(); ++group) {
    const auto list = listOf(window, group);
    list->removeItems(0, list->getItemCount());
    list->addItems(unitNames(group), 0);
    const auto chosen = document.units().find(group);
    if (chosen == document.units().end()) {
      list->selectItemPos(0, true);
    } else {
      list->selectItem(toOffice(chosen->second), true);
    }
    const bool ofCell = document.unitsOfCells().contains(group);
    Reference<css::awt::XWindow>(list, UNO_QUERY_THROW)->setEnable(!ofCell);
  }
  setText(window, "cells", setByCells(document));
}

void keepChosenUnits(const Reference<XControlContainer>& window, Document& document) {
  Units units;
  for (int group = 0; group < groupCount(); ++group) {
    const auto list = listOf(window, group);
    if (list->getSelectedItemPos() > 0 && !document.unitsOfCells().contains(group)) {
      units[group] = toUtf8(list->getSelectedItem());
    }
  }
  document.keepUnits(units);
}

}  // namespace

void showUnits(Document& document) {
  const Dialog dialog("/dialogs/units.xdl");
  fillUnits(dialog.controls(), document);
  if (dialog.execute()) keepChosenUnits(dialog.controls(), document);
}

void showRecord(Document& document, const Reference<css::table::XCell>& cell) {
  const Dialog dialog("/dialogs/record.xdl");
  const CellCalls calls(document, cell);
  OUString formula;
  Reference<css::beans::XPropertySet>(cell, UNO_QUERY_THROW)->getPropertyValue("FormulaLocal") >>=
      formula;
  setText(dialog.controls(), "cell", nameOf(cell) + "  " + toUtf8(formula));
  setText(dialog.controls(), "reason",
          calls.reason().empty() && calls.record().empty()
              ? "There is no call of Calvex in this cell."
              : calls.reason());

  const Reference<css::awt::tree::XMutableTreeDataModel> tree(
      context()->getServiceManager()->createInstanceWithContext(
          "com.sun.star.awt.tree.MutableTreeDataModel", context()),
      UNO_QUERY_THROW);
  std::vector<Reference<css::awt::tree::XMutableTreeNode>> path{
      tree->createNode(css::uno::Any(toOffice(nameOf(cell))), false)};
  tree->setRoot(path.front());
  std::vector<Reference<css::awt::tree::XMutableTreeNode>> nodes{path.front()};
  for (const RecordRow& row : calls.record()) {
    path.resize(static_cast<std::size_t>(row.depth) + 1);
    const std::string kind = row.kind == "call" ? "" : row.kind + ": ";
    const auto node = tree->createNode(css::uno::Any(toOffice(kind + row.text)), false);
    path.back()->appendChild(node);
    path.push_back(node);
    nodes.push_back(node);
  }
  const auto control = dialog.controls()->getControl("tree");
  Reference<css::beans::XPropertySet>(control->getModel(), UNO_QUERY_THROW)
      ->setPropertyValue("DataModel", css::uno::Any(tree));
  const Reference<css::awt::tree::XTreeControl> shown(control, UNO_QUERY_THROW);
  for (const auto& node : nodes) {
    shown->expandNode(Reference<css::awt::tree::XTreeNode>(node, UNO_QUERY_THROW));
  }
  static_cast<void>(dialog.execute());
}

OUString fileOfExtension(const char* path) {
  return css::deployment::PackageInformationProvider::get(context())->getPackageLocation(
             "calvex.calc") +
         OUString::createFromAscii(path);
}

Document* currentDocument() {
  const Reference<css::beans::XPropertySet> model(
      css::frame::Desktop::create(context())->getCurrentComponent(), UNO_QUERY);
  Document& document = documentOf(model);
  return document.model().is() ? &document : nullptr;
}

}  // namespace calvex::calc
