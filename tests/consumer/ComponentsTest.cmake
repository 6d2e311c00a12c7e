# What the components of the package give and refuse; part of ConsumerTest.cmake.

# find(<how> <CMake code that must hold> [<arguments for CMake> ...]): configures a project that says
# find_package with \a how; leaves `result` and `errors`.
function(find how code)
  set(project "${WORK_DIR}/find")
  file(REMOVE_RECURSE "${project}")
  file(WRITE "${project}/CMakeLists.txt" "
    cmake_minimum_required(VERSION 3.25)
    project(Find LANGUAGES CXX)
    find_package(OrvPropertyEditor ${how})
    macro(must)
      if(NOT (\${ARGN}))
        message(FATAL_ERROR \"Unmet: \${ARGN}\")
      endif()
    endmacro()
    ${code}\n")
  execute_process(COMMAND "${CMAKE_COMMAND}" -S "${project}" -B "${project}/build" -G "${GENERATOR}"
      "-DCMAKE_PREFIX_PATH=${WORK_DIR}/moved" "-DCMAKE_CXX_COMPILER=${COMPILER}" ${ARGN}
    OUTPUT_QUIET ERROR_VARIABLE errors RESULT_VARIABLE result)
  # CMake breaks the lines of a message.
  string(REGEX REPLACE "[ \n]+" " " errors "${errors}")
  set(result "${result}" PARENT_SCOPE)
  set(errors "${errors}" PARENT_SCOPE)
endfunction()

function(must_find how code)
  find("${how}" "${code}" ${ARGN})
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "find_package(OrvPropertyEditor ${how}) ${ARGN} gave ${result}: ${errors}")
  endif()
endfunction()

function(must_refuse how reason)
  find("${how}" "" ${ARGN})
  string(FIND "${errors}" "${reason}" position)
  if(result EQUAL 0 OR position EQUAL -1)
    message(FATAL_ERROR "find_package(OrvPropertyEditor ${how}) ${ARGN} gave ${result}, not \"${reason}\": ${errors}")
  endif()
endfunction()

set(without_widgets -DCMAKE_DISABLE_FIND_PACKAGE_Qt6Widgets=ON)
set(all "must(TARGET Orv::orv_workflow AND TARGET Orv::KPropertyCore AND TARGET Orv::orv_property_editor AND TARGET Orv::KPropertyWidgets)")
set(headless "must(TARGET Orv::orv_workflow AND TARGET Orv::KPropertyCore AND NOT TARGET Orv::orv_property_editor AND NOT TARGET Qt6::Widgets)")

must_find("REQUIRED" "${all}")
must_find("REQUIRED COMPONENTS Editor" "${all}")
must_find("REQUIRED COMPONENTS Workflow Editor" "${all}")
must_find("REQUIRED COMPONENTS Workflow" "${headless}")
must_find("REQUIRED COMPONENTS Workflow" "${headless}" ${without_widgets})
must_find("REQUIRED COMPONENTS Workflow OPTIONAL_COMPONENTS Editor" "${headless}\nmust(NOT OrvPropertyEditor_Editor_FOUND)"
  ${without_widgets})
must_find("OPTIONAL_COMPONENTS Window" "must(OrvPropertyEditor_FOUND AND NOT OrvPropertyEditor_Window_FOUND)")
must_find("" "must(NOT OrvPropertyEditor_FOUND)" ${without_widgets})

set(needs_widgets "The component Editor needs Qt Widgets 6.4; without it name the component Workflow.")
must_refuse("REQUIRED" "${needs_widgets}" ${without_widgets})
must_refuse("REQUIRED COMPONENTS Editor" "${needs_widgets}" ${without_widgets})
must_refuse("REQUIRED COMPONENTS Workflow Window" "There is no component Window; there are: Workflow, Editor.")
