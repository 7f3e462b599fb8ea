#include "desktop/windows/ManualView.h"

#include <QAbstractTextDocumentLayout>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>

// A linker leaves out what nothing names; the toolkit wants this one outside all namespaces.
static void nameManual() {
    Q_INIT_RESOURCE(manual);
}

namespace etiquetas {

namespace {

// As sites that show such texts name their headings.
QString linkOf(const QString& heading) {
    QString link;
    for (const QChar character : heading.trimmed().toLower()) {
        if (character.isSpace()) {
            link += u'-';
        } else if (character.isLetterOrNumber() || character == u'-' || character == u'_') {
            link += character;
        }
    }
    return link;
}

} // namespace

ManualView::ManualView(QWidget* parent) : QTextBrowser(parent) {
    nameManual();
    setObjectName(QStringLiteral("manual"));
    setWindowTitle(QStringLiteral("Manual do operador"));
    setOpenLinks(false); // there are none but to headings
    connect(this, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { turnTo(link.fragment()); });
}

void ManualView::openAlone() {
    constexpr QSize wanted(900, 700); // pixels
    resize(wanted.boundedTo(screen()->availableSize()));
    show();
}

void ManualView::showEvent(QShowEvent* event) {
    if (source().isEmpty()) {
        setSource(QUrl(QStringLiteral("qrc:/manual/manual-do-operador.md")),
                  QTextDocument::MarkdownResource);
    }
    QTextBrowser::showEvent(event);
}

QVariant ManualView::loadResource(int type, const QUrl& name) {
    QVariant found = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) {
        return found;
    }
    const QImage picture = QImage::fromData(found.toByteArray());
    const int room = viewport()->width() - verticalScrollBar()->sizeHint().width() -
                     2 * static_cast<int>(document()->documentMargin());
    return picture.width() <= room ? picture
                                   : picture.scaledToWidth(room, Qt::SmoothTransformation);
}

bool ManualView::turnTo(const QString& link) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && linkOf(block.text()) == link) {
            setTextCursor(QTextCursor(block));
            const QRectF place = document()->documentLayout()->blockBoundingRect(block);
            verticalScrollBar()->setValue(static_cast<int>(place.top()));
            return true;
        }
    }
    return false;
}

} // namespace etiquetas
