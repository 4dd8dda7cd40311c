# SPDX-License-Identifier: MIT
# Both programs in the bundle that `cmake --install` leaves.
set(ZELK_PROGRAMS_IN_BUNDLE Zelk.app/Contents/MacOS)
install(TARGETS zelk BUNDLE DESTINATION .)
zelk_in_bundle(zelk_survey)
install(TARGETS zelk_survey RUNTIME DESTINATION ${ZELK_PROGRAMS_IN_BUNDLE})
