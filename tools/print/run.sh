#!/usr/bin/env bash
# Measures how well the printed bars are read; the README beside it tells the arguments.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

"$root/scripts/install_packages.sh" measure
cmake -S "$root" -B "$root/build/measure" -G Ninja \
    -D CMAKE_BUILD_TYPE=Release -D BUILD_TESTING=OFF -D ETIQUETAS_MEASURE=ON > /dev/null
cmake --build "$root/build/measure" --target etiquetas_measure_print --parallel "$(nproc)"
"$root/build/measure/tools/print/etiquetas_measure_print" "$@"
