#!/usr/bin/env bash
# The sanitizer lane. Builds Quillet and its tests with AddressSanitizer and
# UndefinedBehaviorSanitizer into build-asan/ (GCC, the project's compiler)
# and runs every test suite there; then builds the fuzz targets with clang's
# libFuzzer and the same sanitizers into build-fuzz/ and runs each one for a
# short while. Any sanitizer report or failed check fails the run.
#
# FUZZ_SECONDS (default 25) sets the time of each fuzz target.
set -euo pipefail
cd "$(dirname "$0")/.."
root="$PWD"
start=$SECONDS

# Light optimisation and line tables only (enough for the stacks of reports)
# keep the builds short.
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=g++ \
    -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -g1" -DQUILLET_SANITIZE=ON >/dev/null
cmake --build build-asan -j2
echo "sanitizer build: $((SECONDS - start)) s"

# A report ends the process at once, with its stack.
export ASAN_OPTIONS="halt_on_error=1:abort_on_error=1:detect_leaks=1:detect_stack_use_after_return=1:check_initialization_order=1:strict_init_order=1:print_summary=1"
export UBSAN_OPTIONS="halt_on_error=1:abort_on_error=1:print_stacktrace=1:print_summary=1"
export LSAN_OPTIONS="suppressions=$root/scripts/lsan.supp:print_suppressions=0"
export ASAN_SYMBOLIZER_PATH=/usr/lib/llvm-14/bin/llvm-symbolizer
export QT_QPA_PLATFORM=offscreen
# The soak test runs briefly here, and the re-edit timing test with small
# pastes: the sanitizers slow everything down, and their allocator turns the
# timing of large pastes into noise. The plain lane keeps the full sizes.
export QUILLET_SOAK_SECONDS=15
export QUILLET_REEDIT_SIZES=1,2

lap=$SECONDS
(cd build-asan && ctest --output-on-failure)
echo "sanitizer tests: $((SECONDS - lap)) s"

# The fuzz targets: fuzz/fuzz_<reader>.cpp, each with its seed inputs in
# fuzz/corpus/fuzz_<reader>/. Only they and the libraries they need are built.
lap=$SECONDS
targets=()
for source in fuzz/fuzz_*.cpp; do
    targets+=("$(basename "$source" .cpp)")
done
cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++-14 \
    -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -gline-tables-only" -DQUILLET_SANITIZE=ON -DQUILLET_FUZZ=ON >/dev/null
cmake --build build-fuzz -j2 --target "${targets[@]}"
echo "fuzz build: $((SECONDS - lap)) s"

# Each target starts from its seeds and keeps what it finds in
# build-fuzz/fuzz/found/<target>/; an input that breaks it is kept as
# build-fuzz/fuzz/<target>-crash-... (or -leak-, -timeout-).
fuzz_seconds="${FUZZ_SECONDS:-25}"
for target in "${targets[@]}"; do
    found="build-fuzz/fuzz/found/$target"
    log="build-fuzz/fuzz/$target.log"
    mkdir -p "$found"
    if ! "build-fuzz/fuzz/$target" -max_total_time="$fuzz_seconds" -timeout=20 -rss_limit_mb=4096 \
            -max_len=8192 -print_final_stats=1 -artifact_prefix="build-fuzz/fuzz/$target-" \
            "$found" "fuzz/corpus/$target" >"$log" 2>&1; then
        grep -v 'propagateSizeHints' "$log" | tail -n 60
        echo "fuzz target $target failed; the input is kept as build-fuzz/fuzz/$target-*" >&2
        exit 1
    fi
    runs="$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")"
    seconds="$(sed -n 's/^Done [0-9]* runs in \([0-9]*\) second.*/\1/p' "$log")"
    echo "fuzz $target: $runs inputs in $seconds s, $((runs / (seconds > 0 ? seconds : 1))) exec/s"
done
echo "sanitizer lane: $((SECONDS - start)) s"
