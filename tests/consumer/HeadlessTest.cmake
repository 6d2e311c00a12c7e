# The headless example, built where there are no Qt Widgets; part of ConsumerTest.cmake.

build_example(headless -DCMAKE_DISABLE_FIND_PACKAGE_Qt6Widgets=ON)
set(modernize "${WORK_DIR}/headless/modernize")
set(old "${WORK_DIR}/antibody_search_2018.wflw")
# With a member that no format knows, and far from its samples.
file(READ "${SOURCE_DIR}/examples/workflows/outdated/antibody_search_2018.wflw" text)
string(REPLACE "\n    \"tabs\": [" "\n    \"remark\": 1,\n    \"tabs\": [" text "${text}")
file(WRITE "${old}" "${text}")
set(new "${WORK_DIR}/antibody_search.wflw")

run("${modernize}" "${old}" "${new}")
set(expected [[
line 17, Samples / Sample Input: The sample path of the sample "digest A" does not exist
line 17, Samples / Sample Input: The sample path of the sample "digest B" does not exist
lost: /remark: member "remark"
]])
if(NOT output STREQUAL expected)
  message(FATAL_ERROR "The headless example printed\n${output}\nbut should print\n${expected}")
endif()
run("${modernize}" "${new}" "${new}")
if(output MATCHES "lost: ")
  message(FATAL_ERROR "What the headless example wrote isn't of the present form:\n${output}")
endif()

# Nothing is written with losses over the only copy.
file(SHA256 "${old}" before)
execute_process(COMMAND "${modernize}" "${old}" "${old}" OUTPUT_QUIET ERROR_VARIABLE errors RESULT_VARIABLE result)
file(SHA256 "${old}" after)
if(NOT result EQUAL 1 OR NOT errors MATCHES "Something of the workflow would be lost: " OR NOT before STREQUAL after)
  message(FATAL_ERROR "Losses over the only copy gave ${result}: ${errors}")
endif()

# What the front page shows is what was built here.
file(READ "${SOURCE_DIR}/examples/headless/main.cpp" source)
string(REGEX MATCH "//! \\[modernize\\]\n(.*)//! \\[modernize\\]\n" found "${source}")
set(snippet "${CMAKE_MATCH_1}")
file(READ "${SOURCE_DIR}/README.md" readme)
string(FIND "${readme}" "${snippet}" position)
if(snippet STREQUAL "" OR position EQUAL -1)
  message(FATAL_ERROR "README.md doesn't show what examples/headless/main.cpp has between its marks:\n${snippet}")
endif()
