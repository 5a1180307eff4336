# The lab view's page: our own files plus the chart library Debian ships, bundled into the
# binary so that the page works on a lab network without any way to the internet.
set(OVRA_DYGRAPHS_JS /usr/share/javascript/dygraphs/dygraph.min.js)
if(NOT EXISTS ${OVRA_DYGRAPHS_JS})
  message(FATAL_ERROR "${OVRA_DYGRAPHS_JS} is missing (package libjs-dygraphs): run scripts/deps")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/chartlib.qrc.in ${CMAKE_CURRENT_BINARY_DIR}/chartlib.qrc @ONLY)
set(OVRA_LAB_WEB_RESOURCES ${CMAKE_CURRENT_LIST_DIR}/web.qrc ${CMAKE_CURRENT_BINARY_DIR}/chartlib.qrc)
