# The hook script: which files it is made of, in which order, and how their text gets into a library.
#
# Each entry of the two lists below is one text. An entry is
#   - a .js file;
#   - a folder: all of its .js files in name order, joined into the one text;
#   - a .js.in file: a text in which a line "@package/file.js@" stands for that file of an npm package. A word
#     behind the file name must occur in the file, which pins its version.
# Paths are relative to src/wrappers/web/hook. The number of a fragment is its place in the assembled script; numbers
# that are missing here belong to fragments that do not exist.

set(CORVEX_HOOK_DIR ${CMAKE_CURRENT_LIST_DIR}/../src/wrappers/web/hook)
set(CORVEX_HOOK_EMBEDDER ${CMAKE_CURRENT_LIST_DIR}/embedhookscript.js)

set(CORVEX_HOOK_PRELUDE prelude.js)

set(CORVEX_HOOK_FRAGMENTS
  01_recording
  02_runtime
  03_names
  04_objectstore.js
  05_properties
  06_framelookup.js
  07_browsers.js
  08_objecttree.js
  09_geometry
  10_selectedtext.js
  11_simplifiedtext.js
  12_visibility.js
  13_textcontent.js
  14_matching.js
  15_search
  16_touch.js
  17_input
  18_windows.js
  19_dom.js
  21_values.js
  22_focus.js
  23_api
  24_json.js.in
  25_csscolor.js.in
)

set(CORVEX_HOOK_XPATH_TEXTS
  xpath/parsing
  xpath/evaluation
)

# corvex_hook_script(target): embeds the texts in `target` and gives it the header hookfragments.h, which declares, in
# the namespace Corvex::WebWrapper,
#   hookFragments    the fragments, null-terminated
#   hookXPathTexts   the two XPath texts with their exact lengths
#   hookPrelude      the text that has to run before all others
# A changed, added or removed file rebuilds the texts. The packages have to be installed (node_modules in the root).
function(corvex_hook_script target)
  find_program(CORVEX_NODE NAMES node nodejs)
  if(NOT CORVEX_NODE)
    message(FATAL_ERROR "node was not found, it is needed to embed the hook script: run ./dev install")
  endif()

  set(inputs)
  foreach(entry IN LISTS CORVEX_HOOK_PRELUDE CORVEX_HOOK_FRAGMENTS CORVEX_HOOK_XPATH_TEXTS)
    if(IS_DIRECTORY ${CORVEX_HOOK_DIR}/${entry})
      file(GLOB files CONFIGURE_DEPENDS ${CORVEX_HOOK_DIR}/${entry}/*.js)
      list(APPEND inputs ${files})
    else()
      list(APPEND inputs ${CORVEX_HOOK_DIR}/${entry})
    endif()
  endforeach()

  set(out ${CMAKE_BINARY_DIR}/hookscript)
  # A file that only got another name is older than the texts: the list of names tells of it.
  file(CONFIGURE OUTPUT ${out}/inputs.txt CONTENT "${inputs}")
  add_custom_command(
    OUTPUT ${out}/hookfragments.cpp ${out}/hookfragments.h
    COMMAND ${CORVEX_NODE} ${CORVEX_HOOK_EMBEDDER}
            --hook ${CORVEX_HOOK_DIR} --packages ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../node_modules --out ${out}
            --prelude ${CORVEX_HOOK_PRELUDE} --xpath ${CORVEX_HOOK_XPATH_TEXTS} --fragments ${CORVEX_HOOK_FRAGMENTS}
    DEPENDS ${inputs} ${out}/inputs.txt ${CORVEX_HOOK_EMBEDDER}
    DEPFILE ${out}/hookfragments.d
    COMMENT "Embedding the hook script"
    VERBATIM)
  target_sources(${target} PRIVATE ${out}/hookfragments.cpp)
  target_include_directories(${target} PRIVATE ${out})
endfunction()
