#include "desktop/windows/EventBridge.h"

#include "SmallOrderTest.h"
#include "desktop/windows/FieldTable.h"
#include "desktop/windows/QtFocus.h"
#include "desktop/windows/WorkbenchWindow.h"
#include "support/Cases.h"
#include "support/FakePlatform.h"

#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <stdexcept>

namespace etiquetas::test {

class EventBridgeTest : public SmallOrderTest {
  protected:
    [[nodiscard]] QColor backgroundOf(const QString& field) const {
        return worker.widget<QWidget>(field).palette().color(QPalette::Base);
    }
};

// What becomes of "a1-b" typed into a field, and whether the field lights up meanwhile.
struct TypedField {
    const char* name;
    const char* written;
    bool lights_up;
};

class TypedFieldTest : public EventBridgeTest, public testing::WithParamInterface<TypedField> {};

TEST_P(TypedFieldTest, filtersKeysAndShowsWhereTheFocusIs) {
    const QString name = QString::fromLatin1(GetParam().name);
    loadOrder();
    worker.doubleClick(u"Frame4"_s);
    worker.type(name, u"a1-b"_s);
    EXPECT_EQ(worker.text(name), QString::fromLatin1(GetParam().written));
    const QColor light_yellow(255, 255, 192);
    EXPECT_EQ(backgroundOf(name), GetParam().lights_up ? light_yellow : QColor(Qt::white));
    worker.press(Qt::Key_Tab);
    EXPECT_EQ(backgroundOf(name), QColor(Qt::white));
}

// clang-format off
static const std::vector<TypedField> typed_fields{
    // name, written, lights up
    {"txtarquivo", "A1-B", true},
    {"txtcor", "A1-B", true},
    {"txtcliente", "A1-B", true},
    {"txtlote", "1", false},
    {"txtnumero_0", "1", true},
    {"txtnumero_1", "1", true},
    {"TXTOCULTAS", "1", true},
    {"txtbandeira", "a1-b", false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Fields, TypedFieldTest, testing::ValuesIn(typed_fields), CaseName());

TEST_F(EventBridgeTest, runsALeavingEventThatShowsABoxOnce) {
    open();
    worker.type(u"txtarquivo"_s, u"999"_s);
    // The window shows what the fields hold while the box stands.
    QColor during_box;
    worker.beforeAnswer([&] { during_box = backgroundOf(u"txtarquivo"_s); });
    worker.press(Qt::Key_Tab);
    EXPECT_EQ(boxTexts(), QStringList{u"O Pedido 999, não foi localizado em "_s + folder.path()});
    EXPECT_EQ(during_box, QColor(Qt::white));
    EXPECT_EQ(worker.focused(), u"cmb_referencia"_s);
    EXPECT_TRUE(worker.widget<QPushButton>(u"cmd_printacessorio"_s).isHidden());
}

TEST_F(EventBridgeTest, doesNotPressACommandThatTheLeavingEventHides) {
    loadOrder();
    worker.type(u"txtarquivo"_s, u"999"_s);
    worker.pressMnemonic(Qt::Key_I);
    EXPECT_EQ(boxTexts().size(), 1);
    EXPECT_TRUE(jobs().isEmpty());
}

TEST_F(EventBridgeTest, walksItsListsByArrowAndLoadsThemWhenTheyAreLeft) {
    loadOrder();
    worker.press(Qt::Key_Down);
    EXPECT_EQ(worker.text(u"cmb_referencia"_s), u"3104527 | TENIS | AZUL"_s);
    EXPECT_EQ(worker.text(u"txtcor"_s), u"PRETO"_s);
    const auto& size = worker.widget<QLabel>(u"Label7_0"_s);
    EXPECT_TRUE(size.font().strikeOut()) << "of another item";
    worker.press(Qt::Key_Return);
    EXPECT_EQ(worker.text(u"txtcor"_s), u"AZUL"_s);
    EXPECT_FALSE(size.font().strikeOut());
    worker.press(Qt::Key_Up);
    EXPECT_EQ(worker.focused(), u"cmb_referencia"_s);
    worker.type(u"cmb_referencia"_s, u"3104527 | TENIS | AZUL"_s);
    worker.press(Qt::Key_Tab);
    EXPECT_EQ(desktop->form().cmb_referencia.position, -1);
    EXPECT_EQ(worker.text(u"txtcor"_s), u"AZUL"_s);
}

TEST_F(EventBridgeTest, walksByArrowOverListsThatKeepNoKeysAndOpensThem) {
    open();
    load(corrugado, "1400050831");
    for (const QString& name : {u"cmb_vol1"_s, u"cmb_vol2"_s, u"CMBPRINTER"_s}) {
        for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Up}) {
            worker.click(name);
            const QString before = worker.text(name);
            worker.press(arrow);
            EXPECT_NE(worker.focused(), name);
            EXPECT_EQ(worker.text(name), before);
        }
        for (const auto modifier : {Qt::AltModifier, Qt::NoModifier}) {
            worker.click(name);
            worker.press(modifier == Qt::AltModifier ? Qt::Key_Down : Qt::Key_F4, modifier);
            auto& list = worker.widget<QComboBox>(name);
            EXPECT_TRUE(list.view()->isVisible()) << name.toStdString();
            list.hidePopup();
        }
    }
}

