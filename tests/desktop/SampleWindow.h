#pragma once

#include "demo/Operator.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <optional>

namespace etiquetas::test {

/// The real window on a copy of the sample installation, and an operator at it, once it is opened.
struct SampleWindow {
    SampleWindow() {
        const QDir samples(QStringLiteral(ETIQUETAS_SAMPLES));
        const QString photograph = QStringLiteral("imagens/3104527.jpg");
        QDir(folder.path()).mkpath(QStringLiteral("imagens"));
        const QStringList names = samples.entryList(QDir::Files) << photograph;
        for (const QString& name : names) {
            QFile::copy(samples.filePath(name), folder.filePath(name));
        }
    }

    void open() {
        desktop.emplace(folder.path());
        desktop->start();
        worker.sitAt(*desktop);
        worker.takeBoxes(); // those of the start-up: faces that the machine lacks
    }

    /// Loads an order of a label kind, told by its position in the list.
    void load(int kind, const char* order) {
        worker.choose(QStringLiteral("cmbtipo"), kind);
        worker.type(QStringLiteral("txtarquivo"), QString::fromLatin1(order));
        worker.press(Qt::Key_Return);
    }

    /// Presses a command and tells the one file of labels that it wrote; empty where it wrote none
    /// or several.
    [[nodiscard]] QString writtenBy(const QString& command) {
        worker.click(command);
        const QDir written(folder.filePath(QStringLiteral("impressos")));
        const QStringList names = written.entryList(QDir::Files);
        if (names.size() != 1) {
            return {};
        }
        const QString kept = folder.filePath(QStringLiteral("job%1.pdf").arg(++jobs));
        QFile::rename(written.filePath(names.first()), kept);
        return kept;
    }

    [[nodiscard]] QByteArray settings() const {
        QFile file(folder.filePath(QStringLiteral("Varesko.ini")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    Operator worker;
    std::optional<Desktop> desktop;
    int jobs = 0;
};

} // namespace etiquetas::test
