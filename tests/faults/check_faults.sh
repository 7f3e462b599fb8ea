#!/usr/bin/env bash
# Lets each system call fail or be the last one with which the program writes its settings or a job,
# and looks at what is left then: the old file or the new one, whole, and nothing half written after
# the next start. Two programs that write at once must lose nothing either.
#
#     check_faults.sh [all] [build folder]
#
# Without "all": the settings alone and fewer keys, for every change.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
extent=short
[ "${1:-}" = all ] && extent=all && shift
writer=${1:-build/dev}/tests/faults/etiquetas_fault_writer

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
folder=$place/programa
runs=0

fail() {
    echo "check_faults: $1" >&2
    find "$folder" -type f -exec ls -l --time-style=full-iso {} + >&2
    exit 1
}

# The old state, and the new one beside it as an undisturbed program leaves it.
prepare() { # keys|jobs
    rm -rf "$folder"
    mkdir -p "$folder/impressos"
    printf '; nota \xe1\r\n[Config]\r\nLote=5\r\n\r\n[Outra]\nk = 1' > "$folder/Varesko.ini"
    echo 'an earlier job %%EOF' > "$folder/impressos/2024-03-05 07-08-09.pdf"
    rm -rf "$place/old" && cp -a "$folder" "$place/old"
}

undisturbed() {
    prepare
    "$writer" "$1" "$folder" novo 1 > /dev/null || fail "$1: not written without a disturbance"
    rm -rf "$place/new" && cp -a "$folder" "$place/new"
    diff -rq "$place/old" "$place/new" > /dev/null && fail "$1: nothing written"
    [ "$(find "$folder" -name '*.lock')" = "" ] || fail "$1: the lock is left"
}

# The calls with which it writes, one a line: name, and how often it was called by then.
calls() {
    prepare
    strace -o "$place/trace" "$writer" "$1" "$folder" novo 1 > /dev/null
    awk -F'(' '/^[a-z]/ { count[$1]++; if (writing && $1 != "exit_group") print $1, count[$1] }
               /"writing/ { writing = 1 }' "$place/trace"
}

# What is there must be the old state or the new one, but for drafts and locks, which the next start
# and the next writer get over.
check() { # what, disturbance, exit code
    local state
    find "$folder" -type f -exec touch -d '2 hours ago' {} +
    "$writer" start "$folder"
    state=none
    for candidate in old new; do
        diff -rq -x '*.lock' "$folder" "$place/$candidate" > /dev/null && state=$candidate
    done
    [ $state != none ] || fail "$1, $2: neither the old state nor the new one"
    [ "$3" -ne 0 ] || [ $state = new ] || fail "$1, $2: not written, and not told"
    "$writer" keys "$folder" depois 1 > /dev/null || fail "$1, $2: the next program can't write"
    [ "$(find "$folder" -name '*.lock')" = "" ] || fail "$1, $2: the lock is left"
}

disturb() { # what
    local name number fault code
    undisturbed "$1"
    calls "$1" > "$place/calls"
    [ "$(wc -l < "$place/calls")" -ge 10 ] || fail "$1: the calls were not seen"
    while read -r name number; do
        for fault in error=EIO error=ENOSPC signal=KILL; do
            # Without memory no program goes on; what counts then is that it can be killed there.
            case $name:$fault in brk:error* | mmap:error* | munmap:error*) continue ;; esac
            prepare
            code=0
            { strace -o "$place/trace" -e trace="$name" -e inject="$name:$fault:when=$number" \
                "$writer" "$1" "$folder" novo 1 > /dev/null || code=$?; } 2> /dev/null
            grep -qE 'INJECTED|killed by SIGKILL' "$place/trace" || fail "$name $number: not reached"
            check "$1" "$name $number $fault" "$code"
            runs=$((runs + 1))
        done
    done < "$place/calls"
}

# Two programs at once, as often as told.
together() { # what, count
    local one two written
    prepare
    "$writer" "$1" "$folder" um "$2" > /dev/null &
    one=$!
    "$writer" "$1" "$folder" dois "$2" > /dev/null &
    two=$!
    wait $one || fail "$1: the first of two programs lost something"
    wait $two || fail "$1: the second of two programs lost something"
    if [ "$1" = keys ]; then
        written=$(grep -acE '^(um|dois)[0-9]+=1' "$folder/Varesko.ini")
    else
        written=$(cat "$folder"/impressos/*.pdf | grep -aoE '^(um|dois)[0-9]+' | sort -u | wc -l)
    fi
    [ "$written" -eq $((2 * $2)) ] || fail "$1: $written of $((2 * $2)) from two programs"
}

disturb keys
together keys 100
together jobs 100
if [ $extent = all ]; then
    disturb jobs
    together keys 1000
fi
echo "check_faults: $runs disturbed runs left whole files"
