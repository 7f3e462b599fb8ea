#include "desktop/QtPrinters.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

TEST(QtPrinters, listsTheMachinesPrintersAndTheBuiltInDeviceLast) {
    QtPrinters printers({u"Zebra"_s, u"Laser"_s}, u"Laser"_s);
    EXPECT_EQ(printers.names(), (std::vector<Text>{u"Zebra", u"Laser", u"PDF"}));
    EXPECT_EQ(printers.current(), (PrintTarget{u"Laser"_s, false}));
    printers.makeCurrent(2);
    EXPECT_THROW(printers.makeCurrent(3), Failure);
    EXPECT_EQ(printers.current(), (PrintTarget{u"PDF"_s, true}));
    EXPECT_EQ(printers.defaultName(), u"Laser");
}

TEST(QtPrinters, prefersTheBuiltInDeviceUnderANameOfItsOwnWhereTheMachineHasNoDefault) {
    for (const QString& machine_default : {QString(), u"Removed"_s}) {
        const QtPrinters printers({u"PDF"_s}, machine_default);
        EXPECT_TRUE(printers.current().built_in);
        EXPECT_EQ(printers.names(), (std::vector<Text>{u"PDF", printers.defaultName()}));
        EXPECT_NE(printers.defaultName(), u"PDF");
    }
}

} // namespace etiquetas
