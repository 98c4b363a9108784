// Every tag with every attribute, rendered and compared with the page that was read once. With OSTRAND_RENEW_GOLDEN=1
// the pages are written anew; read what changed before you keep it.
#include "GoldenPages.h"

#include "skin/TagTable.h"
#include "skin/Template.h"
#include "support/Golden.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// Oddities of the grammar, on lines of their own kind.
const QString kGrammar = u"grammar"_s;

QString UpperName(const QString &tag) {
    return GetTagAttribute(tag, u"NAME", {}).toUpper();
}

class GoldenPage : public testing::TestWithParam<std::string> {};

TEST_P(GoldenPage, IsRenderedAsItWasRead) {
    const QString name = QString::fromStdString(GetParam());
    test::GoldenCollection collection;
    const QString page = collection.Render(test::ReadGolden(name + u".skin"_s));
    test::ExpectGolden(u"skin/"_s + name + u".html"_s, page.toUtf8());
}

TEST_P(GoldenPage, HasATagOnEachLineBelowItsOwnText) {
    if (GetParam() == kGrammar.toStdString()) {
        return;
    }
    QString above;
    for (const QString &line : test::ReadGolden(QString::fromStdString(GetParam()) + u".skin"_s).split(u'\n')) {
        if (const QStringList tags = FindSkinTags(line); !tags.isEmpty()) {
            EXPECT_EQ(tags.first(), line) << "alone on its line";
            EXPECT_EQ(above, u'[' + line.mid(1).chopped(1) + u']');
        }
        above = line;
    }
}

std::vector<std::string> SkinNames() {
    std::vector<std::string> names;
    for (const QString &name : test::GoldenSkins()) {
        names.push_back(name.toStdString());
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(Skins, GoldenPage, testing::ValuesIn(SkinNames()),
                         [](const auto &info) { return info.param; });

/// Attributes in upper case by the name of the tag.
using Attributes = std::map<QString, std::set<QString>>;

Attributes GivenAttributes(const QStringList &tags) {
    static const QRegularExpression attribute(uR"(\b(\w+)="[^"]+")"_s);
    Attributes given;
    for (const QString &tag : tags) {
        for (auto matches = attribute.globalMatch(tag); matches.hasNext();) {
            if (const QString name = matches.next().captured(1).toUpper(); name != "NAME"_L1) {
                given[UpperName(tag)].insert(name);
            }
        }
    }
    return given;
}

/// All tags of the kept skins in parts for a profile, or for an episode.
QStringList TagsFor(QStringView kind) {
    QStringList tags;
    for (const QString &name : test::GoldenSkins()) {
        for (const test::GoldenPart &part : test::GoldenParts(test::ReadGolden(name + u".skin"_s))) {
            if (name != kGrammar && part.heading.startsWith(kind)) {
                tags += FindSkinTags(part.page);
            }
        }
    }
    return tags;
}

TEST(GoldenPages, ShowEveryTagForAProfileAndForAnEpisode) {
    for (const QStringView kind : {u"profile", u"episode"}) {
        std::set<QString> shown;
        for (const QString &tag : TagsFor(kind)) {
            shown.insert(UpperName(tag));
        }
        for (const SkinTag &tag : SkinTags()) {
            EXPECT_TRUE(shown.contains(QString::fromUtf16(tag.name)))
                << qPrintable(QString::fromUtf16(tag.name)) << " for " << qPrintable(kind.toString());
        }
    }
}

TEST(GoldenPages, ShowEveryAttributeThatATagReads) {
    test::GoldenCollection collection;
    Attributes read;
    collection.skin.attribute_read = [&](const QString &tag, QStringView attribute) {
        read[UpperName(tag)].insert(attribute.toString().toUpper());
    };
    for (const QString &name : test::GoldenSkins()) {
        collection.Render(test::ReadGolden(name + u".skin"_s));
    }
    Attributes given = GivenAttributes(TagsFor(u"profile") + TagsFor(u"episode"));
    EXPECT_EQ(given["HEADER_VARS"_L1].erase(u"LANGUAGE"_s), 1U) << "which means nothing";
    for (const SkinTag &tag : SkinTags()) {
        const QString name = QString::fromUtf16(tag.name);
        for (const QString &attribute : read[name]) {
            EXPECT_TRUE(given[name].contains(attribute)) << qPrintable(name + u" reads "_s + attribute);
        }
        for (const QString &attribute : given[name]) {
            EXPECT_TRUE(read[name].contains(attribute)) << qPrintable(name + u" does not read "_s + attribute);
        }
    }
}

} // namespace
} // namespace ostrand
