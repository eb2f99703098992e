# shellcheck shell=bash
# What the scripts share. A script sources this first; its working directory is then the root of the
# tree.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# cores: how many jobs to run at a time.
cores() { nproc 2>/dev/null || echo 2; }

# build_preset PRESET [CMAKE-OPTION...] [-- TARGET...]: configures and builds in build/PRESET.
build_preset() {
    local preset=$1 options=()
    shift
    while (($#)) && [[ $1 != -- ]]; do
        options+=("$1")
        shift
    done
    if (($#)); then shift; fi
    if command -v ccache >/dev/null; then
        # It keeps nothing of sources that take precompiled headers.
        options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DTOVANGL_PRECOMPILED_HEADERS=OFF)
    fi
    cmake --preset "$preset" "${options[@]}"
    cmake --build "build/$preset" --parallel "$(cores)" ${1:+--target "$@"}
}

# run_ctest PRESET [CTEST-OPTION...]: runs the tests of build/PRESET. The last line that it prints is
# "N passed, N failed"; a test that was skipped counts as neither.
run_ctest() {
    local results=build/$1/ctest.xml status=0
    ctest --test-dir "build/$1" --parallel "$(cores)" --timeout 300 --output-on-failure \
        --no-tests=error --output-junit ctest.xml "${@:2}" || status=$?
    count_results "$results"
    return "$status"
}

# count_results FILE: the figures of a CTest result file.
count_results() {
    local head tests failed skipped
    head=$(head -c 2000 "$1" | tr '\n\t' '  ')
    tests=$(attribute tests "$head")
    failed=$(attribute failures "$head")
    skipped=$(($(attribute skipped "$head") + $(attribute disabled "$head")))
    if ((skipped)); then echo "$skipped skipped"; fi
    echo "$((tests - failed - skipped)) passed, $failed failed"
}

# attribute NAME TEXT: the first NAME="number" in TEXT, 0 if there is none.
attribute() {
    if [[ $2 =~ [[:space:]]$1=\"([0-9]+)\" ]]; then echo "${BASH_REMATCH[1]}"; else echo 0; fi
}

# build_harness PRESET PROGRAM: builds one program below tests/ with the fonts of the tests, and sets
# harness to its path. A sanitizer's build directory is named after its preset.
build_harness() {
    local preset=$1 program=$2
    build_preset "$preset" -- "$(basename "$program")" >&2
    export FONTCONFIG_FILE=$PWD/build/$preset/tests/fonts.conf
    # The callers use it.
    # shellcheck disable=SC2034
    harness=build/$preset/tests/$program
}

# set_sanitizer_options: for programs that are built with the address and undefined behaviour sanitizers.
set_sanitizer_options() {
    export ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1
    export UBSAN_OPTIONS=print_stacktrace=1
    export LSAN_OPTIONS=suppressions=$PWD/tests/memory/leak_suppressions.txt:print_suppressions=0
}

# must_fail WHAT COMMAND...: runs a command that must find a fault seeded on purpose.
must_fail() {
    local what=$1
    shift
    if "$@" >/dev/null 2>&1; then
        echo "self-test: the seeded fault \"$what\" was not found" >&2
        return 1
    fi
    echo "self-test: the seeded fault \"$what\" was found"
}
