// Which numbers have bars, and which.
#include "skin/Barcode.h"

#include "HeaderVarsFixture.h"
#include "skin/TextConversion.h"

#include <QDir>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

TEST(BarcodeNumbers, AreDigitsOfThreeLengths) {
    const struct {
        QString number;
        QString digits;
    } cases[] = {
        {u"12345670"_s, u"12345670"_s},
        {u"012345678905"_s, u"012345678905"_s},
        {u"4006381333931"_s, u"4006381333931"_s},
        {u"0-12345-67890-5"_s, u"012345678905"_s},
        {u"4 006381 333931"_s, u"4006381333931"_s},
        {u"4006381333930"_s, u"4006381333930"_s}, // a wrong check digit is drawn all the same
        {u""_s, u""_s},
        {u"- -"_s, u""_s},
        {u"1234567"_s, u""_s},
        {u"123456789"_s, u""_s},
        {u"12345678901"_s, u""_s},
        {u"12345678901234"_s, u""_s},
        {u"01234567890X"_s, u""_s},
        {u"1234567e9012"_s, u""_s},
        {u"+12345678901"_s, u""_s},
        {u"1234567.9012"_s, u""_s},
        {u"\u0661\u0662\u0663\u0664\u0665\u0666\u0667\u0668"_s, u""_s},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(BarcodeDigits(row.number), row.digits) << row.number.toStdString();
        EXPECT_EQ(EncodeBarcodeBits(row.number).isEmpty(), row.digits.isEmpty()) << row.number.toStdString();
        EXPECT_EQ(RenderBarcodeImages(row.number, u"i/"_s, u"9"_s).isEmpty(), row.digits.isEmpty())
            << row.number.toStdString();
    }
}

TEST(BarcodeParity, FollowsLengthAndFirstDigit) {
    const QStringList parities{u"LLLLLL"_s, u"LLGLGG"_s, u"LLGGLG"_s, u"LLGGGL"_s, u"LGLLGG"_s,
                               u"LGGLLG"_s, u"LGGGLL"_s, u"LGLGLG"_s, u"LGLGGL"_s, u"LGGLGL"_s};
    for (int first = 0; first < 10; ++first) {
        EXPECT_EQ(GetBarcodeParity(QString::number(first) + u"000000000000"_s), parities.at(first)) << first;
        EXPECT_EQ(GetBarcodeParity(QString::number(first) + u"00000000000"_s), u"LLLLLL"_s) << first;
        EXPECT_EQ(GetBarcodeParity(QString::number(first) + u"0000000"_s), u"LLLL"_s) << first;
    }
    EXPECT_EQ(GetBarcodeParity(u""_s), QString());
    EXPECT_EQ(GetBarcodeParity(u"1234567"_s), QString());
    EXPECT_EQ(GetBarcodeParity(u"12345678901234"_s), QString());
    EXPECT_EQ(GetBarcodeParity(u"x234567890123"_s), QString());
}

/// The names of the images, in brackets the digits' markup being checked elsewhere.
QString Pieces(const QString &number) {
    QString text = RenderBarcodeImages(number, u"f/"_s, u"120"_s);
    return text.replace(u"<img src='f/"_s, u""_s).replace(u".png' HEIGHT=120/>"_s, u" "_s).trimmed();
}

TEST(BarcodeImages, StandInTheOrderOfTheBars) {
    EXPECT_EQ(Pieces(u"4006381333931"_s), u"B4 S L0 G0 L6 L3 G8 G1 M R3 R3 R3 R9 R3 R1 E B"_s);
    EXPECT_EQ(Pieces(u"0-12345-67890-5"_s), u"B S L0 L1 L2 L3 L4 L5 M R6 R7 R8 R9 R0 R5 E B"_s);
    EXPECT_EQ(Pieces(u"12345670"_s), u"B S L1 L2 L3 L4 M R5 R6 R7 R0 E B"_s);
}

TEST(BarcodeImages, HaveFolderAndHeight) {
    const QString text = RenderBarcodeImages(u"12345670"_s, u"../common/"_s, u"2em"_s);
    EXPECT_TRUE(text.startsWith(u"<img src='../common/B.png' HEIGHT=2em/><img src='../common/S.png' HEIGHT=2em/>"_s))
        << text.toStdString();
    EXPECT_TRUE(text.endsWith(u"<img src='../common/E.png' HEIGHT=2em/><img src='../common/B.png' HEIGHT=2em/>"_s));
}

