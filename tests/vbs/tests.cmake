# The macro engine's tests: one gtest case per script under vbs/scripts (expectations written
# inline as comments), plus C++ tests of the host contract.
file(GLOB VBS_TEST_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*.cpp)
lathwick_test_binary(lathwick_vbs_tests SOURCES ${VBS_TEST_SOURCES} LIBS lathwick_core)
if(TARGET lathwick_vbs_tests)
  target_compile_definitions(lathwick_vbs_tests PRIVATE LATHWICK_VBS_SCRIPTS="${CMAKE_CURRENT_LIST_DIR}/scripts")
endif()
