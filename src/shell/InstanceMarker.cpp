#include "shell/InstanceMarker.h"

#include <QCoreApplication>
#include <QDir>

namespace ostrand {

namespace {
constexpr int kGuardWait = 2000; // milliseconds
constexpr int kMostInstances = 1000;

QString MarkPath(const QString &folder, int number) {
    return folder + QStringLiteral("/instance%1.lock").arg(number);
}
} // namespace

InstanceMarker::InstanceMarker(const QString &folder) : folder_(folder), guard_(folder + QStringLiteral(".lock")) {
    const bool guarded = guard_.tryLock(kGuardWait);
    for (int number = 1; number <= kMostInstances; ++number) {
        own_path_ = MarkPath(folder_, number);
        own_ = std::make_unique<QLockFile>(own_path_);
        own_->setStaleLockTime(0); // held as long as the program runs
        if (own_->tryLock(0)) {
            break;
        }
        const bool taken = own_->error() == QLockFile::LockFailedError;
        own_.reset();
        if (!taken) {
            break;
        }
    }
    if (guarded) {
        guard_.unlock();
    }
}

bool InstanceMarker::OthersRun() const {
    const QStringList marks = QDir(folder_).entryList({QStringLiteral("instance*.lock")}, QDir::Files | QDir::Hidden);
    return std::any_of(marks.begin(), marks.end(), [&](const QString &mark) {
        const QString path = folder_ + u'/' + mark;
        if (path == own_path_) {
            return false;
        }
        QLockFile other(path);
        other.setStaleLockTime(0);
        return !other.tryLock(0);
    });
}

void InstanceMarker::LeaveAndClean() {
    const bool guarded = guard_.tryLock(kGuardWait);
    const bool others = OthersRun();
    if (own_) {
        own_->unlock();
        own_.reset();
    }
    if (!others && guarded && !folder_.isEmpty()) {
        QDir(folder_).removeRecursively();
    }
    if (guarded) {
        guard_.unlock();
    }
}

} // namespace ostrand
