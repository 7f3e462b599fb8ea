#!/usr/bin/env bash
# Tells which part of the core's lines the corpus reaches, and fails below 95 %. The core is all of
# src but the desktop.
#
#     coverage.sh           the figure of each file and that of all
#     coverage.sh --lines   the lines that no input reaches
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

least=95
cmake --preset fuzz --log-level=WARNING > /dev/null
cmake --build --preset fuzz --parallel "$(nproc)"

work=build/fuzz/coverage
rm -rf "$work"
mkdir -p "$work"
export LSAN_OPTIONS="suppressions=$PWD/.ci/leaks.txt:print_suppressions=0"
objects=()
for corpus in fuzz/corpus/*; do
    target=$(basename "$corpus")
    LLVM_PROFILE_FILE=$work/$target.profraw "build/fuzz/fuzz/$target" -runs=0 "$corpus" \
        > "$work/$target.log" 2>&1 || { tail -n 40 "$work/$target.log" >&2 && exit 1; }
    objects+=("build/fuzz/fuzz/$target" -object)
done
unset 'objects[-1]' # llvm-cov takes the first program by itself and each other one after -object
llvm-profdata merge -sparse "$work"/*.profraw -o "$work/all.profdata"

mapfile -t core < <(find "$PWD/src" -name '*.cpp' ! -path '*/desktop/*' -o -name '*.h' ! -path '*/desktop/*')
if [ "${1:-}" = --lines ]; then
    llvm-cov show "${objects[@]}" -instr-profile="$work/all.profdata" "${core[@]}" |
        grep -E '^/|^ +[0-9]+\| +0\|'
    exit
fi
report=$(llvm-cov report "${objects[@]}" -instr-profile="$work/all.profdata" \
    -show-functions=false -show-region-summary=false -show-branch-summary=false "${core[@]}" \
    2> "$work/report.log") # each program has a main routine of that one name, which it warns of
awk '/%/ { print $NF, $1 }' <<< "$report" | sort -n
# The last column of the last line.
reached=$(awk '/^TOTAL/ { print substr($NF, 1, length($NF) - 1) }' <<< "$report")
echo "== Coverage: the corpus reaches $reached % of the core's lines"
awk -v reached="$reached" -v least="$least" 'BEGIN { exit !(reached >= least) }' || {
    echo "That is less than $least %" >&2
    exit 1
}
