# One place for what every target of this project is compiled with.

get_filename_component(CORVEX_SOURCE_ROOT ${CMAKE_CURRENT_LIST_DIR}/../src ABSOLUTE)

# corvex_flags(target): warnings, hidden symbols and the include root `src`, for this target alone.
function(corvex_flags target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow=local -Wnon-virtual-dtor)
  if(CORVEX_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(CORVEX_SANITIZE)
    # Optimised less, and with lines but no variables, it compiles in half the time and finds the same.
    set(sanitizers -O1 -g1 -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(${target} PRIVATE ${sanitizers})
    target_link_options(${target} PRIVATE ${sanitizers})
  endif()
  target_include_directories(${target} PRIVATE ${CORVEX_SOURCE_ROOT})
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_BYTEARRAY)
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# corvex_objects(name SOURCES... [LINK lib...]): the code of one library, compiled once. The shared library and the
# tests both link it, so that tests reach what the library hides.
function(corvex_objects name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} OBJECT ${ARG_SOURCES})
  corvex_flags(${name})
  target_link_libraries(${name} PUBLIC ${ARG_LINK})
endfunction()
