#include "workbench/Pedido.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "base/Numbers.h"
#include "config/Settings.h"
#include "model/FrmPadrao.h"
#include "orders/OrderFamily.h"
#include "orders/OrderFormat.h"
#include "orders/OrderIndex.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "workbench/LabelKinds.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace etiquetas {

namespace {

// An unknown kind keeps the family of the last known one, and nothing can be printed.
void chooseFamily(FrmPadrao& form) {
    const LabelKind* const kind = labelKind(form.cmbtipo.text);
    if (kind == nullptr || kind->family.empty()) {
        form.cmd_printacessorio.visible = false;
    } else {
        form.TipoArquivo = kind->family;
    }
}

void ensureFolder(FrmPadrao& form) {
    const Files& files = form.platform.files;
    if (!files.folderExists(form.lblpath.caption)) {
        form.lblpath.caption = files.programFolder();
    }
}

void listFiles(FrmPadrao& form) {
    const Text pattern = u"*" + Text(trimmed(form.txtarquivo.text)) + u"*.txt";
    auto names = form.platform.files.filesIn(form.lblpath.caption);
    std::erase_if(names, [&](const Text& name) { return !matchesPattern(name, pattern); });
    std::sort(names.begin(), names.end(), sortsBefore);
    form.filelist.entries = std::move(names);
}

// The first listed file of the family; empty where there is none.
Text firstOfFamily(const FrmPadrao& form, const OrderFamily* family) {
    for (const Text& name : form.filelist.entries) {
        if (family != nullptr && upperCase(name).find(family->word) != Text::npos) {
            return name;
        }
    }
    return {};
}

void reportNotFound(FrmPadrao& form, Text message) {
    form.platform.messages.show({std::move(message)});
    form.cmd_printacessorio.visible = false;
}

void showPanel(FrmPadrao& form, const OrderFamily& family) {
    for (Panel FrmPadrao::*const panel : {&FrmPadrao::Frame1, &FrmPadrao::Frame3}) {
        (form.*panel).visible = panel == family.panel;
    }
    (form.*family.panel).caption = family.caption;
    form.LBLBRISAKO.visible = false;
}

void warn(FrmPadrao& form, Text message) {
    form.platform.messages.show(
        {.text = std::move(message), .symbol = Symbol::exclamation, .title = u"ATENÇÃO!!!"});
}

// Nothing, and reported, where the file is there but can't be read: without the permission, say, or
// while another program keeps it locked.
std::optional<std::string> bytesOf(FrmPadrao& form, TextView path) {
    try {
        return form.platform.files.read(path);
    } catch (const Failure& failure) {
        warn(form, u"O arquivo não pôde ser lido!\n" + failure.description());
        return std::nullopt;
    }
}

// The path of a listed file. Its name is told in upper case, which another file may have as it
// stands: that one is taken then.
Text pathOf(const FrmPadrao& form, TextView name) {
    const auto& listed = form.filelist.entries;
    const bool upper_is_listed =
        std::find(listed.begin(), listed.end(), upperCase(name)) != listed.end();
    return joined(form.platform.files, form.lblpath.caption,
                  upper_is_listed ? upperCase(name) : Text(name));
}

// The bytes of the order's file; empty, and reported, where there is nothing to read.
std::string readOrder(FrmPadrao& form, TextView name) {
    const Text path = pathOf(form, name);
    if (!form.platform.files.fileExists(path)) {
        warn(form, u"O arquivo não existe!");
        return {};
    }
    auto bytes = bytesOf(form, path);
    if (bytes && bytes->empty()) {
        warn(form, u"O arquivo está em branco!");
    }
    return std::move(bytes).value_or(std::string());
}

void showBanner(FrmPadrao& form, TextView header) {
    const Text upper = upperCase(header);
    const bool brisako =
        upper.find(u"BRISA KO") != Text::npos || upper.find(u"BRISAKO") != Text::npos;
    form.LBLBRISAKO.caption = brisako ? u"BRISA KO" : u"LUMIRA";
    form.LBLBRISAKO.visible = true;
}

// Plain digits are by far the most of the quantities.
bool isQuantity(std::string_view bytes) {
    constexpr std::size_t most_plain = 15;
    const std::string_view digits = trimmed(bytes);
    const bool plain =
        !digits.empty() && digits.size() <= most_plain &&
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    return plain || isNumeric(fromCodePage1252(bytes));
}

// Takes the lines of an order to `List1` and its item keys to the item list, each key once. The
// item lines move together at the front of the bytes that they came in.
class OrderTaker {
  public:
    OrderTaker(FrmPadrao& form, const OrderFamily& family, std::string order)
        : form_(form), family_(family), items_(form.*family.items), bytes_(std::move(order)) {}

    void take() {
        form_.List1.clear();
        items_.clear();
        LineCutter cutter(bytes_);
        while (const auto line = cutter.next()) {
            if (counter_ == 0) {
                showBanner(form_, fromCodePage1252(*line));
            }
            ++counter_;
            if (counter_ > 1 && !trimmed(*line).empty()) {
                takeItemLine(*line);
            }
        }
        form_.List1.entries.take(std::move(bytes_), std::move(ends_), family_.index_bytes,
                                 std::move(index_));
    }

