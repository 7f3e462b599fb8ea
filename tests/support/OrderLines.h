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

/// The bytes of a file in code page 1252, each of its lines ended by CR LF.
inline std::string fileOf(const std::vector<Text>& lines) {
    std::string bytes;
    for (const Text& line : lines) {
        bytes += toCodePage1252(line + u"\r\n");
    }
    return bytes;
}

} // namespace etiquetas::test
