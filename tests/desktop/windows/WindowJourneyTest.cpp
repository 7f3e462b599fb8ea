#include "support/Golden.h"
#include "tests/desktop/PdfTools.h"
#include "tests/desktop/SampleWindow.h"

#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>

namespace etiquetas::test {

namespace {

using Lines = std::vector<std::string>;

/// The real window at an installation of its own, and what the operator has seen of both.
class Scene : public SampleWindow {
  public:
    Scene() {
        worker.beforeAnswer([this] { tellBox(); });
        seen_settings_ = settingLines();
    }

    QString answer;            // to questions; without one the button that is ready
    QWidget* window = nullptr; // that the operator is at

    void start() {
        open();
        desktop->openBy([this](const QString& path) { tell("opens " + path); });
    }

    /// What the last step has changed.
    Lines changes() {
        if (desktop) {
            settle();
            turnToOpenDialog();
            tellWindows();
            tellJobs();
            tellStatus();
        }
        for (const QByteArray& line : settingLines()) {
            if (seen_settings_.insert(line).second) {
                tell("+ " + QString::fromLatin1(line));
            }
        }
        return std::exchange(told_, {});
    }

  private:
    // Without what differs from run to run and from machine to machine.
    void tell(QString line) {
        static const QRegularExpression time(u"\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d"_s);
        static const QRegularExpression faces(u"fontes: [^\"]*"_s);
        line.replace(folder.path(), u"PASTA"_s).replace(time, u"HORA"_s);
        line.replace(u'\n', u"<LF>"_s).replace(faces, u"fontes: AS QUE FALTAM"_s);
        told_.push_back(line.toStdString());
    }

    void tellBox() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        for (QAbstractButton* const button : box->buttons()) {
            if (button->text().remove(u'&') == answer) {
                box->setDefaultButton(qobject_cast<QPushButton*>(button));
            }
        }
        const auto* const proposed = box->defaultButton();
        const QString doubt = box->informativeText();
        tell(u"box \"%1\""_s.arg(box->text()) + (doubt.isEmpty() ? u""_s : u", "_s + doubt) +
             (proposed != nullptr ? u": "_s + proposed->text().remove(u'&') : u""_s));
    }

    // The operator goes to a dialog that opens, and stays there until it is closed.
    void turnToOpenDialog() {
        if (!desktop->exitCode()) {
            window = &desktop->window();
            for (DialogWindow* const dialog : desktop->dialogs()) {
                window = dialog->isVisible() ? dialog : window;
            }
            worker.turnTo(window->objectName());
        } else if (!std::exchange(ended_, true)) {
            tell(u"ends with %1"_s.arg(*desktop->exitCode()));
        }
    }

    void tellWindows() {
        std::map<QString, bool> windows{{u"preview"_s, desktop->preview().isVisible()}};
        windows[u"keys"_s] = desktop->window().findChild<QDialog*>(u"KeysWindow"_s)->isVisible();
        for (const DialogWindow* const dialog : desktop->dialogs()) {
            windows[dialog->objectName()] = dialog->isVisible();
        }
        for (const auto& [name, shows] : windows) {
            if (std::exchange(seen_windows_[name], shows) != shows) {
                tell(name + (shows ? u" shows"_s : u" is closed"_s));
            }
        }
    }

    void tellJobs() {
        const QString shown = desktop->preview().job().title;
        if (std::exchange(seen_preview_, shown) != shown) {
            tell(u"preview: "_s + shown);
        }
        for (const QString& path : jobs()) {
            if (seen_jobs_.insert(path).second) {
                const auto pages = pageSizes(path);
                tell(u"%1 pages of %2 x %3 points"_s.arg(pages.size())
                         .arg(pages[0].width())
                         .arg(pages[0].height()));
                QStringList symbols = symbolsIn(renderedPage(path, 1, 300, Tones::black_and_white));
                symbols.removeDuplicates();
                symbols.sort();
                tell(u"bars "_s + symbols.join(u' '));
            }
        }
    }

    void tellStatus() {
        for (const QString& name : {u"status_order"_s, u"status_happened"_s}) {
            const QString text = desktop->window().findChild<QLabel*>(name)->text();
            if (std::exchange(seen_status_[name], text) != text) {
                tell(name.mid(7) + u": "_s + text);
            }
        }
    }

