#include "ui/windows/common_controls.h"

#include <system_error>

namespace calvex {

CommonControls::CommonControls() {
  const HMODULE library = LoadLibraryW(L"comctl32.dll");
  const auto load = [&]<class Function>(Function*& function, const char* name) {
    function = reinterpret_cast<Function*>(
        reinterpret_cast<void*>(library == nullptr ? nullptr : GetProcAddress(library, name)));
    if (function == nullptr) {
      throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), name);
    }
  };
  load(InitCommonControlsEx, "InitCommonControlsEx");
  load(ImageList_Create, "ImageList_Create");
  load(ImageList_Destroy, "ImageList_Destroy");
  load(ImageList_ReplaceIcon, "ImageList_ReplaceIcon");
  load(SetWindowSubclass, "SetWindowSubclass");
  load(RemoveWindowSubclass, "RemoveWindowSubclass");
  load(DefSubclassProc, "DefSubclassProc");
}

const CommonControls& commonControls() {
  static const CommonControls loaded;
  return loaded;
}

}  // namespace calvex