TEST_F(EventBridgeTest, changesAListByTheWheelOnlyWhileItHasTheFocus) {
    loadOrder();
    auto& kinds = worker.widget<QComboBox>(u"cmbtipo"_s);
    EXPECT_EQ(kinds.focusPolicy(), Qt::StrongFocus) << "a turn must not give it the focus";
    const auto turn_wheel = [&] {
        QWheelEvent turn({5, 5}, kinds.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&kinds, &turn);
    };
    turn_wheel();
    EXPECT_EQ(kinds.currentIndex(), oculta);
    worker.click(u"cmbtipo"_s);
    turn_wheel();
    EXPECT_EQ(kinds.currentIndex(), oculta - 1);
}

TEST_F(EventBridgeTest, filtersKeysAndComposedTexts) {
    loadOrder();
    worker.type(u"txtcor"_s, u"marrom"_s);
    QInputMethodEvent composed;
    composed.setCommitString(u"ç\u00E3"_s);
    QApplication::sendEvent(&worker.widget<QLineEdit>(u"txtcor"_s), &composed);
    EXPECT_EQ(worker.text(u"txtcor"_s), u"MARROMÇÃ"_s);
    worker.type(u"txtnumero_1"_s, u"1a2,3"_s);
    worker.press(Qt::Key_Backspace);
    worker.press(Qt::Key_Home);
    worker.press(Qt::Key_Delete);
    EXPECT_EQ(worker.text(u"txtnumero_1"_s), u"2"_s);
    worker.click(u"txtnumero_0"_s);
    worker.click(u"txtnumero_1"_s);
    EXPECT_EQ(worker.widget<QLineEdit>(u"txtnumero_1"_s).selectedText(), u"2"_s);
    worker.click(u"txtbandeira"_s);
    worker.pressMnemonic(Qt::Key_X); // of no command
    EXPECT_EQ(worker.text(u"txtbandeira"_s), u"BK"_s);
}

TEST_F(EventBridgeTest, pressesACommandOnceAndAnswersNoBoxByAKeyThatIsHeldDown) {
    loadOrder();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    auto& print = worker.widget<QPushButton>(u"cmd_printacessorio"_s);
    QApplication::sendEvent(&print, &held);
    EXPECT_TRUE(jobs().isEmpty());
    QKeyEvent held_escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    bool stands = false;
    worker.beforeAnswer([&] {
        QWidget* const box = QApplication::activeModalWidget();
        for (QWidget* const part : {box->focusWidget(), box}) {
            QApplication::sendEvent(part, &held);
            QApplication::sendEvent(part, &held_escape);
        }
        stands = box->isVisible();
    });
    worker.click(u"cmd_printacessorio"_s);
    EXPECT_TRUE(stands);
}

TEST_F(EventBridgeTest, opensItsOptionsByTheFrameAloneAndItsItemsAsTheyAreNow) {
    loadOrder();
    worker.doubleClick(u"LBLBRISAKO"_s);
    EXPECT_FALSE(desktop->form().Frame2.visible);
    worker.doubleClick(u"Frame4"_s);
    EXPECT_TRUE(desktop->form().Frame2.visible);
    write(u"pedido 78 frente.txt"_s, order_file);
    worker.type(u"txtarquivo"_s, u"78"_s);
    auto& items = worker.widget<QComboBox>(u"cmb_referencia"_s);
    QTest::mouseClick(&items, Qt::LeftButton, Qt::NoModifier, {items.width() - 8, 8});
    EXPECT_TRUE(settings().contains("arquivo=78")); // the order was loaded before its list opened
    EXPECT_TRUE(items.view()->isVisible());
    items.hidePopup();
}

