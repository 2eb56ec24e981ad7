# Toolchain: WebAssembly from Debian's emscripten, with WebAssembly's own exceptions and what the
# standard library that comes with it lacks of C++20.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
set(library ${CMAKE_CURRENT_LIST_DIR}/../web/library)
set(CMAKE_CXX_FLAGS_INIT
  "-fwasm-exceptions -I${library} -include ${library}/emscripten_standard_library.h")
set(CMAKE_EXE_LINKER_FLAGS_INIT -fwasm-exceptions)
