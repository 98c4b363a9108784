#include "sql/Collation.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

int Both(const QString &left, const QString &right) {
    const int order = Compare(left, right);
    const QByteArray left_key = SortKey(left);
    const QByteArray right_key = SortKey(right);
    EXPECT_EQ(order, left_key < right_key ? -1 : int(right_key < left_key))
        << "by key: " << left.toStdString() << " / " << right.toStdString();
    EXPECT_EQ(order, CompareUtf8(left.toStdString(), right.toStdString()))
        << left.toStdString() << " / " << right.toStdString();
    EXPECT_EQ(order, -Compare(right, left)) << left.toStdString() << " / " << right.toStdString();
    return order;
}

void ExpectAscending(const QStringList &texts) {
    for (qsizetype i = 0; i < texts.size(); ++i) {
        for (qsizetype j = i + 1; j < texts.size(); ++j) {
            EXPECT_EQ(Both(texts[i], texts[j]), -1) << texts[i].toStdString() << " / " << texts[j].toStdString();
        }
    }
}

TEST(Collation, CaseTrailingBlanksAndExpansionDoNotCount) {
    const std::pair<QString, QString> rows[] = {
        {u"abc"_s, u"ABC"_s},      {u"abc"_s, u"abc  "_s},
        {u""_s, u"   "_s},         {u"Æon"_s, u"aeon"_s},
        {u"œuvre"_s, u"OEUVRE"_s}, {u"Straße"_s, u"STRASSE"_s},
        {u"þing"_s, u"Thing"_s},   {u"ZOË"_s, u"zoë"_s},
        {u"МИР"_s, u"мир"_s},      {u"ΣΟΦΙΑ"_s, u"σοφια"_s},
        {u"Čapek"_s, u"čapek"_s},  {u"STRAẞE"_s, u"strasse"_s},
        {u"Ÿ"_s, u"ÿ"_s},          {u"\U00010400"_s, u"\U00010428"_s},
    };
    for (const auto &[left, right] : rows) {
        EXPECT_EQ(Both(left, right), 0) << left.toStdString() << " / " << right.toStdString();
    }
}

TEST(Collation, KeysPutBehindOthersAreThoseThatStandAlone) {
    QByteArray keys = "before";
    QByteArray expected = keys;
    for (const QString &text : {u"abc"_s, u""_s, u"co-op's"_s, u"-'-"_s, u"zoë"_s, u"zo-ë "_s, u"мир"_s, u"  "_s}) {
        AppendSortKey(text, keys);
        expected += SortKey(text);
        EXPECT_EQ(keys, expected) << text.toStdString();
    }
}

TEST(Collation, OtherTextsAreNeverEqual) {
    const QStringList texts = {u"zoe"_s, u"zoë"_s, u"zoé"_s,       u"zo-e"_s, u"zo'e"_s, u"zo\u00ADe"_s, u"zo’e"_s,
                               u"zoø"_s, u"zoo"_s, u"zoº"_s,       u"zo²"_s,  u"zo2"_s,  u" zoe"_s,      u"zoe\t"_s,
                               u"мйр"_s, u"мир"_s, u"zoe\u0301"_s, u"Ḉ"_s,    u"ç"_s,    u"ć"_s,         u"zo\uFFFD"_s};
    for (qsizetype i = 0; i < texts.size(); ++i) {
        for (qsizetype j = 0; j < texts.size(); ++j) {
            EXPECT_EQ(Both(texts[i], texts[j]) == 0, i == j)
                << texts[i].toStdString() << " / " << texts[j].toStdString();
        }
    }
}

TEST(Collation, CharactersStandInTheGeneralOrder) {
    QStringList texts = {u"\u0001x"_s, u"\u001Fx"_s, u"\u007Fx"_s, u"\u0081x"_s};
    for (const QChar mark : u" !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>"_s) {
        texts.append(QString(mark) + u'x');
    }
    texts += {u"§x"_s, u"€x"_s, u"’x"_s, u"0x"_s, u"1x"_s, u"9x"_s, u"ax"_s,
              u"bx"_s, u"zx"_s, u"µx"_s, u"łx"_s, u"мx"_s, u"日x"_s};
    ExpectAscending(texts);
}

