# SPDX-License-Identifier: MIT
# Runs the tests of a preset that is already built. Source it after common.sh and build.sh, from the root folder.

# run_tests PRESET: runs ctest, prints the number of test cases, since one process may run many, and returns ctest's
# status. Two processes per core, since a test waits as often as it works.
run_tests() {
    tests_status=0
    QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software \
        ctest --preset "$1" -j "$((2 * $(getconf _NPROCESSORS_ONLN)))" --test-output-size-passed 10000000 || tests_status=$?
    log=$(preset_folder "$1")/Testing/Temporary/LastTest.log
    note "$(sed -n 's/^\[==========\] \([0-9]*\) tests\{0,1\} from .* ran\..*/\1/p' "$log" | awk '{ n += $1 } END { print n + 0 }')" \
        "test cases ran, $(grep -c '^\[  SKIPPED \] .* ms)$' "$log") of them skipped."
    return $tests_status
}
