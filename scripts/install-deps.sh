#!/usr/bin/env bash
# Installs the Debian 12 packages the build, the tests and the apps need, and any packages named
# as arguments (scripts/windows-tests.sh adds the cross toolchain and Wine). Safe to run again.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  libgtest-dev libgmock-dev libbenchmark-dev
  libpng-dev libfreetype-dev libfontconfig-dev fonts-dejavu-core
  nlohmann-json3-dev
  libsdl2-dev libimgui-dev libgl-dev xvfb xauth xdotool
  fonts-liberation2 fonts-wqy-microhei
  clang libclang-rt-14-dev
  "$@"
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