TEST(Collation, AccentsCountAfterAllLetters) {
    ExpectAscending({u"Zoe"_s, u"Zoë"_s, u"Zof"_s});
    ExpectAscending({u"cote"_s, u"coté"_s, u"côte"_s, u"côté"_s, u"coter"_s});
    ExpectAscending({u"od"_s, u"oð"_s, u"ødz"_s, u"oe"_s});
    ExpectAscending({u"capa"_s, u"čapa"_s, u"capb"_s});
    ExpectAscending({u"m2"_s, u"m²"_s, u"m3"_s});
    ExpectAscending({u"na"_s, u"nª"_s, u"nb"_s});
}

TEST(Collation, ApostropheAndHyphenDecideByTheirPlace) {
    ExpectAscending({u"coop"_s, u"co-op"_s, u"coop-"_s, u"cooper"_s});
    ExpectAscending({u"Obama"_s, u"O'Brien"_s, u"OBryan"_s, u"Oz"_s});
    ExpectAscending({u"its"_s, u"it's"_s, u"it\u00ADs"_s, u"it-s"_s});
    ExpectAscending({u"we-re"_s, u"wer-e"_s});
    ExpectAscending({u"a-b"_s, u"a--b"_s, u"a-b-"_s});
    ExpectAscending({u"De Niro"_s, u"Dean"_s, u"deb"_s});
    ExpectAscending({u""_s, u"-"_s, u"--"_s, u"!"_s});
    ExpectAscending({u"co-öp"_s, u"coöq"_s});
    EXPECT_EQ(Both(u"co-op"_s, u"CO-OP "_s), 0);
}

QString RandomText(std::mt19937 &random) {
    static const QString kCharacters =
        u"aAbBeEéËoOöøæÆsßtþðzZ019²ª '-\u00AD!_€’\u0301\u0001\u007FčĆйИ日\u212B\xD83C\xDFAC\xDFAC\xD83C  "_s;
    QString text;
    for (auto length = random() % 6; length > 0; --length) {
        text.append(kCharacters[qsizetype(random() % size_t(kCharacters.size()))]);
    }
    return text;
}

std::string RandomBytes(std::mt19937 &random) {
    static const std::string kBytes = "aAe-' \xC3\xA9\xAD\x80\xBF\xE2\x82\xAC\xED\xA0\x80\xF0\x9F\x8E\xFF\xF8\xC0";
    std::string text;
    for (auto length = random() % 8; length > 0; --length) {
        text.push_back(kBytes[random() % kBytes.size()]);
    }
    return text;
}

template <class Text, class Order>
void ExpectWeakOrder(const std::vector<Text> &texts, Order order) {
    for (const Text &a : texts) {
        EXPECT_EQ(order(a, a), 0);
        for (const Text &b : texts) {
            const int ab = order(a, b);
            ASSERT_EQ(ab, -order(b, a));
            for (const Text &c : texts) {
                const int bc = order(b, c);
                if (ab <= 0 && bc <= 0) {
                    ASSERT_EQ(order(a, c), ab == 0 && bc == 0 ? 0 : -1);
                }
            }
        }
    }
}

TEST(Collation, IsAWeakOrderOverAnyUtf16) {
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        std::vector<QString> texts;
        for (int i = 0; i < 40; ++i) {
            texts.push_back(RandomText(random));
        }
        ExpectWeakOrder(texts, [](const QString &a, const QString &b) { return Compare(a, b); });
    }
}

TEST(Collation, IsAWeakOrderOverAnyBytes) {
    std::mt19937 random(8);
    for (int round = 0; round < 20; ++round) {
        std::vector<std::string> texts;
        for (int i = 0; i < 40; ++i) {
            texts.push_back(RandomBytes(random));
        }
        ExpectWeakOrder(texts, [](const std::string &a, const std::string &b) { return CompareUtf8(a, b); });
    }
}

TEST(Collation, IsTheSameOverBothEncodings) {
    std::mt19937 random(9);
    for (int i = 0; i < 20000; ++i) {
        const QString left = RandomText(random);
        const QString right = RandomText(random);
        if (left.isValidUtf16() && right.isValidUtf16()) {
            ASSERT_EQ(Compare(left, right), CompareUtf8(left.toStdString(), right.toStdString()))
                << left.toStdString() << " / " << right.toStdString();
        }
    }
}

TEST(Collation, ACommonBeginningChangesNothing) {
    std::mt19937 random(10);
    for (int i = 0; i < 20000; ++i) {
        const QString left = RandomText(random) + u'x';
        const QString right = RandomText(random) + u'x';
        const QString start = u"O'Brien éæ-"_s;
        ASSERT_EQ(Compare(left, right), Compare(start + left, start + right))
            << left.toStdString() << " / " << right.toStdString();
    }
}

} // namespace
} // namespace ostrand::sql
