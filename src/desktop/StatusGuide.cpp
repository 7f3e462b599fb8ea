#include "desktop/StatusGuide.h"

#include "base/CodePage.h"
#include "desktop/machine/QtText.h"
#include "model/FrmPadrao.h"
#include "orders/OrderFamily.h"
#include "orders/OrderIndex.h"
#include "workbench/LabelKinds.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

const QString separator = u" · "_s;

QString counted(std::size_t count, const QString& one, const QString& many) {
    const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
    return brazil.toString(static_cast<qulonglong>(count)) + u' ' + (count == 1 ? one : many);
}

QString sizeOf(const EndedJob& job) {
    return counted(job.labels, u"etiqueta"_s, u"etiquetas"_s) + u", "_s +
           counted(job.pages, u"página"_s, u"páginas"_s);
}

QString queuedText(const EndedJob& job) {
    const QString deed = job.waits.isEmpty() ? u"Impresso em %1"_s : u"Em espera em %1"_s;
    const QString number = job.number == 0 ? QString() : u" (trabalho %1)"_s.arg(job.number);
    return deed.arg(job.target.name) + number + u": "_s + sizeOf(job);
}

QString standstillText(const EndedJob& job) {
    return u"a fila está parada: %1"_s.arg(job.waits);
}

QString deliveredText(const EndedJob& job) {
    switch (job.target.device) {
    case Device::printer:
        return queuedText(job);
    case Device::preview:
        return u"Na pré-visualização: %1"_s.arg(sizeOf(job));
    case Device::pdf_file:
        break;
    }
    return u"Gravado em %1: %2"_s.arg(QFileInfo(job.file).fileName(), sizeOf(job));
}

QString undeliveredText(const EndedJob& job) {
    const QString deed = job.target.device == Device::pdf_file ? u"gravado"_s : u"impresso"_s;
    return job.cancelled ? u"Cancelado: nada foi %1"_s.arg(deed)
                         : u"Não %1: %2"_s.arg(deed, job.reason);
}

QString cutOffText(const EndedJob& job) {
    return u"%1: código de barras recusado"_s.arg(
        counted(job.cut_off, u"etiqueta incompleta"_s, u"etiquetas incompletas"_s));
}

// Description and colour as in the key of its item, its size where the family has sizes, and its
// quantity.
QString lineText(const OrderLine& line, const Text& key, const OrderFamily& family) {
    static_assert(box_field::size == accessory_field::size);
    const ItemKey item(key);
    QString text = toQString(item.description) + u' ' + toQString(item.colour);
    if (family.name != family_name::corrugated) {
        text += u" tam. "_s + toQString(line[box_field::size]);
    }
    return u"%1 (qte. %2)"_s.arg(text.simplified(), toQString(line[box_field::quantity]).trimmed());
}

std::optional<std::size_t> placeOf(const Text& item, const EntryList& items) {
    const auto found = std::find(items.begin(), items.end(), item);
    return found == items.end() ? std::nullopt
                                : std::optional(static_cast<std::size_t>(found - items.begin()));
}

} // namespace

void StatusGuide::tellFolder(const QString& text, bool is_warning) {
    folder_ = text;
    folder_fails_ = is_warning;
}

void StatusGuide::jobEnded(const EndedJob& job) {
    printers_missing_ = false;
    is_printing_ = false;
    has_job_ = true;
    job_ = job;
}

const OrderFamily* StatusGuide::family() const {
    return orderFamily(form_.TipoArquivo);
}

const EntryList& StatusGuide::items() const {
    return (form_.*family()->items).entries;
}

void StatusGuide::look() {
    if (const auto read = std::exchange(read_, {}); read && family() != nullptr) {
        file_ = QFileInfo(*read).fileName();
        all_items_ = items();
        place_ = placeOf(loaded_, all_items_);
        lines_ = form_.List1.entries.size();
        taken_lines_.clear();
        has_order_ = true;
        if (!folder_fails_) {
            folder_.clear();
        }
        if (!has_job_) {
            job_.reset();
        }
    }
}

void StatusGuide::eventEnded(bool in_item_list) {
    look();
    noteTakenLine();
    const bool is_other_item = loadsOtherItem(in_item_list);
    const bool is_other_kind = std::exchange(kind_, form_.cmbtipo.text) != form_.cmbtipo.text;
    order_changed_ = has_order_ || is_other_kind;
    if (order_changed_) {
        findings_.reset();
    }
    if (order_changed_ || is_other_item) {
        printed_before_ = history_();
    }
    has_order_ = false;
    has_job_ = false;
    is_printing_ = false;
}

// The Print command takes one line off the order with each item, the one at the position of the
// item. It tells something only where that belongs to an item that has not been printed.
void StatusGuide::noteTakenLine() {
    const LineList& left = form_.List1.entries;
    const std::size_t before = std::exchange(lines_, left.size());
    if (family() == nullptr || left.size() + 1 != before) {
        return;
    }
    const std::string taken = toCodePage1252(left.removedLast());
    const OrderBytes line(taken);
    if (!hasKey(line, family()->key)) {
        return;
    }
    const Text key = itemKey(line, family()->key);
    if (placeOf(key, items())) {
        taken_lines_.append(lineText(OrderLine(left.removedLast()), key, *family()));
    }
}

