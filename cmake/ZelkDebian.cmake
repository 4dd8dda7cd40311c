# SPDX-License-Identifier: MIT
# The Debian package that cpack makes of what is installed: packaging/build calls it in a fresh system of each release.
# A package is made for each, since the names of libraries differ, and Qt takes compiled views only of its own version.

# ZELK_PACKAGE_VERSION: of the package. That for an older release sorts before that for a newer one, so that an upgrade
# of the system takes it along.
set(ZELK_PACKAGE_RELEASE 1)
set(ZELK_PACKAGE_SUITE unstable)
if(EXISTS /etc/os-release)
  foreach(key ID VERSION_ID VERSION_CODENAME)
    file(STRINGS /etc/os-release ${key} REGEX "^${key}=")
    string(REGEX REPLACE "^${key}=\"?([^\"]*)\"?$" "\\1" ${key} "${${key}}")
  endforeach()
  if(ID STREQUAL "debian" AND VERSION_ID)
    string(APPEND ZELK_PACKAGE_RELEASE "~deb${VERSION_ID}u1")
  elseif(VERSION_ID)
    string(APPEND ZELK_PACKAGE_RELEASE "~${ID}${VERSION_ID}")
  endif()
  if(VERSION_CODENAME)
    set(ZELK_PACKAGE_SUITE ${VERSION_CODENAME})
  endif()
endif()
set(ZELK_PACKAGE_VERSION ${PROJECT_VERSION}-${ZELK_PACKAGE_RELEASE})
# CMake takes SOURCE_DATE_EPOCH for the time, which is that of the last commit.
string(TIMESTAMP ZELK_PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(ZELK_MAINTAINER "The Zelk developers <maintainers@zelk.github.io>")

# What no tool can see in the programs, since views import it and texts are set in it.
set(ZELK_UNSEEN_DEPENDS qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
  qml6-module-qtquick qml6-module-qtquick-templates fonts-inter)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zelk)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${ZELK_MAINTAINER})
set(CPACK_PACKAGE_VENDOR Zelk)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "see what fills a disk and take the space back safely")
set(CPACK_PACKAGE_DESCRIPTION "\
Zelk surveys a home folder or a whole drive, shows what uses the space and
which of it can be had again, and moves to the Trash exactly what a last
sheet has listed.

It finds caches, build products, duplicates, large files, applications with
their leftovers, and the traces of browsers. Nothing leaves the machine, and
nothing is surveyed before somebody presses the button.

The package has the application zelk and zelk-survey, the same survey for
the terminal.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/strip.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${ZELK_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://zelk.github.io)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
list(JOIN ZELK_UNSEEN_DEPENDS ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
# Questions for an administrator, what Qt itself says in other languages, windows on Wayland, and links and folders opened
# by the desktop.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "pkexec, qt6-translations-l10n, qt6-wayland, xdg-utils")
