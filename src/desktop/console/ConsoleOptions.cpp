#include "desktop/console/ConsoleOptions.h"

#include "desktop/machine/QtText.h"
#include "workbench/LabelKinds.h"

#include <QCommandLineParser>
#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace etiquetas {

using namespace Qt::StringLiterals;

namespace {

// The names of the options, as the parser is asked for them.
namespace option {
const QString order = u"pedido"_s;
const QString kind = u"tipo"_s;
const QString printer = u"impressora"_s;
const QString items = u"itens"_s;
const QString volumes = u"volumes"_s;
const QString output = u"saida"_s;
const QString yes = u"sim"_s;
const QString no = u"nao"_s;
const QString confirm = u"confirmar"_s;
const QString leave = u"sem-confirmar"_s;
const QString review = u"conferir"_s;
const QString list = u"listar"_s;
const QString history = u"historico"_s;
const QString json = u"json"_s;
const QString folder = u"pasta"_s;
const QString manual = u"manual"_s;
const QString help = u"help"_s;
const QString version = u"version"_s;
} // namespace option

struct ListedName {
    Listed listed;
    const char16_t* name;
};

constexpr std::array<ListedName, 4> listed_names{{
    {Listed::kinds, u"tipos"},
    {Listed::orders, u"pedidos"},
    {Listed::items, u"itens"},
    {Listed::printers, u"impressoras"},
}};

void addOptions(QCommandLineParser& parser) {
    parser.addOptions({
        {option::order, u"Imprime o pedido deste número."_s, u"número"_s},
        {option::kind, u"Tipo de etiqueta, como em --listar tipos."_s, u"tipo"_s},
        {option::printer, u"Impressora; sem ela, a impressora padrão."_s, u"nome"_s},
        {option::items, u"Só estes itens, como em --listar itens: 1,3-5."_s, u"números"_s},
        {option::volumes, u"Só estes volumes de \"Corrugado\": 1-40."_s, u"de-até"_s},
        {option::output, u"Pasta dos arquivos PDF em vez de \"impressos\"."_s, u"pasta"_s},
        {option::yes, u"Responde Sim às perguntas."_s},
        {option::no, u"Responde Não às perguntas."_s},
        {option::confirm, u"Responde Sim a \"A Impressão está OK\" (é o normal)."_s},
        {option::leave, u"Responde Não a \"A Impressão está OK\"."_s},
        {option::review, u"Confere o pedido sem imprimir."_s, u"pedido"_s},
        {option::list, u"Lista tipos, pedidos, itens ou impressoras."_s, u"o quê"_s},
        {option::history, u"Lista o que foi impresso, de um pedido ou de todos."_s},
        {option::json, u"Escreve em JSON, para programas."_s},
        {option::folder, u"Pasta de trabalho em vez da normal."_s, u"pasta"_s},
        {option::manual, u"Abre o manual do operador numa janela."_s},
        {{u"h"_s, option::help}, u"Mostra esta ajuda."_s},
        {{u"v"_s, option::version}, u"Mostra a versão."_s},
    });
    parser.addPositionalArgument(u"PEDIDO"_s, u"Pedido de --historico."_s, u"[PEDIDO]"_s);
}

std::optional<NumberRange> numberRange(const QString& text) {
    static const QRegularExpression form(u"^(\\d{1,6})(?:-(\\d{1,6}))?$"_s);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const int first = match.captured(1).toInt();
    const int last = match.hasCaptured(2) ? match.captured(2).toInt() : first;
    return first >= 1 && first <= last ? std::optional(NumberRange{first, last}) : std::nullopt;
}

// Reads what the parser has found, and ends at the first fault.
class Reader {
  public:
    explicit Reader(const QStringList& arguments) {
        addOptions(parser_);
        if (!parser_.parse(arguments)) {
            read_.fault = tellParserFault();
            return;
        }
        chooseTask() && takeTexts() && takeNumbers() && takeAnswers() && checkTask();
    }

    [[nodiscard]] ReadOptions read() const { return read_; }

  private:
    [[nodiscard]] bool has(const QString& name) const { return parser_.isSet(name); }

    bool fail(const QString& sentence) {
        read_.fault = sentence;
        return false;
    }

    [[nodiscard]] QString tellParserFault() const {
        const QStringList unknown = parser_.unknownOptionNames();
        return unknown.isEmpty()
                   ? u"A linha de comando não foi entendida: %1"_s.arg(parser_.errorText())
                   : u"A opção \"%1\" não existe."_s.arg(unknown.join(u"\", \""_s));
    }

    // Help comes before everything else. Listing the items of an order names one too.
    bool chooseTask() {
        struct Row {
            const QString& name;
            Task task;
        };
        const std::array<Row, 7> rows{{{option::help, Task::help},
                                       {option::version, Task::version},
                                       {option::manual, Task::manual},
                                       {option::list, Task::list},
                                       {option::review, Task::review},
                                       {option::history, Task::history},
                                       {option::order, Task::print}}};
        const auto* const asked = std::find_if(rows.begin(), rows.end(),
                                               [this](const Row& row) { return has(row.name); });
        if (asked == rows.end()) {
            return checkWindow();
        }
        read_.options.task = asked->task;
        return true;
    }

