#include "desktop/console/PrintRun.h"

#include "base/Failure.h"
#include "base/Numbers.h"
#include "desktop/console/ConsoleText.h"
#include "desktop/console/OrderAtConsole.h"
#include "desktop/console/Progress.h"
#include "desktop/machine/QtText.h"
#include "model/LabelCounts.h"
#include "workbench/Impressao.h"

#include <QDir>
#include <QJsonObject>

#include <algorithm>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// A text that is no number prints nothing.
int numberOf(const Text& text) {
    int number = 0;
    skip([&] { number = toInteger16(text); });
    return std::max(number, 0);
}

int pairsOf(const FrmPadrao& form) {
    int pairs = 0;
    for (const TextField& quantity : form.txtnumero) {
        pairs += isBlank(quantity.text) ? 0 : numberOf(quantity.text);
    }
    return pairs;
}

// Labels that the item on the Workbench is to have.
int labelsOf(const FrmPadrao& form) {
    if (!form.Frame1.visible) {
        const int first = numberOf(form.cmb_vol1.text);
        return first == 0 ? 0 : numberOf(form.cmb_vol2.text) - first + 1;
    }
    if (form.cmbtipo.text == tipo::acessorio) {
        return numberOf(form.TXTPARES.text);
    }
    return pairsOf(form) * (form.cmbtipo.text == tipo::oculta ? hidden_labels_per_pair : 1);
}

QString counted(std::size_t count, const QString& one, const QString& many) {
    return u"%1 %2"_s.arg(QString::number(count), count == 1 ? one : many);
}

} // namespace

int PrintRun::run() {
    int code = exit_code::failure;
    try {
        code = printOrder();
    } catch (const Failure& failure) {
        tell(toQString(failure.description()));
    }
    machine_.surface().dropJob();
    if (options_.json) {
        print(told_);
    }
    machine_.end(code);
    return code;
}

int PrintRun::printOrder() {
    if (!choosePrinter()) {
        return exit_code::wrong_use;
    }
    if (!load() || !findChosenItems()) {
        return exit_code::failure;
    }
    for (const int number : chosen_) {
        printItem(number);
        if (machine_.boxes().hasOpenQuestion()) {
            return exit_code::question;
        }
    }
    if (reported_ == 0) {
        tell(u"Nenhum dos itens tem esses volumes."_s);
        return exit_code::failure;
    }
    return all_printed_ ? exit_code::success : exit_code::failure;
}

bool PrintRun::choosePrinter() {
    if (options_.printer.isEmpty()) {
        return true;
    }
    const std::vector<PrintTarget>& printers = machine_.printers().targets();
    const auto place =
        std::find_if(printers.begin(), printers.end(), [this](const PrintTarget& printer) {
            return printer.name == options_.printer && printer.device != Device::preview;
        });
    if (place == printers.end()) {
        tell(u"A impressora \"%1\" não existe; veja --listar impressoras."_s.arg(options_.printer));
        return false;
    }
    machine_.form().CMBPRINTER.choose(static_cast<int>(place - printers.begin()));
    return true;
}

bool PrintRun::load() {
    taken_off_ = 0;
    is_whole_ = true;
    machine_.forgetFolders();
    return loadOrder(machine_.form(), options_.order, options_.kind);
}

bool PrintRun::findChosenItems() {
    count_ = static_cast<int>(itemsOf(machine_.form()).entries.size());
    if (options_.items.empty()) {
        options_.items = {{1, count_}};
    }
    for (const NumberRange& range : options_.items) {
        if (range.last > count_) {
            tell(u"O item %1 não existe: o pedido tem %2."_s.arg(
                QString::number(range.last),
                counted(static_cast<std::size_t>(count_), u"item"_s, u"itens"_s)));
            return false;
        }
        for (int number = range.first; number <= range.last; ++number) {
            chosen_.push_back(number);
        }
    }
    std::sort(chosen_.begin(), chosen_.end());
    chosen_.erase(std::unique(chosen_.begin(), chosen_.end()), chosen_.end());
    return true;
}

