#!/usr/bin/env bash
# Installs the Debian packages that Quillet needs to build, run and test,
# when they are missing.
set -euo pipefail

# clang-14 with its runtime (AddressSanitizer, UndefinedBehaviorSanitizer,
# libFuzzer) and llvm-14 (llvm-symbolizer, for readable sanitizer reports)
# serve the sanitizer and fuzzing lane of scripts/sanitize.sh.
packages=(cmake ninja-build g++ qt6-base-dev qt6-base-dev-tools libgl-dev qt6-qpa-plugins
          fonts-dejavu-core xdg-utils chromium perl clang-14 libclang-rt-14-dev llvm-14)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
    echo "Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
