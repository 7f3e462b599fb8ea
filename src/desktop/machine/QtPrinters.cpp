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

QtPrinters::QtPrinters(const std::function<bool()>& goes_on) : QtPrinters(ask(goes_on)) {}

QtPrinters::QtPrinters(const QStringList& machine, const QString& machine_default)
    : QtPrinters(Machine{machine, machine_default}) {}

QtPrinters::QtPrinters(const Machine& machine) : answered_(machine.answered) {
    std::transform(machine.names.begin(), machine.names.end(), std::back_inserter(targets_),
                   [](const QString& name) { return PrintTarget{name}; });
    const auto place = machine.names.indexOf(machine.default_name);
    default_ = place < 0 ? targets_.size() : static_cast<std::size_t>(place); // else PDF files
    current_ = default_;
    targets_.push_back(builtIn(Device::pdf_file, u"PDF"_s, u"impressos"_s, machine.names));
    targets_.push_back(builtIn(Device::preview, u"Pré-visualização"_s, u"janela"_s, machine.names));
}

QtPrinters::Machine QtPrinters::ask(const std::function<bool()>& goes_on) {
    const auto machine = apart(
        [] {
            return Machine{QPrinterInfo::availablePrinterNames(),
                           QPrinterInfo::defaultPrinterName()};
        },
        goes_on);
    return machine.value_or(Machine{.names = {}, .default_name = {}, .answered = false});
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
