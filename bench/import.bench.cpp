// A collection file of many profiles, imported new and again unchanged, against the bare parse of the file.
// Usage: bench_import [profiles, default 2000]

#include "collection_files/ProfilerImport.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <expat.h>
#include <sys/resource.h>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace ostrand;

namespace {

/// Nobody to ask and nothing to show.
class SilentWorld : UserDialogs, ProgressView, EventPump, Clock, RandomNumbers, ProcessRunner, Folders, SystemLocale {
public:
    explicit SilentWorld(const QString &folder) :
        folder_(folder), services_{*this, *this, *this, *this, *this, *this, *this, *this}, session(services_) {}

private:
    MessageAnswer Show(const Message &) override { return MessageAnswer::Ok; }
    std::optional<QString> InputText(const QString &, const QString &, const QString &) override { return {}; }
    std::optional<QString> InputCombo(const QString &, const QString &, const QStringList &, const QString &) override {
        return {};
    }
    QString OpenFile(const FileRequest &) override { return {}; }
    QString SaveFile(const FileRequest &) override { return {}; }
    void Opened(const QString &) override {}
    void TitleChanged(const QString &) override {}
    void LineChanged(const QString &) override {}
    void DetailChanged(const QString &) override {}
    void CounterChanged(const QString &) override {}
    void BarChanged(int, int) override {}
    void NodeAdded(const QString &, const QString &, const QString &) override {}
    void NodeTicked(const QString &) override {}
    void Finished() override {}
    void Closed() override {}
    void Turn() override {}
    double Now() const override { return 45000; }
    double SecondsSinceMidnight() const override { return 0; }
    qint64 Milliseconds() const override { return 0; }
    double Next() override {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return double(state_ >> 11) / double(quint64(1) << 53);
    }
    std::optional<int> Run(const QString &, const QStringList &, ProcessStyle, EventPump *, QString *) override {
        return {};
    }
    std::optional<int> RunCommandLine(const QString &, ProcessStyle, EventPump *, QString *) override { return {}; }
    QString Documents() const override { return folder_; }
    QString Temp() const override { return folder_; }
    QString Program() const override { return folder_; }
    QStringList Resources() const override { return {}; }
    QString UserName() const override { return u"bench"_s; }
    QString DecimalSeparator() const override { return u"."_s; }
    QString LongDatePattern() const override { return {}; }
    QString DefaultLanguage() const override { return u"en-US"_s; }

    QString folder_;
    Services services_;
    quint64 state_ = 1;

public:
    Session session;
};

QByteArray Credits(int profile) {
    QByteArray text = "    <Actors>\r\n";
    for (int i = 0; i < 60; ++i) {
        const QByteArray number = QByteArray::number((profile * 37 + i * 101) % 40000);
        text += "      <Actor FirstName=\"Ann" + number + "\" MiddleName=\"Lee\" LastName=\"Smith" + number +
                "\" BirthYear=\"0\" Role=\"Person " + QByteArray::number(i) +
                "\" CreditedAs=\"\" Voice=\"false\" Uncredited=\"false\"/>\r\n";
    }
    text += "    </Actors>\r\n    <Credits>\r\n";
    for (int i = 0; i < 25; ++i) {
        const QByteArray number = QByteArray::number((profile * 53 + i * 211) % 20000);
        text += "      <Credit FirstName=\"Bob" + number + "\" MiddleName=\"\" LastName=\"Jones" + number +
                "\" BirthYear=\"0\" CreditType=\"Direction\" CreditSubtype=\"Director\" CreditedAs=\"\"/>\r\n";
    }
    return text + "    </Credits>\r\n";
}

QByteArray Profile(int number) {
    const QByteArray id = QByteArray::number(100000000000 + number) + ".4";
    return "  <DVD>\r\n    <ProfileTimestamp>2012-05-09T18:10:47.000Z</ProfileTimestamp>\r\n    <ID>" + id +
           "</ID>\r\n    <MediaTypes>\r\n      <DVD>true</DVD>\r\n      <HDDVD>false</HDDVD>\r\n      "
           "<BluRay>false</BluRay>\r\n    </MediaTypes>\r\n    <UPC>" +
           id + "</UPC>\r\n    <Title>Green Meadow " + QByteArray::number(number) +
           "</Title>\r\n    <Genres>\r\n      <Genre>Drama</Genre>\r\n      <Genre>Comedy</Genre>\r\n    </Genres>\r\n"
           "    <Studios>\r\n      <Studio>Invented Films</Studio>\r\n    </Studios>\r\n" +
           Credits(number) + "    <Overview>" + QByteArray("A meadow, \x93green\x94 \x96 and wide. ").repeated(40) +
           "</Overview>\r\n    <Discs>\r\n      <Disc>\r\n        <DescriptionSideA>Main</DescriptionSideA>\r\n      "
           "</Disc>\r\n    </Discs>\r\n    <Tags>\r\n      <Tag Name=\"Seen\" FullName=\"All/Seen\"/>\r\n    "
           "</Tags>\r\n"
           "  </DVD>\r\n";
}

QString WriteCollection(const QString &path, int profiles) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write("<?xml version=\"1.0\" encoding=\"windows-1252\"?>\r\n<Collection>\r\n");
        for (int i = 0; i < profiles; ++i) {
            file.write(Profile(i));
        }
        file.write("</Collection>\r\n");
    }
    return path;
}

