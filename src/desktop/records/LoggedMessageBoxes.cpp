#include "desktop/records/LoggedMessageBoxes.h"

#include "desktop/records/LogEntries.h"

namespace etiquetas {

// The text before its answer, which may take its time.
Answer LoggedMessageBoxes::show(const Message& message) {
    logMessage(*log_, message);
    const Answer answer = shown_->show(message);
    logAnswer(*log_, answer);
    return answer;
}

} // namespace etiquetas
