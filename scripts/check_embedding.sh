#!/usr/bin/env bash
# Builds the project as a part of another one, from a copy in a folder whose path holds the names of
# the project's own folders, and runs that other one. Warnings that the other project asks for are
# its own affair: they must not end its build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
copy=$place/src/desktop/etiquetas
mkdir -p "$copy"
git ls-files --cached --others --exclude-standard -z | tar --null --files-from=- --ignore-failed-read -c 2> /dev/null | tar -x -C "$copy"

cmake -G Ninja -S "$copy/tests/embedding" -B "$place/build" -D CMAKE_BUILD_TYPE=Debug \
    -D CMAKE_CXX_FLAGS="-Weffc++" > "$place/log" 2>&1 || { cat "$place/log" && exit 1; }
cmake --build "$place/build" --target outside --parallel "$(nproc)" > "$place/log" 2>&1 ||
    { cat "$place/log" && exit 1; }
"$place/build/outside" || { echo "The program outside drew no labels" >&2 && exit 1; }
echo "Built and run inside another project, from ${copy#"$place"}"
