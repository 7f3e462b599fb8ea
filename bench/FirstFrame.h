#pragma once

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

#include <cstdlib>

namespace etiquetas {

/// Ends the process as soon as its main window has been painted once.
class FirstFrame final : public QObject {
  public:
    FirstFrame() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && qobject_cast<QMainWindow*>(watched) != nullptr) {
            // Once the frame that is begun is on the screen.
            QTimer::singleShot(0, [] { std::_Exit(0); });
        }
        return false;
    }
};

} // namespace etiquetas
