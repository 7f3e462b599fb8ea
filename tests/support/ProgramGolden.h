#pragma once

#include "base/CodePage.h"
#include "support/Journal.h"

namespace etiquetas::test {

/// A piece of a program in a printer language as golden files have it: UTF-8, control characters by
/// their names.
inline std::string readable(const std::string& bytes) {
    struct Control {
        TextView character, name;
    };
    Text text = fromCodePage1252(bytes);
    for (const Control& control : {Control{u"\001", u"<SOH>"}, Control{u"\002", u"<STX>"},
                                   Control{u"\r", u"<CR>"}, Control{u"\n", u"<LF>"}}) {
        text = replaceAll(text, control.character, control.name);
    }
    return utf8(text);
}

/// The lines of a job file, which CR LF end. A last line without one is marked.
inline Log programLines(std::string job) {
    Log lines;
    for (auto end = job.find("\r\n"); end != std::string::npos; end = job.find("\r\n")) {
        lines.push_back(readable(job.substr(0, end)));
        job.erase(0, end + 2);
    }
    if (!job.empty()) {
        lines.push_back(readable(job) + "<no line end>");
    }
    return lines;
}

} // namespace etiquetas::test
