#include "desktop/machine/QtPrinters.h"

#include "base/Failure.h"
#include "desktop/machine/QtText.h"

#include <QPrinterInfo>

#include <algorithm>
#include <iterator>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// A queue of the machine may be called "PDF" too; a printer is found by its name, so that the
// built-in device then needs another one.
QString builtInName(const QStringList& machine) {
    const QString name = u"PDF"_s;
    return machine.contains(name) ? u"PDF (impressos)"_s : name;
}

} // namespace

QtPrinters::QtPrinters()
    : QtPrinters(QPrinterInfo::availablePrinterNames(), QPrinterInfo::defaultPrinterName()) {}

QtPrinters::QtPrinters(const QStringList& machine, const QString& machine_default) {
    std::transform(machine.begin(), machine.end(), std::back_inserter(targets_),
                   [](const QString& name) { return PrintTarget{name}; });
    targets_.push_back({builtInName(machine), true});
    const auto place = machine.indexOf(machine_default);
    default_ = place < 0 ? targets_.size() - 1 : static_cast<std::size_t>(place);
    current_ = default_;
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
