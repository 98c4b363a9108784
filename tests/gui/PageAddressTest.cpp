// The address of a link: its escapes undone, it is what the page's author wrote.
#include "platform_qt/PageAddress.h"

#include <gtest/gtest.h>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

TEST(PageAddress, HoldsTheNameThatThePageGave) {
    const struct {
        QString address, name;
    } cases[] = {
        {u"Ann%20Ley|0"_s, u"Ann Ley|0"_s}, {u"%C3%89mile|0"_s, u"\u00C9mile|0"_s},
        {u"100%|0"_s, u"100%|0"_s},         {u"O'H%C3%B6he+100%"_s, u"O'H\u00F6he+100%"_s},
        {u"100%25|0"_s, u"100%|0"_s},       {u"100%25"_s, u"100%"_s},
        {u"a%2541"_s, u"a%41"_s},           {u"plain"_s, u"plain"_s},
    };
    for (const auto &c : cases) {
        const QString told = PageAddress(QUrl(u"file:///t/blank.html?actorid="_s + c.address));
        const QString plain = QString::fromUtf8(QByteArray::fromPercentEncoding(told.toUtf8()));
        EXPECT_EQ(plain.section(u'=', 1).toStdString(), c.name.toStdString()) << c.address.toStdString();
    }
}

} // namespace
} // namespace ostrand::test
