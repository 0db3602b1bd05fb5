#!/bin/sh
# Every manual page is set without a warning.
set -eu
found=0
for page in "$1"/*.1; do
  warnings=$(MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
  if [ -n "$warnings" ]; then
    echo "FAILED: $page: $warnings" >&2
    exit 1
  fi
  found=1
done
[ $found = 1 ]
