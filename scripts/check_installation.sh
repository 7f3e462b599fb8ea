#!/usr/bin/env bash
# Installs a build into an empty folder, prints an item of every label kind there, and installs over
# it again: what the operator has changed must stay.
#
#     check_installation.sh [build folder]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/release}

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
installation=$place/etiquetas

fail() {
    echo "check_installation: $1" >&2
    exit 1
}

cmake --install "$build" --prefix "$installation" > /dev/null
for file in etiquetas brisako.jpg lumira.jpg Varesko.ini imagens/3104527.jpg share/man/man1/etiquetas.1 \
    share/bash-completion/completions/etiquetas; do
    [ -e "$installation/$file" ] || fail "$file is not installed"
done

mkdir "$place/printed"
QT_QPA_PLATFORM=offscreen "$(find "$build" -name etiquetas_demo -type f | head -1)" "$installation" "$place/printed" > /dev/null
printed=$(find "$place/printed" -name '*.pdf' | wc -l)
[ "$printed" -eq 10 ] || fail "$printed of 10 jobs came out: five label kinds for two banners"

echo '[MargemOcultaZebra]' > "$installation/Varesko.ini"
order=$(find "$installation" -name '*FRENTE.txt' | sort | head -1)
echo 'changed' > "$order"
rm "$installation/lumira.jpg"
cmake --install "$build" --prefix "$installation" > /dev/null
[ "$(cat "$installation/Varesko.ini")" = '[MargemOcultaZebra]' ] || fail "settings were replaced"
[ "$(cat "$order")" = 'changed' ] || fail "a changed order was replaced"
[ -e "$installation/lumira.jpg" ] || fail "a missing logo was not laid out again"
echo "Installed twice; $printed jobs printed"
