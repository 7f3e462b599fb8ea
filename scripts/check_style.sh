#!/usr/bin/env bash
# Checks form and style: clang-format and clang-tidy, as .clang-format and .clang-tidy tell.
#
#     check_style.sh          what has changed since the branch left main, committed or not
#     check_style.sh --all    everything, as CI does (a quarter of an hour on two cores)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

folders=(src tests demo bench fuzz tools)

# The project's files of C++ that git knows or would take.
all_files() {
    git ls-files --cached --others --exclude-standard -- "${folders[@]}" | grep -E '\.(h|cpp)$' | sort -u |
        while read -r file; do [ -e "$file" ] && echo "$file"; done
}

changed_files() {
    local base
    base=$(git merge-base HEAD main 2> /dev/null || git rev-parse HEAD)
    { git diff --name-only "$base"; git ls-files --others --exclude-standard; } | sort -u |
        grep -xFf <(all_files) || true
}

# Sources to look at: the given ones that the project builds, and those that include a given header.
sources_of() {
    local file
    for file in "$@"; do
        if [[ $file == *.cpp ]]; then
            echo "$file"
        else
            grep -rlF --include='*.cpp' "\"${file#src/}\"" "${folders[@]}" || true
        fi
    done | sort -u | while read -r file; do
        grep -qF "\"$PWD/$file\"" build/check/compile_commands.json && echo "$file"
    done
}

case "${1:-}" in
    --all) mapfile -t files < <(all_files) ;;
    "") mapfile -t files < <(changed_files) ;;
    *)
        echo "usage: ${0##*/} [--all]" >&2
        exit 2
        ;;
esac
if [ ${#files[@]} -eq 0 ]; then
    echo "== Style: nothing has changed"
    exit 0
fi

echo "== clang-format: ${#files[@]} files"
clang-format --dry-run --Werror "${files[@]}"

echo "== clang-tidy: preparing what is generated"
cmake --preset check --log-level=WARNING > /dev/null
mapfile -t generated < <(ninja -C build/check -t targets all | sed -nE 's#^(([a-z_]+_autogen)|([a-z/]*ui_[A-Za-z]+\.h)): .*#\1#p')
ninja -C build/check "${generated[@]}" > /dev/null

mapfile -t sources < <(sources_of "${files[@]}")
echo "== clang-tidy: ${#sources[@]} sources"
[ ${#sources[@]} -eq 0 ] && exit 0
failed=0
# One source a process, as many as there are cores; silent where all is well.
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 1 sh -c \
    'told=$(clang-tidy -p build/check --quiet "$1" 2> /dev/null) || { printf "%s\n" "$told"; exit 1; }' \
    clang-tidy || failed=1
[ $failed -eq 0 ] && echo "== Style: clean"
exit $failed
