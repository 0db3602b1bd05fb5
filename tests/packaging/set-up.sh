#!/bin/sh
# The set-up script against stand-ins of the package tools: what it asks of them, and when it asks nothing.
#   set-up.sh SCRIPT
set -u
script=$1

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
failed=0

expect() {
  if [ "$2" != "$3" ]; then
    printf 'FAILED: %s\n  expected <%s>\n  got      <%s>\n' "$1" "$2" "$3" >&2
    failed=1
  fi
}
contains() {
  case $3 in
    *"$2"*) ;;
    *) expect "$1" "...$2..." "$3" ;;
  esac
}

# A system of files: "installed" and "known" list packages, "server" those that become known by an update.
tools=$place/tools
mkdir "$tools"
for tool in bash sh cat id sed env grep head rm mv cp tr; do
  ln -s "$(command -v $tool)" "$tools/$tool"
done
cat >"$tools/dpkg-query" <<TOOL
#!/bin/sh
for last; do :; done
grep -qx "\$last" "$place/installed" && printf installed
TOOL
cat >"$tools/apt-cache" <<TOOL
#!/bin/sh
if grep -qx "\$2" "$place/known"; then echo "  Candidate: 1.0"; else echo "  Candidate: (none)"; fi
TOOL
cat >"$tools/apt-get" <<TOOL
#!/bin/sh
echo "\$*" >>"$place/calls"
[ "\$DEBIAN_FRONTEND" = noninteractive ] || exit 9
case "\$*" in
  *" update") cp "$place/server" "$place/known"; : >"$place/fresh" ;;
  *" install "*) [ ! -e "$place/stale" ] || [ -e "$place/fresh" ] ;;
esac
TOOL
printf '#!/bin/sh\necho sudo >>"%s/sudos"\nexec "$@"\n' "$place" >"$tools/sudo"
# Whoever runs the test, the script sees the user that the case asks for.
rm "$tools/id"
printf '#!/bin/sh\ncat "%s/user"\n' "$place" >"$tools/id"
chmod +x "$tools/dpkg-query" "$tools/apt-cache" "$tools/apt-get" "$tools/sudo" "$tools/id"

base="cmake ninja-build g++ qt6-base-dev qt6-svg-dev libqt6svg6 qt6-wayland libsqlite3-dev libxml2-dev \
libcurl4-openssl-dev libcups2-dev qt6-translations-l10n fonts-inter tzdata"

# system INSTALLED KNOWN SERVER
system() {
  rm -f "$place/calls" "$place/fresh" "$place/stale" "$place/sudos"
  : >"$place/calls"
  echo 0 >"$place/user"
  echo "$1" | tr ' ' '\n' >"$place/installed"
  echo "$2" | tr ' ' '\n' >"$place/known"
  echo "$3" | tr ' ' '\n' >"$place/server"
}
run() {
  said=$(PATH=$tools bash "$script" "$@" 2>&1 </dev/null)
  status=$?
  calls=$(sed 's/-q -o DPkg::Lock::Timeout=600 //' "$place/calls")
}
without() { echo " $1 " | sed "s/ $2 / /"; }

system "$base" "" ""
run programa
expect "nothing is missing" 0 $status
expect "nothing is missing, nothing is asked" "" "$calls"
expect "nothing is missing, nothing is said" "" "$said"

system "$(without "$base" g++)" "g++ ccache" ""
run
expect "one package is missing" "install -y --no-install-recommends g++ ccache" "$calls"

system "$(without "$base" qt6-svg-dev)" "libqt6svg6-dev" ""
run programa
expect "a package by its other name" "install -y --no-install-recommends libqt6svg6-dev" "$calls"

system "$base" "" "$base xvfb"
run bancada
expect "a name that even fresh lists lack" 1 $status
contains "a name that even fresh lists lack is told" "não conhece os pacotes: libbenchmark-dev" "$said"

system "$(without "$base" cmake)" "" "cmake"
run programa
expect "without lists" "update
install -y --no-install-recommends cmake" "$calls"

system "$(without "$base" cmake)" "cmake" "cmake"
: >"$place/stale"
run programa
expect "with lists of some weeks ago" "install -y --no-install-recommends cmake
update
install -y --no-install-recommends cmake" "$calls"
expect "with lists of some weeks ago it succeeds" 0 $status

system "$(without "$base" cmake)" "cmake" ""
echo 1000 >"$place/user"
run programa
expect "as a user" "sudo" "$(cat "$place/sudos")"
expect "as a user it installs" "install -y --no-install-recommends cmake" "$calls"

mv "$tools/sudo" "$place/sudo"
run programa
expect "as a user without sudo" 1 $status
contains "as a user without sudo it says what is missing" "apt-get install cmake" "$said"
mv "$place/sudo" "$tools/sudo"

run tudo
expect "an unknown set" 2 $status

mv "$tools/apt-get" "$place/apt-get"
run programa
expect "on another system" 1 $status
contains "on another system it names what is needed" "libsqlite3-dev libxml2-dev" "$said"
contains "on another system it names what it did not find" "Não se encontrou: cmake ninja g++" "$said"
for tool in cmake ninja g++; do
  ln -s sh "$tools/$tool"
done
FENVALE_SEM_PACOTES=1
export FENVALE_SEM_PACOTES
run programa
expect "on another system, told that all is there" 0 $status

exit $failed
