#!/usr/bin/env bash
# Builds the program and starts it in a folder of its own, laid out like an installation. Without a
# display it prints an item of every label kind through the window all the same, headless, and leaves
# the labels and pictures of the window in build/demo.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

scripts/prepare.sh run run

# A display that is named may be gone: that of a connection that has ended, say. A dead one may also
# keep whoever asks it waiting.
display_answers() {
    [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] &&
        timeout 10 build/run/bin/etiquetas_demo --display > /dev/null 2>&1
}

echo "== Laying out build/instalacao"
cmake --install build/run --component portable --prefix build/instalacao > /dev/null

if display_answers; then
    echo "== Opening the Workbench in build/instalacao"
    exec build/instalacao/etiquetas
fi

echo "== No display: printing every label kind through the window, headless, into build/demo"
rm -rf build/demo
cmake --install build/run --component portable --prefix build/demo/instalacao > /dev/null
QT_QPA_PLATFORM=offscreen build/run/bin/etiquetas_demo build/demo/instalacao build/demo

echo "== Turning the label pages into pictures, as a printer of 203 dpi sees them"
for job in build/demo/*.pdf; do
    [ -e "$job" ] || { echo "The demonstration left no label pages in build/demo" >&2 && exit 1; }
    pdftoppm -r 203 -l 2 -png "$job" "${job%.pdf}" # the first pages tell enough
done

echo "== Written:"
find build/demo -maxdepth 1 -type f | sort
labels=$(find build/demo -name 'oculta-1400050831-*.png' | sort | head -n 1)
echo "== Open first the window, build/demo/janela-oculta-1400050831.png, and then its labels, $labels"
