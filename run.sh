#!/usr/bin/env bash
# Builds the program, installs it into instalacao/ and starts it from there.
#
#   ./run.sh          the program, on the data in instalacao/
#   ./run.sh --demo   the program on a folder of its own, filled with a year of business
#
# With no display the tour of the program is played instead, and its pictures stay in build/passeio/.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
raiz=$PWD

demo=
case ${1:-} in
  "") ;;
  --demo) demo=1 ;;
  *)
    echo "Uso: ./run.sh [--demo]" >&2
    exit 2
    ;;
esac

./setup.sh programa
# The tests stay as they are for whoever builds them; what starts the program need not wait for them.
cmake --preset release -DFENVALE_TESTS=OFF
cmake --build --preset release

destino=$raiz/instalacao
if [ -n "$demo" ]; then destino=$raiz/instalacao/demo; fi
cmake --install build/release --prefix "$destino" >/dev/null

if [ -n "$demo" ] && [ ! -e "$destino/Dados.MDB" ]; then
  if [ ! -x "$destino/fenvale-demo" ]; then
    echo "Esta versão não traz o programa que preenche a demonstração (fenvale-demo)." >&2
    exit 1
  fi
  # Half a demonstration would be taken for a whole one by the next start.
  if ! "$destino/fenvale-demo" "$destino"; then
    rm -rf "$destino"
    exit 1
  fi
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$destino/gestor-fenvale"
fi

if [ ! -x "$destino/fenvale-passeio" ]; then
  echo "Não há tela (DISPLAY ou WAYLAND_DISPLAY), e esta versão não traz o passeio (fenvale-passeio)." >&2
  echo "O programa está instalado em $destino; para abri-lo em uma tela: $destino/gestor-fenvale" >&2
  exit 1
fi
echo "Não há tela: o passeio pelo programa será feito em segundo plano."
rm -rf build/passeio
mkdir -p build/passeio
estado=0
QT_QPA_PLATFORM=offscreen "$destino/fenvale-passeio" "$raiz/build/passeio" </dev/null || estado=$?
echo "As figuras do passeio estão em $raiz/build/passeio"
exit "$estado"
