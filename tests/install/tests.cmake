# The installed program: cmake --install into a temporary prefix, then the installed tools run
# from there (the editor offscreen), and the desktop files are validated.
if(TARGET lathwick)
  add_test(NAME Install.IntoATemporaryPrefixAndRunFromThere
           COMMAND bash ${CMAKE_CURRENT_LIST_DIR}/install_test.sh ${CMAKE_BINARY_DIR})
  set_tests_properties(Install.IntoATemporaryPrefixAndRunFromThere PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 300)
endif()
