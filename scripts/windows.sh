#!/usr/bin/env bash
# Makes the program for 64-bit Windows on a Debian machine: build/windows/etiquetas-windows.zip, a
# folder that runs from wherever it is unpacked.
#
#     windows.sh          makes the folder and the ZIP
#     windows.sh --test   then prints with it under Wine, and compares that with what Linux prints
#     windows.sh --print  only does that, with what is there, on the display that is there
#
# Debian has no Qt for MinGW, so that the first call builds it from Debian's source package, in about
# an hour of one core. It is kept in ~/.cache/etiquetas-windows (or $ETIQUETAS_WINDOWS_CACHE) with the
# other libraries that are made for Windows.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
project=$PWD
cache=${ETIQUETAS_WINDOWS_CACHE:-$HOME/.cache/etiquetas-windows}
prefix=$cache/prefix
build=build/windows
folder=$build/etiquetas
compiler=x86_64-w64-mingw32-g++-posix

# Unpacks a source package of Debian into the cache folder and tells its path. The lists of sources are
# fetched beside those of the machine, which has none as a rule.
source_of() {
    local package=$1 list apt
    find_source() { find "$cache/src" -mindepth 1 -maxdepth 1 -type d -name "$package-[0-9]*"; }
    mkdir -p "$cache/apt/lists/partial" "$cache/apt/sources" "$cache/src"
    if [ -z "$(find_source)" ]; then
        for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
            [ ! -s "$list" ] ||
                sed -E 's/^deb /deb-src /; s/^Types:.*/Types: deb-src/' "$list" \
                    > "$cache/apt/sources/${list##*/}"
        done
        apt=(apt-get -qq -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$cache/apt/sources"
            -o Dir::State::Lists="$cache/apt/lists" -o APT::Sandbox::User=)
        "${apt[@]}" update >&2
        (cd "$cache/src" && "${apt[@]}" source "$package" >&2)
    fi
    find_source
}

# Configures, builds and installs a library for Windows; the rest are arguments of CMake.
install_library() {
    local name=$1 source=$2
    shift 2
    [ ! -e "$prefix/$name.made" ] || return 0
    echo "== Building $name for Windows (what the compiler says is in $cache/$name.log)"
    if ! { cmake -S "$source" -B "$cache/$name-build" -G Ninja \
        -D CMAKE_TOOLCHAIN_FILE="$project/cmake/mingw.cmake" -D ETIQUETAS_WINDOWS_PREFIX="$prefix" \
        -D CMAKE_INSTALL_PREFIX="$prefix" -D CMAKE_BUILD_TYPE=Release "$@" &&
        cmake --build "$cache/$name-build" --parallel "$(nproc)" &&
        cmake --install "$cache/$name-build"; } > "$cache/$name.log" 2>&1; then
        tail -n 40 "$cache/$name.log" >&2
        return 1
    fi
    touch "$prefix/$name.made"
}

# Debian's source of Qt lacks the database that its driver compiles in.
add_sqlite() {
    local qt=$1 sqlite
    [ ! -e "$qt/src/3rdparty/sqlite/sqlite3.c" ] || return 0
    sqlite=$(source_of sqlite3)
    (cd "$sqlite" && ./configure --disable-readline && make sqlite3.c sqlite3.h) > "$cache/sqlite.log" 2>&1
    mkdir -p "$qt/src/3rdparty/sqlite"
    cp "$sqlite/sqlite3.c" "$sqlite/sqlite3.h" "$qt/src/3rdparty/sqlite/"
}

# Without what the program does not use, and with the libraries that are in the source package where
# Qt needs some. Its tools are those of the machine, which has the same version.
install_qt() {
    [ ! -e "$prefix/qt.made" ] || return 0
    local qt feature features=()
    qt=$(source_of qt6-base)
    add_sqlite "$qt"
    for feature in dbus xml opengl concurrent gif tabletevent vulkan openssl glib icu zstd brotli \
        pkg_config sql_odbc system_sqlite system_zlib system_pcre2 system_freetype system_harfbuzz \
        system_png system_jpeg system_doubleconversion system_libb2; do
        features+=(-D "FEATURE_$feature=OFF")
    done
    install_library qt "$qt" -D QT_HOST_PATH=/usr \
        -D QT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -print-multiarch)/cmake" \
        -D QT_BUILD_EXAMPLES=OFF -D QT_BUILD_TESTS=OFF -D WARNINGS_ARE_ERRORS=OFF \
        -D INPUT_opengl=no -D INPUT_openssl=no "${features[@]}"
}

