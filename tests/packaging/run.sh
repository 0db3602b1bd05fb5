#!/bin/sh
# The script that builds, installs and starts the program, in a copy of its folder where building and installing are
# stand-ins: what it starts, and where.
#   run.sh SCRIPT
set -u

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
failed=0

expect() {
  if [ "$2" != "$3" ]; then
    printf 'FAILED: %s\n  expected <%s>\n  got      <%s>\n' "$1" "$2" "$3" >&2
    failed=1
  fi
}

house="$place/minha pasta"
mkdir -p "$house" "$place/tools"
house=$(readlink -f "$house")
cp "$1" "$house/run.sh"
printf '#!/bin/sh\necho "setup $*" >>"%s/calls"\n' "$place" >"$house/setup.sh"

# The stand-in of an installation: the programs named in the file "ships" write down how they were called.
cat >"$place/tools/cmake" <<TOOL
#!/bin/sh
[ "\$1" = --install ] || exit 0
prefix=\$4
mkdir -p "\$prefix"
for program in \$(cat "$place/ships"); do
  printf '#!/bin/sh\necho "%s \${QT_QPA_PLATFORM:-} \$*" >>"$place/calls"\n' "\$program" >"\$prefix/\$program"
  [ "\$program" != fenvale-demo ] || printf ': >"\$1/Dados.MDB"\nexit %s\n' "\$(cat "$place/fills")" >>"\$prefix/\$program"
  [ "\$program" != fenvale-passeio ] || printf 'exit 3\n' >>"\$prefix/\$program"
  chmod +x "\$prefix/\$program"
done
TOOL
chmod +x "$house/setup.sh" "$place/tools/cmake"

echo 0 >"$place/fills"

# run DISPLAY ARGUMENT...: what was started, without the set-up
run() {
  : >"$place/calls"
  display=$1
  shift
  said=$(env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY="$display" PATH="$place/tools:$PATH" "$house/run.sh" "$@" \
    2>&1 </dev/null)
  status=$?
  started=$(sed '/^setup programa$/d' "$place/calls")
}

echo gestor-fenvale fenvale-demo fenvale-passeio >"$place/ships"
run :0
expect "on a display" "gestor-fenvale  " "$started"
expect "on a display it succeeds" 0 $status
expect "it installs into instalacao" yes "$([ -x "$house/instalacao/gestor-fenvale" ] && echo yes)"

run ""
expect "without a display the tour is played" "fenvale-passeio offscreen $house/build/passeio" "$started"
expect "the tour's end is the script's" 3 $status
expect "it says where the pictures are" "As figuras do passeio estão em $house/build/passeio" "$(echo "$said" | tail -n 1)"

echo 1 >"$place/fills"
run :0 --demo
expect "a demonstration that fails is not opened" "fenvale-demo  $house/instalacao/demo" "$started"
expect "a demonstration that fails" 1 $status
echo 0 >"$place/fills"
run :0 --demo
expect "the demonstration is filled, then opened" "fenvale-demo  $house/instalacao/demo
gestor-fenvale  " "$started"
run :0 --demo
expect "the demonstration is filled only once" "gestor-fenvale  " "$started"

run :0 --outra
expect "wrong use" 2 $status
expect "wrong use starts nothing" "" "$started"

rm -rf "$house/instalacao"
echo gestor-fenvale >"$place/ships"
run ""
expect "without a display and a tour" 1 $status
expect "without a display and a tour nothing is started" "" "$started"
run :0 --demo
expect "without the demonstration" 1 $status
expect "without the demonstration nothing is started" "" "$started"

exit $failed
