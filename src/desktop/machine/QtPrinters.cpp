#include "desktop/machine/QtPrinters.h"

#include "base/Failure.h"
#include "desktop/machine/Apart.h"
#include "desktop/machine/QtText.h"

#include <QPrinterInfo>

#include <algorithm>
#include <iterator>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// A queue of the machine may be called like a built-in device; a printer is found by its name, so
// that the device then needs another one.
PrintTarget builtIn(Device device, const QString& name, const QString& where,
                    const QStringList& machine) {
    return {machine.contains(name) ? u"%1 (%2)"_s.arg(name, where) : name, device};
}

} // namespace

std::future<MachinePrinters> askForPrinters() {
    return begunApart([] {
        return MachinePrinters{.names = QPrinterInfo::availablePrinterNames(),
                               .default_name = QPrinterInfo::defaultPrinterName()};
    });
}

MachinePrinters toldPrinters(std::future<MachinePrinters> asked,
                             const std::function<bool()>& goes_on) {
    return awaited(std::move(asked), goes_on).value_or(MachinePrinters{.answered = false});
}

QtPrinters::QtPrinters(const std::function<bool()>& goes_on) {
    take(toldPrinters(askForPrinters(), goes_on));
}

QtPrinters::QtPrinters(const QStringList& machine, const QString& machine_default) {
    take({.names = machine, .default_name = machine_default});
}

void QtPrinters::take(const MachinePrinters& machine) {
    answered_ = machine.answered;
    targets_.clear();
    std::transform(machine.names.begin(), machine.names.end(), std::back_inserter(targets_),
                   [](const QString& name) { return PrintTarget{name}; });
    const auto place = machine.names.indexOf(machine.default_name);
    default_ = place < 0 ? targets_.size() : static_cast<std::size_t>(place); // else PDF files
    current_ = default_;
    targets_.push_back(builtIn(Device::pdf_file, u"PDF"_s, u"impressos"_s, machine.names));
    targets_.push_back(builtIn(Device::preview, u"Pré-visualização"_s, u"janela"_s, machine.names));
}

std::vector<Text> QtPrinters::names() const {
    std::vector<Text> names;
    std::transform(targets_.begin(), targets_.end(), std::back_inserter(names),
                   [](const PrintTarget& target) { return toText(target.name); });
    return names;
}

Text QtPrinters::defaultName() const {
    return toText(targets_[default_].name);
}

void QtPrinters::makeCurrent(std::size_t index) {
    if (index >= targets_.size()) {
        throw subscriptOutOfRange();
    }
    current_ = index;
    ++selections_;
}

} // namespace etiquetas
