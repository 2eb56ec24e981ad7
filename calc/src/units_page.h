/// \file
/// The page of units in the office's options: those of the document that is worked on.
///
/// The options leave a page less room than the units' list boxes need, so the page has two lists:
/// the quantities with their units, and the units of the chosen quantity.
#pragma once

#include <com/sun/star/awt/XContainerWindowEventHandler.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <cppuhelper/implbase2.hxx>

#include "documents.h"

namespace calvex::calc {

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

 private:
  Units chosen_;            ///< until OK
  bool isShowing_ = false;  ///< what the page shows by itself is no choice, though told as one
};

}  // namespace calvex::calc
