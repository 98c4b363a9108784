#include "sql/SortKeys.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace Qt::StringLiterals;

namespace ostrand::sql {

namespace {

SortKeys KeysOf(const QStringList &texts) {
    SortKeys keys;
    for (const QString &text : texts) {
        if (text.isNull()) {
            keys.AppendNull();
        } else {
            keys.Append(text);
        }
    }
    return keys;
}

TEST(SortKeys, OrderIsThatOfTheDatabaseAndEqualTextsStay) {
    struct {
        QStringList texts;
        std::vector<int> ascending;
        std::vector<int> descending;
    } const rows[] = {
        {{}, {}, {}},
        {{u"b"_s, u"a"_s, u"c"_s}, {1, 0, 2}, {2, 0, 1}},
        {{u"Mill"_s, u"mill"_s, u"MILL  "_s, u"Mil"_s}, {3, 0, 1, 2}, {0, 1, 2, 3}},
        {{u"a"_s, u""_s, QString(), u" "_s}, {2, 1, 3, 0}, {0, 1, 3, 2}},
        {{u"Zulu"_s, u"Äsop"_s, u"Astern"_s, u"Asop"_s}, {3, 1, 2, 0}, {0, 2, 1, 3}},
        {{u"A long beginning 2"_s, u"A long beginning 10"_s, u"A long beginning"_s}, {2, 1, 0}, {0, 1, 2}},
    };
    for (const auto &row : rows) {
        const SortKeys keys = KeysOf(row.texts);
        EXPECT_EQ(keys.Size(), size_t(row.texts.size()));
        EXPECT_EQ(keys.Order(), row.ascending) << qPrintable(row.texts.join(u'|'));
        EXPECT_EQ(keys.Order(true), row.descending) << qPrintable(row.texts.join(u'|'));
    }
}

TEST(SortKeys, RearrangedKeysAreThoseOfTheTextsInTheirNewPlaces) {
    SortKeys keys = KeysOf({u"b"_s, QString(), u"a"_s});
    keys.Rearrange({2, 0, 1});
    const SortKeys expected = KeysOf({u"a"_s, u"b"_s, QString()});
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(keys.At(i), expected.At(i)) << i;
    }
    keys.Clear();
    EXPECT_EQ(keys.Size(), 0U);
}

} // namespace

} // namespace ostrand::sql
