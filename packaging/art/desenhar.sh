#!/usr/bin/env bash
# Draws the pictures that are shipped from their sources: the main window's backgrounds (light, and dark beside it) and
# the program's icon in the usual sizes. Needs librsvg2-bin, imagemagick and fonts-inter; run it after a change of a
# source and commit what it drew.
#
# FiguraFundo800x600 serves every screen that is not 1024x768 or 1280x1024, large ones above all, and is therefore drawn
# at twice the size of its name: the window scales it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
figuras=../../data/figuras
icones=../icons

obra=$(mktemp -d)
trap 'rm -rf "$obra"' EXIT

# The colours of the light scheme and what stands for them in the dark one.
escurecer() {
  sed -e 's/#f8faf9/#1c2120/; s/#d3e4de/#16302a/; s/#0b6e4f/#3fb68b/g; s/#5e6b67/#9aa8a3/' "$1"
}

gif() {
  rsvg-convert "$1" -o "$obra/figura.png"
  # 256 colours are too few for gradient and waves together: undithered, the diagonal shows in bands.
  convert "$obra/figura.png" -strip -dither FloydSteinberg -colors 256 "$2"
}

for fonte in FiguraFundo*.svg; do
  nome=${fonte%.svg}
  gif "$fonte" "$figuras/$nome.gif"
  escurecer "$fonte" >"$obra/escuro.svg"
  gif "$obra/escuro.svg" "$figuras/$nome-escuro.gif"
done

for lado in 16 24 32 48 64 128 256; do
  rsvg-convert -w "$lado" -h "$lado" "$icones/gestor-fenvale.svg" -o "$icones/gestor-fenvale-$lado.png"
done
