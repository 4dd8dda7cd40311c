# SPDX-License-Identifier: MIT
# The application bundle of macOS. Its Info.plist is configured on every system, so that tools/macos_bundle_check reads
# what CMake made of the template on each.

set(ZELK_APPLICATION_ID io.github.zelk.Zelk)
set(ZELK_BUILD_NUMBER "" CACHE STRING "CFBundleVersion, one to three numbers with dots; empty: the version")
set(ZELK_BUNDLE_VERSION ${PROJECT_VERSION})
if(ZELK_BUILD_NUMBER)
  set(ZELK_BUNDLE_VERSION ${ZELK_BUILD_NUMBER})
endif()

# What the system's own panels speak follows the application's languages: English and what it is translated into.
set(ZELK_LOCALIZATIONS "\n\t\t<string>en</string>")
file(GLOB translations CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/../translations/zelk_*.ts)
foreach(translation ${translations})
  string(REGEX REPLACE ".*/zelk_(.*)\\.ts$" "\\1" language ${translation})
  string(REPLACE "_" "-" language ${language})
  string(APPEND ZELK_LOCALIZATIONS "\n\t\t<string>${language}</string>")
endforeach()

set(ZELK_INFO_PLIST ${CMAKE_BINARY_DIR}/packaging/macos/Info.plist)
configure_file(${CMAKE_CURRENT_LIST_DIR}/../packaging/macos/Info.plist.in ${ZELK_INFO_PLIST} @ONLY)

# zelk_bundle(TARGET): makes the program Zelk.app, with its description and its icon. Finder shows the folder's own
# name, so that is what the program is called there.
function(zelk_bundle target)
  find_program(RSVG_CONVERT rsvg-convert REQUIRED)  # for make_icns
  set(drawing ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../packaging/icons/${ZELK_APPLICATION_ID}.svg)
  set(maker ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../packaging/macos/make_icns)
  set(icon ${CMAKE_BINARY_DIR}/packaging/macos/Zelk.icns)
  add_custom_command(OUTPUT ${icon} COMMAND ${maker} ${drawing} ${icon} DEPENDS ${drawing} ${maker} VERBATIM)
  target_sources(${target} PRIVATE ${icon})
  set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME Zelk
    MACOSX_BUNDLE TRUE
    MACOSX_BUNDLE_INFO_PLIST ${ZELK_INFO_PLIST})
  zelk_in_bundle(${target})
endfunction()

# zelk_in_bundle(TARGET): a program in Contents/MacOS, which once installed finds the libraries of the bundle alone.
function(zelk_in_bundle target)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH @executable_path/../Frameworks)
endfunction()
