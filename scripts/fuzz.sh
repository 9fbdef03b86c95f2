#!/usr/bin/env bash
# Builds the fuzzers of the picture readers and the saved-form reader with clang (libFuzzer, ASan,
# UBSan) and runs each one for a while, starting from its committed seeds.
#   scripts/fuzz.sh [seconds per fuzzer]    (default 20)
# New inputs go to build/fuzz/corpus/, crashes to build/fuzz/crashes/; a crash fails the script.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh

seconds="${1:-20}"
targets=(bmp ico png form_file)

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target "${targets[@]/#/fuzz_}"

mkdir -p build/fuzz/crashes
for target in "${targets[@]}"; do
  corpus="build/fuzz/corpus/$target"
  mkdir -p "$corpus"
  echo "== fuzz_$target for ${seconds}s"
  build/fuzz/fuzz/"fuzz_$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -print_final_stats=1 -artifact_prefix="build/fuzz/crashes/$target-" \
    "$corpus" "fuzz/corpus/$target"
done
