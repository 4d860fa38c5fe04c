# Fuzz targets. With LATHWICK_FUZZ=ON (clang only) each target is a libFuzzer executable
# fuzz_<name>, built with AddressSanitizer and UndefinedBehaviorSanitizer (scripts/fuzz.sh runs
# them). Without it, lathwick_fuzz_replay replays every target's corpus and regressions in the
# normal suite.
set(FUZZ_DIR ${CMAKE_CURRENT_LIST_DIR})
file(GLOB FUZZ_TARGET_SOURCES CONFIGURE_DEPENDS ${FUZZ_DIR}/targets/*.cpp)
set(FUZZ_SUPPORT_SOURCES ${FUZZ_DIR}/fuzz_support.cpp)

# name of the executable / function in fuzz_targets.h
set(LATHWICK_FUZZ_TARGETS
  rtf_reader:rtfReader
  macro_engine:macroEngine
  colorizer:colorizer
  passes:passes
  scheme_data_file:schemeDataFile
  send_to_file:sendToFile
  easy_text_file:easyTextFile
  motion_model:motionModel)

if(LATHWICK_FUZZ)
  add_library(lathwick_fuzz_targets STATIC ${FUZZ_TARGET_SOURCES} ${FUZZ_SUPPORT_SOURCES})
  target_link_libraries(lathwick_fuzz_targets PUBLIC lathwick_core)
  foreach(entry IN LISTS LATHWICK_FUZZ_TARGETS)
    string(REPLACE ":" ";" parts ${entry})
    list(GET parts 0 name)
    list(GET parts 1 function)
    add_executable(fuzz_${name} ${FUZZ_DIR}/fuzz_entry.cpp)
    target_compile_definitions(fuzz_${name} PRIVATE LATHWICK_FUZZ_FUNCTION=${function})
    target_link_libraries(fuzz_${name} PRIVATE lathwick_fuzz_targets)
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
  endforeach()
else()
  lathwick_test_binary(lathwick_fuzz_replay SOURCES ${FUZZ_DIR}/replay_test.cpp ${FUZZ_TARGET_SOURCES}
                       ${FUZZ_SUPPORT_SOURCES} LIBS lathwick_core)
  target_compile_definitions(lathwick_fuzz_replay PRIVATE LATHWICK_FUZZ_REPLAY LATHWICK_FUZZ_DIR="${FUZZ_DIR}")
endif()
