/// \file
/// The dialogs of the menu, and the page of units in the office's options.
#pragma once

#include <com/sun/star/awt/XContainerWindowEventHandler.hpp>
#include <com/sun/star/awt/XControlContainer.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/table/XCell.hpp>
#include <cppuhelper/implbase2.hxx>

#include "documents.h"

namespace calvex::calc {

/// Lets the user choose the document's units.
void showUnits(Document& document);

/// Shows why a cell has no value, and the calls in its formula as a tree.
void showRecord(Document& document, const Reference<css::table::XCell>& cell);

/// Shows the units of a document in the list boxes unit0, unit1, ... of a window. Those that cells
/// set cannot be chosen.
void fillUnits(const Reference<css::awt::XControlContainer>& window, const Document& document);
/// Keeps the units that are chosen in a window's list boxes, but those that cells set.
void keepChosenUnits(const Reference<css::awt::XControlContainer>& window,
                     const Document& document);

/// The page of units: those of the document that is worked on.
class UnitsPage : public cppu::WeakImplHelper2<css::awt::XContainerWindowEventHandler,
                                               css::lang::XServiceInfo> {
 public:
  static constexpr char serviceName[] = "calvex.calc.UnitsPage";

  sal_Bool SAL_CALL callHandlerMethod(const Reference<css::awt::XWindow>& window,
                                      const css::uno::Any& event,
                                      const rtl::OUString& method) override;
  css::uno::Sequence<rtl::OUString> SAL_CALL getSupportedMethodNames() override;

  rtl::OUString SAL_CALL getImplementationName() override;
  sal_Bool SAL_CALL supportsService(const rtl::OUString& name) override;
  css::uno::Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override;
};

/// The URL of a file of the extension, by its path in it.
[[nodiscard]] rtl::OUString fileOfExtension(const char* path);

/// The document that is worked on; nullptr when it is no spreadsheet.
[[nodiscard]] Document* currentDocument();

}  // namespace calvex::calc
