#!/usr/bin/env bash
# Installs what is missing, builds, and starts Tessera. With no display it starts under a virtual one, does the main
# job once and leaves pictures of the windows in build/pictures.
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-packages build run

cmake --preset release -DTESSERA_BENCH=OFF >/dev/null
cmake --build --preset release --target tessera
tessera=$PWD/build/release/src/app/tessera

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$tessera" "$@"
fi
exec scripts/show-without-display "$tessera" build/pictures
