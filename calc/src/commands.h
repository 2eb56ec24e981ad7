/// \file
/// The commands of the menu "Calvex": service:calvex.calc.Commands?NAME.
#pragma once

#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/task/XJobExecutor.hpp>
#include <cppuhelper/implbase2.hxx>

namespace calvex::calc {

class Commands : public cppu::WeakImplHelper2<com::sun::star::task::XJobExecutor,
                                              com::sun::star::lang::XServiceInfo> {
 public:
  static constexpr char serviceName[] = "calvex.calc.Commands";

  /// units, record, saturation, state, mollier or help, for the document that is worked on. What
  /// goes wrong is shown.
  void SAL_CALL trigger(const rtl::OUString& command) override;

  rtl::OUString SAL_CALL getImplementationName() override;
  sal_Bool SAL_CALL supportsService(const rtl::OUString& name) override;
  com::sun::star::uno::Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override;
};

}  // namespace calvex::calc
