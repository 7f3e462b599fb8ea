#include "workbench/Pedido.h"

#include "base/CodePage.h"
#include "base/Failure.h"
#include "base/Numbers.h"
#include "config/Settings.h"
#include "model/FrmPadrao.h"
#include "orders/OrderFamily.h"
#include "orders/OrderFormat.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "workbench/LabelKinds.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_set>

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

// The order's file as text; empty, and reported, where there is nothing to read. The upper-case
// name finds the file whatever the case of its own name.
Text readOrder(FrmPadrao& form, TextView name) {
    const Files& files = form.platform.files;
    const auto path = findFile(files, form.lblpath.caption, upperCase(name));
    if (!path) {
        warn(form, u"O arquivo não existe!");
        return {};
    }
    const auto bytes = bytesOf(form, *path);
    if (bytes && bytes->empty()) {
        warn(form, u"O arquivo está em branco!");
    }
    return fromCodePage1252(bytes.value_or(std::string()));
}

void showBanner(FrmPadrao& form, TextView header) {
    const Text upper = upperCase(header);
    const bool brisako =
        upper.find(u"BRISA KO") != Text::npos || upper.find(u"BRISAKO") != Text::npos;
    form.LBLBRISAKO.caption = brisako ? u"BRISA KO" : u"LUMIRA";
    form.LBLBRISAKO.visible = true;
}

// Takes the lines of an order to `List1` and its item keys to the item list, each key once.
class OrderTaker {
  public:
    OrderTaker(FrmPadrao& form, const OrderFamily& family)
        : form_(form), family_(family), items_(form.*family.items) {}

    void take(TextView order) {
        form_.List1.clear();
        items_.clear();
        for (const TextView line : linesOf(order)) {
            if (counter_ == 0) {
                showBanner(form_, line);
            }
            ++counter_;
            if (counter_ > 1 && !isBlank(line)) {
                takeItemLine(line);
            }
        }
    }

    /// Numbers of the lines that were too short for their item key, the header being line 1.
    [[nodiscard]] const std::vector<std::int32_t>& shortLines() const { return short_lines_; }

  private:
    void takeItemLine(TextView line) {
        Text reduced = withReducedBlanks(line);
        const OrderLine fields(reduced);
        if (!isNumeric(fields[0])) {
            return;
        }
        const auto key = itemKey(fields, family_.key);
        if (!key) {
            short_lines_.push_back(counter_);
            return;
        }
        if (known_keys_.insert(*key).second) {
            items_.entries.push_back(*key);
        }
        form_.List1.entries.push_back(std::move(reduced));
    }

    FrmPadrao& form_;
    const OrderFamily& family_;
    ListField& items_;
    std::int32_t counter_ = 0;
    std::unordered_set<Text> known_keys_;
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
    const Text order = readOrder(form, name);
    if (order.empty()) {
        return;
    }
    OrderTaker taker(form, *family);
    taker.take(order);
    loadFirstItem(form, *family);
    lockGrades(form);
    reportShortLines(form, name, taker.shortLines());
}

std::optional<Text> loadedOrderPath(const FrmPadrao& form) {
    const Text name = firstOfFamily(form, orderFamily(form.TipoArquivo));
    return name.empty() ? std::nullopt
                        : findFile(form.platform.files, form.lblpath.caption, upperCase(name));
}

} // namespace etiquetas
