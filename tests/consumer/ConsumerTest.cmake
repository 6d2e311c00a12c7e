# Installs the library, moves the installed tree, and builds and runs projects against it as a user would.

function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\nended with ${result}\n${output}${errors}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed")
file(RENAME "${WORK_DIR}/installed" "${WORK_DIR}/moved")

file(GLOB_RECURSE licence "${WORK_DIR}/moved/LICENSE")
if(NOT licence)
  message(FATAL_ERROR "The licence is not installed")
endif()

# Builds the example of that name, with further arguments for CMake.
function(build_example name)
  run("${CMAKE_COMMAND}" -S "${SOURCE_DIR}/examples/${name}" -B "${WORK_DIR}/${name}" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${WORK_DIR}/moved" "-DCMAKE_CXX_COMPILER=${COMPILER}"
    "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" "-DCMAKE_CXX_FLAGS=${FLAGS}" ${ARGN})
  run("${CMAKE_COMMAND}" --build "${WORK_DIR}/${name}")
endfunction()

build_example(consumer)
run("${WORK_DIR}/consumer/list-tabs" "${SOURCE_DIR}/examples/workflows/antibody_peptide_map.wflw")

# Which version that is, other tests say.
string(REGEX REPLACE "^Format version [0-9]+\\.[0-9]+\\.[0-9]+\n" "Format version\n" output "${output}")
set(expected [[
Format version
Samples: 1 cell(s)
Sequences: 2 cell(s)
Peptide map: 2 cell(s)
Workflow "Antibody peptide map"
Samples / Sample Input: 1 item(s)
Sequences / Protein Input: 1 item(s)
Sequences / Isotope labels: 1 item(s)
Peptide map / MS/MS search: 1 item(s)
Peptide map / Peptide map: 1 item(s)
]])
if(NOT output STREQUAL expected)
  message(FATAL_ERROR "The consumer printed\n${output}\nbut should print\n${expected}")
endif()

execute_process(COMMAND "${WORK_DIR}/consumer/list-tabs" "${WORK_DIR}/missing.wflw"
  OUTPUT_QUIET ERROR_VARIABLE errors RESULT_VARIABLE result)
if(NOT result EQUAL 1 OR NOT errors MATCHES "Could not open the file: .*missing.wflw")
  message(FATAL_ERROR "A missing workflow gave ${result}: ${errors}")
endif()

run("${WORK_DIR}/consumer/choose-types" --list)
if(NOT output MATCHES "^[0-9]+ types, checked: Karvon Samples\n$")
  message(FATAL_ERROR "The editors' example printed\n${output}")
endif()

include("${CMAKE_CURRENT_LIST_DIR}/HeadlessTest.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/ComponentsTest.cmake")
