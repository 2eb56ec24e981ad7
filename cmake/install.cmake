# What cmake --install puts in place, and the Debian packages made of it (scripts/package-debian).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# --- The library, and what runs with it
install(TARGETS calvex_shared EXPORT calvex_shared
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development)
install(TARGETS calvex_static EXPORT calvex_static
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY include/calvex DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

# --- For those who build with it: CMake and pkg-config
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/calvex)
set_target_properties(calvex_shared PROPERTIES EXPORT_NAME calvex)
foreach(form calvex_shared calvex_static)
  install(EXPORT ${form} NAMESPACE calvex:: DESTINATION ${package} COMPONENT development)
endforeach()
configure_package_config_file(cmake/calvex-config.cmake.in calvex-config.cmake
  INSTALL_DESTINATION ${package})
write_basic_package_version_file(calvex-config-version.cmake COMPATIBILITY SameMajorVersion)
# Relative, so that the whole may be moved.
file(RELATIVE_PATH prefix_of_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/calvex.pc.in calvex.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/calvex-config.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/calvex-config-version.cmake
  DESTINATION ${package} COMPONENT development)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/calvex.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

# --- The command line, its page and its completions
if(CALVEX_APPS)
  install(TARGETS calvex_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT command)
  install(FILES docs/calvex.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT command)
  set(completions)
  foreach(shell bash zsh fish)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/completions/${shell})
    add_custom_command(OUTPUT ${script} DEPENDS calvex_cli
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/completions
      COMMAND calvex_cli completion ${shell} > ${script} VERBATIM)
    list(APPEND completions ${script})
  endforeach()
  add_custom_target(calvex_completions ALL DEPENDS ${completions})
  foreach(place bash:bash-completion/completions/calvex zsh:zsh/site-functions/_calvex
      fish:fish/vendor_completions.d/calvex.fish)
    string(REGEX MATCH "^([a-z]+):(.*)/([^/]*)$" matched ${place})
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/completions/${CMAKE_MATCH_1}
      DESTINATION ${CMAKE_INSTALL_DATADIR}/${CMAKE_MATCH_2} RENAME ${CMAKE_MATCH_3}
      COMPONENT command)
  endforeach()
endif()

# --- Debian packages: a component each
set(components library libcalvex${PROJECT_VERSION_MAJOR} development libcalvex-dev command calvex
  python python3-calvex)
set(CPACK_COMPONENTS_ALL library development)
if(CALVEX_APPS)
  list(APPEND CPACK_COMPONENTS_ALL command)
endif()
if(CALVEX_PYTHON)
  list(APPEND CPACK_COMPONENTS_ALL python)
endif()
while(components)
  list(POP_FRONT components component name)
  if(NOT component IN_LIST CPACK_COMPONENTS_ALL)
    continue()
  endif()
  # The licences go with each of them; outside of packages one copy is enough.
  set(always)
  if(NOT component STREQUAL library)
    set(always EXCLUDE_FROM_ALL)
  endif()
  install(FILES LICENSE THIRD-PARTY-NOTICES.md CHANGELOG.md
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component} ${always})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${upper}_FILE_NAME DEB-DEFAULT)
endwhile()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The Calvex developers <developers@calvex.example>")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian-files.cmake)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_COMMAND_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "libcalvex${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
# The static library alone needs these.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "libfmt-dev, libcminpack-dev, pkg-config")
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "python3 (>= 3.11), python3 (<< 3.12), python3-numpy")
set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS "python3-matplotlib")
set(about "Calvex computes properties of water and steam by the IAPS Formulation 1984
and the equipment of steam systems: turbines, boilers, exchangers, ejectors.")
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "${about}
.
This package has the shared library.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "${about}
.
This package has what programs in C and C++ are built with.")
set(CPACK_DEBIAN_COMMAND_DESCRIPTION "${about}
.
This package has the command line.")
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "${about}
.
This package has the module for Python 3.")
include(CPack)