// Leaving a list loads its item, unless the list is blank.
bool StatusGuide::loadsOtherItem(bool in_item_list) {
    if (family() == nullptr) {
        return false;
    }
    const Text& item = (form_.*family()->items).text;
    picked_ = toQString(item);
    const bool is_loaded = !in_item_list || has_job_ || has_order_;
    if (isBlank(item)) {
        printed_before_.clear();
    }
    if (!is_loaded || isBlank(item) || std::exchange(loaded_, item) == item) {
        return false;
    }
    place_ = placeOf(loaded_, all_items_);
    if (!has_job_) {
        job_.reset();
    }
    return true;
}

bool StatusGuide::isNotLoaded() const {
    return !file_.isEmpty() && !picked_.isEmpty() && picked_ != toQString(loaded_);
}

QString StatusGuide::doubt() const {
    if (!has_job_) {
        return u"Nenhuma etiqueta foi impressa."_s;
    }
    if (!job_->delivered) {
        return undeliveredText(*job_);
    }
    QStringList doubts;
    if (!job_->waits.isEmpty()) {
        doubts << queuedText(*job_) << standstillText(*job_);
    }
    if (job_->cut_off > 0) {
        doubts << cutOffText(*job_);
    }
    return doubts.join(separator);
}

QString StatusGuide::orderText() const {
    if (labelKind(form_.cmbtipo.text) == nullptr) {
        return u"Tipo desconhecido: \"%1\". Escolha um tipo da lista."_s.arg(
            toQString(form_.cmbtipo.text));
    }
    if (!form_.cmd_printacessorio.visible) {
        return u"Nenhum pedido carregado: digite o número e tecle Enter"_s;
    }
    return file_.isEmpty() ? u"Digite o número do pedido e tecle Enter"_s : itemText();
}

QString StatusGuide::itemText() const {
    QStringList parts;
    if (form_.LBLBRISAKO.visible) {
        parts << toQString(form_.LBLBRISAKO.caption);
    }
    if (all_items_.empty()) {
        parts << u"sem itens"_s;
    } else if (items().empty()) {
        parts << u"todos os itens impressos"_s;
    } else if (!place_) {
        parts << u"item digitado"_s;
    } else {
        parts << u"item %1 de %2"_s.arg(*place_ + 1).arg(all_items_.size());
    }
    if (!items().empty()) {
        parts << (items().size() == 1 ? u"falta 1"_s : u"faltam %1"_s.arg(items().size()));
    }
    if (findings_.value_or(0) > 0) {
        parts << counted(*findings_, u"achado (F6)"_s, u"achados (F6)"_s);
    }
    return parts.join(separator);
}

QStringList StatusGuide::happenings() const {
    QStringList told;
    if (is_printing_) {
        return {u"Imprimindo…"_s};
    }
    if (isNotLoaded()) { // what to do now is not to be cut off by what was before
        return {u"Item escolhido ainda não carregado: saia da lista com Enter"_s};
    }
    if (job_) {
        told << (job_->delivered ? deliveredText(*job_) : undeliveredText(*job_));
        if (!job_->waits.isEmpty()) {
            told << standstillText(*job_);
        }
        if (job_->cut_off > 0) {
            told << cutOffText(*job_);
        }
    }
    if (!printed_before_.isEmpty()) {
        told << u"Este item já foi "_s + printed_before_;
    }
    if (!taken_lines_.isEmpty()) {
        told << (taken_lines_.size() == 1 ? u"linha retirada: "_s : u"linhas retiradas: "_s) +
                    taken_lines_.join(u"; "_s);
    }
    if (printers_missing_) {
        told << u"O sistema de impressão não respondeu: só há PDF e pré-visualização"_s;
    }
    if (!folder_.isEmpty()) {
        told << folder_;
    }
    return told;
}

StatusMood StatusGuide::mood() const {
    if (is_printing_) {
        return StatusMood::plain;
    }
    if (isNotLoaded()) {
        return StatusMood::warning;
    }
    if (job_ && !job_->delivered) {
        return StatusMood::failed;
    }
    const bool warns = printers_missing_ || folder_fails_ || !taken_lines_.isEmpty() ||
                       !printed_before_.isEmpty() ||
                       (job_ && (job_->cut_off > 0 || !job_->waits.isEmpty()));
    if (warns) {
        return StatusMood::warning;
    }
    return job_ ? StatusMood::done : StatusMood::plain;
}

StatusText StatusGuide::text() const {
    const bool shows_file = !file_.isEmpty() && form_.cmd_printacessorio.visible;
    return {.file = shows_file ? file_ : QString(),
            .order = orderText(),
            .happened = happenings().join(separator),
            .mood = mood(),
            .pdf = job_ && !is_printing_ ? job_->file : QString()};
}

} // namespace etiquetas
