#include "review/Barcode.h"

#include "barcodes/Code39.h"
#include "base/Failure.h"
#include "base/Numbers.h"
#include "orders/Complemento.h"

#include <algorithm>

namespace etiquetas {

namespace {

constexpr std::size_t ean13_length = 13;
constexpr std::size_t ean8_length = 8;
constexpr std::size_t digits_without_check = ean13_length - 1;
// Of the 54 characters that the picture has room for two are the start and the end.
constexpr std::size_t most_code39_characters = 52;

bool isAllDigits(TextView text) {
    return std::all_of(text.begin(), text.end(), [](char16_t c) { return isNumeric(c); });
}

// The weights of the digits are told from the right, so that a shorter code has zeros in front.
Text checkDigit(TextView digits) {
    Text padded(digits_without_check - digits.size(), u'0');
    return Text(trimmed(DigitoEan(padded.append(digits))));
}

std::optional<BarcodeFault> faultOfCheckDigit(TextView code) {
    const Text right_digit = checkDigit(code.substr(0, code.size() - 1));
    if (code.substr(code.size() - 1) == right_digit) {
        return std::nullopt;
    }
    return BarcodeFault{FindingKind::check_digit, Text(u"O código de barras ")
                                                      .append(code)
                                                      .append(u" tem o dígito verificador errado: "
                                                              u"o certo é ")
                                                      .append(right_digit)};
}

BarcodeFault missing() {
    return {FindingKind::barcode_missing, u"Sem código de barras"};
}

BarcodeFault wrongCharacters(TextView code) {
    return {FindingKind::barcode_characters, Text(u"O código de barras \"")
                                                 .append(code)
                                                 .append(u"\" tem caracteres que as barras não "
                                                         u"aceitam")};
}

BarcodeFault wrongLength(TextView code, TextView right_length) {
    return {FindingKind::barcode_length,
            Text(u"O código de barras ")
                .append(code)
                .append(u" tem ")
                .append(numberText(static_cast<std::int32_t>(code.size())))
                .append(u" caracteres em vez de ")
                .append(right_length)};
}

bool fitsCode39(TextView code, PictureBox& scratch) {
    try {
        Text drawn(code);
        DesenhaCode39(scratch, 1, drawn, false, false);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

} // namespace

std::optional<BarcodeFault> faultOfEan(TextView code) {
    code = trimmed(code);
    if (code.empty()) {
        return missing();
    }
    if (!isAllDigits(code)) {
        return wrongCharacters(code);
    }
    if (code.size() == digits_without_check) {
        return std::nullopt;
    }
    return code.size() == ean13_length ? faultOfCheckDigit(code) : wrongLength(code, u"12 ou 13");
}

std::optional<BarcodeFault> faultOfCartonCode(TextView code, PictureBox& scratch) {
    code = trimmed(code);
    if (code.empty()) {
        return missing();
    }
    if (!fitsCode39(code, scratch)) {
        return wrongCharacters(code);
    }
    if (code.size() > most_code39_characters) {
        return wrongLength(code, u"52 no máximo");
    }
    const bool is_ean = code.size() == ean13_length || code.size() == ean8_length;
    return is_ean && isAllDigits(code) ? faultOfCheckDigit(code) : std::nullopt;
}

Text wholeEan(TextView code) {
    Text whole(trimmed(code));
    if (whole.size() == digits_without_check) {
        whole.append(checkDigit(whole));
    }
    return whole;
}

} // namespace etiquetas
