// Tells whether another instance of the program uses the temp folder.
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace ostrand {

/// A lock file of this process in the temp folder. The system drops the lock of a process that dies, so that a crash
/// leaves no instance behind.
class InstanceMarker {
public:
    /// Marks this process as a user of an existing folder. A folder that cannot be written is no error.
    explicit InstanceMarker(const QString &folder);

    /// Takes the mark away, and the whole folder with everything in it when no other instance has marked it.
    void LeaveAndClean();

private:
    bool OthersRun() const;

    QString folder_;
    QLockFile guard_; ///< held while marks are counted, so that two that end at once do not both stay away
    std::unique_ptr<QLockFile> own_;
    QString own_path_;
};

} // namespace ostrand
