# SPDX-License-Identifier: MIT
# Runs the tests of a preset that is already built. Source it after common.sh and build.sh, from the root folder.

# run_tests PRESET: runs ctest, prints the failed cases and the number of test cases, since one process may run many, and
# returns ctest's status. Two processes per core, since a test waits as often as it works.
run_tests() {
    tests_status=0
    QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software \
        ctest --preset "$1" -j "$((2 * $(getconf _NPROCESSORS_ONLN)))" --test-output-size-passed 10000000 \
        --test-output-size-failed 10000000 || tests_status=$?
    log=build/$1/Testing/Temporary/LastTest.log
    [ $tests_status -eq 0 ] || failed_cases "$log"
    note "$(sed -n 's/^\[==========\] \([0-9]*\) tests\{0,1\} from .* ran\..*/\1/p' "$log" | awk '{ n += $1 } END { print n + 0 }')" \
        "test cases ran, $(grep -c '^\[  SKIPPED \] .* ms)$' "$log") of them skipped."
    return $tests_status
}

# failed_cases LOG: the output of each failed case, repeated at the end, where it is read first, and the last output of
# each failed process, which may have crashed or leaked.
failed_cases() {
    note "What failed:"
    awk '/^\[ RUN      \]|^Test Passed\.$/ { output = "" }
         { output = output $0 "\n" }
         /^\[  FAILED  \] .* ms\)$/ { printf "%s", substr(output, 1, 4000); output = "" }
         /^Test Failed\.$/ { printf "%s", substr(output, (length(output) > 4000) * (length(output) - 4000)); output = "" }' "$1"
}
