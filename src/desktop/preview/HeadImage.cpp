#include "desktop/preview/HeadImage.h"

#include "desktop/printing/DotPage.h"

namespace etiquetas {

QSizeF sizeOf(const LabelPage& page) {
    return page.size.value_or(builtInPage()).size(QPageSize::Millimeter);
}

QImage headImage(const LabelPage& page, int resolution) {
    return DotPages(resolution).draw(page, builtInPage());
}

} // namespace etiquetas
