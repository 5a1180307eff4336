# Tests of the controller simulator; included by tests/CMakeLists.txt.
add_executable(tst_simframe ${CMAKE_CURRENT_LIST_DIR}/tst_simframe.cpp)
target_link_libraries(tst_simframe PRIVATE hx3simcore Qt5::Test)
# The link case runs the real program.
target_compile_definitions(tst_simframe PRIVATE HX3SIM_BINARY="$<TARGET_FILE:hx3sim>")
add_dependencies(tst_simframe hx3sim)
set_target_properties(tst_simframe PROPERTIES AUTOMOC ON)
ovra_warnings(tst_simframe)

# The furnace model on a clock of the test's own.
add_executable(tst_furnacemodel ${CMAKE_CURRENT_LIST_DIR}/tst_furnacemodel.cpp)
target_link_libraries(tst_furnacemodel PRIVATE hx3simcore Qt5::Test)
set_target_properties(tst_furnacemodel PROPERTIES AUTOMOC ON)
ovra_warnings(tst_furnacemodel)

set(HX3SIM_TEST_ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
# Inside the full tree, share the other tests' runtime dir and sanitizer suppressions; the
# simulator started by the test inherits them.
if(DEFINED OVRA_TEST_RUNTIME)
  list(APPEND HX3SIM_TEST_ENVIRONMENT "XDG_RUNTIME_DIR=${OVRA_TEST_RUNTIME}/xdg" ${OVRA_SANITIZER_ENV})
  add_test(NAME tst_simframe COMMAND tst_simframe WORKING_DIRECTORY ${OVRA_TEST_RUNTIME}/work)
  add_test(NAME tst_furnacemodel COMMAND tst_furnacemodel WORKING_DIRECTORY ${OVRA_TEST_RUNTIME}/work)
else()
  add_test(NAME tst_simframe COMMAND tst_simframe)
  add_test(NAME tst_furnacemodel COMMAND tst_furnacemodel)
endif()
set_tests_properties(tst_simframe PROPERTIES ENVIRONMENT "${HX3SIM_TEST_ENVIRONMENT}" TIMEOUT 120)
set_tests_properties(tst_furnacemodel PROPERTIES ENVIRONMENT "${HX3SIM_TEST_ENVIRONMENT}" TIMEOUT 60)
