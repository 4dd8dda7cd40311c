# SPDX-License-Identifier: MIT
# cpack runs this before it packs what is installed: a compiler's name is no part of a program.
foreach(program bin/zelk bin/zelk-survey libexec/zelk-admin)
  execute_process(COMMAND objcopy --remove-section=.comment
    ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${CPACK_PACKAGING_INSTALL_PREFIX}/${program} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