install_libraries() {
    mkdir -p "$prefix"
    install_qt
    install_library fmt "$(source_of fmtlib)" -D FMT_TEST=OFF -D FMT_DOC=OFF
    install_library spdlog "$(source_of spdlog)" -D SPDLOG_FMT_EXTERNAL=ON -D SPDLOG_BUILD_EXAMPLE=OFF
}

build_program() {
    mkdir -p "$build"
    if ! { cmake --preset windows -D ETIQUETAS_WINDOWS_PREFIX="$prefix" &&
        cmake --build --preset windows --parallel "$(nproc)"; } > "$build.log" 2>&1; then
        tail -n 40 "$build.log" >&2
        return 1
    fi
}

programs_in() {
    find "$1" -name "*.exe" -o -name "*.com" -o -name "*.dll"
}

# The names of the libraries that the programs and libraries below a folder are linked with.
libraries_of() {
    programs_in "$1" |
        xargs -d "\n" x86_64-w64-mingw32-objdump -p | sed -n 's/.*DLL Name: //p' | sort -u
}

# Puts the libraries beside a program that it and its plugins load. Those of Windows itself are nowhere
# among ours.
add_libraries() {
    local target=$1 runtime library place added=1
    runtime=$(dirname "$($compiler -print-file-name=libstdc++-6.dll)")
    while [ "$added" -gt 0 ]; do
        added=0
        for library in $(libraries_of "$target"); do
            for place in "$prefix/bin" "$runtime" /usr/x86_64-w64-mingw32/lib; do
                if [ ! -e "$target/$library" ] && [ -e "$place/$library" ]; then
                    cp "$place/$library" "$target/"
                    added=$((added + 1))
                fi
            done
        done
    done
}

# Who made what is in the folder, under which terms, and where its sources are.
add_licences() {
    local licences=$folder/licencas qt
    qt=$(source_of qt6-base)
    mkdir -p "$licences"
    cp "$qt/LICENSES/LGPL-3.0-only.txt" "$qt/LICENSES/GPL-3.0-only.txt" "$licences/"
    cp "$qt/debian/copyright" "$licences/qt.txt"
    cp "$(source_of sqlite3)/debian/copyright" "$licences/sqlite.txt"
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$licences/gcc.txt"
    cp /usr/share/doc/mingw-w64-x86-64-dev/copyright "$licences/mingw-w64.txt"
    cat > "$licences/LEIA-ME.txt" << END
Além do próprio programa, esta pasta contém:

Qt $(dpkg-query -W -f '${Version}' qt6-base-dev)
  Qt6*.dll, plugins e translations, com SQLite e outras bibliotecas que o Qt contém. Licença LGPL 3
  (LGPL-3.0-only.txt e GPL-3.0-only.txt); autores e demais licenças em qt.txt e sqlite.txt. As DLLs
  podem ser trocadas por outras da mesma versão do Qt. As fontes, sem alteração, são os pacotes
  qt6-base e sqlite3 do Debian ("apt-get source qt6-base"); scripts/windows.sh, entre as fontes deste
  programa, faz as DLLs delas.
Bibliotecas do compilador
  libgcc_s_seh-1.dll, libstdc++-6.dll (GPL 3 com a exceção para bibliotecas do compilador, gcc.txt) e
  libwinpthread-1.dll (mingw-w64.txt).
fmt e spdlog
  Dentro do programa; fmt.txt e spdlog.txt.
END
}

# The program with all that it loads, samples beside it.
lay_out() {
    local plugin
    rm -rf "$folder"
    cmake --install $build --component portable --prefix "$folder" > /dev/null
    for plugin in platforms/qwindows imageformats/qjpeg styles/qwindowsvistastyle sqldrivers/qsqlite; do
        install -D -m 644 "$prefix/plugins/$plugin.dll" "$folder/plugins/$plugin.dll"
    done
    install -D -m 644 /usr/share/qt6/translations/qtbase_pt_BR.qm "$folder/translations/qtbase_pt_BR.qm"
    add_libraries "$folder"
    programs_in "$folder" | xargs -d "\n" x86_64-w64-mingw32-strip
    add_licences
}

zip_folder() {
    rm -f $build/etiquetas-windows.zip
    (cd $build && zip -qr etiquetas-windows.zip etiquetas)
}

