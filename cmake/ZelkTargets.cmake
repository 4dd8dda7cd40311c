# SPDX-License-Identifier: MIT
# What every target of the house shares: the warnings, the sanitizers, and how a folder becomes a library.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # Paths relative to the tree, so that another clone of it finds what this one has compiled.
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_OBJCXX_COMPILER_LAUNCHER ${launcher})
endif()

# The same objects wherever the tree lies.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)

if(ZELK_HARDENED AND NOT APPLE)
  include(CheckPIESupported)
  check_pie_supported()
  add_compile_options(-fstack-protector-strong -fstack-clash-protection
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -D_GLIBCXX_ASSERTIONS)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64|i.86")
    add_compile_options(-fcf-protection)
  elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "aarch64|arm64")
    add_compile_options(-mbranch-protection=standard)
  endif()
  add_link_options(-Wl,-z,relro,-z,now)
endif()

if(ZELK_SANITIZE)
  add_compile_options(-fsanitize=${ZELK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${ZELK_SANITIZE})
endif()

if(ZELK_FUZZERS)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(ZELK_UNITY)
  set(CMAKE_UNITY_BUILD ON)
  set(CMAKE_UNITY_BUILD_BATCH_SIZE 12)
  # It looks for one class of the same name in two sources; these are one source here. Of g++ alone.
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  # So early, g++ would only find that nothing is garbage yet, for a tenth of its time.
  add_compile_options($<$<CXX_COMPILER_ID:GNU>:--param=ggc-min-heapsize=500000>)
  # The largest of them takes 1.8 GB to compile: no more at once than there is memory for.
  cmake_host_system_information(RESULT memory QUERY TOTAL_PHYSICAL_MEMORY)  # in MiB
  cmake_host_system_information(RESULT cores QUERY NUMBER_OF_LOGICAL_CORES)
  math(EXPR jobs "${memory} / 1800")
  if(jobs LESS 1)
    set(jobs 1)
  endif()
  if(jobs LESS cores)
    set_property(GLOBAL PROPERTY JOB_POOLS compile=${jobs})
    set(CMAKE_JOB_POOL_COMPILE compile)
  endif()
endif()

add_library(zelk_options INTERFACE)
target_compile_options(zelk_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  $<$<BOOL:${ZELK_WERROR}>:-Werror>)
target_include_directories(zelk_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# zelk_folder(NAME [LINKS lib...]): a library `zelk_NAME` of every source in the current folder (not its subfolders).
function(zelk_folder name)
  cmake_parse_arguments(ARG "" "" "LINKS;SOURCES" ${ARGN})
  if(NOT ARG_SOURCES)
    file(GLOB ARG_SOURCES CONFIGURE_DEPENDS *.cpp *.h)
  endif()
  add_library(zelk_${name} STATIC ${ARG_SOURCES})
  set_target_properties(zelk_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(zelk_${name} PUBLIC zelk_options Threads::Threads ${ARG_LINKS})
endfunction()
