#!/usr/bin/env bash
# Installs what is missing of the packages that the project needs. The other scripts call it; by hand:
#
#   ./setup.sh [programa|testes|bancada|analise|pacote]...
#
# programa (the default) builds and runs the program; testes adds what the suite needs, bancada the benchmarks,
# analise the compilers of the tidy and fuzz presets, pacote what makes a .deb. With everything in place nothing is
# asked of the package manager.
set -euo pipefail

# One line per need; "|" parts the names that it bears on different releases, the first one known wins.
programa=(
  cmake ninja-build g++
  qt6-base-dev "qt6-svg-dev|libqt6svg6-dev" "qt6-svg-plugins|libqt6svg6" qt6-wayland
  libsqlite3-dev libxml2-dev libcurl4-openssl-dev libcups2-dev
  qt6-translations-l10n fonts-inter tzdata
)
testes=(
  libgtest-dev libgmock-dev
  xvfb openbox xdotool x11-utils xauth
  cups cups-client printer-driver-cups-pdf
  python3 python3-aiosmtpd openssl poppler-utils mupdf-tools qpdf libxml2-utils
  desktop-file-utils appstream man-db
)
bancada=(libbenchmark-dev enscript ghostscript)
analise=(clang clang-tidy clang-format lld)
pacote=(dpkg-dev file)
# Shortens a second build; a release that lacks it builds as well without.
dispensavel=(ccache)

reunir() {
  local conjunto
  precisos=("${programa[@]}")
  for conjunto in "$@"; do
    case $conjunto in
      programa) ;;
      testes) precisos+=("${testes[@]}") ;;
      bancada) precisos+=("${bancada[@]}") ;;
      analise) precisos+=("${analise[@]}") ;;
      pacote) precisos+=("${pacote[@]}") ;;
      *)
        echo "setup.sh: conjunto desconhecido: $conjunto (programa, testes, bancada, analise, pacote)" >&2
        exit 2
        ;;
    esac
  done
}

instalado() { [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null || true)" = installed ]; }

conhecido() {
  local candidato
  candidato=$(LC_ALL=C apt-cache policy "$1" 2>/dev/null | sed -n 's/^  Candidate: //p')
  [ -n "$candidato" ] && [ "$candidato" != "(none)" ]
}

algum_instalado() {
  local nome
  for nome in ${1//|/ }; do
    if instalado "$nome"; then return 0; fi
  done
  return 1
}

primeiro_conhecido() {
  local nome
  for nome in ${1//|/ }; do
    if conhecido "$nome"; then
      echo "$nome"
      return 0
    fi
  done
  return 1
}

# Fills instalar and desconhecidos from the needs that no installed package meets.
procurar() {
  local preciso nome
  instalar=()
  desconhecidos=()
  for preciso in "${precisos[@]}"; do
    if algum_instalado "$preciso"; then continue; fi
    if nome=$(primeiro_conhecido "$preciso"); then instalar+=("$nome"); else desconhecidos+=("$preciso"); fi
  done
  if [ ${#instalar[@]} -gt 0 ] || [ ${#desconhecidos[@]} -gt 0 ]; then
    for nome in "${dispensavel[@]}"; do
      if ! instalado "$nome" && conhecido "$nome"; then instalar+=("$nome"); fi
    done
  fi
}

como_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null 2>&1; then
    sudo "$@"
  else
    echo "Para instalar é preciso ser root ou ter o sudo. Peça ao administrador: apt-get install ${instalar[*]}" >&2
    exit 1
  fi
}

apt() { como_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=600 "$@" </dev/null; }

sem_apt() {
  local faltam=() comando
  for comando in cmake ninja g++; do
    command -v "$comando" >/dev/null 2>&1 || faltam+=("$comando")
  done
  # On such a system the packages' names are not ours to know: what is already there is left to CMake to find.
  if [ ${#faltam[@]} -eq 0 ] && [ -n "${FENVALE_SEM_PACOTES:-}" ]; then return 0; fi
  cat >&2 <<FIM
Este sistema não usa apt-get: instale com as ferramentas dele e depois repita com FENVALE_SEM_PACOTES=1.
É preciso, com os nomes que têm no Debian:
  ${precisos[*]}
FIM
  [ ${#faltam[@]} -eq 0 ] || echo "Não se encontrou: ${faltam[*]}" >&2
  exit 1
}

reunir "$@"
if ! command -v apt-get >/dev/null 2>&1 || ! command -v dpkg-query >/dev/null 2>&1; then
  sem_apt
  exit 0
fi

procurar
if [ ${#instalar[@]} -eq 0 ] && [ ${#desconhecidos[@]} -eq 0 ]; then exit 0; fi

if [ ${#desconhecidos[@]} -gt 0 ]; then
  apt update
  procurar
fi
# Still unknown with fresh lists: the release is older than the oldest that the program supports.
if [ ${#desconhecidos[@]} -gt 0 ]; then
  echo "Este sistema não conhece os pacotes: ${desconhecidos[*]}" >&2
  exit 1
fi
echo "Instalando: ${instalar[*]}"
# Lists of some weeks ago name versions that the server no longer has: fetch them anew and try once more.
if ! apt install -y --no-install-recommends "${instalar[@]}"; then
  apt update
  apt install -y --no-install-recommends "${instalar[@]}"
fi
