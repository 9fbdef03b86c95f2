#!/usr/bin/env bash
# Cross-builds the Windows programs with MinGW-w64 and runs the Windows test programs under
# 64-bit Wine with its null graphics driver (no X server), in a fresh prefix under build/.
#   scripts/windows-tests.sh           install what is missing, build, run
# A program passes when GoogleTest's summary says every test passed; Wine's exit code is not
# trusted. Where the tools cannot be had (no apt, no root or sudo) it prints SKIPPED and succeeds,
# except under CI, where the Windows tests must run.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
  g++-mingw-w64-x86-64 g++-mingw-w64-i686 mingw-w64-tools libz-mingw-w64-dev
  wine wine64 libwine-dev fonts-wine dpkg-dev
)
if ! scripts/install-deps.sh "${packages[@]}"; then
  if [ -n "${CI:-}" ]; then
    echo "windows: cannot install the cross toolchain and Wine" >&2
    exit 1
  fi
  echo "SKIPPED: Windows tests (cannot install the cross toolchain and Wine)"
  exit 0
fi

# libpng and Google Benchmark for MinGW: Debian packages neither, so their Debian source packages
# are built with the rest.
deps=build/windows-deps
fetch_source() {  # fetch_source SOURCE-PACKAGE FOLDER CHECK-FILE
  local package=$1 folder=$deps/$2 check=$3
  [ -f "$folder/$check" ] && return 0
  echo "== fetching the $package sources"
  local apt_dir="$PWD/$deps/apt"
  mkdir -p "$apt_dir/lists/partial" "$apt_dir/sources"
  cat >"$apt_dir/sources/debian-src.sources" <<'SOURCES'
Types: deb-src
URIs: http://deb.debian.org/debian
Suites: bookworm
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
SOURCES
  local apt_options=(-o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$apt_dir/sources"
                     -o Dir::State::Lists="$apt_dir/lists")
  apt-get "${apt_options[@]}" update -qq
  rm -rf "$apt_dir/source" && mkdir -p "$apt_dir/source"
  (cd "$apt_dir/source" && apt-get "${apt_options[@]}" source -qq "$package" >/dev/null 2>&1)
  rm -rf "$folder"
  mv "$(find "$apt_dir/source" -mindepth 1 -maxdepth 1 -type d | head -n 1)" "$folder"
}
fetch_source libpng1.6 libpng png.h
fetch_source benchmark benchmark CMakeLists.txt

echo "== cross-building (windows-x64)"
cmake --preset windows-x64 >/dev/null
cmake --build --preset windows-x64
# The 32-bit DLL is built too (32-bit hosts load only it), but not run: the prefix is 64-bit.
echo "== cross-building zonGlyphon.dll (windows-x86)"
cmake --preset windows-x86 >/dev/null
cmake --build --preset windows-x86 --target zonGlyphon

wine64=$(command -v wine64 || echo /usr/lib/wine/wine64)
wineserver=$(dirname "$wine64")/wineserver
[ -x "$wineserver" ] || wineserver=wineserver
export WINEPREFIX="$PWD/build/wine-x64"
export WINEDEBUG=-all
# No Mono or Gecko installers, no desktop menu entries.
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
unset DISPLAY WAYLAND_DISPLAY

if [ ! -f "$WINEPREFIX/.glyphon-ready" ]; then
  echo "== initialising the Wine prefix"
  rm -rf "$WINEPREFIX"
  "$wine64" wineboot -i >/dev/null 2>&1 || true
  "$wine64" reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null 2>&1
  cp /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
  # wineboot returns while the new prefix is still being set up (side-by-side assemblies, class
  # registrations); programs started before that ends cannot create windows.
  "$wineserver" -w
  touch "$WINEPREFIX/.glyphon-ready"
fi

passed=0
failed=0
mkdir -p build/windows-x64/test-output
# activex_tests drives the registered control by its programmatic identifier.
echo "== regsvr32 zonGlyphon.dll (wine64)"
if "$wine64" regsvr32 /s build/windows-x64/activex/zonGlyphon.dll; then
  echo "   registered"
else
  echo "   FAILED: regsvr32 could not register zonGlyphon.dll"
  failed=$((failed + 1))
fi
for program in build/windows-x64/tests/*_tests.exe; do
  name=$(basename "$program" .exe)
  log="build/windows-x64/test-output/$name.log"
  echo "== $name (wine64)"
  (cd build/windows-x64/test-output && "$wine64" "../tests/$name.exe" --gtest_color=no 2>&1) \
    | tr -d '\r' >"$log" || true
  ok=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) tests\{0,1\}\.$/\1/p' "$log")
  bad=$(sed -n 's/^\[  FAILED  \] \([0-9]*\) tests\{0,1\}, listed below:$/\1/p' "$log")
  # A program that never reached its summary crashed or hung: it counts as one failure.
  grep -q '^\[==========\] .* ran\.' "$log" || bad=$((${bad:-0} + 1))
  passed=$((passed + ${ok:-0}))
  failed=$((failed + ${bad:-0}))
  if [ "${bad:-0}" -eq 0 ]; then
    echo "   ${ok:-0} tests passed"
  else
    grep -E '^\[  FAILED  \]|Failure' "$log" | head -n 40 || true
    echo "   FAILED: see $log"
  fi
done
"$wineserver" -k 2>/dev/null || true

echo "windows: ${passed} passed, ${failed} failed"
[ "$failed" -eq 0 ]
