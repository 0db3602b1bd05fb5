#!/usr/bin/env bash
# Makes the pictures of docs/galeria/ and docs/manual/ anew from the tour of the program that was built last:
#
#   tools/galeria.sh [PASSEIO]        PASSEIO is the tour's program, build/release/tools/passeio/fenvale-passeio by default
#
# pngquant, where there is one, makes the manual's pictures a third of their size.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

tour=${1:-build/release/tools/passeio/fenvale-passeio}
# Its name shows in some pictures: the same each time, so that only what changed in the program changes in them.
place=${TMPDIR:-/tmp}/fenvale-galeria
mkdir "$place"
trap 'rm -rf "$place"' EXIT
QT_QPA_PLATFORM=offscreen "$tour" "$place" >/dev/null

# The one picture that the pattern names; with "+1" behind it, the one that the tour took next.
taken() {
  local found number
  found=("$place"/${1%+1})
  [ ${#found[@]} -eq 1 ] && [ -f "${found[0]}" ] || { echo "galeria.sh: the tour took no picture $1" >&2; exit 1; }
  if [ "$1" != "${1%+1}" ]; then
    number=$(basename "${found[0]}")
    number=${number%%-*}
    found=("$place/$(printf %03d $((10#$number + 1)))"-*.png)
  fi
  echo "${found[0]}"
}

mkdir -p docs/galeria docs/manual
# One line a picture: what the tour calls it, what the documents do.
while read -r pattern name; do
  picture=$(taken "$pattern")
  case $name in
    manual/*)
      if command -v pngquant >/dev/null 2>&1; then
        pngquant --force --strip --output "docs/$name.png" 64 "$picture"
        continue
      fi
      ;;
  esac
  cp "$picture" "docs/$name.png"
done <<'PICTURES'
[0-9][0-9][0-9]-de-volta.png galeria/janela-principal
[0-9][0-9][0-9]-cliente.png galeria/cliente
[0-9][0-9][0-9]-fatura.png galeria/fatura
[0-9][0-9][0-9]-juros.png galeria/titulos
[0-9][0-9][0-9]-quadro-geral.png galeria/quadro
telas/frmCadastroTitulosReceber-escuro.png galeria/titulos-escuro
telas/frmCadastroUsuarios-claro.png galeria/usuarios
[0-9][0-9][0-9]-primeiro-usuario.png manual/primeiro-usuario
1[0-9][0-9]-login.png manual/entrada
[0-9][0-9][0-9]-dados-da-firma.png manual/dados-da-firma
[0-9][0-9][0-9]-configuracoes.png manual/configuracoes
[0-9][0-9][0-9]-de-volta.png manual/janela-principal
[0-9][0-9][0-9]-nova-empresa.png manual/nova-empresa
1[0-9][0-9]-abrir-empresa.png manual/abrir-empresa
[0-9][0-9][0-9]-dados-da-empresa.png manual/dados-da-empresa
[0-9][0-9][0-9]-condicao-de-pagamento.png manual/condicao
[0-9][0-9][0-9]-localizar-cidade.png manual/localizar-cidade
[0-9][0-9][0-9]-cliente.png manual/cliente
[0-9][0-9][0-9]-fatura.png manual/fatura
[0-9][0-9][0-9]-titulos-da-fatura.png manual/titulos-da-fatura
[0-9][0-9][0-9]-juros.png manual/juros
[0-9][0-9][0-9]-pagamento-parcial.png+1 manual/pagamento-parcial
[0-9][0-9][0-9]-fornecedor.png manual/fornecedor
[0-9][0-9][0-9]-pagamento-com-desconto.png manual/desconto
[0-9][0-9][0-9]-localizar-para-baixa.png manual/localizar-baixa
[0-9][0-9][0-9]-quadro-geral.png manual/quadro
[0-9][0-9][0-9]-opcoes-da-listagem.png manual/impressao
[0-9][0-9][0-9]-transferencia.png manual/transferencia
[0-9][0-9][0-9]-zeramento.png manual/eliminacao
[0-9][0-9][0-9]-backup.png manual/backup
[0-9][0-9][0-9]-localizar-backup.png manual/localizar-backup
PICTURES
