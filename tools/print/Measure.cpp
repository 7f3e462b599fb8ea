// Prints how well the bars of random labels are read as a print head prints them.

#include "Scan.h"
#include "desktop/machine/QtPictures.h"
#include "desktop/machine/QtPrinters.h"
#include "desktop/machine/QtText.h"
#include "desktop/printing/DotPage.h"
#include "desktop/printing/QtPrintSurface.h"
#include "labels/Acessorio.h"
#include "labels/Corrugado.h"
#include "labels/Frente100x40.h"
#include "labels/FrenteCaixa.h"
#include "labels/JobSetup.h"
#include "labels/Oculta.h"
#include "support/FakePlatform.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <random>

namespace etiquetas::measure {

namespace {

using namespace Qt::StringLiterals;

/// A symbol on its page: the place of its bars in millimetres, and what it says.
struct Symbol {
    std::size_t page = 0;
    QRectF place;
    double quiet = 0;     // paper before and after them, millimetres
    double long_bars = 0; // how far down all bars reach, millimetres
    QString text;
};

class Chance {
  public:
    int upTo(int most) { return std::uniform_int_distribution(0, most)(engine_); }
    float margin() { return static_cast<float>(upTo(40)) / 10.0F; } // millimetres

    Text digits(int count) {
        Text text;
        for (int i = 0; i < count; ++i) {
            text += static_cast<char16_t>(u'0' + upTo(9));
        }
        return text;
    }
    Text words(int count) {
        constexpr std::array<TextView, 8> known{u"TÊNIS", u"CASUAL", u"FEMININO", u"CANO",
                                                u"BAIXO", u"COURO",  u"SANDÁLIA", u"2 TIRAS"};
        Text text;
        for (int i = 0; i < count; ++i) {
            text.append(text.empty() ? u"" : u" ")
                .append(known.at(static_cast<std::size_t>(upTo(7))));
        }
        return text;
    }
    Text price() { return digits(1 + upTo(2)) + u",90"; }

  private:
    std::mt19937 engine_{15416}; // the same labels each time
};

/// The Workbench on a real surface.
class Press {
  public:
    Press() {
        form.pctlogo1.picture = pictures_.load(u"" ETIQUETAS_SAMPLES "/brisako.jpg");
        form.pctlogo2.picture = pictures_.load(u"" ETIQUETAS_SAMPLES "/lumira.jpg");
        form.txtean.visible = true;
        form.lblmax.caption = u"99";
        constexpr std::size_t preview = 1; // behind the PDF files
        printers_.makeCurrent(preview);
        surface.delivery().onPreview([this](const PreviewedJob& shown) { job = shown; });
    }

  private:
    static Platform platformOf(test::FakePlatform& machine, QtPrinters& printers,
                               QtPrintSurface& surface) {
        const Platform fake = machine.platform();
        return {printers,   surface,      fake.messages, fake.pictures, fake.files,
                fake.focus, fake.pointer, fake.process,  fake.folders,  fake.commands};
    }

    QTemporaryDir folder_;
    test::FakePlatform machine_;
    QtPictures pictures_;
    QtPrinters printers_{{}, QString()};

  public:
    QtPrintSurface surface{printers_, folder_.path()};
    FrmPadrao form{platformOf(machine_, printers_, surface)};
    PreviewedJob job; // once it has ended
    Chance chance;

