# The `wine` suite: the real DLL under Wine and a virtual display, in one shared prefix set up
# once per run (fixture `wine`): registration and a script host (tests/wine/run), then every
# scenario played through hostdriver.exe (user actions as real window messages on the dialog)
# and compared with the native runner's transcript; the dialog's window on its own. The same
# tests serve both builds: win64 runs them under this machine's wine64, win32 (the DLL that
# ships) under the 32-bit Wine of the i386 userland (scripts/i386-userland).
set(QUORBEL_NATIVE_RUNNER ${CMAKE_SOURCE_DIR}/build/native/quorbel-sim
    CACHE FILEPATH "The native scenario runner the Wine transcripts are compared with")
set(WINE_TESTS ${CMAKE_SOURCE_DIR}/tests/wine)
set(WINE_SUITE ${CMAKE_BINARY_DIR}/wine-suite)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(WINE_ARCH x64)
else()
  set(WINE_ARCH x86)
endif()
# Wine of this build's architecture; every test runs inside `suite exec`, which chooses it.
set(WINE ${WINE_TESTS}/wine)

add_test(NAME wine.setup COMMAND ${WINE_TESTS}/suite start ${WINE_SUITE} ${WINE_ARCH})
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
# The support trace (QUORBEL_TRACE): a refused placement, one saved by an exception list, the dialog.
foreach(traced IN ITEMS 04_colocacion_rechazada 03_colocacion_permitida_excepcion
        dialog/12_dialogo_especiales)
  string(REPLACE "dialog/" "" name ${traced})
  wine_test(wine.trace.${name} ${WINE_TESTS}/trace ${QUORBEL_NATIVE_RUNNER}
            ${CMAKE_BINARY_DIR}/hostdriver.exe ${CMAKE_SOURCE_DIR}/samples/${traced}.json)
endforeach()

# Host faults at the real boundary: the simulated host behind COM fails one member with
# DISP_E_EXCEPTION or answers it wrongly, refuses to create a ProgID, or lacks a member; the DLL
# must fail the call with the error in EXCEPINFO (or its trap must show it) as the native runner
# does, and the driver goes on to the next call.
set(fault_cases
    "raise_in_placement|samples/04_colocacion_rechazada.json|--fault|40:raise"
    "raise_in_dialog|tests/scenarios/dialog/wizard_catalogues.json|--fault|300:raise"
    "huge_text|samples/04_colocacion_rechazada.json|--fault|30:hugeText"
    "empty_text|tests/scenarios/dialog/wizard_catalogues.json|--fault|250:emptyText"
    "minus_one|samples/04_colocacion_rechazada.json|--fault|9:minusOne"
    "refused_progid|samples/01_inicio.json|--refuse|Pelmora.Scene"
    "refused_progid_in_dialog|tests/scenarios/dialog/wizard_catalogues.json|--refuse|Pelmora.Catalog"
    "missing_member|samples/04_colocacion_rechazada.json|--missing|TableGetLineInfo"
    "missing_member_in_dialog|tests/scenarios/dialog/wizard_catalogues.json|--missing|ObjectGetScript")
foreach(case IN LISTS fault_cases)
  string(REPLACE "|" ";" parts "${case}")
  list(POP_FRONT parts name file)
  wine_test(wine.fault.${name} ${WINE_TESTS}/play-scenario ${QUORBEL_NATIVE_RUNNER}
            ${CMAKE_BINARY_DIR}/hostdriver.exe ${CMAKE_SOURCE_DIR}/${file} ${parts})
endforeach()

wine_test(wine.hostdriver_checks ${WINE} ${CMAKE_BINARY_DIR}/hostdriver-checks.exe)

# The dialog's window without a host: layout at 96 and 120 dpi, drawings, colours, icon, preview.
wine_test(wine.dialog_view env QUORBEL_WINE_TEMPLATE=${WINE_SUITE}/template
          ${WINE_TESTS}/dialog-view ${CMAKE_BINARY_DIR}/dialog-view-check.exe)
set_tests_properties(wine.dialog_view PROPERTIES TIMEOUT 300)

# The version the build carries (read back from the DLL) and the installer package of this
# architecture, installed, used, upgraded and removed in a prefix of its own; the two packages'
# tables against each other.
set(QUORBEL_WIN32_BUILD ${CMAKE_SOURCE_DIR}/build/win32
    CACHE PATH "The win32 build, whose package the tables are compared with")
set(QUORBEL_WIN64_BUILD ${CMAKE_SOURCE_DIR}/build/win64
    CACHE PATH "The win64 build, whose package the tables are compared with")
add_executable(version-check ${WINE_TESTS}/version/VersionCheck.cpp)
target_link_libraries(version-check PRIVATE -static-libgcc -static-libstdc++ -lversion -loleaut32
                      -lole32)
set_target_properties(version-check PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
wine_test(wine.version_resource ${WINE_TESTS}/version-resource ${CMAKE_BINARY_DIR}/version-check.exe
          ${PROJECT_VERSION} ${CMAKE_BINARY_DIR}/Quorbel.dll)
wine_test(wine.msi_install env QUORBEL_WINE_TEMPLATE=${WINE_SUITE}/template
          ${WINE_TESTS}/msi-install ${CMAKE_BINARY_DIR} ${PROJECT_VERSION} ${QUORBEL_TYPELIB_KEY})
set_tests_properties(wine.msi_install PROPERTIES TIMEOUT 300)
add_test(NAME wine.msi_x86_tables COMMAND ${WINE_TESTS}/msi-tables
         ${QUORBEL_WIN32_BUILD}/Quorbel-${PROJECT_VERSION}-x86.msi
         ${QUORBEL_WIN64_BUILD}/Quorbel-${PROJECT_VERSION}-x64.msi ${PROJECT_VERSION})
set_tests_properties(wine.msi_x86_tables PROPERTIES LABELS wine)

# A long working day through the real DLL: every object released and private memory flat.
wine_test(wine.leak_run ${WINE_TESTS}/leak-run ${CMAKE_BINARY_DIR}/hostdriver.exe
          ${CMAKE_SOURCE_DIR}/tests/scenarios/dialog/open_and_exit.json)
set_tests_properties(wine.leak_run PROPERTIES TIMEOUT 300)

# The 32-bit suite's userland on a machine that cannot reach the package registry.
if(WINE_ARCH STREQUAL x86)
  add_test(NAME wine.userland_failure COMMAND ${WINE_TESTS}/userland-failure)
  set_tests_properties(wine.userland_failure PROPERTIES LABELS wine)
endif()
