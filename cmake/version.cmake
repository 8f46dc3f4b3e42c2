# One version number, project()'s, for everything that carries one: the DLL's version resource,
# the type library and its registry rows, the installer packages and `quorbel-sim --version`.
foreach(part MAJOR MINOR)
  math(EXPR hex "${PROJECT_VERSION_${part}}" OUTPUT_FORMAT HEXADECIMAL)
  string(REGEX REPLACE "^0x" "" typelib_${part} "${hex}")
endforeach()
set(QUORBEL_TYPELIB_VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(QUORBEL_TYPELIB_KEY ${typelib_MAJOR}.${typelib_MINOR})
set(QUORBEL_VERSION_DIR ${CMAKE_BINARY_DIR}/version)
configure_file(${CMAKE_CURRENT_LIST_DIR}/QuorbelVersion.h.in ${QUORBEL_VERSION_DIR}/QuorbelVersion.h
               @ONLY)
