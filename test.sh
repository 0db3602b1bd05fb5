#!/usr/bin/env bash
# Builds a release and runs every test; fails when one fails, and when there was none to run.
# Arguments go to ctest: ./test.sh -R Currency
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
exec </dev/null

./setup.sh testes
cmake --preset release -DFENVALE_TESTS=ON
cmake --build --preset release
ctest --preset release --no-tests=error "$@"

# The installed program, as a user gets it, plays its tour: without a display and on a virtual X server.
prova=$PWD/build/prova
rm -rf "$prova"
cmake --install build/release --prefix "$prova/instalacao" >/dev/null
if [ -x "$prova/instalacao/fenvale-passeio" ]; then
  mkdir -p "$prova/offscreen" "$prova/xcb"
  QT_QPA_PLATFORM=offscreen "$prova/instalacao/fenvale-passeio" "$prova/offscreen"
  QT_QPA_PLATFORM=xcb tests/gui/sob-x.sh -t 2048x1536 "$prova/instalacao/fenvale-passeio" "$prova/xcb"
fi
