#include "sql/LockFile.h"

#include "sql/SqlError.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ostrand::sql {

namespace {

struct Holder {
    qint64 process = 0;
    QByteArray start_time;
    int number = 0;
    quint64 file = 0; ///< what the database is known by in its folder, whatever its name
    QByteArray program;
};

/// 0 where there is no file.
quint64 FileNumber(const QString &database_path) {
    struct stat status = {};
    return ::stat(QFile::encodeName(database_path).constData(), &status) == 0 ? quint64(status.st_ino) : 0;
}

/// The start time of a living process in the system's clock ticks; empty for none, and for one that has ended and only
/// waits to be asked how.
QByteArray StartTime(qint64 process) {
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray text = file.readAll();
    // The second field is a name in brackets and may hold blanks; the state is the third, the start the twenty-second.
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    constexpr qsizetype kStateAt = 0;
    constexpr qsizetype kStartAt = 19;
    if (fields.size() <= kStartAt || fields.at(kStateAt) == "Z" || fields.at(kStateAt) == "X") {
        return {};
    }
    return fields.at(kStartAt);
}

QByteArray ToLine(const Holder &holder) {
    return QByteArray::number(holder.process) + ' ' + holder.start_time + ' ' + QByteArray::number(holder.number) +
           ' ' + QByteArray::number(holder.file) + ' ' + holder.program + '\n';
}

std::vector<Holder> LivingHolders(const QByteArray &text) {
    std::vector<Holder> holders;
    for (const QByteArray &line : text.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() < 5) {
            continue;
        }
        Holder holder{fields.at(0).toLongLong(), fields.at(1), fields.at(2).toInt(), fields.at(3).toULongLong(),
                      fields.mid(4).join(' ')};
        if (holder.process > 0 && !holder.start_time.isEmpty() && StartTime(holder.process) == holder.start_time) {
            holders.push_back(std::move(holder));
        }
    }
    return holders;
}

QByteArray ProgramName() {
    QString name = QCoreApplication::applicationName();
    return name.replace(u'\n', u' ').toUtf8();
}

/// The lock file, open and locked against all others until the end of the object.
class OpenLockFile {
public:
    explicit OpenLockFile(const QString &path, int flags) : name_(QFile::encodeName(path)) {
        // The last holder removes the file under its lock: what was waited for may be gone from the folder by then.
        while (true) {
            file_ = ::open(name_.constData(), flags | O_CLOEXEC, 0666);
            if (file_ < 0) {
                return;
            }
            while (::flock(file_, LOCK_EX) != 0 && errno == EINTR) {
            }
            if (IsStillThere()) {
                return;
            }
            ::close(file_);
        }
    }
    ~OpenLockFile() {
        if (file_ >= 0) {
            ::close(file_);
        }
    }
    OpenLockFile(const OpenLockFile &) = delete;
    OpenLockFile &operator=(const OpenLockFile &) = delete;

    bool IsOpen() const { return file_ >= 0; }

    QByteArray Read() const {
        QFile file;
        if (!file.open(file_, QIODevice::ReadOnly)) {
            return {};
        }
        file.seek(0);
        return file.readAll();
    }

    /// Writes the holders; without any, removes the file. False where it can't be written.
    bool Write(const std::vector<Holder> &holders) const {
        if (holders.empty()) {
            return ::unlink(name_.constData()) == 0;
        }
        QByteArray text;
        for (const Holder &holder : holders) {
            text += ToLine(holder);
        }
        // Cut only when the new text stands, so that a full disk takes no holder away.
        return ::pwrite(file_, text.constData(), size_t(text.size()), 0) == text.size() &&
               ::ftruncate(file_, text.size()) == 0;
    }

private:
    bool IsStillThere() const {
        struct stat here = {};
        struct stat named = {};
        return ::fstat(file_, &here) == 0 && ::stat(name_.constData(), &named) == 0 && here.st_ino == named.st_ino &&
               here.st_dev == named.st_dev;
    }

    QByteArray name_;
    int file_ = -1;
};

std::vector<Holder> ReadHolders(const QString &database_path) {
    const OpenLockFile file(LockFile::PathFor(database_path), O_RDONLY);
    if (!file.IsOpen()) {
        return {};
    }
    std::vector<Holder> holders = LivingHolders(file.Read());
    if (holders.empty()) {
        file.Write(holders);
    }
    return holders;
}

} // namespace

LockFile::LockFile(const QString &database_path) : path_(PathFor(database_path)) {
    const OpenLockFile file(path_, O_RDWR | O_CREAT);
    Holder own{::getpid(), StartTime(::getpid()), 1, FileNumber(database_path), ProgramName()};
    std::vector<Holder> holders = file.IsOpen() ? LivingHolders(file.Read()) : std::vector<Holder>();
    for (const Holder &holder : holders) {
        if (holder.process == own.process) {
            own.number = std::max(own.number, holder.number + 1);
        }
    }
    holders.push_back(own);
    if (!file.IsOpen() || !file.Write(holders)) {
        holders.pop_back();
        if (file.IsOpen() && holders.empty()) {
            file.Write(holders); // removes what was begun
        }
        throw SqlError(ErrorCode::CannotLock, QStringLiteral("The lock file %1 can't be written.").arg(path_));
    }
    line_ = ToLine(own);
}

LockFile::~LockFile() {
    const OpenLockFile file(path_, O_RDWR);
    if (!file.IsOpen()) {
        return;
    }
    std::vector<Holder> holders = LivingHolders(file.Read());
    std::erase_if(holders, [&](const Holder &holder) { return ToLine(holder) == line_; });
    file.Write(holders);
}

QString LockFile::PathFor(const QString &database_path) {
    return database_path.left(database_path.lastIndexOf(u'.') + 1) + QStringLiteral("ldb");
}

QStringList LockFile::Holders(const QString &database_path) {
    QStringList names;
    for (const Holder &holder : ReadHolders(database_path)) {
        names.append(QStringLiteral("%1 (%2)").arg(QString::fromUtf8(holder.program), QString::number(holder.process)));
    }
    return names;
}

bool LockFile::IsHeldByOther(const QString &database_path) {
    const std::vector<Holder> holders = ReadHolders(database_path);
    return std::any_of(holders.begin(), holders.end(),
                       [](const Holder &holder) { return holder.process != ::getpid(); });
}

void LockFile::RequireSameFile(const QString &database_path) {
    const quint64 file = FileNumber(database_path);
    for (const Holder &holder : ReadHolders(database_path)) {
        if (holder.file != file && holder.file != 0 && file != 0) {
            throw SqlError(ErrorCode::CannotLock,
                           QStringLiteral("Another application or instance still works on the file that stood here "
                                          "before this one. Close it first."));
        }
    }
}

} // namespace ostrand::sql
