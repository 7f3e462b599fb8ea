#include "desktop/machine/QtPrinters.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

TEST(QtPrinters, listsTheMachinesPrintersAndTheBuiltInDeviceLast) {
    QtPrinters printers({u"Etiquetadora"_s, u"Laser"_s}, u"Laser"_s);
    EXPECT_EQ(printers.names(),
              (std::vector<Text>{u"Etiquetadora", u"Laser", u"PDF", u"Pré-visualização"}));
    EXPECT_EQ(printers.current(), (PrintTarget{u"Laser"_s}));
    printers.makeCurrent(2);
    EXPECT_THROW(printers.makeCurrent(4), Failure);
    EXPECT_EQ(printers.current(), (PrintTarget{u"PDF"_s, Device::pdf_file}));
}

TEST(QtPrinters, prefersTheBuiltInDeviceUnderANameOfItsOwnWhereTheMachineHasNoDefault) {
    const QtPrinters printers({u"PDF"_s}, u"Removed"_s);
    EXPECT_EQ(printers.current(), (PrintTarget{u"PDF (impressos)"_s, Device::pdf_file}));
    EXPECT_EQ(printers.defaultName(), u"PDF (impressos)");
}

} // namespace etiquetas
