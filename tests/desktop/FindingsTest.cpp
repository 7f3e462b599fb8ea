#include "SampleWindow.h"
#include "desktop/Desktop.h"

#include <QTableWidget>
#include <gtest/gtest.h>

#include <chrono>

namespace etiquetas::test {

class FindingsTest : public testing::Test, protected SampleWindow {
  protected:
    FindingsTest() { open(); }

    bool showsInOrder(const QString& words) {
        const QDeadlineTimer enough(std::chrono::seconds(5));
        while (!worker.text(u"status_order"_s).contains(words) && !enough.hasExpired()) {
            QCoreApplication::processEvents();
        }
        return worker.text(u"status_order"_s).contains(words);
    }
    [[nodiscard]] QString happened() const { return worker.text(u"status_happened"_s); }
};

// By the sample: five descriptions that break on hidden labels, and four photographs that the copy
// lacks.
TEST_F(FindingsTest, areCountedAtTheFootAndListedByAKey) {
    load(oculta, "1400050831");
    EXPECT_TRUE(showsInOrder(u"9 achados (F6)"_s)) << worker.text(u"status_order"_s).toStdString();
    worker.press(Qt::Key_F6);
    FindingsWindow& list = desktop->findings();
    ASSERT_TRUE(list.isVisible());
    const auto* const table = list.findChild<QTableWidget*>();
    ASSERT_EQ(table->rowCount(), 9);
    EXPECT_EQ(table->item(0, 0)->text(), u"2"_s);
    EXPECT_TRUE(table->item(0, 2)->text().contains(u"será quebrado"_s));
    // Another kind of label breaks other texts.
    load(acessorio, "1400050831");
    EXPECT_FALSE(list.isVisible());
    EXPECT_TRUE(showsInOrder(u"1 achado (F6)"_s)) << worker.text(u"status_order"_s).toStdString();
}

TEST_F(FindingsTest, reviewDisturbsNeitherOrderNorStatus) {
    load(oculta, "1400050831");
    const QString item = worker.text(u"cmb_referencia"_s);
    EXPECT_TRUE(showsInOrder(u"achados"_s));
    worker.press(Qt::Key_Tab); // what the review has read is no order that was loaded
    EXPECT_EQ(worker.text(u"cmb_referencia"_s), item);
    EXPECT_TRUE(showsInOrder(u"item 1 de"_s));
    EXPECT_TRUE(showsInOrder(u"achados"_s));
}

TEST_F(FindingsTest, tellsWhenAnItemWasPrintedBefore) {
    load(oculta, "1400050831");
    EXPECT_FALSE(happened().contains(u"Este item já foi impresso"_s));
    EXPECT_FALSE(writtenBy(u"cmd_printacessorio"_s).isEmpty());
    EXPECT_FALSE(happened().contains(u"Este item já foi impresso"_s)) << "that is the next one";
    load(oculta, "1400050831");
    EXPECT_TRUE(happened().contains(u"Este item já foi impresso em "_s))
        << happened().toStdString();
    load(frente_de_caixa, "1400050831");
    EXPECT_FALSE(happened().contains(u"Este item já foi impresso"_s)) << "by another kind of label";
}

} // namespace etiquetas::test
