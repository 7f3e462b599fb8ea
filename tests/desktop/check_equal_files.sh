#!/usr/bin/env bash
# Two programs that print the same order must write the same files, but for their dates and names.
#
#     check_equal_files.sh PROGRAM SAMPLES
set -euo pipefail
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

for run in one other; do
    cp -r "$2" "$place/$run"
    "$1" --pasta "$place/$run" --pedido 1400050831 --tipo "Frente de Caixa" --impressora PDF --sim > "$place/told"
    cat "$place/$run"/impressos/*.pdf | sed --binary 's/CreationDate (D:[^)]*)//' > "$place/$run.all"
done
[ -s "$place/one.all" ]
cmp "$place/one.all" "$place/other.all"