    /// Numbers of the lines that were too short for their item key, the header being line 1.
    [[nodiscard]] const std::vector<std::int32_t>& shortLines() const { return short_lines_; }

  private:
    void takeItemLine(std::string_view line) {
        const std::string_view reduced = movedTogether(line);
        const OrderBytes fields(reduced);
        if (!isQuantity(fields[0])) {
            return;
        }
        if (!hasKey(fields, family_.key)) {
            short_lines_.push_back(counter_);
            return;
        }
        const auto number = static_cast<LineIndex::Line>(ends_.size());
        const LineIndex::Line first = family_.index(index_, number, fields);
        ends_.push_back(end() + reduced.size());
        if (isNewKey(number, first, fields)) {
            items_.entries.push_back(itemKey(fields, family_.key));
        }
        last_taken_ = fields;
    }

    // The line with its blanks reduced, right behind those that were taken.
    std::string_view movedTogether(std::string_view line) {
        char* const target = bytes_.data() + end();
        return {target, copyReduced(line, target)};
    }

    [[nodiscard]] std::size_t end() const { return ends_.empty() ? 0 : ends_.back(); }

    [[nodiscard]] OrderBytes taken(LineIndex::Line number) const {
        const std::size_t start = number == 0 ? 0 : ends_[number - 1];
        return OrderBytes(std::string_view(bytes_).substr(start, ends_[number] - start));
    }

    // Keys that differ in the blanks at the ends of their parts have the same first line. Mostly
    // the lines of an item stand one after the other.
    bool isNewKey(LineIndex::Line number, LineIndex::Line first, const OrderBytes& line) {
        if (first == number) {
            return true;
        }
        if (sameKey(last_taken_, line, family_.key) || sameKey(taken(first), line, family_.key)) {
            return false;
        }
        const LineIndex::Hash key = keyHash(line, family_.key);
        auto others = other_keys_.linesOf(key, [](LineIndex::Line) { return false; });
        for (; others.line() != LineIndex::none; others.next()) {
            if (sameKey(taken(others.line()), line, family_.key)) {
                return false;
            }
        }
        other_keys_.add(key, number);
        return true;
    }

    FrmPadrao& form_;
    const OrderFamily& family_;
    ListField& items_;
    std::string bytes_;
    std::vector<std::size_t> ends_; // of the item lines that were taken
    LineIndex index_;
    OrderBytes last_taken_;
    LineIndex other_keys_; // lines whose key is not that of the first line of their item
    std::int32_t counter_ = 0;
    std::vector<std::int32_t> short_lines_;
};

void loadFirstItem(FrmPadrao& form, const OrderFamily& family) {
    ListField& items = form.*family.items;
    if (items.entries.empty()) {
        return;
    }
    items.choose(0);
    if (family.loads_blank_item || !isBlank(items.text)) {
        family.loadItem(form);
    }
}

void lockGrades(FrmPadrao& form) {
    form.txtgrade1.locked = true;
    form.txtgrade2.locked = true;
    form.txttotgrade.locked = true;
}

void reportShortLines(FrmPadrao& form, TextView name, const std::vector<std::int32_t>& lines) {
    if (lines.empty()) {
        return;
    }
    constexpr std::size_t most_named = 10;
    Text numbers;
    for (std::size_t i = 0; i < std::min(lines.size(), most_named); ++i) {
        numbers.append(i == 0 ? u"" : u", ").append(numberText(lines[i]));
    }
    numbers.append(lines.size() > most_named ? u"..." : u"");
    form.platform.messages.show({.text = u"Há linhas incompletas no arquivo " + Text(name) +
                                         u", que não foram carregadas. Linhas: " + numbers,
                                 .symbol = Symbol::exclamation});
}

} // namespace

void carrega_pedido(FrmPadrao& form) {
    form.cmd_printacessorio.visible = true;
    chooseFamily(form);
    ensureFolder(form);
    listFiles(form);
    if (form.filelist.entries.empty()) {
        reportNotFound(form, u"O Pedido " + form.txtarquivo.text + u", não foi localizado em " +
                                 form.lblpath.caption);
        return;
    }
    const OrderFamily* const family = orderFamily(form.TipoArquivo);
    const Text name = firstOfFamily(form, family);
    if (name.empty()) {
        reportNotFound(form, u"O arquivo não foi localizado... ");
        return;
    }
    Files& files = form.platform.files;
    GravaIni(files, ini_section::config, config_key::order, form.txtarquivo.text,
             settingsPath(files));
    showPanel(form, *family);
    std::string order = readOrder(form, name);
    if (order.empty()) {
        return;
    }
    OrderTaker taker(form, *family, std::move(order));
    taker.take();
    loadFirstItem(form, *family);
    lockGrades(form);
    reportShortLines(form, name, taker.shortLines());
}

std::optional<Text> loadedOrderPath(const FrmPadrao& form) {
    const Text name = firstOfFamily(form, orderFamily(form.TipoArquivo));
    if (name.empty()) {
        return std::nullopt;
    }
    Text path = pathOf(form, name);
    return form.platform.files.fileExists(path) ? std::optional(std::move(path)) : std::nullopt;
}

} // namespace etiquetas
