#include "desktop/console/Lists.h"

#include "desktop/console/ConsoleMachine.h"
#include "desktop/console/ConsoleText.h"
#include "desktop/console/OrderAtConsole.h"
#include "desktop/machine/Apart.h"
#include "desktop/machine/QtText.h"
#include "orders/OrderFamily.h"
#include "workbench/LabelKinds.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// A list is told in JSON by objects with these names, and as a table under the same names.
class List {
  public:
    explicit List(QStringList names) : names_(std::move(names)) {}

    void add(std::initializer_list<QJsonValue> values) {
        QJsonObject object;
        QStringList texts;
        qsizetype column = 0;
        for (const QJsonValue& value : values) {
            object.insert(names_[column++], value);
            texts << (value.isBool() ? (value.toBool() ? u"sim"_s : u"não"_s)
                                     : value.toVariant().toString());
        }
        objects_.append(object);
        rows_.push_back(std::move(texts));
    }

    void print(bool json) const {
        if (json) {
            etiquetas::print(objects_);
            return;
        }
        QStringList heading;
        for (const QString& name : names_) {
            heading << name.toUpper();
        }
        etiquetas::print(Table{heading, rows_});
    }

  private:
    QStringList names_;
    QJsonArray objects_;
    std::vector<QStringList> rows_;
};

List kinds() {
    List list({u"tipo"_s, u"arquivo"_s, u"oferecido"_s});
    for (const LabelKind& kind : labelKinds()) {
        const OrderFamily* const family =
            orderFamily(kind.family.empty() ? family_name::box : kind.family);
        list.add({toQString(kind.name), family == nullptr ? QString() : toQString(family->word),
                  kind.offered});
    }
    return list;
}

List printers() {
    const QtPrinters machine((Deadline(print_system_patience)));
    List list({u"impressora"_s, u"padrao"_s});
    for (const PrintTarget& printer : machine.targets()) {
        if (printer.device != Device::preview) { // which needs its window
            list.add({printer.name, toText(printer.name) == machine.defaultName()});
        }
    }
    return list;
}

// The number of an order, as the buyer's file names have it; empty in a name of another form.
QString numberIn(const QString& file) {
    static const QRegularExpression form(u"PEDIDO\\s*(\\w+)"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return form.match(file).captured(1);
}

// The families of order files, each once, by their words.
std::vector<TextView> familyWords() {
    std::vector<TextView> words;
    for (const LabelKind& kind : labelKinds()) {
        const OrderFamily* const family = orderFamily(kind.family);
        if (family != nullptr && std::count(words.begin(), words.end(), family->word) == 0) {
            words.push_back(family->word);
        }
    }
    return words;
}

// The files that an order is looked for among.
List orders(const QString& folder) {
    LookingMachine machine(folder);
    FrmPadrao& form = machine.form();
    const Files& files = form.platform.files;
    const Text& place = form.lblpath.caption;
    std::vector<Text> names =
        files.filesIn(files.folderExists(place) ? TextView(place) : files.programFolder());
    std::sort(names.begin(), names.end(), sortsBefore);
    List list({u"pedido"_s, u"arquivo"_s, u"nome"_s});
    const auto words = familyWords();
    for (const Text& name : names) {
        const auto word = std::find_if(words.begin(), words.end(), [&](TextView known) {
            return upperCase(name).find(known) != Text::npos;
        });
        if (word != words.end() && matchesPattern(name, u"*.txt")) {
            list.add({numberIn(toQString(name)), toQString(*word), toQString(name)});
        }
    }
    return list;
}

int listItems(const ConsoleOptions& options) {
    LookingMachine machine(options.folder);
    if (!loadOrder(machine.form(), options.order, options.kind)) {
        return exit_code::failure;
    }
    List list({u"numero"_s, u"item"_s});
    int number = 0;
    for (const Text& key : itemsOf(machine.form()).entries) {
        list.add({++number, toQString(key)});
    }
    list.print(options.json);
    return exit_code::success;
}

QString nameOf(const std::optional<Answer>& answer) {
    return !answer ? QString() : *answer == Answer::yes ? u"Sim"_s : u"Não"_s;
}

} // namespace

int listAsked(const ConsoleOptions& options) {
    switch (options.listed) {
    case Listed::kinds:
        kinds().print(options.json);
        break;
    case Listed::printers:
        printers().print(options.json);
        break;
    case Listed::orders:
        orders(options.folder).print(options.json);
        break;
    case Listed::items:
        return listItems(options);
    }
    return exit_code::success;
}

int listHistory(const ConsoleOptions& options) {
    List list({u"quando"_s, u"pedido"_s, u"tipo"_s, u"item"_s, u"etiquetas"_s, u"destino"_s,
               u"resposta"_s});
    for (const PrintedJob& job : JobHistory(options.folder).jobs(options.order)) {
        list.add({job.time.toString(Qt::ISODate), job.item.order, job.item.kind, job.item.item,
                  job.labels, job.target, nameOf(job.answer)});
    }
    list.print(options.json);
    return exit_code::success;
}

} // namespace etiquetas
