// The least that a program with a window costs up to its first frame:
//
//     etiquetas_bench_empty [WORD]     with a word in it, or with nothing

#include "bench/FirstFrame.h"

#include <QLabel>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const etiquetas::FirstFrame first_frame;
    QMainWindow window;
    window.resize(750, 671); // as large as the Workbench
    if (argc > 1) {
        window.setCentralWidget(new QLabel(QString::fromLocal8Bit(argv[1])));
    }
    window.show();
    return QApplication::exec();
}
