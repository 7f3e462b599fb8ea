#include "desktop/machine/QtPrinters.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

TEST(QtPrinters, listsTheMachinesPrintersAndTheBuiltInDeviceLast) {
    QtPrinters printers({u"Etiquetadora"_s, u"Laser"_s}, u"Laser"_s);
    EXPECT_EQ(printers.names(), (std::vector<Text>{u"Etiquetadora", u"Laser", u"PDF"}));
    EXPECT_EQ(printers.current(), (PrintTarget{u"Laser"_s, false}));
    printers.makeCurrent(2);
    EXPECT_THROW(printers.makeCurrent(3), Failure);
    EXPECT_EQ(printers.current(), (PrintTarget{u"PDF"_s, true}));
}

TEST(QtPrinters, prefersTheBuiltInDeviceUnderANameOfItsOwnWhereTheMachineHasNoDefault) {
    const QtPrinters printers({u"PDF"_s}, u"Removed"_s);
    EXPECT_TRUE(printers.current().built_in);
    EXPECT_EQ(printers.names().back(), printers.defaultName());
    EXPECT_NE(printers.defaultName(), u"PDF");
}

} // namespace etiquetas
