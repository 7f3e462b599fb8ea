// The least that a program with a window costs up to its first frame.

#include "bench/FirstFrame.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const etiquetas::FirstFrame first_frame;
    QMainWindow window;
    window.resize(750, 671); // as large as the Workbench
    window.show();
    return QApplication::exec();
}
