# What a project needs beside libraries and headers to say find_package(OrvPropertyEditor).
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/OrvPropertyEditor")

# One set for each component, so that who wants no editors needs no Qt Widgets.
foreach(component IN ITEMS Workflow Editor)
  install(EXPORT Orv${component}Targets NAMESPACE Orv:: DESTINATION "${package_dir}")
endforeach()
configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/OrvPropertyEditorConfig.cmake.in"
  "${CMAKE_CURRENT_BINARY_DIR}/OrvPropertyEditorConfig.cmake"
  INSTALL_DESTINATION "${package_dir}"
  NO_SET_AND_CHECK_MACRO)
# Before 1.0 the interface may change with each minor version.
write_basic_package_version_file(
  "${CMAKE_CURRENT_BINARY_DIR}/OrvPropertyEditorConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/OrvPropertyEditorConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/OrvPropertyEditorConfigVersion.cmake"
  DESTINATION "${package_dir}")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
