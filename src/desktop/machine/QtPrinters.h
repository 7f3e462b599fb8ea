#pragma once

#include "base/Text.h"
#include "platform/Printers.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace etiquetas {

/// A printer of the machine, or one of the two built-in devices: PDF files, and the preview.
enum class Device : std::uint8_t { printer, pdf_file, preview };

/// Where a job goes.
struct PrintTarget {
    QString name;
    Device device = Device::printer;

    friend bool operator==(const PrintTarget&, const PrintTarget&) = default;
};

/// The machine's printers in its order, and the built-in devices at the end. The list is taken
/// once: a place in it always means the same printer.
class QtPrinters final : public Printers {
  public:
    /// The printers that the machine has now; none where its print system has not told them when
    /// `goes_on`, which is asked every few milliseconds, says no.
    explicit QtPrinters(const std::function<bool()>& goes_on);
    /// The printers with these device names, one of which is the default unless its name is empty.
    QtPrinters(const QStringList& machine, const QString& machine_default);

    [[nodiscard]] std::vector<Text> names() const override;
    [[nodiscard]] Text defaultName() const override;
    /// Fails where there is no such place.
    void makeCurrent(std::size_t index) override;

    [[nodiscard]] const std::vector<PrintTarget>& targets() const { return targets_; }
    /// False where the print system did not answer when it was asked for its printers.
    [[nodiscard]] bool answered() const { return answered_; }
    /// The printer that the next job goes to; the default one at first.
    [[nodiscard]] const PrintTarget& current() const { return targets_[current_]; }
    /// How often a printer has been made the current one.
    [[nodiscard]] std::size_t selections() const { return selections_; }

  private:
    struct Machine {
        QStringList names;
        QString default_name;
        bool answered = true;
    };

    explicit QtPrinters(const Machine& machine);
    [[nodiscard]] static Machine ask(const std::function<bool()>& goes_on);

    std::vector<PrintTarget> targets_;
    bool answered_ = true;
    std::size_t default_ = 0;
    std::size_t current_ = 0;
    std::size_t selections_ = 0;
};

} // namespace etiquetas
