#!/usr/bin/env bash
# Builds the benchmarks and runs each of them. A line of the output is name<TAB>figure<TAB>unit<TAB>bar.
# Arguments go to every benchmark program. All of them run; the script fails when one did, or was above its bar.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
exec </dev/null

./setup.sh programa bancada >&2
cmake --preset bench -DFENVALE_TESTS=OFF >&2
cmake --build --preset bench >&2

# A benchmark is a program of the folder bench/ whose name begins with "medida-".
ran=
failed=
for program in build/bench/bench/medida-*; do
  if [ -f "$program" ] && [ -x "$program" ]; then
    "$program" "$@" || failed=1
    ran=1
  fi
done
if [ -z "$ran" ]; then
  echo "bench.sh: no benchmark was built" >&2
  exit 1
fi
[ -z "$failed" ]
