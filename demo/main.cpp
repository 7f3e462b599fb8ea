// Prints an item of every label kind for both banners as an operator would, by keys on the real
// windows, and leaves pictures of the windows and the written jobs in a folder. With "--display" it
// only tells by its exit code whether windows can be shown.

#include "demo/Operator.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QMessageBox>
#include <QPixmap>

#include <array>
#include <cstdio>
#include <exception>

namespace {

using etiquetas::Desktop;
using etiquetas::DialogWindow;
using etiquetas::Operator;

// A label kind: what its jobs are called, and its position in the list.
struct Kind {
    const char* name;
    int position;
};

constexpr std::array<Kind, 4> kinds{{
    {"frente-de-caixa", 0},
    {"corrugado", 1},
    {"acessorio", 2},
    {"oculta", 3},
}};

void report(const QString& path) {
    std::printf("%s\n", qPrintable(path));
}

class Demonstration {
  public:
    Demonstration(const QString& installation, const QDir& output)
        : jobs_(installation + QStringLiteral("/impressos")), output_(output),
          desktop_(installation) {}

    int run() {
        desktop_.start();
        operator_.sitAt(desktop_);
        pictureDialog(QStringLiteral("cmd_parametro"));
        bool all_printed = true;
        for (const QString& order : {QStringLiteral("1400050831"), QStringLiteral("1500031742")}) {
            for (const Kind& kind : kinds) {
                all_printed &= printFirstItem(order, kind);
            }
            all_printed &= printWithPhotograph(order);
        }
        picturePreview(QStringLiteral("1400050831"));
        tellBoxes();
        return all_printed ? 0 : 1;
    }

  private:
    void load(const QString& order, const Kind& kind) {
        operator_.choose(QStringLiteral("cmbtipo"), kind.position);
        operator_.type(QStringLiteral("txtarquivo"), order);
        operator_.press(Qt::Key_Return);
    }

    bool printFirstItem(const QString& order, const Kind& kind) {
        load(order, kind);
        const QString name = QStringLiteral("%1-%2").arg(QLatin1String(kind.name), order);
        takePicture(desktop_.window(), QStringLiteral("janela-%1.png").arg(name));
        pictureDialog(QStringLiteral("cmd_calibra"));
        return print(name);
    }

    // Opens a dialog by its command, and closes it again.
    void pictureDialog(const QString& command) {
        operator_.click(command);
        for (DialogWindow* const dialog : desktop_.dialogs()) {
            if (dialog->isVisible()) {
                operator_.turnTo(dialog->objectName());
                takePicture(*dialog, QStringLiteral("dialogo-%1.png").arg(dialog->objectName()));
                operator_.press(Qt::Key_Escape);
            }
        }
        operator_.sitAt(desktop_);
    }

    // The list of kinds does not offer this one, and leaving the list with it would hide the
    // command: the text is set on the list directly.
    bool printWithPhotograph(const QString& order) {
        load(order, kinds.front());
        operator_.widget<QComboBox>(QStringLiteral("cmbtipo"))
            .setEditText(QStringLiteral("Frente de Caixa100x40"));
        return print(QStringLiteral("frente-100x40-%1").arg(order));
    }

    // A job on no paper, with the question that stands while it is looked at.
    void picturePreview(const QString& order) {
        load(order, kinds.back());
        const QString printers = QStringLiteral("CMBPRINTER");
        const auto& list = operator_.widget<QComboBox>(printers);
        operator_.choose(printers, list.findText(QStringLiteral("Pré-visualização")));
        operator_.beforeAnswer([this] {
            takePicture(desktop_.preview(), QStringLiteral("pre-visualizacao.png"));
            if (QWidget* const box = QApplication::activeModalWidget()) {
                takePicture(*box, QStringLiteral("pergunta.png"));
            }
        });
        operator_.click(QStringLiteral("cmd_printacessorio"));
        operator_.beforeAnswer([] {});
    }

    // Presses the Print command, and keeps the one job that it wrote.
    bool print(const QString& name) {
        operator_.click(QStringLiteral("cmd_printacessorio"));
        const QStringList written = jobs_.entryList({QStringLiteral("*.pdf")}, QDir::Files);
        const QString path = output_.filePath(name + QStringLiteral(".pdf"));
        if (written.size() != 1 || !QFile::rename(jobs_.filePath(written.first()), path)) {
            std::fprintf(stderr, "no job for %s\n", qPrintable(name));
            return false;
        }
        report(path);
        return true;
    }

    void takePicture(QWidget& window, const QString& name) {
        const QString path = output_.filePath(name);
        QCoreApplication::processEvents(); // texts that have just changed take their room
        if (window.grab().save(path)) {
            report(path);
        }
    }

    void tellBoxes() {
        for (const auto& box : operator_.takeBoxes()) {
            report(QStringLiteral("[%1] %2").arg(box.title, QString(box.text).replace('\n', ' ')));
        }
    }

    QDir jobs_;
    QDir output_;
    Operator operator_;
    Desktop desktop_;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc == 2 && QApplication::arguments().last() == QStringLiteral("--display")) {
        return 0; // without a display the toolkit has ended the program before
    }
    if (argc != 3) {
        std::fprintf(stderr, "usage: etiquetas_demo INSTALLATION OUTPUT | --display\n");
        return 2;
    }
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QDir output(QString::fromLocal8Bit(argv[2]));
    output.mkpath(QStringLiteral("."));
    try {
        return Demonstration(QString::fromLocal8Bit(argv[1]), output).run();
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "etiquetas_demo: %s\n", fault.what());
        return 1;
    }
}
