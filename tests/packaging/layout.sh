#!/bin/sh
# What an installation holds beside the programs, in the layout of the build.
#   layout.sh CMAKE SOURCE BUILD LAYOUT
set -eu
cmake=$1
source=$2
build=$3
layout=$4

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
prefix="$place/pasta com espaços"
"$cmake" --install "$build" --prefix "$prefix" --component dados >/dev/null

case $layout in
  portatil) data=$prefix launcher=$prefix/gestor-fenvale ;;
  sistema) data=$prefix/share/gestor-fenvale launcher=$prefix/bin/gestor-fenvale ;;
  *) exit 2 ;;
esac

failed=0
holds() {
  if [ ! -s "$1" ]; then
    echo "FAILED: missing or empty: $1" >&2
    failed=1
  fi
}
for file in SQL.xmlSQL SQLEmpresas.xmlSQL Cidades.XML Bancos.XML icones/novo.svg \
  FiguraFundo800x600.gif FiguraFundo1024x768.gif FiguraFundo1280x1024.gif; do
  holds "$data/$file"
done
# The scripts of the stores and the seeds arrive byte for byte.
for file in "$source"/data/*.xmlSQL "$source"/data/*.XML; do
  [ ! -e "$file" ] || cmp "$file" "$data/$(basename "$file")" || failed=1
done
[ -x "$launcher" ] || { echo "FAILED: $launcher cannot be run" >&2; failed=1; }

if [ "$layout" = portatil ]; then
  holds "$prefix/portatil"
elif [ -e "$prefix/libexec/gestor-fenvale/portatil" ]; then
  echo "FAILED: the marker of a portable folder in an installation of the system" >&2
  failed=1
else
  holds "$prefix/share/applications/gestor-fenvale.desktop"
  holds "$prefix/share/metainfo/br.com.norvane.GestorFenvale.metainfo.xml"
  holds "$prefix/share/icons/hicolor/48x48/apps/gestor-fenvale.png"
fi
exit $failed