    /// Writes the job into a file and tells its path.
    QString writeJob() {
        QString path = folder_.filePath(u"job.pdf"_s);
        surface.delivery().save(job, path);
        return path;
    }
};

struct Kind {
    const char* name;
    void (*print)(Press& press, TextView code);
    bool code39 = false;
};

void printHidden(Press& press, TextView code) {
    press.form.Margem_oculta1 = press.chance.margin();
    press.form.Margem_oculta11 = 45 + press.chance.margin();
    press.form.Margem_oculta2 = press.chance.margin() / 4;
    setPage(press.form, stock_40x20);
    Imprime_Oculta_40_20_2(press.form, u"B", press.chance.words(4), u"527", press.chance.digits(10),
                           code, u"33", 1, press.chance.words(1));
}

void printAccessory(Press& press, TextView code) {
    press.form.Margem_oculta1 = 4.8F + press.chance.margin();
    press.form.Margem_oculta11 = 45 + press.chance.margin();
    press.form.Margem_oculta2 = press.chance.margin() / 4;
    setPage(press.form, stock_40x20);
    Imprime_Acessorio_40_20_2(press.form, u"L", press.chance.words(4), u"527",
                              press.chance.digits(7), code, u"1", press.chance.price(), 1, u"LU",
                              u"32/26", u"A1");
}

void printBoxFront(Press& press, TextView code) {
    press.form.Mx4045_1 = press.chance.margin();
    press.form.Mx4045_2 = 50 + press.chance.margin();
    press.form.Mx4045 = press.chance.margin() / 4;
    setPage(press.form, stock_40x45);
    Text description = press.chance.words(3);
    Imprime_40_45_2(press.form, u"L", description, press.chance.words(1), u"527",
                    press.chance.digits(10), code, u"33", press.chance.price(), 1, u"A1", u"32/26",
                    u"LU");
}

void printPhotograph(Press& press, TextView code) {
    press.form.PackLinhaX = press.chance.margin() / 4;
    press.form.PackLinhaY = press.chance.margin() / 4;
    press.form.NomeFonte = u"Franklin Gothic Medium";
    Eti100_40_1(press.form, u"L", press.chance.words(4), u"527", press.chance.digits(10), code,
                u"33", u"139,90", 1);
}

void printCarton(Press& press, TextView code) {
    press.form.PackX = press.chance.margin();
    press.form.PackY = press.chance.margin();
    setPage(press.form, stock_carton);
    EtiPack(press.form, u"L", u"PEDRA MANSA", u"1400050831", u"3104527001", u"CALÇADOS UMBAÍRA",
            press.chance.words(5), u"CAFÉ", code, {}, {}, u"12", 1, 1, u"32/26");
}

constexpr std::array kinds{Kind{"hidden", printHidden}, Kind{"accessory", printAccessory},
                           Kind{"box front", printBoxFront}, Kind{"photograph", printPhotograph},
                           Kind{"carton", printCarton, true}};

Text withCheckDigit(Text digits) {
    int sum = 0;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        sum += (digits[i] - u'0') * (i % 2 == 0 ? 1 : 3);
    }
    return digits + static_cast<char16_t>(u'0' + (10 - sum % 10) % 10);
}

// The bars of a page in drawing order; those that reach down to others belong to one symbol.
std::vector<Symbol> symbolsOf(const LabelPage& page, std::size_t number) {
    std::vector<Symbol> symbols;
    for (const Mark& mark : page.marks) {
        const auto* const bars = std::get_if<BarsMark>(&mark);
        if (bars == nullptr) {
            continue;
        }
        const QRectF place = bars->inkPlace();
        const bool goes_on = !symbols.empty() &&
                             std::abs(symbols.back().place.left() - place.left()) < 0.01 &&
                             std::abs(symbols.back().place.bottom() - place.top()) < 0.01;
        if (goes_on) {
            symbols.back().place.setBottom(place.bottom());
        } else {
            symbols.push_back({.page = number,
                               .place = place,
                               .quiet = place.left() - bars->place.left(),
                               .long_bars = place.bottom()});
        }
    }
    return symbols;
}

struct Printed {
    std::vector<QImage> pages;
    std::vector<QImage> bars; // the same pages without their texts, some of which stand over bars
    std::vector<Symbol> symbols;
};

// A page of the file, drawn by another program; `command` says where with %1 (file), %2 (page, from
// 1), %3 (resolution), and writes the picture.
QImage pageBy(const QString& command, const QString& pdf, std::size_t page, int resolution) {
    QProcess process;
    process.startCommand(command.arg(u"\"%1\""_s.arg(pdf)).arg(page + 1).arg(resolution));
    process.waitForFinished(-1);
    return QImage::fromData(process.readAllStandardOutput());
}

LabelPage withoutTexts(LabelPage page) {
    page.marks.removeIf([](const Mark& mark) { return std::holds_alternative<TextMark>(mark); });
    return page;
}

Printed printed(const Kind& kind, int labels, int resolution, const QString& command) {
    Press press;
    std::vector<QString> texts;
    for (int i = 0; i < labels; ++i) {
        const Text code = withCheckDigit(press.chance.digits(12));
        kind.print(press, code);
        texts.push_back(toQString(code));
    }
    Printed result;
    press.surface.EndDoc();
    const LabelPages& pages = *press.job.pages;
    const QString pdf = command.isEmpty() ? QString() : press.writeJob();
    DotPages dots(resolution);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        result.pages.push_back(command.isEmpty() ? dots.draw(pages[i], builtInPage())
                                                 : pageBy(command, pdf, i, resolution));
        if (command.isEmpty()) {
            result.bars.push_back(dots.draw(withoutTexts(pages[i]), builtInPage()));
        }
        std::ranges::move(symbolsOf(pages[i], i), std::back_inserter(result.symbols));
    }
    for (std::size_t i = 0; i < std::min(texts.size(), result.symbols.size()); ++i) {
        result.symbols[i].text = texts[i];
    }
    return result;
}

