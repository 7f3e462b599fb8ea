#!/usr/bin/env bash
# Builds the fuzz targets and runs each of them from its corpus, one after the other; stops at the
# first find and keeps its input in build/fuzz/finds. What a run learns goes to build/fuzz/learnt, and
# the next run begins with it; the corpus stays as it is.
#
#     run.sh [seconds [target...]]    20 seconds and all targets where none are named
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=${1:-20}
shift || true
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    mapfile -t targets < <(ls fuzz/corpus)
fi

cmake --preset fuzz --log-level=WARNING > /dev/null
cmake --build --preset fuzz --parallel "$(nproc)"

export LLVM_PROFILE_FILE=/dev/null
export LSAN_OPTIONS="suppressions=$PWD/.ci/leaks.txt:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1"
mkdir -p build/fuzz/finds
for target in "${targets[@]}"; do
    learnt=build/fuzz/learnt/$target
    log=build/fuzz/$target.log
    mkdir -p "$learnt"
    if ! "build/fuzz/fuzz/$target" -max_total_time="$seconds" -timeout=20 \
        -artifact_prefix="build/fuzz/finds/$target-" "$learnt" "fuzz/corpus/$target" > "$log" 2>&1; then
        grep -a -m 1 -B 3 -A 30 -E 'Broken:|runtime error:|ERROR:' "$log" >&2 || tail -n 40 "$log" >&2
        echo "== $target: a find; its input: $(grep -a -o 'build/fuzz/finds/.*' "$log" | tail -n 1)" >&2
        exit 1
    fi
    echo "== $target: $(grep -a '^Done' "$log" | tail -n 1), nothing found"
done
