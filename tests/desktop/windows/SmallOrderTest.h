#pragma once

#include "tests/desktop/SampleWindow.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

/// The window with the order 77, which has an item of two sizes and one of one size.
class SmallOrderTest : public testing::Test, protected SampleWindow {
  protected:
    static constexpr const char* order_file =
        "BRISA KO;PEDIDO 77\r\n"
        "1;PRETO;33;;BOTA CANO CURTO;231045270100;3104527001;32;BK;A1\r\n"
        "2;PRETO;34;;BOTA CANO CURTO;2310452701010;3104527001;32;BK;A1\r\n"
        "3;AZUL;35;;TENIS;231045270200;3104527002;32;BK;A1\r\n";

    SmallOrderTest() {
        write(u"Varesko.ini"_s, "[MargemOcultaZebra]\r\nMargem_oculta1=3\r\nMargem_oculta11=45\r\n"
                                "Margem_oculta2=3\r\n");
        write(u"pedido 77 frente.txt"_s, order_file);
    }

    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    void loadOrder() {
        open();
        load(oculta, "77");
    }
};

} // namespace etiquetas::test
