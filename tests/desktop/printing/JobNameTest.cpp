#include "desktop/printing/JobName.h"

#include <gtest/gtest.h>

namespace etiquetas {

using namespace Qt::StringLiterals;

TEST(JobName, isTheTimeAndTheTitleAsAFileMayBeCalled) {
    const QDateTime time({2024, 3, 5}, {7, 8, 9});
    EXPECT_EQ(fileStem(time, QString()), u"2024-03-05 07-08-09"_s);
    EXPECT_EQ(fileStem(time, u"Acessório 14/05: \"BOLSA\"\t.. "_s),
              u"2024-03-05 07-08-09 Acessório 14-05- -BOLSA--.."_s);
    EXPECT_EQ(fileStem(time, QString(500, u'É')).size(), 120);
}

} // namespace etiquetas
