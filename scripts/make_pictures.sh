#!/usr/bin/env bash
# Makes the pictures of the README and the operator's manual anew from the program itself: windows as the
# demonstration sees them, and labels as a printer of 203 dpi does, the large one at a smaller scale.
#
#     make_pictures.sh [build folder [target folder]]
#
# It fails where a picture does not come out, and where the folder docs holds one that it does not make.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=${1:-build/run}
target=${2:-docs}

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
mkdir -p "$target"

fail() {
    echo "make_pictures: $1" >&2
    exit 1
}

# Picture and what it is made of: a window, or the first page of a job with what is shown of it: width and
# height in millimetres, and dots per inch.
pictures() {
    cat << 'END'
workbench              janela-oculta-1400050831.png
carton-window          janela-corrugado-1400050831.png
parameters             dialogo-FrmParametroImpressora.png
margins                dialogo-FrmMargensOcultaZPL2.png
preview                pre-visualizacao.png
closing-question       pergunta.png
box-front-labels       frente-de-caixa-1400050831.pdf 84 47 203
hidden-labels          oculta-1400050831.pdf 93 22 203
accessory-labels       acessorio-1400050831.pdf 91 21 203
carton-label           corrugado-1400050831.pdf 105 145 120
box-front-photograph   frente-100x40-1400050831.pdf 100 40 203
END
}

make_label() { # job, picture, width, height, dots per inch
    pdftoppm -r "$5" -gray -png -singlefile -f 1 -x 0 -y 0 \
        -W $(($3 * $5 * 10 / 254)) -H $(($4 * $5 * 10 / 254)) "$1" "${2%.png}"
}

cmake --install "$build" --component portable --prefix "$place/installation" > /dev/null
QT_QPA_PLATFORM=offscreen "$(find "$build" -name etiquetas_demo -type f | head -1)" \
    "$place/installation" "$place/made" > "$place/told" 2>&1 ||
    { cat "$place/told" >&2 && fail "the demonstration failed"; }

while read -r name source width height dots; do
    [ -s "$place/made/$source" ] || fail "$source did not come out"
    case $source in
        *.pdf) make_label "$place/made/$source" "$target/$name.png" "$width" "$height" "$dots" ;;
        *) cp "$place/made/$source" "$target/$name.png" ;;
    esac
    [ -s "$target/$name.png" ] || fail "$name.png did not come out"
done < <(pictures)

for picture in docs/*.png; do
    pictures | grep -q "^$(basename "$picture" .png) " || fail "nothing makes $picture"
done
echo "$(pictures | wc -l) pictures in $target"
