#include "orders/Complemento.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "config/ProgramFiles.h"
#include "model/FrmPadrao.h"
#include "orders/GradeAcessorio.h"
#include "orders/GradeFc.h"
#include "orders/OrderFormat.h"
#include "orders/OrderIndex.h"
#include "platform/Files.h"
#include "platform/Pictures.h"

namespace etiquetas {

namespace {

constexpr std::size_t digits_without_check = 12;

// The item that the codes are looked up for, as the Workbench shows it.
struct Wanted {
    explicit Wanted(const FrmPadrao& form)
        : colour(trimmed(form.txtcor.text)), description(trimmed(form.txtdescricao.text)),
          code(trimmed(form.txtcodigo.text)) {}

    [[nodiscard]] bool foundIn(const OrderLine& line, const ItemKeyFields& fields) const {
        return trimmed(line[fields.colour]) == colour &&
               trimmed(line[fields.description]) == description &&
               trimmed(left(line[fields.code], fields.code_length)) == code;
    }

    TextView colour;
    TextView description;
    TextView code;
};

void takeCodes(FrmPadrao& form, const OrderLine& line, std::size_t barcode, std::size_t master) {
    form.lblbarra.caption = trimmed(line[barcode]);
    form.lblmaster.caption = trimmed(line[master]);
}

// The first line of the item in the order. A line too short for the comparison fails.
template <typename Take>
void lookUp(FrmPadrao& form, IndexLine how, const ItemKeyFields& key, const Take& take) {
    const Wanted wanted(form);
    const auto item = itemHash(wanted.code, wanted.description, wanted.colour);
    form.List1.entries.visit(how, item, short_lines, [&](TextView text) {
        const OrderLine line(text);
        return !wanted.foundIn(line, key) || !take(line);
    });
}

void lookUpAccessory(FrmPadrao& form) {
    lookUp(form, cutAndIndex<indexAccessoryLine>, accessory_key, [&](const OrderLine& line) {
        takeCodes(form, line, accessory_field::barcode, accessory_field::master);
        return true;
    });
}

void lookUpSize(FrmPadrao& form, TextView tamanho) {
    lookUp(form, cutAndIndex<indexBoxLine>, box_key, [&](const OrderLine& line) {
        const bool is_size = line[box_field::size] == tamanho;
        if (is_size) {
            takeCodes(form, line, box_field::barcode, box_field::master);
        }
        return is_size;
    });
}

} // namespace

void ret_codcomplemento(FrmPadrao& form, TextView tamanho) {
    form.lblbarra.caption.clear();
    form.lblmaster.caption.clear();
    // Half sizes are sizes too, so the number keeps its fraction.
    if (toSingle(tamanho) == 0.0F) {
        lookUpAccessory(form);
    } else {
        lookUpSize(form, tamanho);
    }
    Text& barcode = form.lblbarra.caption;
    if (!isBlank(barcode) && barcode.size() == digits_without_check) {
        barcode.append(trimmed(DigitoEan(barcode)));
    }
}

Text DigitoEan(TextView codigo) {
    constexpr std::size_t base = 10;
    std::size_t sum = 0;
    for (std::size_t position = 1; position <= digits_without_check; ++position) {
        const TextView character = mid(codigo, position, 1);
        const bool digit = !character.empty() && isNumeric(character.front());
        const auto value = digit ? static_cast<std::size_t>(character.front() - u'0') : 0;
        sum += position % 2 == 0 ? 3 * value : value;
    }
    return signedNumberText(static_cast<std::int32_t>((base - sum % base) % base));
}

void pega_imagem(FrmPadrao& form) {
    form.tem_imagem = false;
    form.pctimage.picture.reset();
    const Files& files = form.platform.files;
    const Text folder = joined(files, files.programFolder(), photograph_folder);
    const TextView code = trimmed(form.txtcodigo.text);
    if (!isPlainName(files, code)) {
        return;
    }
    const auto photograph = findFile(files, folder, Text(code).append(u".jpg"));
    if (!photograph) {
        return;
    }
    // A file that is no picture counts as a missing one: an item is printed without its photograph
    // rather than not at all.
    skip([&] {
        form.pctimage.picture = form.platform.pictures.load(*photograph);
        form.tem_imagem = true;
    });
}

} // namespace etiquetas
