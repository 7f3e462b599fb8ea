#pragma once

namespace etiquetas {

/// Has the toolkit's own texts, of its folder picker say, in Brazilian Portuguese from here on,
/// where the machine has them. The toolkit's application must exist, and owns them.
void speakPortuguese();

} // namespace etiquetas
