# Language level, warnings, sanitizers and the compiler cache, in one place.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
# An installed tree works wherever it is put.
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

# moc needs no library to be linked before it reads a header.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

if(ORV_UNITY)
  # With sanitizers and debug information the largest unit takes less than a gigabyte to compile.
  set(CMAKE_UNITY_BUILD ON)
  set(CMAKE_UNITY_BUILD_BATCH_SIZE 12)
endif()

find_program(ORV_CCACHE ccache)
if(ORV_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Precompiled headers are only cached when ccache may trust their recorded time stamps.
  set(CMAKE_CXX_COMPILER_LAUNCHER env
      "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime" "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}"
      "${ORV_CCACHE}")
endif()

add_library(orv_options INTERFACE)
target_compile_definitions(orv_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING
  QT_NO_CAST_FROM_BYTEARRAY QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400 QT_MESSAGELOGCONTEXT)
target_compile_options(orv_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
  -Wconversion -Wno-sign-conversion -Wnull-dereference -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough
  $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 takes an atomic in a function-local static for a region of no size, and a moved-from std::string for
  # a null one.
  target_compile_options(orv_options INTERFACE -Wno-stringop-overflow -Wno-null-dereference)
endif()
if(ORV_UNITY AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC takes every source of a joined unit for a header, where an unnamed namespace would be a mistake.
  target_compile_options(orv_options INTERFACE -Wno-subobject-linkage)
endif()
if(ORV_WERROR)
  target_compile_options(orv_options INTERFACE -Werror)
endif()
if(ORV_COVERAGE)
  target_compile_options(orv_options INTERFACE --coverage)
  target_link_options(orv_options INTERFACE --coverage)
endif()
if(ORV_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # At -O1 GCC sees null dereferences inside the checks that the sanitizers add.
  target_compile_options(orv_options INTERFACE -Wno-null-dereference)
endif()
if(ORV_BUILD_FUZZERS)
  add_compile_options(-fsanitize=fuzzer-no-link)
  add_compile_definitions(QT_FORCE_ASSERTS) # what the fuzzers find is worth little without them
endif()
