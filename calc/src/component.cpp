// What the office asks of the library: a factory for each of its services.
#include <cppuhelper/factory.hxx>
#include <cppuhelper/implementationentry.hxx>
#include <rtl/ref.hxx>

#include "commands.h"
#include "dialogs.h"
#include "functions.h"
#include "units_page.h"

namespace {

using namespace calvex::calc;
using css::uno::XInterface;

template <class Implementation>
Reference<XInterface> SAL_CALL make(const Reference<css::uno::XComponentContext>& context) {
  setContext(context);
  return static_cast<cppu::OWeakObject*>(new Implementation);
}

template <class Implementation>
rtl::OUString SAL_CALL nameOfImplementation() {
  return rtl::Reference<Implementation>(new Implementation)->getImplementationName();
}

template <class Implementation>
css::uno::Sequence<rtl::OUString> SAL_CALL servicesOf() {
  return rtl::Reference<Implementation>(new Implementation)->getSupportedServiceNames();
}

template <class Implementation>
constexpr cppu::ImplementationEntry entry() {
  return {&make<Implementation>,
          &nameOfImplementation<Implementation>,
          &servicesOf<Implementation>,
          &cppu::createSingleComponentFactory,
          nullptr,
          0};
}

constexpr cppu::ImplementationEntry entries[] = {
    entry<Functions>(),
    entry<Commands>(),
    entry<UnitsPage>(),
    {nullptr, nullptr, nullptr, nullptr, nullptr, 0},
};

}  // namespace

extern "C" __attribute__((visibility("default"))) void* component_getFactory(const char* name,
                                                                             void* serviceManager,
                                                                             void* registry) {
  return cppu::component_getFactoryHelper(name, serviceManager, registry, entries);
}
