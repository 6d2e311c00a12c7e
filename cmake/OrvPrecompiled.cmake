# orv_add_precompiled(NAME HEADER LINK ...): a precompiled header for all targets that link at least LINK.
#
# It is compiled with no definition but those of LINK: a target that defines more may read it all the same, one that
# defines less may not. So one file serves libraries, programs and KProperty alike.
function(orv_add_precompiled name header)
  add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/cmake/pch.cpp")
  target_link_libraries(${name} PRIVATE ${ARGN} orv_options)
  target_precompile_headers(${name} PRIVATE "${header}")
endfunction()

orv_add_precompiled(orv_core_pch "${CMAKE_CURRENT_LIST_DIR}/pch.h" Qt6::Core)
orv_add_precompiled(orv_widgets_pch "${CMAKE_CURRENT_LIST_DIR}/pch_widgets.h" Qt6::Widgets)
