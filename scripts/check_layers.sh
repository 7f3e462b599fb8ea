#!/usr/bin/env bash
# Checks the order of the folders of src/: a file includes only files of its own folder and of those
# below it, and Qt is known in src/desktop alone. Prints a line for each offender.
#
#     check_layers.sh [folder of the sources]
set -euo pipefail

sources=${1:-$(dirname "${BASH_SOURCE[0]}")/../src}
if [ ! -d "$sources" ]; then
    echo "check_layers: no folder $sources" >&2
    exit 2
fi
cd "$sources"

# From bottom to top.
layers="base platform model support barcodes config orders labels channel margins workbench
        review desktop/machine desktop/printing desktop/preview desktop/records desktop/windows
        desktop/console desktop"

# Every include, as "./folder/file:line:text". /dev/null keeps grep content in an empty tree.
includes=$(find . -type f \( -name '*.h' -o -name '*.h.in' -o -name '*.hpp' -o -name '*.cpp' \) \
    -exec grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<]' /dev/null {} +) || true
if [ -z "$includes" ]; then
    echo "check_layers: no include found in $sources" >&2
    exit 2
fi

awk -v layers="$layers" '
    BEGIN {
        count = split(layers, names)
        for (i = 1; i <= count; i++)
            rank[names[i]] = i
    }
    # The folder of a file: the longest one that has a rank, else the first part of its path.
    function layer(path, parent) {
        for (parent = path; sub("/[^/]*$", "", parent);)
            if (parent in rank)
                return parent
        sub("/.*", "", path)
        return path
    }
    function offence(text) {
        print "src/" file ":" line ": " text
        offences++
    }
    {
        split($0, part, ":")
        file = substr(part[1], 3)
        line = part[2]
        included = $0
        sub(/^[^"<]*/, "", included)
        quoted = substr(included, 1, 1) == "\""
        included = substr(included, 2)
        sub(/[">].*/, "", included)

        own = layer(file)
        if (!(own in rank)) {
            offence("stands in no known folder")
            next
        }
        if (included ~ /^(Q|q[a-z0-9]+\.h)/ && own !~ /^desktop/) {
            offence("includes " included " of Qt, which only desktop may")
            next
        }
        if (!index(included, "/"))
            next # a file of the same folder, or of the standard library
        used = layer(included)
        if (!(used in rank)) {
            if (quoted)
                offence("includes " included ", which names no known folder")
        } else if (rank[used] > rank[own])
            offence("includes " included ", which stands above " own)
    }
    END {
        if (offences) {
            print offences " includes against the order of the folders"
            exit 1
        }
        print NR " includes, all in the order of the folders"
    }
' <<< "$includes"
