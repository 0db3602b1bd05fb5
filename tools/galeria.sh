#!/usr/bin/env bash
# Makes the pictures of docs/galeria/ anew from the tour of the program that was built last:
#
#   tools/galeria.sh [PASSEIO]        PASSEIO is the tour's program, build/release/tools/passeio/fenvale-passeio by default
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

tour=${1:-build/release/tools/passeio/fenvale-passeio}
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
QT_QPA_PLATFORM=offscreen "$tour" "$place" >/dev/null

mkdir -p docs/galeria
# One line a picture: what the tour calls it, what the gallery does.
while read -r taken name; do
  found=("$place"/$taken)
  [ ${#found[@]} -eq 1 ] && [ -f "${found[0]}" ] || { echo "galeria.sh: the tour took no picture $taken" >&2; exit 1; }
  cp "${found[0]}" "docs/galeria/$name.png"
done <<'PICTURES'
[0-9][0-9][0-9]-de-volta.png janela-principal
[0-9][0-9][0-9]-cliente.png cliente
[0-9][0-9][0-9]-fatura.png fatura
[0-9][0-9][0-9]-juros.png titulos
telas/frmCadastroTitulosReceber-escuro.png titulos-escuro
telas/frmCadastroUsuarios-claro.png usuarios
PICTURES
