#!/usr/bin/env bash
# Measures what the system costs, beside its peers in the same run, and prints a table: CPU time,
# medians of seven runs. It takes some six minutes; on a machine that does something else meanwhile
# the figures are too high.
#
#     bench.sh            the table
#     bench.sh --smoke    each measurement once at its smallest size, to see that it works
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
case "${1:-}" in
    "" | --smoke) ;;
    *)
        echo "usage: ${0##*/} [--smoke]" >&2
        exit 2
        ;;
esac

scripts/prepare.sh bench release
exec bench/compare.py build/release "$@"
