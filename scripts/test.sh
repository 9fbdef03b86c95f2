#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite.
#   scripts/test.sh              release build (warnings are errors under CI), then the Windows
#                                build under Wine (scripts/windows-tests.sh)
#   scripts/test.sh --sanitize   the Linux suite under AddressSanitizer and UBSan
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh

preset=release
[ -n "${CI:-}" ] && preset=ci
if [ "${1:-}" = "--sanitize" ]; then
  preset=asan
  [ -n "${CI:-}" ] && preset=ci-asan
fi

cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
ctest --preset "$preset" --parallel "$(nproc)"

# The Windows part comes after the Linux one, so that a machine without Wine still runs the rest.
if [ "${1:-}" != "--sanitize" ]; then
  scripts/windows-tests.sh
fi
