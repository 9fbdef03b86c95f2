#!/usr/bin/env bash
# The main job: installs what is missing, builds, renders the gallery of every look to a PNG and,
# where a display exists, opens the demo window.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release --target glyphon
mkdir -p out
build/release/apps/glyphon gallery out/gallery.png
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ -z "${CI:-}" ]; then
  echo "opening the demo (close its window to end)"
  build/release/apps/glyphon demo --form out/demo-form.json --screenshots out
fi
