# What a Windows (mingw-w64) build needs besides the portable core.

# No DLL of the compiler's runtime next to ours: libgcc, libstdc++ and winpthread go inside.
add_link_options(-static -static-libgcc -static-libstdc++)
# The .def files export the plain names that COM and the outside components' callers look up; on
# 32-bit those functions are stdcall (DllGetClassObject@12), and the linker is to resolve the one
# to the other, as it does anyway but with a warning.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  add_link_options(LINKER:--enable-stdcall-fixup)
endif()
# Wine's backtraces read DWARF 4.
add_compile_options(-gdwarf-4)
# The wide-character forms of the Windows API throughout, for Windows 7 and later.
add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)

# nlohmann-json is headers only; Debian installs it for the host, and its CMake package would put
# the host's /usr/include on the cross compiler's path. Its own folder alone is enough.
if(NOT EXISTS /usr/include/nlohmann/json.hpp)
  message(FATAL_ERROR "nlohmann-json is missing: sudo apt-get install nlohmann-json3-dev")
endif()
file(COPY /usr/include/nlohmann DESTINATION ${CMAKE_BINARY_DIR}/host-headers)
add_library(nlohmann_json_headers INTERFACE)
target_include_directories(nlohmann_json_headers SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/host-headers)
add_library(nlohmann_json::nlohmann_json ALIAS nlohmann_json_headers)

# Wine's IDL compiler, for the COM server's type library. Debian's wine64-tools installs it in
# Wine's own folder, off the PATH.
find_program(NVRANDOM_WIDL NAMES widl widl-stable PATHS /usr/lib/wine /usr/lib/x86_64-linux-gnu/wine
             REQUIRED)
# Wine's IDL headers (libwine-dev) and its stdole2.tlb (libwine), for import and importlib.
find_path(NVRANDOM_WINE_IDL_DIR oaidl.idl PATHS /usr/include/wine/wine/windows
          /usr/include/wine/windows NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(NVRANDOM_STDOLE_DIR stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows
          /usr/lib/wine/x86_64-windows NO_CMAKE_FIND_ROOT_PATH REQUIRED)

# nvrandom_widl(IDL TLB HEADER): compiles IDL into the type library TLB (for this build's pointer
# size) and the C++ header HEADER.
function(nvrandom_widl idl tlb header)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(widl_target -m64)
  else()
    set(widl_target -m32)
  endif()
  get_filename_component(idl_name ${idl} NAME)
  add_custom_command(
    OUTPUT ${tlb} ${header}
    COMMAND ${NVRANDOM_WIDL} ${widl_target} -I${NVRANDOM_WINE_IDL_DIR} -L${NVRANDOM_STDOLE_DIR}
            -t -o ${tlb} -h -H ${header} ${idl}
    DEPENDS ${idl}
    COMMENT "Compiling ${idl_name} with widl" VERBATIM)
endfunction()

# googletest built from Debian's source package (googletest) with this compiler: Debian ships
# no mingw-w64 build of it.
macro(nvrandom_windows_googletest)
  set(NVRANDOM_GTEST_SOURCE /usr/src/googletest CACHE PATH "googletest source tree")
  if(NOT EXISTS ${NVRANDOM_GTEST_SOURCE}/CMakeLists.txt)
    message(FATAL_ERROR "googletest's source is missing: sudo apt-get install googletest")
  endif()
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  # Its CMake project defines the GTest::gtest and GTest::gtest_main targets itself.
  add_subdirectory(${NVRANDOM_GTEST_SOURCE} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
endmacro()