TEST(BarcodeBits, AreGroupsOfBars) {
    EXPECT_EQ(EncodeBarcodeBits(u"12345670"_s),
              u"101,0011001,0010011,0111101,0100011,01010,1001110,1010000,1000100,1110010,101"_s);
    EXPECT_EQ(EncodeBarcodeBits(u"012345678905"_s),
              u"101,0001101,0011001,0010011,0111101,0100011,0110001,01010,1010000,1000100,1001000,1110100,1110010,"
              "1001110,101"_s);
    EXPECT_EQ(EncodeBarcodeBits(u"4-006381-333931"_s),
              u"101,0001101,0100111,0101111,0111101,0001001,0110011,01010,1000010,1000010,1000010,1110100,1000010,"
              "1100110,101"_s);
}

TEST(BarcodeBits, KnowEveryDigit) {
    const QStringList left{u"0001101"_s, u"0011001"_s, u"0010011"_s, u"0111101"_s, u"0100011"_s,
                           u"0110001"_s, u"0101111"_s, u"0111011"_s, u"0110111"_s, u"0001011"_s};
    const QStringList even{u"0100111"_s, u"0110011"_s, u"0011011"_s, u"0100001"_s, u"0011101"_s,
                           u"0111001"_s, u"0000101"_s, u"0010001"_s, u"0001001"_s, u"0010111"_s};
    const QStringList right{u"1110010"_s, u"1100110"_s, u"1101100"_s, u"1000010"_s, u"1011100"_s,
                            u"1001110"_s, u"1010000"_s, u"1000100"_s, u"1001000"_s, u"1110100"_s};
    for (int digit = 0; digit < 10; ++digit) {
        // A first digit 4 gives the parities LGLLGG.
        const QStringList groups = EncodeBarcodeBits(u'4' + QString(12, QChar(u'0' + digit))).split(u',');
        EXPECT_EQ(groups.value(1), left.at(digit));
        EXPECT_EQ(groups.value(2), even.at(digit));
        EXPECT_EQ(groups.value(13), right.at(digit));
    }
}

class BarcodeTag : public test::HeaderVarsFixture {
protected:
    QString Barcode(const QString &attributes = {}) { return Vars(GetBarcode, attributes, false); }
};

TEST_F(BarcodeTag, TakesItsImagesFromTheProgram) {
    AddProfile(u", UPC"_s, u", '4006381333931'"_s);
    const QString folder_url = PathToFileUrl(services.folders.Program() + u"/html/images/"_s);
    const QString first = u"<img src='"_s + folder_url + u"B4.png' HEIGHT=120/>"_s;
    EXPECT_EQ(Barcode().left(first.size()), first);
    EXPECT_TRUE(Barcode(u"height=\"60\""_s).contains(u"/M.png' HEIGHT=60/>"_s));
}

class TwoResourceFolders : public test::TempFolders {
public:
    QStringList Resources() const override { return {Program(), dir / u"share"_s}; }
};

TEST_F(BarcodeTag, FindsItsImagesInTheShareFolder) {
    AddProfile(u", UPC"_s, u", '12345670'"_s);
    TwoResourceFolders folders;
    Services with_share{services.dialogs,   services.progress,  services.pump,   services.clock,
                        services.random,    services.processes, folders,         services.locale,
                        services.clipboard, services.keyboard,  services.opener, services.images,
                        services.downloader};
    Session other(with_share);
    other.Database = std::move(session.Database);
    const sql::Recordset row = other.Database->OpenRecordset(u"Profiles");
    const TagCall call{.session = other, .skin = skin, .options = options, .row = row, .key = u"Key_100.4"_s};
    for (const QString &place : {u"share"_s, u"program"_s}) { // what lies beside the program wins
        ASSERT_TRUE(QDir().mkpath(folders.dir / (place + u"/html/images"_s)));
        QString text;
        GetBarcode(call, text);
        EXPECT_TRUE(
            text.startsWith(u"<img src='"_s + PathToFileUrl(folders.dir / (place + u"/html/images/B.png"_s)) + u'\''))
            << text.toStdString();
    }
}

TEST_F(BarcodeTag, NamesTheCommonFolderOffline) {
    AddProfile(u", UPC"_s, u", '12345670'"_s);
    options.offline = true;
    EXPECT_TRUE(Barcode().startsWith(u"<img src='../common/B.png' HEIGHT=120/>"_s));
}

TEST_F(BarcodeTag, IsEmptyForOtherNumbers) {
    AddProfile(u", UPC"_s, u", 'disc 7'"_s);
    EXPECT_EQ(Barcode(), QString());
    Run(u"UPDATE Profiles SET UPC = NULL"_s);
    EXPECT_EQ(Barcode(), QString());
}

} // namespace
} // namespace ostrand
