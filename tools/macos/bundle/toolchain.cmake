# SPDX-License-Identifier: MIT
# For CMake on Linux: ZELK_ZIG compiles for macOS. Without optimisation, since the library that it adds to programs is
# compiled once for each kind of it.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
foreach(language CXX OBJCXX)
  set(CMAKE_${language}_COMPILER ${ZELK_ZIG} c++)
  set(CMAKE_${language}_COMPILER_TARGET ${ZELK_TARGET})
  set(CMAKE_${language}_FLAGS_INIT "-O0 -fno-sanitize=undefined")
endforeach()
# CMake asks sw_vers whether the system is new enough for rpaths.
set(CMAKE_SHARED_LIBRARY_RUNTIME_CXX_FLAG "-Wl,-rpath,")
