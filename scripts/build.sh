# SPDX-License-Identifier: MIT
# Builds a preset of CMakePresets.json. Sourced after common.sh, from the root folder.

# preset_folder PRESET: its build folder. The preset ci builds the release in another way, in the same folder.
preset_folder() {
    case $1 in
        ci) echo build/release ;;
        *) echo "build/$1" ;;
    esac
}

# build_preset PRESET [TARGET...]: configures the preset and builds these targets, or all, in its build folder.
build_preset() {
    preset=$1
    shift
    have cmake || fail "cmake is missing; scripts/packages.txt names all that is needed."
    say "Building ($preset, into $(preset_folder "$preset"))"
    if on_mac && have brew; then
        CMAKE_PREFIX_PATH=$(brew --prefix)${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}
        export CMAKE_PREFIX_PATH
    fi
    cmake --preset "$preset" ||
        fail "configuring failed; the reason stands above. If it speaks of an old cache, remove $(preset_folder "$preset") and run this again."
    cmake --build --preset "$preset" ${1:+--target "$@"} || fail "the build failed; the first error above says where."
}
