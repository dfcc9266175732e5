#!/usr/bin/env bash
# Installs what is missing, builds and runs every test (headless). With
# QUILLET_SANITIZE=1 it then runs the sanitizer and fuzzing lane
# (scripts/sanitize.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
start=$SECONDS
scripts/install-deps.sh
scripts/build.sh
(cd build && QT_QPA_PLATFORM=offscreen ctest --output-on-failure)
echo "tests: $((SECONDS - start)) s"
if [ "${QUILLET_SANITIZE:-0}" = 1 ]; then
    scripts/sanitize.sh
    echo "tests and sanitizer lane: $((SECONDS - start)) s"
fi
