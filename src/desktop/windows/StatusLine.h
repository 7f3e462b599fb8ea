#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <utility>

class QLabel;
class QPushButton;

namespace etiquetas {

class ElidedLabel;

enum class StatusMood : std::uint8_t { plain, done, warning, failed };

/// What the foot of a window tells.
struct StatusText {
    QString file;     // of the order, shortened where it is too long
    QString order;    // and its item
    QString happened; // last
    StatusMood mood = StatusMood::plain;
    QString pdf; // path of the file that can be opened; empty where there is none

    friend bool operator==(const StatusText&, const StatusText&) = default;
};

/// The foot of the window: the order above, what happened last below, coloured by how it went, and
/// the buttons that open a file that was written. They don't take the focus from a field by a
/// click.
class StatusLine final : public QWidget {
    Q_OBJECT

  public:
    StatusLine();

    void tell(const StatusText& text);
    /// What opens a file or folder.
    void onOpen(std::function<void(const QString& path)> open) { open_ = std::move(open); }

  private:
    ElidedLabel* file_ = nullptr;
    QLabel* order_ = nullptr;
    ElidedLabel* happened_ = nullptr;
    QPushButton* open_pdf_ = nullptr;
    QPushButton* open_folder_ = nullptr;
    StatusText shown_;
    std::function<void(const QString& path)> open_ = [](const QString&) {};
};

} // namespace etiquetas