int XMLCALL Latin(void *, const XML_Char *, XML_Encoding *encoding) {
    for (int i = 0; i < 256; ++i) {
        encoding->map[i] = i;
    }
    encoding->convert = nullptr;
    encoding->release = nullptr;
    return XML_STATUS_OK;
}

void ParseBare(const QString &path) {
    QFile file(path);
    const XML_Parser parser = XML_ParserCreate(nullptr);
    XML_SetUnknownEncodingHandler(parser, Latin, nullptr);
    if (file.open(QIODevice::ReadOnly)) {
        for (QByteArray block = file.read(1 << 20);; block = file.read(1 << 20)) {
            XML_Parse(parser, block.constData(), int(block.size()), block.isEmpty());
            if (block.isEmpty()) {
                break;
            }
        }
    }
    XML_ParserFree(parser);
}

template <typename Job>
double Seconds(Job job) {
    QElapsedTimer timer;
    timer.start();
    job();
    return double(timer.nsecsElapsed()) / 1e9;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    const int profiles = argc > 1 ? std::max(1, std::atoi(argv[1])) : 2000;
    QTemporaryDir folder;
    const QString file = WriteCollection(folder.filePath(u"collection.xml"_s), profiles);
    SilentWorld world(folder.path());
    Session &session = world.session;
    CreateCollectionDatabase(session, folder.filePath(u"a.mdb"_s));
    session.Profiler3 = true;

    const double bare = Seconds([&] { ParseBare(file); });
    const double fresh = Seconds([&] { ImportProfilerData(session, file); });
    const double again = Seconds([&] { ImportProfilerData(session, file); });
    const double bare_again = Seconds([&] { ParseBare(file); });
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const double floor = std::min(bare, bare_again);
    std::printf("%d profiles, %.1f MB\n", profiles, double(QFile(file).size()) / 1e6);
    std::printf("bare parse        %8.2f s\n", floor);
    std::printf("first import      %8.2f s  %6.2f x, %.2f ms a profile\n", fresh, fresh / floor,
                fresh * 1e3 / profiles);
    const auto counts = session.Database->GetCacheCounts();
    std::printf("statements        %8lld      %6.2f %% from the cache\n", (long long)counts.lookups,
                100.0 * double(counts.hits) / double(counts.lookups));
    std::printf("unchanged import  %8.2f s  %6.2f x\n", again, again / floor);
    std::printf("peak memory       %8.1f MB\n", double(usage.ru_maxrss) / 1024);
    return 0;
}
