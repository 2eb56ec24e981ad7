/// \file
/// The worksheet functions: one method for each, as the type library has them.
#pragma once

#include <calvex/calc/XFunctions.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <cppuhelper/implbase2.hxx>
#include <initializer_list>

#include "calculation.h"
#include "documents.h"

namespace calvex::calc {

class Functions : public cppu::WeakImplHelper2<XFunctions, css::lang::XServiceInfo> {
  using XPropertySet = css::beans::XPropertySet;
  using XCellRange = css::table::XCellRange;

 public:
#include "methods.inc"

  /// Answers what is set. An unknown name is an error value.
  Any SAL_CALL Units(const Reference<XPropertySet>& document,
                     const css::uno::Sequence<Any>& choices) override;
  /// The unit that a quantity has in the document.
  Any SAL_CALL Unit(const Reference<XPropertySet>& document, const Any& quantity) override;
  Any SAL_CALL Why(const Reference<XPropertySet>& document,
                   const Reference<XCellRange>& cell) override;
  Any SAL_CALL Trace(const Reference<XPropertySet>& document,
                     const Reference<XCellRange>& cell) override;
  Any SAL_CALL Convert(const Reference<XPropertySet>& document, const Any& quantity,
                       const Any& from, const Any& to, const Any& value) override;

  rtl::OUString SAL_CALL getImplementationName() override;
  sal_Bool SAL_CALL supportsService(const rtl::OUString& name) override;
  css::uno::Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override;

 private:
  static Any calculate(const Reference<XPropertySet>& document, int member,
                       std::initializer_list<const Any*> arguments);
};

}  // namespace calvex::calc
