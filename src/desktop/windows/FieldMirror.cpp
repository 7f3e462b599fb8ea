#include "desktop/windows/FieldMirror.h"

#include "desktop/machine/QtText.h"
#include "desktop/machine/RasterImage.h"
#include "desktop/windows/EntryModel.h"
#include "desktop/windows/FieldEdit.h"
#include "desktop/windows/PictureLabel.h"

#include <QColor>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <memory>

namespace etiquetas {

namespace {

// `isVisible` asks the parents too; what counts is what the widget itself was told.
void showOrHide(QWidget& widget, bool visible) {
    if (widget.isHidden() == visible) {
        widget.setVisible(visible);
    }
}

// Of a list, a screen reader reads the line in it.
void nameForReaders(QWidget& widget, const QString& name) {
    widget.setAccessibleName(name);
    if (const auto* const list = qobject_cast<const QComboBox*>(&widget)) {
        list->lineEdit()->setAccessibleName(name);
    }
}

void pushLabel(QLabel& label, const Text& text, bool visible) {
    label.setTextFormat(Qt::PlainText); // an order may hold anything, markup among it
    label.setText(toQString(text));
    showOrHide(label, visible);
    if (QWidget* const named = label.buddy()) {
        nameForReaders(*named, label.text());
    }
}

template <typename Field>
void pushCaption(QLabel* caption, const Field& field) {
    if (caption != nullptr) {
        pushLabel(*caption, field.caption, field.visible);
    }
}

Selection selectionOf(const QLineEdit& edit) {
    if (!edit.hasSelectedText()) {
        return {static_cast<std::size_t>(edit.cursorPosition()), 0};
    }
    return {static_cast<std::size_t>(edit.selectionStart()),
            static_cast<std::size_t>(edit.selectionLength())};
}

// A text that a handler made shorter may end before its selection does.
void select(QLineEdit& edit, const Selection& selection) {
    const auto length = static_cast<std::size_t>(edit.text().size());
    const Selection inside{std::min(selection.start, length), selection.length};
    if (!(selectionOf(edit) == inside)) {
        edit.setSelection(static_cast<int>(inside.start), static_cast<int>(inside.length));
    }
}

void pushEdit(FieldEdit& edit, const TextField& field) {
    const QString text = toQString(field.text);
    if (edit.text() != text) {
        edit.setText(text);
    }
    select(edit, field.selection);
    edit.setReadOnly(field.locked);
    edit.setToolTip(toQString(field.tooltip));
    const auto& [red, green, blue] = field.back_colour;
    edit.showPaper(QColor(red, green, blue), field.locked && field.back_colour == white);
    showOrHide(edit, field.visible);
}

void pullList(const QComboBox& box, ListField& field) {
    const int at = box.currentIndex();
    const bool chosen = at >= 0 && box.itemText(at) == box.currentText();
    field.text = toText(box.currentText());
    field.position = chosen ? at : -1;
}

void pushList(QComboBox& box, const ListField& field, EntryModel& entries) {
    const QSignalBlocker quiet(box);
    entries.show(field.entries);
    if (box.currentIndex() != field.position) {
        box.setCurrentIndex(field.position);
    }
    const QString text = toQString(field.text);
    if (box.currentText() != text) {
        box.setEditText(text);
    }
    showOrHide(box, field.visible);
}

} // namespace

FieldRow mirrored(FieldEdit& edit, QLabel* caption, TextField& field) {
    FieldRow row;
    row.widget = &edit;
    row.text_field = &field;
    row.pull = [&edit, &field] {
        field.text = toText(edit.text());
        field.selection = selectionOf(edit);
    };
    row.push = [&edit, caption, &field] {
        pushEdit(edit, field);
        pushCaption(caption, field);
    };
    return row;
}

FieldRow mirrored(QComboBox& box, QLabel* caption, ListField& field) {
    FieldRow row;
    row.widget = &box;
    row.pull = [&box, &field] { pullList(box, field); };
    auto* const entries = new EntryModel(&box); // which deletes it
    box.setModel(entries);
    row.push = [&box, caption, &field, entries] {
        pushList(box, field, *entries);
        pushCaption(caption, field);
    };
    return row;
}

FieldRow mirrored(QLabel& label, Label& field) {
    FieldRow row;
    row.widget = &label;
    row.push = [&label, &field] { pushLabel(label, field.caption, field.visible); };
    return row;
}

FieldRow mirrored(PictureLabel& label, PictureField& field) {
    FieldRow row;
    row.widget = &label;
    row.push = [&label, &field, shown = std::make_shared<Picture>()] {
        if (field.picture != *shown) {
            label.setPixmap(field.picture ? QPixmap::fromImage(imageOf(*field.picture))
                                          : QPixmap());
            *shown = field.picture;
        }
        showOrHide(label, field.visible);
    };
    return row;
}

FieldRow mirrored(QGroupBox& box, Panel& field) {
    FieldRow row;
    row.widget = &box;
    row.push = [&box, &field] {
        box.setTitle(toQString(field.caption));
        showOrHide(box, field.visible);
    };
    return row;
}

FieldRow mirrored(QPushButton& button, Command& field) {
    FieldRow row;
    row.widget = &button;
    row.push = [&button, &field] {
        button.setText(toQString(field.caption));
        button.setToolTip(toQString(field.tooltip));
        showOrHide(button, field.visible);
    };
    return row;
}

} // namespace etiquetas
