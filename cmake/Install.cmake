# `cmake --install <build> --prefix <dir>` installs the headers with their
# folder layout (so `#include "tree/win/TreeListBox.h"` works), the core's
# static libraries, in the Windows build vulib.dll with its import library,
# and a CMake package: `find_package(VuLib CONFIG REQUIRED)` gives
# VuLib::core natively and VuLib::vulib for Windows (examples/consumer).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(VULIB_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VuLib)

foreach(sub ${VULIB_SUBSYSTEMS})
  if(NOT EXISTS ${CMAKE_SOURCE_DIR}/${sub})
    continue()
  endif()
  if(WIN32)
    install(DIRECTORY ${sub} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
  else()
    install(DIRECTORY ${sub} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h"
            PATTERN "win" EXCLUDE)
  endif()
endforeach()

set(VULIB_EXPORTED vulib_core ${VULIB_CORE_LIBS})
foreach(sub ${VULIB_SUBSYSTEMS})
  get_target_property(kind vulib_${sub} TYPE)
  if(kind STREQUAL "INTERFACE_LIBRARY")
    list(APPEND VULIB_EXPORTED vulib_${sub})
  endif()
endforeach()
if(TARGET vulib)
  install(FILES resources/resource.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/resources)
  set_target_properties(vulib PROPERTIES EXPORT_NAME vulib)
  list(APPEND VULIB_EXPORTED vulib)
endif()

install(TARGETS ${VULIB_EXPORTED} EXPORT VuLibTargets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT VuLibTargets NAMESPACE VuLib:: DESTINATION ${VULIB_CMAKE_DIR})

configure_package_config_file(cmake/VuLibConfig.cmake.in
                              ${CMAKE_BINARY_DIR}/VuLibConfig.cmake
                              INSTALL_DESTINATION ${VULIB_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/VuLibConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/VuLibConfig.cmake ${CMAKE_BINARY_DIR}/VuLibConfigVersion.cmake
        DESTINATION ${VULIB_CMAKE_DIR})
