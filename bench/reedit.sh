#!/usr/bin/env bash
# Re-edit benchmark: the time of Edit for pastes of growing size, each made of
# bare carriage returns around a Swirly Text applet tag (one line per byte).
#
# Usage:   bench/reedit.sh [SIZES] [RUNS]
#   SIZES  megabytes, comma separated (default 1,2,4,8)
#   RUNS   runs per size, the best one counts (default 1)
#
# Each size is pasted into a fresh program (the automation driver, headless),
# then Edit is clicked and timed until the Swirly Text form is filled. Two
# references are measured in the same run: the time the code box's own
# toolkit takes to hand back its text once ("plain"), and the Edit time of
# the smallest size. Linear growth keeps edit/plain about constant and the
# growth of Edit close to the growth of the size.
set -euo pipefail

SIZES="${1:-1,2,4,8}"
RUNS="${2:-1}"
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh >/dev/null

QUILLET_REEDIT_SIZES="$SIZES" QUILLET_REEDIT_RUNS="$RUNS" QT_QPA_PLATFORM=offscreen \
    build/tests/test_reedit_scale 2>&1 |
    awk '
        /reedit [0-9]+ MB:/ {
            line = $0
            sub(/.*reedit /, "", line)
            # "<mb> MB: paste <p> s, edit <e> s (processor <c> s), plain text <t> s"
            n = split(line, f, /[ ,()]+/)
            mb = f[1]; paste = f[4]; edit = f[7]; cpu = f[10]; plain = f[14]
            if (first == "") { first = edit; firstMb = mb }
            printf "%4d MB  paste %8.3f s  edit %7.3f s  (processor %7.3f s)  plain %6.3f s  edit/plain %6.1f  edit growth %5.1f for size growth %4.1f\n",
                mb, paste, edit, cpu, plain, (plain > 0 ? edit / plain : 0), edit / first, mb / firstMb
        }
        /FAIL!/ { failed = 1 }
        END { if (failed) { print "the run failed its linear bound" > "/dev/stderr"; exit 1 } }
    '
