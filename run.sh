#!/usr/bin/env bash
# Builds the program and starts it in a folder of its own, laid out like an installation. Without a
# display it prints an item of every label kind through the window all the same, headless, and leaves
# the labels and pictures of the window in build/demo.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/install_packages.sh run

echo "== Building the program"
cmake --preset run
cmake --build --preset run --parallel "$(nproc)"

echo "== Laying out build/instalacao"
cmake --install build/run --prefix build/instalacao > /dev/null

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "== Opening the Workbench in build/instalacao"
    exec build/instalacao/etiquetas
fi

echo "== No display: printing every label kind through the window, headless, into build/demo"
rm -rf build/demo
cmake --install build/run --prefix build/demo/instalacao > /dev/null
QT_QPA_PLATFORM=offscreen build/run/bin/etiquetas_demo build/demo/instalacao build/demo

echo "== Turning the label pages into pictures, as a printer of 203 dpi sees them"
for job in build/demo/*.pdf; do
    [ -e "$job" ] || { echo "The demonstration left no label pages in build/demo" >&2 && exit 1; }
    pdftoppm -r 203 -l 2 -png "$job" "${job%.pdf}" # the first pages tell enough
done

echo "== Written:"
find build/demo -maxdepth 1 -type f | sort
