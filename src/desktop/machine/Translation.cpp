#include "desktop/machine/Translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace etiquetas {

void speakPortuguese() {
    auto texts = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (texts->load(QStringLiteral("qtbase_pt_BR"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(texts.release()); // the application is its parent
    }
}

} // namespace etiquetas
