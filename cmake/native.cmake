# Native shell: the simulated host, the scenario runner and the tests.
find_package(PkgConfig REQUIRED)
pkg_check_modules(LIBXML2 REQUIRED IMPORTED_TARGET libxml-2.0)
find_package(nlohmann_json 3 REQUIRED)
find_package(GTest REQUIRED)
find_package(benchmark QUIET)

file(GLOB native_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/native/*.cpp)
file(GLOB sim_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/sim/*.cpp)
file(GLOB lint_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/lint/*.cpp)
add_library(quorbel_sim STATIC ${native_sources} ${sim_sources} ${lint_sources})
target_link_libraries(quorbel_sim PUBLIC quorbel_core PkgConfig::LIBXML2 nlohmann_json::nlohmann_json)

file(GLOB app_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/apps/quorbel-sim/*.cpp)
add_executable(quorbel-sim ${app_sources})
target_link_libraries(quorbel-sim PRIVATE quorbel_sim)
target_compile_definitions(quorbel-sim PRIVATE QUORBEL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
target_include_directories(quorbel-sim PRIVATE ${QUORBEL_VERSION_DIR})

enable_testing()
include(GoogleTest)
string(REPLACE "." "\\." version_pattern "^quorbel-sim ${PROJECT_VERSION}\n$")
add_test(NAME quorbel_sim.version COMMAND quorbel-sim --version)
set_tests_properties(quorbel_sim.version PROPERTIES LABELS native
                     PASS_REGULAR_EXPRESSION "${version_pattern}")
# One test binary per folder under tests/unit, so that each area builds and fails on its own.
file(GLOB unit_dirs LIST_DIRECTORIES true ${CMAKE_SOURCE_DIR}/tests/unit/*)
foreach(dir IN LISTS unit_dirs)
  if(IS_DIRECTORY ${dir})
    get_filename_component(area ${dir} NAME)
    file(GLOB test_sources CONFIGURE_DEPENDS ${dir}/*.cpp)
    if(test_sources)
      add_executable(test_${area} ${test_sources})
      target_link_libraries(test_${area} PRIVATE quorbel_sim GTest::gtest_main)
      target_compile_definitions(test_${area} PRIVATE QUORBEL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
      # Named cases: the test name is the case's name, without gtest's printed parameter.
      gtest_discover_tests(test_${area} NO_PRETTY_VALUES PROPERTIES LABELS native
                           DISCOVERY_TIMEOUT 60)
    endif()
  endif()
endforeach()

# The rule-table check on the samples, with the exit codes the README documents.
add_test(NAME lint.samples
         COMMAND ${CMAKE_SOURCE_DIR}/tests/lint/check-samples $<TARGET_FILE:quorbel-sim>
                 ${CMAKE_SOURCE_DIR})
set_tests_properties(lint.samples PROPERTIES LABELS native)

# The command line as a person meets it: help, usage mistakes, files that do not load.
add_test(NAME quorbel_sim.command_line
         COMMAND ${CMAKE_SOURCE_DIR}/tests/tools/check-cli $<TARGET_FILE:quorbel-sim>
                 ${CMAKE_SOURCE_DIR})
set_tests_properties(quorbel_sim.command_line PROPERTIES LABELS native)

# The permission matrix page opened by headless Chromium, its rendered cells checked.
add_test(NAME lint.matrix_page
         COMMAND ${CMAKE_SOURCE_DIR}/tests/tools/check-matrix-page $<TARGET_FILE:quorbel-sim>
                 ${CMAKE_SOURCE_DIR})
set_tests_properties(lint.matrix_page PROPERTIES LABELS native TIMEOUT 300)

# lint, the matrix and run --explain over the fuzz corpus, the goldens and the samples: no crash,
# no hang, only their own exit codes.
add_test(NAME quorbel_sim.any_world
         COMMAND ${CMAKE_SOURCE_DIR}/tests/tools/check-any-world $<TARGET_FILE:quorbel-sim>
                 ${CMAKE_SOURCE_DIR})
set_tests_properties(quorbel_sim.any_world PROPERTIES LABELS native TIMEOUT 900)

# Every sample must play through the runner (exit 0); under the sanitizers this is their check.
file(GLOB samples CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/samples/*.json
                                    ${CMAKE_SOURCE_DIR}/samples/*/*.json)
foreach(sample IN LISTS samples)
  file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR}/samples ${sample})
  add_test(NAME sample.${name} COMMAND quorbel-sim run ${sample})
  set_tests_properties(sample.${name} PROPERTIES LABELS native)
endforeach()
add_test(NAME sample.demo COMMAND quorbel-sim demo)
set_tests_properties(sample.demo PROPERTIES LABELS native)

add_subdirectory(fuzz)

if(EXISTS ${CMAKE_SOURCE_DIR}/bench/CMakeLists.txt AND benchmark_FOUND)
  add_subdirectory(bench)
endif()

# The host-fault sweep (tests/faults): its sampled share runs with the native tests;
# scripts/fault-sweep runs it over every host call.
file(GLOB fault_sweep_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/faults/*.cpp)
add_executable(fault-sweep ${fault_sweep_sources})
target_link_libraries(fault-sweep PRIVATE quorbel_sim)
target_compile_definitions(fault-sweep PRIVATE QUORBEL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
# In four parts, so that ctest -j runs them side by side. The sanitizer build plays a thinner
# share (each member's first and last call), as the plain build has played the CI share.
option(QUORBEL_SANITIZED "A build under the sanitizers: the fault sweep plays its thin share" OFF)
set(fault_sweep_share "")
if(QUORBEL_SANITIZED)
  set(fault_sweep_share --members)
endif()
foreach(part 1 2 3 4)
  add_test(NAME fault_sweep.${part}of4 COMMAND fault-sweep ${fault_sweep_share} --part ${part}/4)
  set_tests_properties(fault_sweep.${part}of4 PROPERTIES LABELS native TIMEOUT 1500)
endforeach()
