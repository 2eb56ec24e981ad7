/// \file
/// Late-bound calls, by the member table.
#pragma once

#include "server/windows/automation.h"
#include "server/zv_calvex.h"

namespace calvex::com {

/// As IDispatch::GetIDsOfNames: a member's name, then names of its parameters, whatever their case.
HRESULT idsOfNames(LPOLESTR* names, UINT count, DISPID* ids);

/// As IDispatch::Invoke. Answers what the member answers: S_FALSE when a setting refuses.
HRESULT invoke(ZvCalvex& object, DISPID id, WORD flags, const DISPPARAMS& given, VARIANT* result,
               UINT* wrongArgument);

}  // namespace calvex::com
