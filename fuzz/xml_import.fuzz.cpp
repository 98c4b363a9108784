// Any bytes as a collection file, imported into a database that holds one profile already. That one must stay.

#include "collection_files/ProfilerImport.h"
#include "database/DatabaseFunctions.h"
#include "services/NoDesktop.h"
#include "shell/Session.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace ostrand;

namespace {

class World : UserDialogs, ProgressView, EventPump, Clock, RandomNumbers, ProcessRunner, Folders, SystemLocale {
public:
    World() :
        services_{*this, *this,      *this,     *this,   *this,   *this,      *this,
                  *this, clipboard_, keyboard_, opener_, images_, downloader_},
        session_(services_) {
        CreateCollectionDatabase(session_, dir_.filePath(u"a.mdb"_s));
    }

    void Import(const char *data, size_t size) {
        QFile file(dir_.filePath(u"a.xml"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(data, qint64(size)) != qint64(size)) {
            std::abort();
        }
        file.close();
        session_.Database->Execute(u"DELETE FROM Profiles");
        session_.Database->Execute(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_kept', 'Kept')");
        session_.Database->Execute(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_kept', 'Entire')");
        session_.Profiler3 = true;
        ImportProfilerData(session_, file.fileName());
        if (session_.Database->OpenRecordset(u"SELECT * FROM Profiles WHERE Title = 'Kept'").Eof()) {
            std::abort();
        }
    }

private:
    MessageAnswer Show(const Message &message) override {
        return message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok;
    }
    std::optional<QString> InputText(const QString &, const QString &, const QString &) override { return {}; }
    std::optional<QString> InputCombo(const QString &, const QString &, const QStringList &, const QString &) override {
        return {};
    }
    QString OpenFile(const FileRequest &) override { return {}; }
    QString SaveFile(const FileRequest &) override { return {}; }
    QString BrowseFolder(const QString &, const QString &) override { return {}; }
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
    bool Start(const QString &, const QStringList &, QString *) override { return false; }
    QString Documents() const override { return dir_.path(); }
    QString Temp() const override { return dir_.path(); }
    QString Program() const override { return dir_.path(); }
    QStringList Resources() const override { return {}; }
    QString UserName() const override { return u"tester"_s; }
    QString DecimalSeparator() const override { return u"."_s; }
    QString LongDatePattern() const override { return {}; }
    QString DefaultLanguage() const override { return u"en-US"_s; }

    QTemporaryDir dir_;
    PrivateClipboard clipboard_;
    NoKeyboard keyboard_;
    NoOpener opener_;
    ImageHeads images_;
    NoDownloader downloader_;
    Services services_;
    Session session_;
    quint64 state_ = 1;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static World world;
    world.Import(reinterpret_cast<const char *>(data), size);
    return 0;
}
