#include "SmallOrderTest.h"
#include "support/WindowFields.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <random>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

namespace {

const QString closing_question = u"A Impressão está OK"_s;
const QString print_command = u"cmd_printacessorio"_s;

class OneAtATimeTest : public SmallOrderTest {
  protected:
    // What must not change while a message box stands: the jobs, the end and all fields.
    [[nodiscard]] std::string standing() {
        std::string told = jobs().join(u' ').toStdString();
        told += " exit " + std::to_string(desktop->exitCode().value_or(-1));
        for (const NamedField& field : fieldsOf(desktop->form())) {
            told += "\n" + field.name + " " + field.words();
        }
        return told;
    }

    static int boxesOnTheScreen() {
        int boxes = 0;
        for (const QWidget* const window : QApplication::topLevelWidgets()) {
            const bool is_box = qobject_cast<const QMessageBox*>(window) != nullptr;
            boxes += is_box && window->isVisible() ? 1 : 0;
        }
        return boxes;
    }
};

} // namespace

TEST_F(OneAtATimeTest, aCommandThatComesWhileABoxStandsIsDropped) {
    loadOrder();
    worker.beforeAnswer([this] {
        // As the toolkit presses a command late: by its timer, past the box.
        worker.widget<QPushButton>(print_command).click();
        EXPECT_EQ(boxesOnTheScreen(), 1);
    });
    worker.click(print_command);
    EXPECT_EQ(boxTexts(), QStringList{closing_question});
    EXPECT_EQ(jobs().size(), 1);
    EXPECT_EQ(desktop->form().cmb_referencia.entries.size(), 1U) << "one item printed, one left";
}

TEST_F(OneAtATimeTest, aMnemonicPressesItsCommandBeforeTheNextKeyCan) {
    constexpr int late_click_ms = 200; // the toolkit's own click comes after 100
    loadOrder();
    worker.widget<QPushButton>(print_command).setFocus();
    worker.press(Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(boxTexts(), QStringList{closing_question});
    QTest::qWait(late_click_ms);
    EXPECT_EQ(jobs().size(), 1);
}

TEST_F(OneAtATimeTest, noKeyReachesAFieldWhileABoxStands) {
    loadOrder();
    worker.beforeAnswer([this] {
        QTest::keyClicks(&worker.widget<QLineEdit>(u"txtarquivo"_s), u"9"_s);
        QTest::keyClick(&worker.widget<QLineEdit>(u"txtarquivo"_s), Qt::Key_Return);
    });
    worker.click(print_command);
    EXPECT_EQ(worker.text(u"txtarquivo"_s), u"77"_s);
    EXPECT_EQ(boxTexts(), QStringList{closing_question});
}

TEST_F(OneAtATimeTest, theExitWaitsForTheAnswer) {
    loadOrder();
    std::optional<int> code_at_the_box;
    worker.beforeAnswer([&] {
        worker.widget<QPushButton>(u"cmd_sair"_s).click();
        code_at_the_box = desktop->exitCode();
    });
    worker.click(print_command);
    EXPECT_EQ(code_at_the_box, std::nullopt);
    EXPECT_EQ(desktop->form().cmb_referencia.entries.size(), 1U) << "Sim was carried out";
    EXPECT_TRUE(QTest::qWaitFor([this] { return desktop->exitCode() == 0; }));
    EXPECT_TRUE(settings().contains("Tipo=Oculta")) << "its command stores the fields";
}

TEST_F(OneAtATimeTest, theCloseBoxWaitsForTheAnswer) {
    loadOrder();
    bool closed_at_the_box = true;
    worker.beforeAnswer([&] { closed_at_the_box = desktop->window().close(); });
    worker.click(print_command);
    EXPECT_FALSE(closed_at_the_box);
    EXPECT_TRUE(QTest::qWaitFor([this] { return desktop->exitCode() == 0; }));
    EXPECT_FALSE(desktop->window().isVisible());
}

// A monkey at the windows: random keys and clicks, at message boxes too. Its seeds are fixed, so
// that what it finds can be found again.
class MonkeyTest : public OneAtATimeTest, public testing::WithParamInterface<unsigned> {
  protected:
    MonkeyTest() { chance.seed(GetParam()); }

    [[nodiscard]] int below(int count) {
        return std::uniform_int_distribution<int>(0, count - 1)(chance);
    }

    // A field or command of a window that shows, or a window itself.
    [[nodiscard]] QWidget& anyWidget() {
        std::vector<QWidget*> widgets{&desktop->window()};
        for (DialogWindow* const dialog : desktop->dialogs()) {
            if (dialog->isVisible()) {
                widgets.push_back(dialog);
            }
        }
        QWidget* const window = widgets[static_cast<std::size_t>(below(int(widgets.size())))];
        for (QWidget* const widget : window->findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->objectName() != u"CMD_GETPATH"_s) {
                widgets.push_back(widget);
            }
        }
        return *widgets[static_cast<std::size_t>(below(int(widgets.size())))];
    }

    void anyKey(QWidget& widget) {
        static constexpr std::array keys{Qt::Key_Return, Qt::Key_Tab,       Qt::Key_Up,
                                         Qt::Key_Down,   Qt::Key_Backspace, Qt::Key_Space,
                                         Qt::Key_1,      Qt::Key_7,         Qt::Key_A,
                                         Qt::Key_Escape, Qt::Key_F4,        Qt::Key_Delete};
        static constexpr std::array mnemonics{Qt::Key_I, Qt::Key_C, Qt::Key_P, Qt::Key_G};
        if (below(6) == 0) {
            QTest::keyClick(&widget, mnemonics[static_cast<std::size_t>(below(4))],
                            Qt::AltModifier);
        } else {
            QTest::keyClick(&widget, keys[static_cast<std::size_t>(below(int(keys.size())))]);
        }
    }

    void anyDeed() {
        QWidget& widget = anyWidget();
        auto* const button = qobject_cast<QPushButton*>(&widget);
        switch (below(8)) {
        case 0:
            QTest::mouseDClick(&widget, Qt::LeftButton);
            break;
        case 1:
        case 2:
            QTest::mouseClick(&widget, Qt::LeftButton);
            break;
        case 3:
            if (button != nullptr && button->objectName() != u"cmd_sair"_s) {
                button->click();
            }
            break;
        default:
            anyKey(widget);
        }
    }

    std::mt19937 chance;
};

TEST_P(MonkeyTest, nothingRunsInsideAnythingElse) {
    constexpr int deeds = 300;
    loadOrder();
    worker.beforeAnswer([this] {
        const std::string before = standing();
        for (int i = below(4); i > 0; --i) {
            anyDeed();
        }
        EXPECT_LE(boxesOnTheScreen(), 1) << "the monkey may answer it";
        EXPECT_EQ(standing(), before);
    });
    for (int i = 0; i < deeds; ++i) {
        anyDeed();
        QCoreApplication::processEvents();
        ASSERT_NE(desktop->exitCode(), 1) << boxTexts().last().toStdString();
        if (desktop->exitCode() == 0) { // it has found "Sair"
            loadOrder();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, testing::Values(1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U),
                         [](const auto& seed) { return "seed" + std::to_string(seed.param); });

} // namespace etiquetas::test
