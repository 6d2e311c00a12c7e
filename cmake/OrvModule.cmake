# orv_add_module(NAME LIBRARY <shared library> SOURCES ... [HEADERS ...] [LINK ...] [USES <modules> ...])
#
# One module of the house: an OBJECT library whose objects are gathered into one shared library, so that
# every registry and static exists once. HEADERS are public, below the module's include/ folder; they are
# compiled alone by the target all_verify_interface_header_sets and installed. USES names modules below.
function(orv_add_module name)
  cmake_parse_arguments(arg "" "LIBRARY" "SOURCES;HEADERS;LINK;USES" ${ARGN})
  set(include_dir "${CMAKE_CURRENT_SOURCE_DIR}/include")
  # Listed among the sources too, so that moc sees them.
  add_library(${name} OBJECT ${arg_SOURCES} ${arg_HEADERS})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS "${include_dir}" FILES ${arg_HEADERS})
  set_target_properties(${name} PROPERTIES AUTOMOC ON VERIFY_INTERFACE_HEADER_SETS ON)
  string(TOUPPER ${arg_LIBRARY} upper)
  target_compile_definitions(${name} PRIVATE ${upper}_BUILD)
  # An OBJECT library passes on what its headers need, never its objects: those enter the shared library once.
  target_link_libraries(${name} PUBLIC Qt6::Core Qt6::Gui ${arg_LINK} ${arg_USES} PRIVATE orv_options)
  get_property(pch GLOBAL PROPERTY ${arg_LIBRARY}_PCH)
  target_precompile_headers(${name} REUSE_FROM ${pch})
  set_property(GLOBAL APPEND PROPERTY ${arg_LIBRARY}_MODULES ${name})
  set_property(GLOBAL APPEND PROPERTY ${arg_LIBRARY}_LINK ${arg_LINK})
  if(arg_HEADERS)
    install(DIRECTORY "${include_dir}/" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
  endif()
endfunction()

# orv_declare_library(NAME PCH): the precompiled header that the modules of a shared library read.
function(orv_declare_library name pch)
  set_property(GLOBAL PROPERTY ${name}_PCH ${pch})
endfunction()

# orv_add_library(NAME COMPONENT <component> [LINK ...]): the shared library that gathers the modules registered
# for it, found by the component of the package.
function(orv_add_library name)
  cmake_parse_arguments(arg "" "COMPONENT" "LINK" ${ARGN})
  get_property(modules GLOBAL PROPERTY ${name}_MODULES)
  get_property(links GLOBAL PROPERTY ${name}_LINK)
  add_library(${name} SHARED)
  add_library(Orv::${name} ALIAS ${name})
  foreach(module IN LISTS modules)
    target_sources(${name} PRIVATE $<TARGET_OBJECTS:${module}>)
    get_target_property(source_dir ${module} SOURCE_DIR)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${source_dir}/include>)
  endforeach()
  target_include_directories(${name} PUBLIC $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(${name} PUBLIC Qt6::Core Qt6::Gui ${arg_LINK} PRIVATE ${links})
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_options(${name} PRIVATE -Wl,--as-needed $<$<NOT:$<BOOL:${ORV_SANITIZE}>>:-Wl,--no-undefined>)
  set_target_properties(${name} PROPERTIES
    LINKER_LANGUAGE CXX VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  install(TARGETS ${name} EXPORT Orv${arg_COMPONENT}Targets
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()

# orv_add_test(NAME SOURCES ... [LINK ...] [ENVIRONMENT ...] [LABELS ...]): one Qt Test executable of a
# module folder, run offscreen.
function(orv_add_test name)
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LINK;ENVIRONMENT;LABELS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE orv_test_support ${arg_LINK})
  target_precompile_headers(${name} REUSE_FROM orv_test_pch)
  add_test(NAME ${name} COMMAND ${name})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT} LABELS "${arg_LABELS}"
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;ASAN_OPTIONS=detect_leaks=1;QTEST_DISABLE_STACK_DUMP=1;${arg_ENVIRONMENT}")
endfunction()
