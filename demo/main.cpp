// Prints the first two items of a sample order as an operator would, by keys on the real window,
// and leaves pictures of the window and the written jobs in a folder.

#include "demo/Operator.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>

namespace {

using etiquetas::Desktop;
using etiquetas::Operator;

constexpr int hidden_labels = 3; // position of "Oculta" among the label kinds

void report(const QString& path) {
    std::printf("%s\n", qPrintable(path));
}

class Demonstration {
  public:
    Demonstration(const QString& installation, const QDir& output)
        : installation_(installation), output_(output), desktop_(installation) {}

    int run() {
        desktop_.start();
        operator_.sitAt(desktop_);
        operator_.choose(QStringLiteral("cmbtipo"), hidden_labels);
        operator_.type(QStringLiteral("txtarquivo"), QStringLiteral("1400050831"));
        operator_.press(Qt::Key_Return);
        takePicture(QStringLiteral("janela-1-pedido.png"));
        operator_.type(QStringLiteral("txtnumero(0)"), QStringLiteral("3"));
        operator_.press(Qt::Key_Return);
        operator_.click(QStringLiteral("cmd_printacessorio"));
        takePicture(QStringLiteral("janela-2-proximo-item.png"));
        operator_.click(QStringLiteral("cmd_printacessorio"));
        takePicture(QStringLiteral("janela-3-mais-um-item.png"));
        tellBoxes();
        return takeJobs();
    }

  private:
    void takePicture(const QString& name) {
        const QString path = output_.filePath(name);
        if (desktop_.window().grab().save(path)) {
            report(path);
        }
    }

    void tellBoxes() {
        for (const auto& box : operator_.takeBoxes()) {
            report(QStringLiteral("[%1] %2").arg(box.title, QString(box.text).replace('\n', ' ')));
        }
    }

    int takeJobs() {
        const QDir jobs(installation_ + QStringLiteral("/impressos"));
        const QStringList names =
            jobs.entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Time | QDir::Reversed);
        for (qsizetype i = 0; i < names.size(); ++i) {
            const QString path = output_.filePath(QStringLiteral("etiquetas-%1.pdf").arg(i + 1));
            QFile::copy(jobs.filePath(names[i]), path);
            report(path);
        }
        return names.isEmpty() ? 1 : 0;
    }

    QString installation_;
    QDir output_;
    Operator operator_;
    Desktop desktop_;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    if (argc != 3) {
        std::fprintf(stderr, "usage: etiquetas_demo INSTALLATION OUTPUT\n");
        return 2;
    }
    const QDir output(QString::fromLocal8Bit(argv[2]));
    output.mkpath(QStringLiteral("."));
    return Demonstration(QString::fromLocal8Bit(argv[1]), output).run();
}