    [[nodiscard]] std::set<QByteArray> settingLines() const {
        const QList<QByteArray> lines = settings().split('\n');
        std::set<QByteArray> trimmed;
        for (const QByteArray& line : lines) {
            trimmed.insert(line.trimmed());
        }
        return trimmed;
    }

    Lines told_;
    bool ended_ = false;
    QString seen_preview_;
    std::set<QString> seen_jobs_;
    std::map<QString, bool> seen_windows_;
    std::map<QString, QString> seen_status_;
    std::set<QByteArray> seen_settings_;
};

QString first(const QString& words) {
    return words.section(u' ', 0, 0);
}

QString rest(const QString& words) {
    return words.section(u' ', 1);
}

void chooseEntry(Scene& on, const QString& words) {
    const QString list = first(words);
    on.worker.choose(list, on.worker.widget<QComboBox>(list).findText(rest(words)));
}

void pressKey(Scene& on, const QString& name) {
    const QKeyCombination key = QKeySequence::fromString(name)[0];
    auto& keys = *on.desktop->window().findChild<QDialog*>(u"KeysWindow"_s);
    if (keys.isVisible()) {
        QTest::keyClick(&keys, key.key(), key.keyboardModifiers());
    } else {
        on.worker.press(key.key(), key.keyboardModifiers());
    }
}

void writeLine(const Scene& on, const QString& name, const QString& line) {
    QFile file(on.folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(line.isNull() ? QByteArray() : line.toLatin1() + "\r\n");
}

using Step = std::function<void(Scene& on, const QString& words)>;

// clang-format off
const std::map<QString, Step> steps{
    {u"start"_s, [](Scene& on, const QString&) { on.start(); }},
    {u"file"_s, [](Scene& on, const QString& name) { writeLine(on, name, {}); }},
    {u"remove"_s, [](Scene& on, const QString& name) { QFile::remove(on.folder.filePath(name)); }},
    {u"unreadable"_s, [](Scene& on, const QString& name) {
        QFile::link(u"/proc/self/mem"_s, on.folder.filePath(name)); }},
    {u"choose"_s, chooseEntry},
    {u"type"_s, [](Scene& on, const QString& words) {
        on.worker.type(first(words), rest(words));
        if (rest(words).isEmpty()) on.worker.press(Qt::Key_Delete); }},
    {u"press"_s, pressKey},
    {u"click"_s, [](Scene& on, const QString& name) { on.worker.click(name); }},
    {u"doubleclick"_s, [](Scene& on, const QString& name) { on.worker.doubleClick(name); }},
    {u"answer"_s, [](Scene& on, const QString& button) { on.answer = button; }},
    {u"pick"_s, [](Scene& on, const QString& folder) {
        on.worker.willPick(on.folder.filePath(folder)); }},
    {u"close"_s, [](Scene& on, const QString&) { on.window->close(); }},
};
// clang-format on

} // namespace

// Plays the journeys of a file on the real window, by its keys and clicks: a scene is headed by
// "== ", a step stands behind "> ", and of each what it changes. A line behind "| " is added to the
// file that the step before it names.
TEST(WindowJourneyTest, ShowsWhatItsFileTells) {
    const std::string path = ETIQUETAS_JOURNEYS "/desktop/windows/Operator.txt";
    std::unique_ptr<Scene> scene;
    QString words;
    Lines told;
    for (const GoldenLine& line : goldenLines(path)) {
        const QString text = QString::fromStdString(line.text);
        const bool is_told = line.text.empty() || line.text.starts_with("== ") ||
                             line.text.starts_with("> ") || line.text.starts_with("| ");
        if (is_told) {
            told.push_back(line.text);
        }
        if (text.startsWith(u"== "_s)) {
            scene.reset();
            scene = std::make_unique<Scene>();
        } else if (text.startsWith(u"| "_s)) {
            writeLine(*scene, words, text.mid(2));
        } else if (text.startsWith(u"> "_s)) {
            words = rest(text.mid(2));
            steps.at(first(text.mid(2)))(*scene, words);
            QCoreApplication::processEvents();
            std::ranges::copy(scene->changes(), std::back_inserter(told));
        }
    }
    EXPECT_TRUE(matchesFile(told, path));
}

} // namespace etiquetas::test