// A symbol with the paper beside it.
QImage paperOf(const std::vector<QImage>& pages, const Symbol& symbol, const Print& print,
               double dots) {
    const QRectF part = symbol.place.adjusted(-symbol.quiet, 0, symbol.quiet, 0);
    const QRect place = QRectF(part.topLeft() * dots, part.size() * dots).toAlignedRect();
    return onPaper(pages[symbol.page].copy(place), print);
}

double decodabilityOf(const QImage& paper, const Symbol& symbol, double dots) {
    constexpr double beside = 0.4; // millimetres that bars may stand beside their place
    const QRectF bars((symbol.quiet - beside) * dots, 1, (symbol.place.width() + 2 * beside) * dots,
                      (symbol.long_bars - symbol.place.top()) * dots - 2);
    return eanDecodability(paper, bars).value_or(0);
}

void tellDecodability(const char* what, std::vector<double> found) {
    std::sort(found.begin(), found.end());
    if (!found.empty()) {
        std::printf("  %s least %.2f median %.2f", what, found.front(), found[found.size() / 2]);
    }
}

void report(const Kind& kind, const Printed& labels, const Print& print, int resolution) {
    const double dots = resolution / millimetres_per_inch;
    const bool is_graded = !kind.code39 && print.growth == 0;
    int zbar = 0;
    int zxing = 0;
    std::vector<double> decodability;
    std::vector<double> without_texts;
    for (const Symbol& symbol : labels.symbols) {
        const QImage paper = paperOf(labels.pages, symbol, print, dots);
        zbar += zbarReads(paper, symbol.text) ? 1 : 0;
        zxing += zxingReads(paper, symbol.text) ? 1 : 0;
        if (is_graded) {
            decodability.push_back(decodabilityOf(paper, symbol, dots));
        }
        if (is_graded && !labels.bars.empty()) {
            const QImage bars = paperOf(labels.bars, symbol, print, dots);
            without_texts.push_back(decodabilityOf(bars, symbol, dots));
        }
    }
    const double all = static_cast<double>(labels.symbols.size()) / 100;
    std::printf("%-11s %-18s zbar %6.2f %%  ZXing %6.2f %%", kind.name, print.name, zbar / all,
                zxing / all);
    tellDecodability("decodability", std::move(decodability));
    tellDecodability("without texts", std::move(without_texts));
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace

void measure(int labels, int resolution, const QString& command, const QString& only) {
    constexpr std::array prints{Print{"as the head"},
                                Print{"grown 0.5 dot", 0.5},
                                Print{"shrunk 0.5 dot", -0.5},
                                Print{"blurred 0.8 dot", 0, 0.8},
                                Print{"grown and blurred", 0.5, 0.8},
                                Print{"shrunk and blurred", -0.5, 0.8}};
    for (const Kind& kind : kinds) {
        if (!only.isEmpty() && only != QLatin1String(kind.name)) {
            continue;
        }
        const Printed all = printed(kind, labels, resolution, command);
        for (const Print& print : prints) {
            report(kind, all, print, resolution);
        }
    }
}

} // namespace etiquetas::measure

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    etiquetas::measure::measure(arguments.value(1, QStringLiteral("300")).toInt(),
                                arguments.value(2, QStringLiteral("203")).toInt(),
                                arguments.value(3), arguments.value(4));
    return 0;
}
