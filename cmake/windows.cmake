# What the Windows build takes from Debian: headers and sources of packages for the machine it is
# built on, compiled for the target. The headers are copied aside so that nothing else of
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

set(minpack ${CMAKE_SOURCE_DIR}/build/minpack)
if(NOT EXISTS ${minpack}/lmdif.c)
  message(FATAL_ERROR "MINPACK's sources are missing; run: scripts/fetch-minpack")
endif()
set(files lmdif lmpar qrfac qrsolv fdjac2 enorm dpmpar)
list(TRANSFORM files PREPEND ${minpack}/)
list(TRANSFORM files APPEND .c)
add_library(minpack STATIC ${files})
target_compile_definitions(minpack PUBLIC CMINPACK_NO_DLL)
target_compile_options(minpack PRIVATE -O2)
target_include_directories(minpack SYSTEM PUBLIC ${minpack})
add_library(calvex::minpack ALIAS minpack)

if(CALVEX_TESTS)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endif()