TEST_F(EventBridgeTest, opensOptionsSizeRunAndTheListOfKeysByKey) {
    open();
    worker.press(Qt::Key_F2);
    EXPECT_FALSE(worker.widget<QWidget>(u"Frame2"_s).isHidden());
    load(corrugado, "1400050831");
    worker.press(Qt::Key_F3);
    EXPECT_FALSE(worker.widget<QLineEdit>(u"txtgrade2"_s).isReadOnly());
    worker.press(Qt::Key_F1);
    EXPECT_TRUE(worker.widget<QDialog>(u"KeysWindow"_s).isVisible());
}

TEST_F(EventBridgeTest, locksAndUnlocksTheSizeRunByDoubleClicks) {
    open();
    load(corrugado, "1400050831");
    for (const QString& name : {u"txtgrade1"_s, u"txtgrade2"_s, u"txttotgrade"_s}) {
        const auto& field = worker.widget<QLineEdit>(name);
        for (const bool locked : {true, false}) {
            EXPECT_EQ(field.isReadOnly(), locked) << name.toStdString();
            worker.doubleClick(name);
        }
        EXPECT_TRUE(field.isReadOnly()) << name.toStdString();
    }
}

TEST_F(EventBridgeTest, endsWithOneBoxAndWithoutItsOpenJobOnAnUnguardedFailure) {
    loadOrder();
    worker.type(u"txtcor"_s, u"verde"_s);
    worker.doubleClick(u"Frame4"_s);
    worker.click(u"cmd_printacessorio"_s);
    worker.takeBoxes();
    worker.type(u"txtlote"_s, u"99999"_s); // more than 16 bits hold
    worker.click(u"cmb_referencia"_s);
    worker.press(Qt::Key_Tab);
    EXPECT_EQ(boxTexts(),
              QStringList{u"Estouro: um número é grande demais.\n\nO programa será encerrado."_s});
    EXPECT_EQ(desktop->exitCode(), 1);
    // Nothing runs any more.
    worker.type(u"txtarquivo"_s, u"999"_s);
    worker.press(Qt::Key_Return);
    desktop->window().close();
    EXPECT_TRUE(boxTexts().isEmpty());
    EXPECT_EQ(desktop->exitCode(), 1);
    EXPECT_TRUE(jobs().isEmpty());
}

TEST_F(EventBridgeTest, takesAKeyAndTheLeavingThatItCausesForOneHappening) {
    FakePlatform machine;
    const Platform fake = machine.platform();
    QtFocus focus;
    FrmPadrao form({fake.printers, fake.surface, fake.messages, fake.pictures, fake.files, focus,
                    fake.pointer, fake.process, fake.folders, fake.commands});
    WorkbenchWindow window;
    EventBridge bridge(focus, [](const QString&) {});
    bridge.add(fieldTable(form, window));
    window.show();
    std::vector<std::size_t> boxes; // in each happening
    const auto count = [&] {
        boxes.push_back(machine.logged({"message"}).size());
        machine.forget();
    };
    bridge.onHappening(count);
    QTest::keyClick(window.findChild<QLineEdit*>(u"txtarquivo"_s), Qt::Key_Return);
    count();
    std::erase(boxes, 0U);
    EXPECT_EQ(boxes, std::vector<std::size_t>{2}) << "the order is looked for twice";
}

TEST_F(EventBridgeTest, findsAnOrderThatComesWhileABoxTellsThatThereIsNone) {
    open();
    worker.type(u"txtarquivo"_s, u"88"_s);
    worker.beforeAnswer([&] { write(u"pedido 88 frente.txt"_s, order_file); });
    worker.press(Qt::Key_Return); // looks once by the key and once more as the field is left
    EXPECT_EQ(boxTexts().size(), 1);
    EXPECT_EQ(worker.widget<QComboBox>(u"cmb_referencia"_s).count(), 2);
}

TEST_F(EventBridgeTest, tellsOfAFaultOfTheProgramAndRunsNothingMore) {
    QtFocus focus;
    QStringList told;
    EventBridge bridge(focus, [&](const QString& description) { told << description; });
    bool ran = false;
    bridge.run([] { throw std::logic_error("falha"); });
    bridge.run([&] { ran = true; });
    EXPECT_EQ(told, QStringList{u"Erro interno: falha"_s});
    EXPECT_FALSE(ran);
}

} // namespace etiquetas::test
