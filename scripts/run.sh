#!/usr/bin/env bash
# The main job: installs what is missing, builds, and renders the gallery of every look to a PNG.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release --target glyphon
mkdir -p out
build/release/apps/glyphon gallery out/gallery.png
