# SPDX-License-Identifier: MIT
# Builds a preset of CMakePresets.json. Sourced after common.sh, from the root folder.

# date_sources: what is built of one commit, on whatever day, is the same: Qt's resources and the package hold this date
# of it instead of their own. A tree without a history, or a system without git, has none unless it is given.
date_sources() {
    [ -n "${SOURCE_DATE_EPOCH:-}" ] || SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null) || true
    if [ -n "$SOURCE_DATE_EPOCH" ]; then export SOURCE_DATE_EPOCH; else unset SOURCE_DATE_EPOCH; fi
}

# Runs a command at the same addresses every time, where the system lets us.
steady=
if setarch -R true 2>/dev/null; then steady="setarch -R"; fi

# build_preset PRESET [TARGET...]: configures the preset and builds these targets, or all, in its build folder.
build_preset() {
    preset=$1
    shift
    have cmake || fail "cmake is missing; scripts/packages.txt names all that is needed."
    say "Building ($preset, into build/$preset)"
    if on_mac && have brew; then
        CMAKE_PREFIX_PATH=$(brew --prefix)${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}
        export CMAKE_PREFIX_PATH
    fi
    date_sources
    cmake --preset "$preset" ||
        fail "configuring failed; the reason stands above. If it speaks of an old cache, remove build/$preset and run this again."
    # The compiler of views writes its variables in the order of hash tables, which hangs on a seed and on addresses:
    # without both fixed, two packages of one commit differ, and ccache knows no view again.
    # shellcheck disable=SC2086  # a command and its option
    QT_HASH_SEED=0 $steady cmake --build --preset "$preset" ${1:+--target "$@"} || fail "the build failed; the first error above says where."
}
