#include "desktop/console/ConsoleBoxes.h"

#include "desktop/console/ConsoleText.h"
#include "desktop/machine/QtText.h"
#include "workbench/Impressao.h"

#include <utility>

namespace etiquetas {

using namespace Qt::StringLiterals;

Answer ConsoleBoxes::show(const Message& message) {
    if (message.text == closing_question) {
        closing_asked_ = true;
        return closing_answer_;
    }
    const QString title = message.title.empty() ? u"Etiquetas"_s : toQString(message.title);
    const QString text = toQString(message.text).trimmed();
    if (message.buttons == Buttons::ok) {
        tell(u"%1: %2"_s.arg(title, text));
        return Answer::ok;
    }
    const QString answer = !answer_                  ? u"sem resposta, veja --sim e --nao"_s
                           : *answer_ == Answer::yes ? u"Sim"_s
                                                     : u"Não"_s;
    tell(u"%1: %2? (%3)"_s.arg(title, text, answer));
    open_question_ = open_question_ || !answer_;
    return answer_.value_or(Answer::no);
}

bool ConsoleBoxes::takeClosing() {
    return std::exchange(closing_asked_, false);
}

} // namespace etiquetas
