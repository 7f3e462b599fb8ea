#include "desktop/QtPrinters.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;
namespace {

const QString zebra = u"Zebra"_s;
const QString laser = u"Laser"_s;

TEST(QtPrinters, listsTheMachinesPrintersAndTheBuiltInDeviceLast) {
    const QtPrinters printers({zebra, laser}, laser);
    EXPECT_EQ(printers.names(), (std::vector<Text>{u"Zebra", u"Laser", u"PDF"}));
    EXPECT_EQ(printers.defaultName(), u"Laser");
    EXPECT_EQ(printers.current(), (PrintTarget{laser, false}));
}

TEST(QtPrinters, prefersTheBuiltInDeviceWhereTheMachineHasNoDefault) {
    for (const QString& machine_default : {QString(), u"Removed"_s}) {
        const QtPrinters printers({zebra}, machine_default);
        EXPECT_EQ(printers.defaultName(), u"PDF");
        EXPECT_TRUE(printers.current().built_in);
    }
}

TEST(QtPrinters, makesAPlaceOfTheListCurrent) {
    QtPrinters printers({zebra, laser}, laser);
    printers.makeCurrent(0);
    EXPECT_EQ(printers.current(), (PrintTarget{zebra, false}));
    printers.makeCurrent(2);
    EXPECT_EQ(printers.current(), (PrintTarget{u"PDF"_s, true}));
    EXPECT_THROW(printers.makeCurrent(3), Failure);
    EXPECT_TRUE(printers.current().built_in);
    EXPECT_EQ(printers.defaultName(), u"Laser");
}

TEST(QtPrinters, givesTheBuiltInDeviceANameOfItsOwn) {
    const QtPrinters printers({u"PDF"_s}, QString());
    const auto names = printers.names();
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[0], u"PDF");
    EXPECT_NE(names[1], u"PDF");
}

} // namespace
} // namespace etiquetas
