#include "channel/Zpl.h"

namespace etiquetas {

Text zplField(TextView place, TextView command, TextView data) {
    return Text(u"^FO").append(place).append(command).append(data).append(u"^FS");
}

Text withQuotes(TextView line) {
    return replaceAll(line, u".", u"\"");
}

} // namespace etiquetas
