#pragma once

#include "support/FakePlatform.h"
#include "support/Golden.h"
#include "support/ProgramGolden.h"
#include "support/WindowFields.h"

#include <functional>
#include <memory>

namespace etiquetas::test {

using Texts = std::map<std::string, Text>;

/// The window on its machine, and what has become of both since they were looked at last.
class Stage : public Workbench {
  public:
    Stage() {
        add("FrmMargensOcultaZPL2.", fieldsOf(form.FrmMargensOcultaZPL2));
        add("FrmMargensCxZPL45.", fieldsOf(form.FrmMargensCxZPL45));
        add("FrmMargensPackZPL.", fieldsOf(form.FrmMargensPackZPL));
        add("FrmParametroImpressora.", fieldsOf(form.FrmParametroImpressora));
        add("printer.", {{"face", machine.printers.face}, {"weight", machine.printers.weight}});
    }

    /// The texts that a label is drawn with.
    Texts texts;

    /// The dialog of the printer languages that is open, if any.
    std::unique_ptr<MargensLinguagem> dialog;

    void open(const MargensLinguagem& design) {
        dialog = std::make_unique<MargensLinguagem>(design);
        std::erase_if(fields_, [](const auto& field) { return field.name.starts_with("dialog."); });
        add("dialog.", fieldsOf(*dialog));
    }

    /// The field of this name.
    NamedField& field(const std::string& name) {
        const auto found = std::ranges::find(fields_, name, &NamedField::name);
        return found == fields_.end() ? throw std::invalid_argument(name) : *found;
    }

    /// Files stand in the program's folder unless their path begins with a slash.
    std::string& file(const std::string& name) {
        return machine.files.bytes[(name.starts_with('/') ? u"" : u"/programa/") + utf16(name)];
    }

    /// What the machine was asked for, the lines that its files did not have before, and the fields
    /// that stand otherwise than before.
    Log changes() {
        Log told;
        for (const std::string& line : std::exchange(machine.story, {})) {
            if (told.empty() || line != told.back() || !line.starts_with("write ")) {
                told.push_back(utf8(replaceAll(utf16(line), u"\n", u"<LF>")));
            }
        }
        tellFiles(told);
        for (const auto& [name, text] : texts) {
            if (texts_before_[name] != text) {
                told.push_back("text " + name + " " + inQuotes(text));
            }
        }
        texts_before_ = texts;
        for (const NamedField& field : fields_) {
            const std::string words = field.words();
            if (std::exchange(fields_before_[field.name], words) != words) {
                told.push_back(field.name + " " + words);
            }
            if (field.address == machine.focused) {
                told.push_back("focus on " + field.name);
                machine.focused = nullptr;
            }
        }
        return told;
    }

  private:
    void add(const std::string& dialog_name, NamedFields fields) {
        for (NamedField& field : fields) {
            field.name.insert(0, dialog_name);
            fields_.push_back(std::move(field));
        }
    }

    void tellFiles(Log& told) {
        for (const auto& [path, bytes] : machine.files.bytes) {
            const Log before = programLines(files_before_[path]);
            for (const std::string& line : programLines(bytes)) {
                if (std::ranges::find(before, line) == before.end()) {
                    told.push_back("+ " + line);
                }
            }
        }
        files_before_ = machine.files.bytes;
    }

    NamedFields fields_ = fieldsOf(form);
    Texts texts_before_;
    std::map<std::string, std::string> fields_before_;
    std::map<Text, std::string, std::less<>> files_before_;
};

/// The steps of journeys: what each does with the words that stand after its name.
using Steps = std::map<std::string, std::function<void(Stage&, const std::string&)>>;

/// Plays the journey of a file: takes its steps, which stand behind "> ", and tells what each one
/// changes. A line behind "| " is added to the file that the step before it names. Steps before the
/// first heading, "== ", begin each of the scenes; a scene has a stage of its own.
class Journey {
  public:
    explicit Journey(Steps steps) : steps_(std::move(steps)) {}

    Log play(const std::string& path) {
        for (const GoldenLine& line : goldenLines(path)) {
            playLine(line.text);
        }
        return told_;
    }

  private:
    void playLine(const std::string& line) {
        if (line.starts_with("== ")) {
            stage_ = std::make_unique<Stage>();
            std::ranges::for_each(beginning_, [&](const auto& first) { take(first); });
            stage_->changes();
            told_.push_back(line);
        } else if (line.starts_with("> ") || line.starts_with('|')) {
            told_.push_back(line);
            if (stage_) {
                take(line);
                std::ranges::copy(stage_->changes(), std::back_inserter(told_));
            } else {
                beginning_.push_back(line);
            }
        } else if (line.empty()) {
            told_.push_back(line);
        }
    }

    void take(const std::string& line) {
        const std::string words = line.substr(std::min<std::size_t>(2, line.size()));
        if (line.starts_with('|')) {
            stage_->file(named_) += toCodePage1252(withLineEnds(utf16(words))) + "\r\n";
            stage_->changes();
            return;
        }
        const auto step = std::ranges::find_if(steps_, [&](const auto& known) {
            return (words + " ").starts_with(known.first + " ");
        });
        if (step == steps_.end()) {
            told_.push_back("no such step");
            return;
        }
        named_ = words.substr(std::min(words.size(), step->first.size() + 1));
        const std::string failure = failureTextOf([&] { step->second(*stage_, named_); });
        if (!failure.empty()) {
            stage_->machine.tell("fails:", failure);
        }
    }

    Steps steps_;
    Log told_, beginning_;
    std::unique_ptr<Stage> stage_;
    std::string named_;
};

} // namespace etiquetas::test
