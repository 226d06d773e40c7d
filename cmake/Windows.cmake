# vulib.dll: the Windows layer over the whole core. Every symbol of our own
# objects is exported (mingw's --export-all-symbols leaves the runtime
# libraries out), and the import library libvulib.dll.a is what hosts link.
enable_language(RC)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)

vulib_windows_sources(VULIB_WIN_SOURCES)
file(GLOB VULIB_RC CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/*.rc)
if(NOT VULIB_WIN_SOURCES)
  return()
endif()
add_library(vulib SHARED ${VULIB_WIN_SOURCES} ${VULIB_RC})
set_target_properties(vulib PROPERTIES PREFIX "" OUTPUT_NAME vulib IMPORT_PREFIX "lib"
                                       IMPORT_SUFFIX ".dll.a")
target_include_directories(vulib PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>
                                        $<INSTALL_INTERFACE:include>)
# A host compiles our headers with the same character set and without the
# min/max macros that <windows.h> would otherwise define.
target_compile_definitions(vulib INTERFACE UNICODE _UNICODE NOMINMAX)
target_compile_options(vulib PRIVATE ${VULIB_WARNINGS})
set(VULIB_WIN32_LIBS user32 gdi32 comctl32 msimg32 ole32 oleaut32 uuid advapi32 shell32
    shlwapi uxtheme)
target_link_libraries(vulib PRIVATE -Wl,--whole-archive ${VULIB_CORE_LIBS} -Wl,--no-whole-archive
                                    ${VULIB_WIN32_LIBS})
# libgcc_eh is linked statically into every module: exporting its unwinder
# from the DLL would clash with the executables' own copy.
target_link_options(vulib PRIVATE -static -Wl,--export-all-symbols -Wl,--exclude-libs,libgcc_eh.a)
# windres does not report what the script includes: rebuild the resources
# when a header or a generated image changes.
file(GLOB_RECURSE VULIB_RC_INPUTS CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/*.h
     ${CMAKE_SOURCE_DIR}/resources/*.bmp ${CMAKE_SOURCE_DIR}/resources/*.cur
     ${CMAKE_SOURCE_DIR}/resources/*.ico)
set_source_files_properties(${VULIB_RC} PROPERTIES OBJECT_DEPENDS "${VULIB_RC_INPUTS}")

# Test and demo executables carry their runtime with them so Wine finds no
# missing DLL.
set(VULIB_EXE_LINK_OPTIONS -static)
