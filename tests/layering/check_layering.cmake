# Reads the #include lines of every source under SRC and fails when one breaks the layering:
#   - a core file (outside any gui/ folder) includes Qt or a gui/ header;
#   - a core file includes a core folder above its own (platform < document < format <
#     transform < workspace < shell; extend stands beside transform, above format);
#   - anything in document/, format/ or transform/ (their gui/ folders too) or in workspace/
#     includes shell/; anything in platform/gui includes a folder other than platform/.
# Usage: cmake -DSRC=<folder> -P check_layering.cmake
if(NOT SRC)
  message(FATAL_ERROR "SRC is not set")
endif()

get_filename_component(SRC "${SRC}" ABSOLUTE BASE_DIR "$ENV{PWD}")

set(rank_platform 0)
set(rank_extend 3)
set(rank_document 1)
set(rank_format 2)
set(rank_transform 3)
set(rank_workspace 4)
set(rank_shell 5)

file(GLOB_RECURSE sources RELATIVE ${SRC} ${SRC}/*.h ${SRC}/*.cpp)
set(problems "")
foreach(source IN LISTS sources)
  string(REGEX MATCH "^[^/]+" layer "${source}")
  set(gui FALSE)
  if(source MATCHES "/gui/")
    set(gui TRUE)
  endif()
  file(STRINGS ${SRC}/${source} includes REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"]")
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^[ \t]*#[ \t]*include[ \t]*[<\"]([^>\"]+)[>\"].*$" "\\1" target "${line}")
    string(REGEX MATCH "^[^/]+" target_layer "${target}")
    set(why "")
    if(NOT gui AND target MATCHES "^Q")
      set(why "a core file includes Qt")
    elseif(NOT gui AND target MATCHES "/gui/")
      set(why "a core file includes a gui header")
    elseif(NOT gui AND DEFINED rank_${layer} AND DEFINED rank_${target_layer}
           AND NOT target_layer STREQUAL layer AND rank_${target_layer} GREATER_EQUAL rank_${layer})
      set(why "a core file includes a layer above its own")
    elseif(layer MATCHES "^(document|format|transform|workspace)$" AND target_layer STREQUAL "shell")
      set(why "${layer}/ includes shell/")
    elseif(layer STREQUAL "platform" AND DEFINED rank_${target_layer} AND NOT target_layer STREQUAL "platform")
      set(why "platform/ includes a higher layer")
    endif()
    if(why)
      list(APPEND problems "${source}: ${why}: ${target}")
    endif()
  endforeach()
endforeach()

if(problems)
  list(JOIN problems "\n" text)
  message(FATAL_ERROR "Layering broken:\n${text}")
endif()
list(LENGTH sources count)
message(STATUS "Layering holds for ${count} files")
