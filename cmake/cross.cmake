# What a build for Windows or for WebAssembly takes from Debian: headers and sources of packages for
# the machine it is built on, compiled for the target. The headers are copied aside so that nothing else of
# /usr/include is on the target's path.
set(headers ${CMAKE_BINARY_DIR}/headers)
file(COPY /usr/include/fmt /usr/include/CLI /usr/include/hwy DESTINATION ${headers})

add_library(fmt::fmt INTERFACE IMPORTED)
target_compile_definitions(fmt::fmt INTERFACE FMT_HEADER_ONLY)
add_library(CLI11::CLI11 INTERFACE IMPORTED)
add_library(hwy::hwy INTERFACE IMPORTED)  # its headers are all that is needed
foreach(library fmt::fmt CLI11::CLI11 hwy::hwy)
  target_include_directories(${library} SYSTEM INTERFACE ${headers})
endforeach()

include(cmake/minpack.cmake)

if(CALVEX_TESTS)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endif()
