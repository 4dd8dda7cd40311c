# SPDX-License-Identifier: MIT
# For CMake on Linux: ZELK_ZIG compiles for macOS.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_CXX_COMPILER ${ZELK_ZIG} c++)
set(CMAKE_CXX_COMPILER_TARGET ${ZELK_TARGET})
# CMake asks sw_vers whether the system is new enough for rpaths.
set(CMAKE_SHARED_LIBRARY_RUNTIME_CXX_FLAG "-Wl,-rpath,")
