#pragma once

#include "base/Text.h"
#include "platform/Printers.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace etiquetas {

/// Where a job goes: to a printer of the machine, or into a file of the built-in device.
struct PrintTarget {
    QString name;
    bool built_in = false;

    friend bool operator==(const PrintTarget&, const PrintTarget&) = default;
};

/// The machine's printers in its order, and the built-in device that writes PDF files at the end.
/// The list is taken once: a place in it always means the same printer.
class QtPrinters final : public Printers {
  public:
    /// The printers that the machine has now.
    QtPrinters();
    /// The printers with these device names, one of which is the default unless its name is empty.
    QtPrinters(const QStringList& machine, const QString& machine_default);

    [[nodiscard]] std::vector<Text> names() const override;
    [[nodiscard]] Text defaultName() const override;
    /// Fails where there is no such place.
    void makeCurrent(std::size_t index) override;

    /// The printer that the next job goes to; the default one at first.
    [[nodiscard]] const PrintTarget& current() const { return targets_[current_]; }
    /// How often a printer has been made the current one.
    [[nodiscard]] std::size_t selections() const { return selections_; }

  private:
    std::vector<PrintTarget> targets_;
    std::size_t default_ = 0;
    std::size_t current_ = 0;
    std::size_t selections_ = 0;
};

} // namespace etiquetas
