#include "services/NoDesktop.h"
#include "support/TempDir.h"

#include <QDir>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

using Size = std::optional<std::pair<int, int>>;

TEST(ImageHeads, TellTheSizeOfPictures) {
    const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452"
                                               "00000140"
                                               "000000c8"
                                               "08020000");
    const QByteArray jpeg = QByteArray::fromHex("ffd8"
                                                "ffe00004abcd"
                                                "ffff"
                                                "ffc00011"
                                                "08"
                                                "00c8"
                                                "0140"
                                                "03012200021101031101ffd9");
    const struct {
        const char *name;
        QByteArray content;
        Size size;
    } cases[] = {
        {"png", png, Size({320, 200})},
        {"png cut short", png.left(20), {}},
        {"png of no extent", QByteArray(png).replace(16, 4, QByteArray(4, '\0')), {}},
        {"jpeg with segments before the frame", jpeg, Size({320, 200})},
        {"jpeg cut short", jpeg.left(14), {}},
        {"jpeg whose segment has no length", QByteArray::fromHex("ffd8ffe00000ffe00000ffe00000ffe00000"), {}},
        {"text", "not a picture at all, only words", {}},
        {"empty", "", {}},
    };
    const test::TempDir dir;
    for (const auto &c : cases) {
        EXPECT_EQ(ImageHeads().Size(dir.Write(u"a"_s, c.content)), c.size) << c.name;
    }
    EXPECT_EQ(ImageHeads().Size(dir / u"missing"_s), Size());
}

TEST(ImageHeads, ReadTheSampleCovers) {
    const QDir covers(QString::fromUtf8(OSTRAND_SOURCE_DIR) + u"/resources/samples/images/covers"_s);
    int pictures = 0;
    for (const QFileInfo &file : covers.entryInfoList({u"*.jpg"_s})) {
        const Size size = ImageHeads().Size(file.filePath());
        ASSERT_TRUE(size) << qPrintable(file.filePath());
        EXPECT_GT(size->second, size->first) << "a cover is higher than wide";
        ++pictures;
    }
    EXPECT_GT(pictures, 50);
}

} // namespace
} // namespace ostrand
