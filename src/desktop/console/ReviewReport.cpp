#include "desktop/console/ReviewReport.h"

#include "base/Failure.h"
#include "desktop/console/ConsoleMachine.h"
#include "desktop/console/ConsoleText.h"
#include "desktop/console/OrderAtConsole.h"
#include "desktop/machine/QtText.h"
#include "review/Review.h"
#include "workbench/LabelKinds.h"
#include "workbench/Pedido.h"

#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// What programs know a kind of finding by.
struct KindName {
    FindingKind kind;
    TextView name;
};

constexpr std::array<KindName, 17> kind_names{{
    {FindingKind::short_line, u"linha-curta"},
    {FindingKind::unknown_width, u"largura-desconhecida"},
    {FindingKind::quantity, u"quantidade"},
    {FindingKind::item_not_found, u"item-nao-encontrado"},
    {FindingKind::code_missing, u"sem-codigo"},
    {FindingKind::colour_missing, u"sem-cor"},
    {FindingKind::barcode_missing, u"sem-codigo-de-barras"},
    {FindingKind::barcode_length, u"tamanho-do-codigo-de-barras"},
    {FindingKind::barcode_characters, u"caracteres-do-codigo-de-barras"},
    {FindingKind::check_digit, u"digito-verificador"},
    {FindingKind::codes_differ, u"dois-codigos"},
    {FindingKind::size_without_slot, u"tamanho-demais"},
    {FindingKind::volumes, u"volumes"},
    {FindingKind::text_broken, u"texto-quebrado"},
    {FindingKind::text_shrunk, u"texto-reduzido"},
    {FindingKind::text_lost, u"texto-perdido"},
    {FindingKind::photograph_missing, u"sem-fotografia"},
}};

QString nameOf(FindingKind kind) {
    const auto* const row = std::find_if(kind_names.begin(), kind_names.end(),
                                         [&](const KindName& known) { return known.kind == kind; });
    return row == kind_names.end() ? QString() : toQString(row->name);
}

// A finding, and the label kinds that it concerns.
struct Reported {
    QString file;
    Finding finding;
    QStringList kinds;
};

class Report {
  public:
    explicit Report(const ConsoleOptions& options) : options_(options) {}

    int run() {
        for (const LabelKind& kind : labelKinds()) {
            const QString name = toQString(kind.name);
            if (options_.kind.isEmpty() ? kind.offered : options_.kind == name) {
                review(name);
            }
        }
        if (!any_read_) {
            if (namesNoKind()) {
                tell(u"O pedido \"%1\" não foi localizado."_s.arg(options_.order));
            }
            return exit_code::failure;
        }
        options_.json ? printObjects() : printLines();
        return reported_.empty() ? exit_code::success : exit_code::failure;
    }

  private:
    [[nodiscard]] bool namesNoKind() const { return options_.kind.isEmpty(); }

    // An order needs not have a file for each kind, unless that kind is asked for: what is told
    // while it is looked for is told then only.
    void review(const QString& kind) {
        LookingMachine machine(options_.folder, namesNoKind());
        FrmPadrao& form = machine.form();
        const auto path = orderPath(form, kind);
        if (!path) {
            return;
        }
        any_read_ = true;
        const QString file = QFileInfo(toQString(*path)).fileName();
        for (Finding& finding : reviewOrder(form, machine.measure())) {
            take(file, std::move(finding), kind);
        }
    }

    // A first item that does not load is for the review to tell of.
    [[nodiscard]] std::optional<Text> orderPath(FrmPadrao& form, const QString& kind) const {
        skip([&] { (void)loadOrder(form, options_.order, kind); });
        return loadedOrderPath(form);
    }

    // Two kinds that share a file share most findings.
    void take(const QString& file, Finding finding, const QString& kind) {
        const auto known =
            std::find_if(reported_.begin(), reported_.end(), [&](const Reported& row) {
                return row.file == file && row.finding == finding;
            });
        if (known != reported_.end()) {
            known->kinds << kind;
            return;
        }
        // After the last one of the same item.
        const auto last =
            std::find_if(reported_.rbegin(), reported_.rend(), [&](const Reported& row) {
                return row.file == file && row.finding.item == finding.item;
            });
        const auto place = last == reported_.rend() ? reported_.end() : last.base();
        reported_.insert(place, {file, std::move(finding), {kind}});
    }

    void printObjects() const {
        QJsonArray array;
        for (const Reported& row : reported_) {
            array.append(QJsonObject{{u"arquivo"_s, row.file},
                                     {u"item"_s, toQString(row.finding.item)},
                                     {u"linha"_s, static_cast<int>(row.finding.line)},
                                     {u"achado"_s, nameOf(row.finding.kind)},
                                     {u"texto"_s, toQString(row.finding.text)},
                                     {u"tipos"_s, QJsonArray::fromStringList(row.kinds)}});
        }
        print(array);
    }

    void printLines() const {
        QString file;
        QString item;
        for (const Reported& row : reported_) {
            if (row.file != file) {
                file = row.file;
                item.clear();
                print(file);
            }
            if (const QString key = toQString(row.finding.item); key != item) {
                item = key;
                print(u"  "_s + item);
            }
            const QString line =
                row.finding.line == 0 ? u"item"_s : u"linha %1"_s.arg(row.finding.line);
            print(u"    %1: %2 [%3]"_s.arg(line, toQString(row.finding.text),
                                           row.kinds.join(u", "_s)));
        }
        print(reported_.empty()       ? u"Nenhum achado."_s
              : reported_.size() == 1 ? u"1 achado."_s
                                      : u"%1 achados."_s.arg(reported_.size()));
    }

    const ConsoleOptions& options_;
    bool any_read_ = false;
    std::vector<Reported> reported_;
};

} // namespace

int reportReview(const ConsoleOptions& options) {
    return Report(options).run();
}

} // namespace etiquetas
