#!/usr/bin/env bash
# Installs the Debian packages that are missing for a purpose: "run" (build the program and run it),
# "test" (build and run the tests as well), "check" (look at form and style, and build with Clang),
# "bench" (build and run the benchmarks), "fuzz" (build and run the fuzz targets), "package" (make
# packages and check them), "windows" (build for Windows, and run that) or "measure" (tools/print). With
# nothing missing it only looks, and is quick.
set -euo pipefail

case "${1:-}" in
    run | test | check | bench | fuzz | package | windows | measure) purpose=$1 ;;
    *)
        echo "usage: ${0##*/} run|test|check|bench|fuzz|package|windows|measure" >&2
        exit 2
        ;;
esac

packages=(
    g++ cmake ninja-build ccache                           # build
    qt6-base-dev qt6-translations-l10n                     # window and printing
    libqt6sql6-sqlite                                      # history of the jobs
    libspdlog-dev                                          # log
    libcups2-dev                                           # print system
    fonts-crosextra-carlito fonts-liberation fonts-open-sans # faces of the labels
    poppler-utils                                          # label pages as pictures
)
if [ "$purpose" = test ]; then
    packages+=(
        libgtest-dev libgmock-dev # test framework
        zbar-tools mupdf-tools    # readers of the printed bars and pages
        fontconfig                # where the fonts are
        fonts-dejavu-core fonts-noto-core fonts-cantarell # fonts of desktops
        fonts-dejavu-extra        # a face's stand-in where the first one is missing
        xvfb xauth                # a display for the real window
        strace                    # system calls that fail
        cups                      # a print server, and label drivers
        cups-ipp-utils dbus-daemon # printers without a driver, and the bus that they ask for
    )
elif [ "$purpose" = check ]; then
    packages+=(
        clang clang-format clang-tidy # the other compiler, form and style
        libgtest-dev libgmock-dev libbenchmark-dev libzxing-dev libzint-dev pkgconf libzbar-dev
    )
elif [ "$purpose" = package ]; then
    packages+=(
        dpkg-dev file                # what a program depends on
        appstream desktop-file-utils # what an installation tells desktops
    )
elif [ "$purpose" = bench ]; then
    packages+=(
        libbenchmark-dev          # benchmark framework
        mawk libzint-dev glabels  # peers of loading, bars and label files
        python3 strace            # runs them, and counts listings of a folder
    )
elif [ "$purpose" = fuzz ]; then
    packages+=(
        clang libclang-rt-dev llvm # compiler, sanitizers and libFuzzer, coverage
        libzxing-dev               # reader of the printed bars
    )
elif [ "$purpose" = windows ]; then
    packages+=(
        g++-mingw-w64-x86-64-posix wine64 # compiler, and what runs its programs
        googletest                        # test framework, in sources
        dpkg-dev tcl                      # sources of libraries, and what makes those of SQLite
        zip zbar-tools xvfb xauth         # the folder as one file; readers of what it prints
    )
elif [ "$purpose" = measure ]; then
    packages+=(pkgconf libzbar-dev libzxing-dev) # decoders
elif [ -n "${WAYLAND_DISPLAY:-}" ] && [ -z "${DISPLAY:-}" ]; then
    packages+=(qt6-wayland) # a desktop without X11
fi

if ! command -v dpkg-query > /dev/null; then
    echo "This is no Debian system; the packages must be there already: ${packages[*]}" >&2
    exit 0
fi

# The query fails when a package is unknown, and still lists those that are installed.
installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${packages[@]}" 2> /dev/null || true)
missing=()
for package in "${packages[@]}"; do
    grep -qxF "$package installed" <<< "$installed" || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
    echo "== Packages: all installed"
    exit 0
fi

echo "== Packages: installing ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo > /dev/null || ! sudo true; then
        echo "Packages are missing and this user may not install them; as root:" \
            "apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
"${apt[@]}" update < /dev/null
"${apt[@]}" install -y --no-install-recommends "${missing[@]}" < /dev/null
echo "== Packages: installed"
