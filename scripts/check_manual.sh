#!/usr/bin/env bash
# Checks that the operator's manual tells all that the program says: each sentence of message boxes and of
# the foot of the window, each reason of a job that failed, and each key, as the sources have them. A
# sentence is a literal of two words or more; what stands in for a value divides it. Also that each link
# of the manual leads to a heading, and that each of its pictures is there and part of the program.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export LC_ALL=C.UTF-8
manual=docs/manual-do-operador.md

told_by=(
    src/workbench/*.cpp src/workbench/Impressao.h src/margins/*.cpp src/support/*.cpp src/orders/*.cpp
    src/labels/JobSetup.h src/base/Failure.cpp
    src/desktop/Desktop.cpp src/desktop/StatusGuide.cpp src/desktop/machine/WorkFolder.cpp
    src/desktop/printing/{JobPulse,PdfFile,PrintJob}.cpp src/desktop/windows/KeysWindow.cpp
)
# What only looks like a sentence.
untold='^(Franklin Gothic Medium|Malgun Gothic Semilight)$'

# The manual in one line, without the marks of its format. A row of keys stands as in its table.
flat=$(tr '\n' ' ' < "$manual" | tr -d '*`' | tr -s ' ')
faults=0

fault() {
    echo "check_manual: $1" >&2
    faults=$((faults + 1))
}

# The sentences of the sources, one a line, each cut where a value or a new line stands.
sentences() {
    grep -vhE '^[[:space:]]*(//|#include)' "${told_by[@]}" | grep -oP '"(\\.|[^"\\])*"' |
        sed -E -e 's/^"//' -e 's/"$//' -e 's/\\"/"/g' -e 's/\\n|%[0-9]|…/\n/g' |
        sed -E -e 's/^[] ".,:;[(]+//' -e 's/[ "(]+$//' | grep -P '\p{L}{2}\S* \S*\p{L}{2}' |
        grep -vE "$untold" | sort -u
}

count=0
while read -r sentence; do
    count=$((count + 1))
    grep -qF -- "$sentence" <<< "$flat" || fault "the manual does not tell \"$sentence\""
done < <(sentences)
[ "$count" -ge 50 ] || fault "only $count sentences found in the sources"

headings=$(grep -E '^#+ ' "$manual" | sed -E 's/^#+ //' | tr '[:upper:] ' '[:lower:]-')
while read -r link; do
    grep -qxF -- "$link" <<< "$headings" || fault "no heading for the link $link"
done < <(grep -oP '\]\(#\K[^)]+' "$manual" | sort -u)

while read -r picture; do
    [ -s "docs/$picture" ] || fault "the picture $picture is missing"
    grep -qF "<file>$picture</file>" docs/manual.qrc || fault "$picture is no part of the program"
done < <(grep -oP '!\[[^]]*\]\(\K[^)]+' "$manual" | sort -u)

[ "$faults" -eq 0 ] || exit 1
echo "$count sentences, all in the manual"
