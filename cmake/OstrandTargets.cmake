# Compiler settings that every target of ours shares, and one function per kind of target.

include(GNUInstallDirs)
add_library(ostrand_settings INTERFACE)
target_compile_definitions(ostrand_settings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
  OSTRAND_VERSION_MAJOR=${PROJECT_VERSION_MAJOR}
  OSTRAND_VERSION_MINOR=${PROJECT_VERSION_MINOR}
  OSTRAND_VERSION_PATCH=${PROJECT_VERSION_PATCH}
  OSTRAND_LIBRARY_FOLDER="${CMAKE_INSTALL_FULL_LIBDIR}/ostrand")
target_compile_options(ostrand_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Werror)
target_include_directories(ostrand_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
  # ccache can only serve a precompiled header that carries no time stamp.
  target_compile_options(ostrand_settings INTERFACE "SHELL:-Xclang -fno-pch-timestamp")
endif()
if(OSTRAND_SANITIZE)
  target_compile_options(ostrand_settings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ostrand_settings INTERFACE -fsanitize=address,undefined)
endif()
if(OSTRAND_FUZZ)
  target_compile_options(ostrand_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

find_program(OSTRAND_LINKER NAMES mold ld.lld)
if(OSTRAND_LINKER MATCHES mold)
  add_link_options(-fuse-ld=mold)
elseif(OSTRAND_LINKER)
  add_link_options(-fuse-ld=lld)
endif()
find_program(OSTRAND_CCACHE ccache)
if(OSTRAND_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    ${OSTRAND_CCACHE})
endif()

# Two precompiled headers, each made once: one without and one with widgets.
file(WRITE ${CMAKE_BINARY_DIR}/pch/pch.cpp "")
add_library(ostrand_pch STATIC ${CMAKE_BINARY_DIR}/pch/pch.cpp)
add_library(ostrand_pch_ui STATIC ${CMAKE_BINARY_DIR}/pch/pch.cpp)

function(ostrand_pch_setup)
  target_link_libraries(ostrand_pch PRIVATE ostrand_settings Qt6::Core)
  target_precompile_headers(ostrand_pch PRIVATE ${CMAKE_SOURCE_DIR}/src/pch.h)
  target_link_libraries(ostrand_pch_ui PRIVATE ostrand_settings Qt6::Widgets)
  target_precompile_headers(ostrand_pch_ui PRIVATE ${CMAKE_SOURCE_DIR}/src/platform_qt/pch.h)
endfunction()

# Targets that link widgets take the header that knows them.
function(ostrand_use_pch target)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  if("Qt6::Widgets" IN_LIST arg_LINKS OR "ostrand_ui" IN_LIST arg_LINKS)
    target_precompile_headers(${target} REUSE_FROM ostrand_pch_ui)
  else()
    target_precompile_headers(${target} REUSE_FROM ostrand_pch)
  endif()
endfunction()

# ostrand_library(name FOLDERS a b LINKS x y): a static library of all sources of the folders below src/.
function(ostrand_library name)
  cmake_parse_arguments(arg "" "" "FOLDERS;LINKS" ${ARGN})
  if(name STREQUAL base)
    ostrand_pch_setup()
  endif()
  set(sources)
  foreach(folder IN LISTS arg_FOLDERS)
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp ${CMAKE_SOURCE_DIR}/src/${folder}/*.h)
    list(APPEND sources ${found})
  endforeach()
  add_library(ostrand_${name} STATIC ${sources})
  set_target_properties(ostrand_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(ostrand_${name} PUBLIC ostrand_settings ${arg_LINKS})
  if(name STREQUAL core OR name STREQUAL ui)
    set_target_properties(ostrand_${name} PROPERTIES AUTOMOC ON)
  endif()
  ostrand_use_pch(ostrand_${name} LINKS ${arg_LINKS})
endfunction()

# ostrand_program(name SOURCES a.cpp LINKS x y)
function(ostrand_program name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ostrand_settings ${arg_LINKS})
  ostrand_use_pch(${name} LINKS ${arg_LINKS})
endfunction()
