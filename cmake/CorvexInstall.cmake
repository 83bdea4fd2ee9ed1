# What an installation holds: the program with its libraries and extension scripts, which may be moved as a whole, and
# for processes that embed the wrapper the headers of the rooms that they may use, with a package for find_package.

include(CMakePackageConfigHelpers)

set(package_folder lib/cmake/corvexweb)

# Program and libraries find each other by where they are.
set_target_properties(corvexweb PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
set_target_properties(corvexscripting corvexwebwrapper corvexhook PROPERTIES
  INSTALL_RPATH "$ORIGIN" VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
install(TARGETS corvexweb corvexscripting RUNTIME DESTINATION bin LIBRARY DESTINATION lib NAMELINK_SKIP)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/extensions/web DESTINATION lib/extensions FILES_MATCHING PATTERN *.js)

# Headers include each other by their places below src. Some show values of JsonCpp.
install(TARGETS corvexwebwrapper corvexhook EXPORT corvexweb LIBRARY DESTINATION lib INCLUDES DESTINATION include/corvexweb)
target_link_libraries(corvexwebwrapper INTERFACE PkgConfig::JSONCPP)
foreach(room IN ITEMS
    shared corvexhook wrappers/web wrappers/web/page wrappers/web/setup wrappers/web/lookup wrappers/web/catalogue)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${room}/*.h)
  install(FILES ${headers} DESTINATION include/corvexweb/${room})
endforeach()

install(EXPORT corvexweb NAMESPACE Corvex:: DESTINATION ${package_folder} FILE corvexweb-targets.cmake)
file(WRITE ${PROJECT_BINARY_DIR}/corvexweb-config.cmake [[
include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core Gui)
find_dependency(PkgConfig)
pkg_check_modules(JSONCPP REQUIRED IMPORTED_TARGET jsoncpp)
include(${CMAKE_CURRENT_LIST_DIR}/corvexweb-targets.cmake)
]])
write_basic_package_version_file(${PROJECT_BINARY_DIR}/corvexweb-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/corvexweb-config.cmake ${PROJECT_BINARY_DIR}/corvexweb-config-version.cmake
        DESTINATION ${package_folder})
