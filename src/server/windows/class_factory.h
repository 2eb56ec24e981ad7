/// \file
/// Makes objects of the class `ZvCalvex`.
#pragma once

#include "server/windows/automation.h"

namespace calvex::com {

/// The one factory of the module; it lives as long as the module does. References to it do not keep
/// the module loaded, LockServer does.
IClassFactory& classFactory() noexcept;

}  // namespace calvex::com