    // The window takes its folder alone.
    bool checkWindow() {
        const QStringList names = parser_.optionNames();
        const bool folder_alone = std::all_of(
            names.begin(), names.end(), [](const QString& name) { return name == option::folder; });
        return folder_alone ||
               fail(u"Falta dizer o que fazer: --pedido, --conferir, --listar ou --historico."_s);
    }

    bool takeTexts() {
        ConsoleOptions& options = read_.options;
        options.folder = parser_.value(option::folder);
        if (has(option::folder) && !QDir(options.folder).exists()) {
            return fail(u"A pasta \"%1\" não existe."_s.arg(options.folder));
        }
        options.order =
            parser_.value(has(option::review) ? option::review : option::order).trimmed();
        options.kind = parser_.value(option::kind);
        options.printer = parser_.value(option::printer);
        options.output = parser_.value(option::output);
        options.json = has(option::json);
        return takePositional() && checkKind() && takeListed();
    }

    bool takePositional() {
        const QStringList words = parser_.positionalArguments();
        if (words.isEmpty()) {
            return true;
        }
        if (read_.options.task != Task::history || words.size() > 1) {
            return fail(u"O argumento \"%1\" não é esperado."_s.arg(words.last()));
        }
        read_.options.order = words.first().trimmed();
        return true;
    }

    bool checkKind() {
        if (!has(option::kind) || labelKind(toText(read_.options.kind)) != nullptr) {
            return true;
        }
        QStringList names;
        for (const LabelKind& kind : labelKinds()) {
            names << u"\"%1\""_s.arg(toQString(kind.name));
        }
        return fail(u"O tipo de etiqueta \"%1\" não existe. Os tipos são: %2."_s.arg(
            read_.options.kind, names.join(u", "_s)));
    }

    bool takeListed() {
        if (!has(option::list)) {
            return true;
        }
        const QString name = parser_.value(option::list);
        const auto* const row =
            std::find_if(listed_names.begin(), listed_names.end(),
                         [&](const ListedName& known) { return name == known.name; });
        if (row == listed_names.end()) {
            return fail(
                u"Não há lista \"%1\". As listas são: tipos, pedidos, itens, impressoras."_s.arg(
                    name));
        }
        read_.options.listed = row->listed;
        return true;
    }

    bool takeNumbers() {
        if (has(option::items)) {
            const auto items = numberRanges(parser_.value(option::items));
            if (!items) {
                return fail(u"Os itens são números como em 1,3-5."_s);
            }
            read_.options.items = *items;
        }
        if (has(option::volumes)) {
            read_.options.volumes = numberRange(parser_.value(option::volumes));
            if (!read_.options.volumes) {
                return fail(u"Os volumes são uma faixa como 1-40."_s);
            }
            if (toText(read_.options.kind) != tipo::corrugado) {
                return fail(u"Só \"Corrugado\" tem volumes."_s);
            }
        }
        return true;
    }

    bool takeAnswers() {
        if ((has(option::yes) && has(option::no)) || (has(option::confirm) && has(option::leave))) {
            return fail(u"As respostas se contradizem."_s);
        }
        if (has(option::yes)) {
            read_.options.answer = Answer::yes;
        } else if (has(option::no)) {
            read_.options.answer = Answer::no;
        }
        read_.options.confirms = !has(option::leave);
        return true;
    }

    // An order is needed, and its kind where there is one thing only to be done with it.
    bool checkTask() {
        const ConsoleOptions& options = read_.options;
        const bool lists_items = options.task == Task::list && options.listed == Listed::items;
        const bool needs_order =
            options.task == Task::print || options.task == Task::review || lists_items;
        if (needs_order && options.order.isEmpty()) {
            return fail(u"Falta o número do pedido (--pedido)."_s);
        }
        if ((options.task == Task::print || lists_items) && options.kind.isEmpty()) {
            return fail(u"Falta o tipo de etiqueta (--tipo)."_s);
        }
        return true;
    }

    QCommandLineParser parser_;
    ReadOptions read_;
};

} // namespace

ReadOptions readOptions(const QStringList& arguments) {
    return Reader(arguments).read();
}

std::optional<std::vector<NumberRange>> numberRanges(const QString& text) {
    std::vector<NumberRange> ranges;
    for (const QString& part : text.split(u',')) {
        const auto range = numberRange(part);
        if (!range) {
            return std::nullopt;
        }
        ranges.push_back(*range);
    }
    return ranges;
}

QString helpText() {
    QCommandLineParser parser;
    addOptions(parser);
    parser.setApplicationDescription(
        u"Imprime as etiquetas de um pedido. Sem opções, abre a janela.\n\n"
        "  etiquetas --pedido 1400050831 --tipo Oculta --impressora PDF\n"
        "  etiquetas --conferir 1400050831\n"
        "  etiquetas --listar itens --pedido 1400050831 --tipo Oculta\n"
        "  etiquetas --historico\n\n"
        "Códigos de saída: 0 tudo certo, 1 falha ou achados, 2 uso errado, 3 uma pergunta."_s);
    return parser.helpText();
}

} // namespace etiquetas
