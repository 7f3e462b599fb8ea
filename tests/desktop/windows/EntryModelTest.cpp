#include "desktop/windows/EntryModel.h"

#include "desktop/machine/QtText.h"

#include <QtTest/QSignalSpy>
#include <gtest/gtest.h>

#include <random>

namespace etiquetas::test {

TEST(EntryModelTest, takesAnEntryAwayAsOneRowAndShowsAllOthersAsTheyAre) {
    std::mt19937 random(3);
    EntryList entries;
    EntryModel model;
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const auto expect_shown = [&](int removed_rows, int resets) {
        model.show(entries);
        EXPECT_EQ(removed.size(), removed_rows);
        EXPECT_EQ(reset.size(), resets);
        ASSERT_EQ(model.rowCount(), static_cast<int>(entries.size()));
        for (int row = 0; row < model.rowCount(); ++row) {
            const Text& entry = std::as_const(entries)[static_cast<std::size_t>(row)];
            EXPECT_EQ(model.data(model.index(row), Qt::DisplayRole), toQString(entry));
        }
        removed.clear();
        reset.clear();
    };
    for (char16_t name = u'a'; name < u'z'; ++name) {
        entries.emplace_back(3, name);
    }
    expect_shown(0, 1);
    while (entries.size() > 3) {
        entries.removeAt(random() % entries.size());
        expect_shown(1, 0);
    }
    expect_shown(0, 0);
    entries.front() = Text(std::as_const(entries).front()); // might be another one
    expect_shown(0, 0);
    entries.removeAt(0);
    entries.removeAt(0);
    expect_shown(0, 1);
    entries = {u"A", u"B"};
    expect_shown(0, 1);
}

} // namespace etiquetas::test
