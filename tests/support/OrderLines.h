#pragma once

#include "base/CodePage.h"
#include "base/Text.h"

#include <string>
#include <vector>

namespace etiquetas::test {

/// A line of a box order, `rest` being the fields after the master code.
struct BoxLine {
    Text quantity = u"12", size = u"34", barcode = u"204455667788", master = u"3104527001";
    Text description = u"TENIS CASUAL", colour = u"AZUL", rest = u"202611;FAIXA A;OFERTA";
};

inline Text lineOf(const BoxLine& line) {
    return line.quantity + u";" + line.colour + u";" + line.size + u";;" + line.description + u";" +
           line.barcode + u";" + line.master + u";" + line.rest;
}

/// A line of an accessory order of 12 fields.
struct AccessoryLine {
    Text quantity = u"2", colour = u"AZUL", description = u"BOLSA", week = u"S", banner = u"B";
    Text barcode = u"204455667788", master = u"3104527001", price = u"9,90", promotion = u"P";
};

inline Text accessoryLineOf(const AccessoryLine& line) {
    return line.quantity + u";" + line.colour + u";;" + line.description + u";" + line.week + u";" +
           line.banner + u";" + line.barcode + u";" + line.master + u";" + line.price + u";;" +
           line.promotion + u";";
}

/// A line of a carton order of 16 fields; `code` is its EAN and its pre-pack code.
struct CartonLine {
    Text master = u"M1", supplier = u"F", colour = u"AZUL", description = u"TENIS", code = u"20";
    Text sizes = u"G1", pairs = u"G2", total = u"T", week = u"S", destination = u"D";
    Text volumes = u"5/7";
};

inline Text cartonLineOf(const CartonLine& line) {
    return u"1;;" + line.master + u";" + line.supplier + u";" + line.colour + u";" +
           line.description + u";" + line.code + u";" + line.sizes + u";" + line.pairs + u";" +
           line.total + u";" + line.week + u";" + line.destination + u";" + line.volumes + u";;;";
}

/// The bytes of a file in code page 1252, each of its lines ended by CR LF.
inline std::string fileOf(const std::vector<Text>& lines) {
    std::string bytes;
    for (const Text& line : lines) {
        bytes += toCodePage1252(line + u"\r\n");
    }
    return bytes;
}

} // namespace etiquetas::test
