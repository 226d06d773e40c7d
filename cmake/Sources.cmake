# Source lists by folder convention, so that a new class is a new file pair
# and nothing else: files under a `win/` folder are Windows-only, the rest of
# a subsystem folder is portable core. Each subsystem is its own static
# library so that its tests link only what it stands on.
set(VULIB_SUBSYSTEMS framework foundation text tree layout tabs dialogs)
set(VULIB_DEPS_framework "")
set(VULIB_DEPS_foundation framework)
set(VULIB_DEPS_text foundation framework)
set(VULIB_DEPS_tree text foundation framework)
set(VULIB_DEPS_layout foundation framework)
set(VULIB_DEPS_tabs foundation framework)
set(VULIB_DEPS_dialogs foundation framework)

function(vulib_glob out pattern)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS ${pattern})
  set(${out} ${files} PARENT_SCOPE)
endfunction()

function(vulib_portable_sources sub out)
  vulib_glob(files ${CMAKE_SOURCE_DIR}/${sub}/*.cpp)
  list(FILTER files EXCLUDE REGEX "/win/")
  set(${out} ${files} PARENT_SCOPE)
endfunction()

function(vulib_windows_sources out)
  set(result)
  foreach(sub ${VULIB_SUBSYSTEMS})
    vulib_glob(files ${CMAKE_SOURCE_DIR}/${sub}/win/*.cpp)
    list(APPEND result ${files})
  endforeach()
  set(${out} ${result} PARENT_SCOPE)
endfunction()

# Defines vulib_<sub> for every subsystem that has portable sources (an
# INTERFACE library otherwise) and vulib_core over all of them.
function(vulib_add_core)
  set(all)
  foreach(sub ${VULIB_SUBSYSTEMS})
    vulib_portable_sources(${sub} files)
    if(files)
      add_library(vulib_${sub} STATIC ${files})
      target_include_directories(vulib_${sub} PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>
                                                    $<INSTALL_INTERFACE:include>)
      target_compile_options(vulib_${sub} PRIVATE ${VULIB_WARNINGS})
      if(WIN32)
        # The core must never see the window system: a poisoned <windows.h>
        # shadows the real one for core files only.
        target_include_directories(vulib_${sub} BEFORE PRIVATE ${CMAKE_SOURCE_DIR}/cmake/poison)
      endif()
      foreach(dep ${VULIB_DEPS_${sub}})
        target_link_libraries(vulib_${sub} PUBLIC vulib_${dep})
      endforeach()
      list(APPEND all vulib_${sub})
    else()
      add_library(vulib_${sub} INTERFACE)
      target_include_directories(vulib_${sub} INTERFACE $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>
                                                       $<INSTALL_INTERFACE:include>)
      foreach(dep ${VULIB_DEPS_${sub}})
        target_link_libraries(vulib_${sub} INTERFACE vulib_${dep})
      endforeach()
    endif()
  endforeach()
  add_library(vulib_core INTERFACE)
  target_link_libraries(vulib_core INTERFACE ${all})
  # Installed as VuLib::core (see cmake/Install.cmake).
  set_target_properties(vulib_core PROPERTIES EXPORT_NAME core)
  set(VULIB_CORE_LIBS ${all} PARENT_SCOPE)
endfunction()