under_wine() {
    /usr/lib/wine/wine64 "$@"
}

fail() {
    echo "windows.sh: $1" >&2
    exit 1
}

# What the labels in a PDF file tell a reader: its pages, their size, and all bars on them.
describe() {
    local pages
    pages=$(mktemp -d)
    pdfinfo "$1" | grep -E '^(Pages|Page size)'
    pdftoppm -r 203 -gray "$1" "$pages/page"
    { zbarimg -q "$pages"/* || true; } | sort
    rm -r "$pages"
}

# What the operator was told and asked, as the log has it behind date and time.
told_in() {
    sed -E 's/^.{24}//' "$1/etiquetas.log" | tr -d '\r' | grep -E '^(INFO  (Mensagem|Resposta)|ERRO)'
}

# Each label kind for both banners through the windows: ten jobs.
test_windows() {
    local job jobs=0 bars=0
    QT_QPA_PLATFORM=offscreen build/run/bin/etiquetas_demo "$linux/etiquetas" "$linux" > "$linux.log"
    cp "$(find $build -path "$folder" -prune -o -name etiquetas_demo.exe -print | head -1)" \
        "$windows/etiquetas/"
    add_libraries "$windows/etiquetas"
    (cd "$windows" && under_wine etiquetas/etiquetas_demo.exe etiquetas .) > "$windows.log"
    for job in "$linux"/*.pdf; do
        describe "$job" > "$linux.txt"
        describe "$windows/${job##*/}" > "$windows.txt"
        diff "$linux.txt" "$windows.txt" || fail "${job##*/} is not as on Linux"
        jobs=$((jobs + 1))
        bars=$((bars + $(grep -c : "$windows.txt") - 2))
    done
    [ "$jobs" -eq 10 ] || fail "$jobs of 10 jobs came out: five label kinds for two banners"
    diff <(told_in "$linux/etiquetas") <(told_in "$windows/etiquetas") ||
        fail "the operator is not told the same as on Linux"
    echo "$jobs jobs as on Linux: their pages, $bars bars, and all messages"
}

# A whole order, and a wrong use, from the command line.
test_command_line() {
    local order=(--pedido 1400050831 --tipo Corrugado --impressora PDF) wrong=(--pedido 1 --tipo Nada)
    local own=$linux/etiquetas/etiquetas other=$windows/etiquetas/etiquetas.com code=0
    "$own" "${order[@]}" --json > "$linux.txt"
    under_wine "$other" "${order[@]}" --json > "$windows.txt"
    diff <(grep -v '"destino"' "$linux.txt") <(tr -d '\r' < "$windows.txt" | grep -v '"destino"') ||
        fail "the command line did not print as on Linux"
    "$own" "${wrong[@]}" 2> "$linux.txt" || code=$?
    under_wine "$other" "${wrong[@]}" 2> "$windows.txt" && fail "a kind that is none was taken"
    [ "$?" -eq "$code" ] || fail "the exit code is not $code as on Linux"
    diff "$linux.txt" <(tr -d '\r' < "$windows.txt") || fail "the command line tells something else"
    echo "The command line as on Linux: an order printed, a wrong use told"
}

print_under_wine() {
    export WINEPREFIX=$project/$build/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
    XDG_RUNTIME_DIR=$(mktemp -d) # or the programs of Linux tell that they have none
    export XDG_RUNTIME_DIR
    local linux=$project/$build/printed-linux windows=$project/$build/printed
    scripts/prepare.sh run run
    echo "== Printing under Wine"
    rm -rf "$linux" "$windows"
    mkdir -p "$windows"
    cmake --install build/run --component portable --prefix "$linux/etiquetas" > /dev/null
    cp -r "$folder" "$windows/etiquetas"
    test_windows
    test_command_line
    /usr/lib/wine/wineserver64 -k # what Wine keeps running for later programs
}

make_folder() {
    scripts/install_packages.sh windows
    install_libraries
    echo "== Building the program for Windows (what the compiler says is in $build.log)"
    build_program
    echo "== Laying out $folder"
    lay_out
    zip_folder
    echo "== Written: $build/etiquetas-windows.zip"
}

case "${1:-}" in
    --print) print_under_wine ;;
    --test)
        make_folder
        xvfb-run -a scripts/windows.sh --print
        ;;
    *) make_folder ;;
esac
