#pragma once

#include "demo/Operator.h"

#include <QtWidgets>

#include <optional>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

/// Label kinds by their positions in the list.
enum LabelKind { frente_de_caixa, corrugado, acessorio, oculta };

/// The real window on a copy of the sample installation, and an operator at it, once it is opened.
struct SampleWindow {
    SampleWindow() {
        const QDir samples(QStringLiteral(ETIQUETAS_SAMPLES));
        const QString photograph = u"imagens/3104527.jpg"_s;
        QDir(folder.path()).mkpath(u"imagens"_s);
        const QStringList names = samples.entryList(QDir::Files) << photograph;
        for (const QString& name : names) {
            QFile::copy(samples.filePath(name), folder.filePath(name));
        }
    }

    void open() {
        forgetEarlierEnd();
        desktop.emplace(folder.path());
        desktop->openBy([](const QString&) {}); // no other program starts
        desktop->start();
        worker.sitAt(*desktop);
        worker.takeBoxes(); // those of the start-up: faces that the machine lacks
    }

    /// Loads an order of a label kind, told by its position in the list.
    void load(LabelKind kind, const char* order) {
        worker.choose(u"cmbtipo"_s, kind);
        worker.type(u"txtarquivo"_s, QString::fromLatin1(order));
        worker.press(Qt::Key_Return);
    }

    /// Waits until the order has been looked through, and what was found stands at the foot.
    void settle() const {
        while (desktop->isReviewing() && !desktop->exitCode()) {
            QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();
    }

    /// The files of labels that were written, by their paths; one that was only begun counts too.
    [[nodiscard]] QStringList jobs() const {
        QStringList paths;
        const QDir written(folder.filePath(u"impressos"_s));
        for (const QFileInfo& job : written.entryInfoList(QDir::Files | QDir::Hidden)) {
            paths << job.filePath();
        }
        return paths;
    }

    /// Presses a command, and takes away the one file of labels that it wrote; empty where it wrote
    /// none or several.
    [[nodiscard]] QString writtenBy(const QString& command) {
        worker.click(command);
        const QStringList written = jobs();
        if (written.size() != 1) {
            return {};
        }
        QString kept = folder.filePath(u"job%1.pdf"_s.arg(++kept_jobs));
        QFile::rename(written.first(), kept);
        return kept;
    }

    /// The texts of the boxes since the last call.
    [[nodiscard]] QStringList boxTexts() {
        QStringList texts;
        for (const SeenBox& box : worker.takeBoxes()) {
            texts << box.text;
        }
        return texts;
    }

    [[nodiscard]] QByteArray settings() const {
        QFile file(folder.filePath(u"Varesko.ini"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // A program that has ended keeps the boxes of the next one from standing, until the toolkit's
    // loop has run once more.
    static void forgetEarlierEnd() {
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }

    QTemporaryDir folder;
    Operator worker;
    std::optional<Desktop> desktop;
    int kept_jobs = 0;
};

} // namespace etiquetas::test
