# Copies the data folder's sources (data/) beside the executables, so that the build folder is a
# runnable application folder. Generated data files (the scheme data file) are added by their
# generator targets, which make themselves dependencies of lathwick_app_folder.
file(GLOB_RECURSE APP_DATA_FILES CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/data ${CMAKE_SOURCE_DIR}/data/*)
set(APP_DATA_OUTPUTS)
foreach(rel IN LISTS APP_DATA_FILES)
  set(out ${CMAKE_BINARY_DIR}/${rel})
  add_custom_command(OUTPUT ${out}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${CMAKE_SOURCE_DIR}/data/${rel} ${out}
    DEPENDS ${CMAKE_SOURCE_DIR}/data/${rel}
    COMMENT "Staging ${rel}" VERBATIM)
  list(APPEND APP_DATA_OUTPUTS ${out})
endforeach()
add_custom_target(lathwick_app_folder ALL DEPENDS ${APP_DATA_OUTPUTS})
add_dependencies(lathwick-cli lathwick_app_folder)
