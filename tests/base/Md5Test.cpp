#include "base/Md5.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

TEST(Md5Test, KnownDigests) {
    EXPECT_EQ(MD5({}), QStringLiteral("d41d8cd98f00b204e9800998ecf8427e"));
    EXPECT_EQ(MD5(u"abc"), QStringLiteral("900150983cd24fb0d6963f7d28e17f72"));
    EXPECT_EQ(MD5(u"message digest"), QStringLiteral("f96b697d7cb7938d525a2f31aaf161d0"));
}

TEST(Md5Test, TakesTheLowByteOfEachUnit) {
    EXPECT_EQ(MD5(u"\u0161bc"), MD5(u"abc"));
    EXPECT_EQ(MD5(u"\u20AC"), MD5(u"\u00AC"));
    EXPECT_NE(MD5(u"\u00E4"), MD5(u"a\u0308"));
}

} // namespace
} // namespace ostrand