// With the first item of the list, the Print command takes the first line of the order, which is
// one of that item or of those before it. With a later one it takes a line that may be another
// item's; the order is loaded again then before the next item, so that each prints its own labels
// alone.
bool PrintRun::wholeOrderStands(int number) {
    return (is_whole_ && number > taken_off_) || load();
}

// Loads the item; false where that fails, and told.
bool PrintRun::standOn(int number) {
    try {
        if (!wholeOrderStands(number)) {
            return false;
        }
        machine_.forgetFolders(); // the item before may have been printing for long
        chooseItem(machine_.form(), number - 1 - taken_off_);
        return true;
    } catch (const Failure& failure) {
        tell(u"Item %1: %2"_s.arg(QString::number(number), toQString(failure.description())));
        return false;
    }
}

// Chooses those of the volumes that the item has; false where it has none of them.
bool PrintRun::narrowVolumes() {
    FrmPadrao& form = machine_.form();
    const std::vector<Text>& entries = form.cmb_vol1.entries;
    if (!options_.volumes || entries.empty()) {
        return !options_.volumes;
    }
    const int begin = numberOf(entries.front());
    const int first = std::max(options_.volumes->first, begin);
    const int last = std::min(options_.volumes->last, numberOf(entries.back()));
    if (first > last) {
        return false;
    }
    form.cmb_vol1.choose(first - begin);
    form.cmb_vol2.choose(last - begin);
    return true;
}

void PrintRun::printItem(int number) {
    const Progress progress(
        u"Imprimindo o item %1 de %2"_s.arg(QString::number(number), QString::number(count_)));
    if (!standOn(number)) {
        report({.number = number});
    } else if (narrowVolumes()) {
        report(pressPrint(number));
    }
}

PrintRun::Outcome PrintRun::pressPrint(int number) {
    FrmPadrao& form = machine_.form();
    const int place = itemsOf(form).position;
    Outcome outcome{
        .number = number, .item = toQString(itemsOf(form).text), .expected = labelsOf(form)};
    cmd_printacessorio_click(form);
    // A command that ends early leaves its job open, which the next item would be printed with.
    machine_.surface().dropJob();
    const auto job = machine_.takeJob();
    const bool closed = machine_.boxes().takeClosing();
    if (job && job->delivered) {
        outcome.labels = static_cast<int>(job->labels);
        outcome.pages = job->pages;
        outcome.where =
            job->file.isEmpty() ? job->target.name : QDir::toNativeSeparators(job->file);
    }
    outcome.printed = closed && outcome.labels > 0 && outcome.labels == outcome.expected;
    if (closed && options_.confirms) {
        takePrinted(place);
    }
    return outcome;
}

void PrintRun::takePrinted(int place) {
    if (place == 0) {
        ++taken_off_;
    } else {
        is_whole_ = false;
    }
}

void PrintRun::report(const Outcome& outcome) {
    ++reported_;
    all_printed_ = all_printed_ && outcome.printed;
    told_.append(QJsonObject{{u"item"_s, outcome.number},
                             {u"chave"_s, outcome.item},
                             {u"etiquetas"_s, outcome.labels},
                             {u"paginas"_s, static_cast<int>(outcome.pages)},
                             {u"destino"_s, outcome.where},
                             {u"impresso"_s, outcome.printed}});
    if (!outcome.printed) { // why, a box has told where the command ended early
        tell(u"O item %1 não foi impresso por inteiro: %2 de %3."_s.arg(
            QString::number(outcome.number), QString::number(outcome.labels),
            counted(static_cast<std::size_t>(outcome.expected), u"etiqueta"_s, u"etiquetas"_s)));
    }
    if (!options_.json && outcome.labels > 0) {
        print(u"%1: %2: %3, %4, %5"_s.arg(
            QString::number(outcome.number), outcome.item,
            counted(static_cast<std::size_t>(outcome.labels), u"etiqueta"_s, u"etiquetas"_s),
            counted(outcome.pages, u"página"_s, u"páginas"_s), outcome.where));
    }
}

} // namespace etiquetas
