#!/usr/bin/env bash
# Checks what a plant gets: the portable folder, which is installed over without touching what the
# operator has changed, the Debian package and the archive. The package is installed into a bare root and
# prints a sample order there for an ordinary user; removed again, it leaves nothing but the user's data.
#
#     check_installation.sh [build folder]
#
# The build must be complete. As root the programs run as the user nobody, else as whoever calls.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$(realpath "${1:-build/release}")
order=1400050831
user_data=.local/share/etiquetas

place=$(mktemp -d)
trap 'chmod -R u+w "$place" && rm -rf "$place"' EXIT
chmod 755 "$place"
root=$place/root

fail() {
    echo "check_installation: $1" >&2
    exit 1
}

expect_files() { # in a folder
    local folder=$1 file
    for file in "${@:2}"; do
        [ -e "$folder/$file" ] || fail "$file is missing in ${folder#"$place"/}"
    done
}

# A program as an ordinary user with an empty environment and this home, which is made where needed.
as_user() {
    local home=$1 whose=()
    mkdir -p "$home"
    if [ "$(id -u)" -eq 0 ]; then
        chown -R 65534:65534 "$home"
        whose=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    fi
    (cd "$home" && env -i HOME="$home" PATH=/usr/bin:/bin LANG=C.UTF-8 "${whose[@]}" "${@:2}")
}

check_portable() {
    local folder=$place/portable printed first_order
    cmake --install "$build" --component portable --prefix "$folder" > /dev/null
    expect_files "$folder" etiquetas brisako.jpg lumira.jpg Varesko.ini imagens/3104527.jpg \
        manual/manual-do-operador.md manual/workbench.png licencas/spdlog.txt

    mkdir "$place/printed"
    QT_QPA_PLATFORM=offscreen "$(find "$build" -name etiquetas_demo -type f | head -1)" \
        "$folder" "$place/printed" > /dev/null
    printed=$(find "$place/printed" -name '*.pdf' | wc -l)
    [ "$printed" -eq 10 ] || fail "$printed of 10 jobs came out: five label kinds for two banners"

    echo '[MargemOcultaZebra]' > "$folder/Varesko.ini"
    first_order=$(find "$folder" -name '*FRENTE.txt' | sort | head -1)
    echo 'changed' > "$first_order"
    rm "$folder/lumira.jpg"
    cmake --install "$build" --component portable --prefix "$folder" > /dev/null
    [ "$(cat "$folder/Varesko.ini")" = '[MargemOcultaZebra]' ] || fail "settings were replaced"
    [ "$(cat "$first_order")" = 'changed' ] || fail "a changed order was replaced"
    [ -e "$folder/lumira.jpg" ] || fail "a missing logo was not laid out again"
    echo "Portable folder: installed twice; $printed jobs printed"
}

