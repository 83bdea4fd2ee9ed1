# How the test programs are made.

find_package(GTest REQUIRED)
include(GoogleTest)

# corvex_test(name SOURCES... LINK object-library... [MAIN] [BROWSER] [ENVIRONMENT NAME=value...]): a test program from
# `SOURCES`, with GoogleTest's own main, or with `MAIN` one that makes a QCoreApplication. Its name is the group of its
# cases in ctest.
#
# Without BROWSER each case is a ctest entry of its own, and so gets a process of its own. With BROWSER the program is one
# entry for each browser, `name` for Chromium and `name.firefox`, told apart by CORVEX_TEST_BROWSER. It never runs beside
# another one, so that it starts its browser once and has the machine to itself.
function(corvex_test name)
  cmake_parse_arguments(ARG "BROWSER;MAIN" "" "SOURCES;LINK;ENVIRONMENT" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  corvex_flags(${name})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE
    CORVEX_TEST_SOURCE="${CMAKE_SOURCE_DIR}/tests" CORVEX_TEST_FOLDER="${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE ${ARG_LINK} GTest::gmock GTest::gtest)
  if(ARG_MAIN OR ARG_BROWSER)
    target_link_libraries(${name} PRIVATE test_main)
  else()
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
  if(ARG_BROWSER)
    if(CORVEX_SANITIZE)
      # Sanitizers slow the program down beyond what browsers wait for.
      set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
    endif()
    foreach(browser IN ITEMS chromium firefox)
      set(entry ${name})
      if(NOT browser STREQUAL chromium)
        set(entry ${name}.${browser})
      endif()
      add_test(NAME ${entry} COMMAND ${name})
      set_tests_properties(${entry} PROPERTIES RUN_SERIAL ON LABELS "browser;${browser}" TIMEOUT 300
                           ENVIRONMENT "CORVEX_TEST_BROWSER=${browser};${ARG_ENVIRONMENT}")
    endforeach()
  else()
    gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                         PROPERTIES TIMEOUT 60 ENVIRONMENT "${ARG_ENVIRONMENT}")
  endif()
endfunction()

# corvex_hooked_test(name SOURCES... [LINK...]): a browser test whose page is hooked, over the whole program's code.
function(corvex_hooked_test name)
  corvex_test(${name}
    ${ARGN}
    LINK test_hookedbrowser test_server corvexweb_objects webhook_objects corvexscripting_objects
         corvexwebwrapper_objects corvexhook_objects corvexshared_objects tracelib_objects
    BROWSER)
  add_dependencies(${name} extension_scripts)
endfunction()
