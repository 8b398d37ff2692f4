# The version stands in version.txt; what shows it is made from that. (tools/version prints the same forms.)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS version.txt)
file(STRINGS version.txt QUILLET_VERSION)
if(NOT QUILLET_VERSION MATCHES "^0*([0-9]+)[.]0*([0-9]+)[.]0*([0-9]+)$")
    message(FATAL_ERROR "version.txt: \"${QUILLET_VERSION}\" is no version such as 1.02.0003")
endif()
set(QUILLET_FILE_VERSION ${CMAKE_MATCH_1}.${CMAKE_MATCH_2}.0.${CMAKE_MATCH_3}) # Windows' four numbers
string(REPLACE . ", " QUILLET_FILE_VERSION_ROW ${QUILLET_FILE_VERSION})
configure_file(cmake/Version.h.in ${CMAKE_BINARY_DIR}/generated/base/Version.h @ONLY)