check_told_data() {
    desktop-file-validate share/applications/etiquetas.desktop
    appstreamcli validate --no-net --no-color share/metainfo/*.metainfo.xml > "$place/appstream" ||
        { cat "$place/appstream" >&2 && fail "the AppStream data are not valid"; }
}

make_packages() {
    (cd "$place" && cpack --config "$build/CPackConfig.cmake" -B "$place/packages") > "$place/cpack" ||
        { tail -n 40 "$place/cpack" >&2 && fail "the packages could not be made"; }
}

# In a folder that the user may not write, the program works among the user's data.
check_archive() {
    local folder home=$place/home-archive told=$place/told-archive
    mkdir "$place/archive"
    tar -xzf "$place"/packages/etiquetas-*-portatil-linux.tar.gz -C "$place/archive"
    folder=$(echo "$place"/archive/*)
    expect_files "$folder" etiquetas Varesko.ini manual/manual-do-operador.md
    chmod -R a-w "$folder"
    as_user "$home" "$folder/etiquetas" --pedido "$order" --tipo Oculta --impressora PDF \
        > /dev/null 2> "$told" || true # the order is not there yet
    grep -qF "Pasta de trabalho criada: $home/$user_data" "$told" || fail "the folder is not named"
    expect_files "$home/$user_data" Varesko.ini lumira.jpg imagens/3104527.jpg impressos
    grep -q '^Mx4045_2=40' "$home/$user_data/Varesko.ini" || fail "the settings were not brought"
}

# A folder of programs is no place to work in, even for the user whose own it is.
check_own_prefix() {
    local home=$place/home-own
    cmake --install "$build" --prefix "$home/.local" > /dev/null
    as_user "$home" "$home/.local/bin/etiquetas" --pedido "$order" --tipo Oculta > /dev/null 2>&1 || true
    expect_files "$home/$user_data" Varesko.ini lumira.jpg imagens impressos
    [ ! -e "$home/.local/bin/Varesko.ini" ] || fail "the program works among the programs"
}

# The bare root takes this machine's packages for installed, so that what the package depends on must
# be among those that scripts/install_packages.sh installs.
install_package() {
    mkdir -p "$root/var/lib/dpkg/"{info,updates}
    cp /var/lib/dpkg/status "$root/var/lib/dpkg/"
    cp /var/lib/dpkg/info/*.list "$root/var/lib/dpkg/info/"
    in_root --install "$place"/packages/etiquetas_*.deb
    expect_files "$root/usr" bin/etiquetas share/applications/etiquetas.desktop \
        share/metainfo/br.com.varesko.etiquetas.metainfo.xml share/man/man1/etiquetas.1 \
        share/icons/hicolor/scalable/apps/etiquetas.svg share/icons/hicolor/48x48/apps/etiquetas.png \
        share/bash-completion/completions/etiquetas share/doc/etiquetas/manual-do-operador.md \
        share/doc/etiquetas/workbench.png share/doc/etiquetas/licencas/spdlog.txt
}

in_root() {
    PATH=$PATH:/usr/sbin:/sbin dpkg --root="$root" --force-not-root --log="$place/dpkg.log" "$@" \
        > "$place/dpkg" 2>&1 || { cat "$place/dpkg" >&2 && fail "dpkg $1 failed"; }
}

in_package() {
    as_user "$place/home" "$root/usr/bin/etiquetas" "$@"
}

check_printing() {
    local home=$place/home told=$place/told items printed
    in_package --listar pedidos > /dev/null
    [ ! -e "$home/$user_data" ] || fail "looking has laid out a folder"
    in_package --pedido "$order" --tipo Oculta --impressora PDF > /dev/null 2> "$told" || true
    grep -qF "Pasta de trabalho criada: $home/$user_data" "$told" || fail "the folder is not named"

    cp "$root"/usr/share/doc/etiquetas/exemplos/*"$order"*.txt "$home/$user_data/"
    in_package --pedido "$order" --tipo Oculta --impressora PDF > "$place/items" 2> "$told" ||
        { cat "$told" >&2 && fail "the order was not printed"; }
    grep -qF 'Pasta de trabalho' "$told" && fail "the folder is named again"
    items=$(wc -l < "$place/items")
    printed=$(find "$home/$user_data/impressos" -name '*.pdf' | wc -l)
    [ "$items" -gt 1 ] && [ "$printed" -eq "$items" ] || fail "$printed files of $items items"
    expect_files "$home/$user_data" Varesko.ini brisako.jpg lumira.jpg imagens etiquetas.log \
        historico.sqlite
    echo "Debian package: $items items printed for an ordinary user"
}

list_root() {
    find "$root" ! -type d ! -path "$root/var/lib/dpkg/*" | sort
}

check_removal() {
    in_root --purge etiquetas
    [ -z "$(list_root)" ] || fail "removed, the package leaves $(list_root)"
    [ -z "$(find "$root" -name '*etiquetas*' ! -path "$root/var/lib/dpkg/*")" ] ||
        fail "removed, the package leaves folders"
    expect_files "$place/home/$user_data" Varesko.ini impressos
    local others
    others=$(find "$place/home" -type f ! -path "$place/home/$user_data/*" ! -path '*/.cache/*')
    [ -z "$others" ] || fail "the program has written $others"
    echo "Debian package: removed without a trace but the user's data"
}

check_told_data
check_portable
make_packages
check_archive
check_own_prefix
install_package
check_printing
check_removal
