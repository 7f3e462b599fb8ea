#!/usr/bin/env bash
# Installs what a purpose needs and builds a preset for it:
#
#     prepare.sh run|test|bench PRESET
#
# What CMake and the compiler say goes to build/PRESET.log; the end of it is shown where they fail.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
purpose=$1
preset=$2
log=build/$preset.log

if ! mkdir -p "build/$preset" 2> /dev/null || ! touch "$log" 2> /dev/null; then
    echo "This checkout can't be written to; build in a copy of your own:" \
        "cp -r '$PWD' ~/etiquetas && cd ~/etiquetas" >&2
    exit 1
fi

scripts/install_packages.sh "$purpose"

echo "== Building (what the compiler says is in $log)"
if ! { cmake --preset "$preset" && cmake --build --preset "$preset" --parallel "$(nproc)"; } \
    > "$log" 2>&1; then
    tail -n 40 "$log" >&2
    echo "The build failed; all of it is in $log" >&2
    exit 1
fi
