#pragma once

#include <QLocalServer>
#include <QString>

#include <functional>
#include <memory>
#include <utility>

namespace etiquetas {

/// Keeps a second program of the same user on this machine off a folder: it calls the first one to
/// the front instead. Other stations that use the same folder over a network are not kept off.
class SingleInstance {
  public:
    /// Takes the folder, unless a program has it that answers: that one is called then.
    explicit SingleInstance(const QString& folder);

    /// True where this program is the one of the folder.
    [[nodiscard]] bool isFirst() const { return server_ != nullptr; }
    /// What runs when another program calls this one.
    void onCalled(std::function<void()> called) { called_ = std::move(called); }

  private:
    [[nodiscard]] bool callFirst() const;
    void listen();

    QString name_;
    std::unique_ptr<QLocalServer> server_;
    std::function<void()> called_ = [] {};
};

} // namespace etiquetas
