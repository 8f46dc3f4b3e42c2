# The `wine` suite: the real DLL under Wine and a virtual display, in one shared prefix set up
# once per run (fixture `wine`): registration and a script host (tests/wine/run), then every
# scenario played through hostdriver.exe (user actions as real window messages on the dialog)
# and compared with the native runner's transcript; the dialog's window on its own.
set(QUORBEL_NATIVE_RUNNER ${CMAKE_SOURCE_DIR}/build/native/quorbel-sim
    CACHE FILEPATH "The native scenario runner the Wine transcripts are compared with")
set(WINE_TESTS ${CMAKE_SOURCE_DIR}/tests/wine)
set(WINE_SUITE ${CMAKE_BINARY_DIR}/wine-suite)

add_test(NAME wine.setup COMMAND ${WINE_TESTS}/suite start ${WINE_SUITE})
add_test(NAME wine.teardown COMMAND ${WINE_TESTS}/suite stop ${WINE_SUITE})
set_tests_properties(wine.setup PROPERTIES FIXTURES_SETUP wine LABELS wine)
set_tests_properties(wine.teardown PROPERTIES FIXTURES_CLEANUP wine LABELS wine)

function(wine_test name)
  add_test(NAME ${name} COMMAND ${WINE_TESTS}/suite exec ${WINE_SUITE} ${ARGN})
  # One prefix and one wineserver for the whole suite: its tests take turns.
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED wine LABELS wine
                       RESOURCE_LOCK wine_prefix TIMEOUT 120)
endfunction()

wine_test(wine.registration_and_script_host env QUORBEL_WIN_DLL=${CMAKE_BINARY_DIR}/Quorbel.dll
          QUORBEL_WINE_TEMPLATE=${WINE_SUITE}/template ${WINE_TESTS}/run)

# Every golden scenario, and the samples.
file(GLOB_RECURSE goldens CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/scenarios/*.expected.json)
file(GLOB samples CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/samples/*.json)
set(scenarios ${samples})
foreach(golden IN LISTS goldens)
  string(REGEX REPLACE "\\.expected\\.json$" ".json" scenario ${golden})
  if(EXISTS ${scenario})
    list(APPEND scenarios ${scenario})
  endif()
endforeach()
foreach(scenario IN LISTS scenarios)
  file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR} ${scenario})
  string(REGEX REPLACE "^tests/scenarios/|\\.json$" "" name ${name})
  wine_test(wine.scenario.${name} ${WINE_TESTS}/play-scenario ${QUORBEL_NATIVE_RUNNER}
            ${CMAKE_BINARY_DIR}/hostdriver.exe ${scenario})
endforeach()
wine_test(wine.scenario.bad_input ${WINE_TESTS}/play-scenario ${QUORBEL_NATIVE_RUNNER}
          ${CMAKE_BINARY_DIR}/hostdriver.exe ${WINE_TESTS}/bad_scenario.json)
wine_test(wine.hostdriver_checks /usr/lib/wine/wine64 ${CMAKE_BINARY_DIR}/hostdriver-checks.exe)

# The dialog's window without a host: layout at 96 and 120 dpi, drawings, colours, icon, preview.
wine_test(wine.dialog_view env QUORBEL_WINE_TEMPLATE=${WINE_SUITE}/template
          ${WINE_TESTS}/dialog-view ${CMAKE_BINARY_DIR}/dialog-view-check.exe)
set_tests_properties(wine.dialog_view PROPERTIES TIMEOUT 300)

# The version the build carries (read back from both DLLs) and the installer packages: the x64
# one installed, used, upgraded and removed in a prefix of its own; the x86 one's tables.
set(QUORBEL_WIN32_BUILD ${CMAKE_SOURCE_DIR}/build/win32
    CACHE PATH "The win32 build, whose DLL and package the Wine suite checks too")
add_executable(version-check ${WINE_TESTS}/version/VersionCheck.cpp)
target_link_libraries(version-check PRIVATE -static-libgcc -static-libstdc++ -lversion -loleaut32
                      -lole32)
set_target_properties(version-check PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
wine_test(wine.version_resource ${WINE_TESTS}/version-resource ${CMAKE_BINARY_DIR}/version-check.exe
          ${PROJECT_VERSION} ${CMAKE_BINARY_DIR}/Quorbel.dll ${QUORBEL_WIN32_BUILD}/Quorbel.dll)
wine_test(wine.msi_install env QUORBEL_WINE_TEMPLATE=${WINE_SUITE}/template
          ${WINE_TESTS}/msi-install ${CMAKE_BINARY_DIR} ${PROJECT_VERSION} ${QUORBEL_TYPELIB_KEY})
set_tests_properties(wine.msi_install PROPERTIES TIMEOUT 300)
add_test(NAME wine.msi_x86_tables COMMAND ${WINE_TESTS}/msi-tables
         ${QUORBEL_WIN32_BUILD}/Quorbel-${PROJECT_VERSION}-x86.msi
         ${CMAKE_BINARY_DIR}/Quorbel-${PROJECT_VERSION}-x64.msi ${PROJECT_VERSION})
set_tests_properties(wine.msi_x86_tables PROPERTIES LABELS wine)
