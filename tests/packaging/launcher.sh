#!/bin/sh
# The launcher against a stand-in of the program that writes down how it was called and ends as it is told.
#   launcher.sh LAUNCHER
set -u
launcher=$1

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
failed=0

fail() {
  echo "FAILED: $1: expected <$2>, got <$3>" >&2
  failed=1
}
expect() { [ "$2" = "$3" ] || fail "$1" "$2" "$3"; }

# The stand-in takes its next exit code from the first line of the file "codes" beside it.
install_at() {
  mkdir -p "$1"
  cat >"$1/gestor-fenvale-bin" <<'PROGRAM'
#!/bin/sh
here=$(dirname "$0")
echo "[$#:$*]" >>"$here/calls"
code=$(head -n 1 "$here/codes")
sed -i 1d "$here/codes"
if [ "$code" = wait ]; then
  trap 'exit 9' TERM
  : >"$here/ready"
  while :; do sleep 0.05; done
fi
exit "$code"
PROGRAM
  chmod +x "$1/gestor-fenvale-bin"
}

portable="$place/pasta com espaços"
install_at "$portable"
cp "$launcher" "$portable/gestor-fenvale"

run() {
  rm -f "$portable/calls"
  # shellcheck disable=SC2086
  printf '%s\n' $1 >"$portable/codes"
  shift
  "$@"
  status=$?
}

run "0" "$portable/gestor-fenvale"
expect "a normal end" 0 $status
expect "a normal end starts the program once" "[0:]" "$(cat "$portable/calls")"

run "3" "$portable/gestor-fenvale" "um dois" três
expect "another exit code is handed on" 3 $status
expect "arguments are handed on" "[2:um dois três]" "$(cat "$portable/calls")"

run "75 75 0" "$portable/gestor-fenvale"
expect "after two updates" 0 $status
expect "each update starts the program again" 3 "$(wc -l <"$portable/calls" | tr -d ' ')"

run "75 134" "$portable/gestor-fenvale"
expect "a crash after an update" 134 $status

ln -s "$portable/gestor-fenvale" "$place/atalho"
run "75 4" "$place/atalho"
expect "through a link" 4 $status

run "5" env PATH="$portable:$PATH" gestor-fenvale
expect "found by its name" 5 $status

run "6" sh -c 'cd "$1" && ./gestor-fenvale' sh "$portable"
expect "from its own folder" 6 $status

mkdir -p "$place/usr/bin"
cp "$launcher" "$place/usr/bin/gestor-fenvale"
install_at "$place/usr/libexec/gestor-fenvale"
echo 7 >"$place/usr/libexec/gestor-fenvale/codes"
"$place/usr/bin/gestor-fenvale"
expect "in the system's folders" 7 $?

mkdir "$place/vazia"
cp "$launcher" "$place/vazia/gestor-fenvale"
said=$("$place/vazia/gestor-fenvale" 2>&1)
expect "without the program" 127 $?
expect "without the program, it says so" \
  "gestor-fenvale: o programa gestor-fenvale-bin não foi encontrado em $place/vazia." "$said"

# A request to end reaches the program, whose own exit code counts, and nothing is started again.
rm -f "$portable/calls"
printf '%s\n' wait 75 >"$portable/codes"
"$portable/gestor-fenvale" &
runner=$!
for _ in $(seq 200); do
  [ -e "$portable/ready" ] && break
  sleep 0.05
done
kill -s TERM "$runner"
wait "$runner"
expect "a request to end is handed on" 9 $?
expect "a request to end starts nothing again" 1 "$(wc -l <"$portable/calls" | tr -d ' ')"

exit $failed
