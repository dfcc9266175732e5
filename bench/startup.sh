#!/usr/bin/env bash
# Start-up benchmark: quillet against a minimal Qt Widgets program.
#
# Usage (as root on a Debian machine):   bench/startup.sh [RUNS]      (default 10)
#
# What is measured: the wall time from launching the program until its main
# window is shown and the program is idle. Both programs run under
# QT_QPA_PLATFORM=xcb on a private Xvfb display started here (a free display
# number is chosen by Xvfb itself through -displayfd) and killed on exit, also
# on failure or interruption.
#
# How "shown and idle" is decided (bench/startup_probe.py does the timing):
#   * shown: the probe selects SubstructureNotify on the root window before the
#     launch and takes the monotonic time at which the X server reports the map
#     of a top-level window with the exact title ("Quillet"; the minimal program
#     uses "QuilletBenchMinimal") and the launched pid in _NET_WM_PID. This is
#     what `xdotool search --sync --onlyvisible --name` checks, but event driven:
#     xdotool's --sync retries only every half second, too coarse here.
#   * idle: being mapped does not mean the start-up work is done (the first
#     paint follows the Expose event, and queued or timer-driven start-up work
#     may still be running). So after the map, the probe samples the CPU time of
#     all the program's threads (/proc/PID/task/*/schedstat, nanoseconds) every
#     0.5 ms and takes the first moment after which the program stays quiet for
#     100 ms: at most 0.25 ms of CPU in that whole stretch (room for a timer
#     wake-up such as a caret blink, not for painting) and no thread in disk
#     wait. The reported time is late by at most one sample; the quiet stretch
#     itself is not counted. The figures compared are these idle times; the map
#     times are printed as well.
#
# Each run starts with a fresh HOME (mktemp -d, removed after the run) for both
# programs, so no settings or data carry over. The two programs alternate run by
# run (ABBA order) after one untimed warm-up run of each. Every run is bounded
# (20 s) and its process session is killed before the next one starts.
#
# The ratio printed is median(quillet idle) / median(minimal idle); the
# project's target is a ratio of at most 1.5. A second pass compares quillet
# with a window that shows a menu bar, a tab bar and a label: the first text a
# program shows makes Qt load its font database, which the empty window never
# does.

set -euo pipefail

RUNS="${1:-10}"
if ! [[ "$RUNS" =~ ^[1-9][0-9]*$ ]]; then
    echo "usage: $0 [RUNS]   (RUNS: a positive whole number, default 10)" >&2
    exit 2
fi

BENCH_DIR="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
SOURCE_DIR="$(dirname "$BENCH_DIR")"
QUILLET="$SOURCE_DIR/build/quillet"
MINIMAL_BUILD="/tmp/quillet-bench-minimal-build"
MINIMAL="$MINIMAL_BUILD/quillet-bench-minimal"
TEXT_WINDOW="$MINIMAL_BUILD/quillet-bench-text-window"
RUN_TIMEOUT=20

log() { printf '== %s\n' "$*" >&2; }

# --- packages -----------------------------------------------------------------
# Xvfb for the display, python3 + python3-xlib for the probe, the compiler,
# CMake, Ninja and Qt development files for building, and what the Qt xcb
# platform plugin loads at run time (libqt6gui6 pulls in most xcb libraries;
# libxcb-cursor0 is needed by newer Qt releases) plus a font.
PACKAGES=(
    xvfb python3 python3-xlib
    cmake ninja-build g++ qt6-base-dev
    libxcb-cursor0 libxkbcommon-x11-0 libxcb-icccm4 libxcb-image0 libxcb-keysyms1
    libxcb-randr0 libxcb-render-util0 libxcb-shape0 libxcb-xkb1
    fontconfig fonts-dejavu-core
)
missing=()
for package in "${PACKAGES[@]}"; do
    if ! dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
        missing+=("$package")
    fi
done
if ((${#missing[@]})); then
    if [[ "$(id -u)" != 0 ]]; then
        echo "missing Debian packages: ${missing[*]} (run as root to install them)" >&2
        exit 1
    fi
    log "installing: ${missing[*]}"
    apt-get update
    DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
fi

# --- builds -------------------------------------------------------------------
if [[ ! -x "$QUILLET" ]]; then
    log "building quillet"
    cmake -S "$SOURCE_DIR" -B "$SOURCE_DIR/build" -G Ninja
    cmake --build "$SOURCE_DIR/build"
fi
log "building the minimal program in $MINIMAL_BUILD"
cmake -S "$BENCH_DIR/minimal" -B "$MINIMAL_BUILD" -G Ninja >/dev/null
cmake --build "$MINIMAL_BUILD" >/dev/null

# --- private X display ----------------------------------------------------------
WORK_DIR="$(mktemp -d /tmp/quillet-bench.XXXXXX)"
XVFB_PID=""
PROBE_PID=""
# shellcheck disable=SC2317  # invoked through the EXIT trap
cleanup() {
    local status=$?
    trap - EXIT INT TERM HUP
    if [[ -n "$PROBE_PID" ]] && kill -0 "$PROBE_PID" 2>/dev/null; then
        kill -TERM "$PROBE_PID" 2>/dev/null || true
        wait "$PROBE_PID" 2>/dev/null || true
    fi
    if [[ -n "$XVFB_PID" ]] && kill -0 "$XVFB_PID" 2>/dev/null; then
        kill -TERM "$XVFB_PID" 2>/dev/null || true
        for _ in $(seq 50); do kill -0 "$XVFB_PID" 2>/dev/null || break; sleep 0.1; done
        kill -KILL "$XVFB_PID" 2>/dev/null || true
        wait "$XVFB_PID" 2>/dev/null || true
    fi
    rm -rf "$WORK_DIR"
    exit "$status"
}
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP

Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp -noreset \
    3>"$WORK_DIR/display" >"$WORK_DIR/xvfb.log" 2>&1 &
XVFB_PID=$!
DISPLAY_NUMBER=""
for _ in $(seq 100); do
    DISPLAY_NUMBER="$(tr -dc '0-9' <"$WORK_DIR/display")"
    [[ -n "$DISPLAY_NUMBER" ]] && break
    if ! kill -0 "$XVFB_PID" 2>/dev/null; then
        echo "Xvfb did not start:" >&2
        cat "$WORK_DIR/xvfb.log" >&2
        exit 1
    fi
    sleep 0.1
done
if [[ -z "$DISPLAY_NUMBER" ]]; then
    echo "Xvfb did not report a display within 10 s" >&2
    exit 1
fi
log "Xvfb on :$DISPLAY_NUMBER (pid $XVFB_PID); $RUNS runs of each program"

# --- measure ----------------------------------------------------------------------
# The probe runs in the background so that the traps above fire at once on an
# interruption; it kills its own children when terminated.
measure() {
    /usr/bin/python3 "$BENCH_DIR/startup_probe.py" \
        --display ":$DISPLAY_NUMBER" --runs "$RUNS" --timeout "$RUN_TIMEOUT" "$@" &
    PROBE_PID=$!
    local status=0
    wait "$PROBE_PID" || status=$?
    PROBE_PID=""
    return "$status"
}
probe_status=0
measure "quillet=$QUILLET=Quillet" "minimal=$MINIMAL=QuilletBenchMinimal" || probe_status=$?
echo
log "the same against a window with a menu bar, a tab bar and a label"
measure "quillet=$QUILLET=Quillet" "text-window=$TEXT_WINDOW=QuilletBenchTextWindow" || probe_status=$?
exit "$probe_status"
