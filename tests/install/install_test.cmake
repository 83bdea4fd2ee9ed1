# Installs into a folder, moves that elsewhere, and tries what is there.

set(work ${BUILD}/install_test)
set(first ${work}/first)
set(prefix ${work}/moved)
file(REMOVE_RECURSE ${work})

# run(COMMAND...): runs it in an environment that tells nothing of the project, and sets `output`.
function(run)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH --unset=CORVEX_PREFIX ${ARGN}
    OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN} ended with ${result}:\n${output}${errors}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect text)
  string(FIND "${output}" "${text}" position)
  if(position EQUAL -1)
    message(FATAL_ERROR "'${text}' is missing in:\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${first})
file(RENAME ${first} ${prefix})

run(${prefix}/bin/corvexweb --version)
expect("corvexweb 1.")
run(ldd ${prefix}/bin/corvexweb)
foreach(library IN ITEMS corvexhook corvexwebwrapper corvexscripting)
  expect("${prefix}/bin/../lib/lib${library}.so")
endforeach()

# The program of the build has its own copy of the extension scripts.
run(${PROGRAM} hook-script)
set(built "${output}")
run(${prefix}/bin/corvexweb hook-script)
expect("__corvex__standardselectExtension")
if(NOT output STREQUAL built)
  message(FATAL_ERROR "The installed program prints another hook script than that of the build.")
endif()

set(flags "")
if(SANITIZE)
  set(flags "-fsanitize=address,undefined")
endif()
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/consumer -B ${work}/consumer -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=${flags})
run(${CMAKE_COMMAND} --build ${work}/consumer)
run(ASAN_OPTIONS=detect_leaks=0 ${work}/consumer/consumer)
expect("found HTML_Select, asked 1, script 1")

file(REMOVE_RECURSE ${work})
