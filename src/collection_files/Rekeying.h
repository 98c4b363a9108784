// The row of a profile under its present key or under the key that an older file gave it.
#pragma once

#include <QString>

namespace ostrand {

struct ImportProfile;
struct Session;

struct FoundProfile {
    bool exists = false;
    /// The key as it is stored, which may differ from the file's in case.
    QString key;
    QString md5;
    /// The profile may have been known under an older form of its key, which is told to the user by a tag.
    bool wants_tag = false;
};

/// Finds the row of a profile. `rekey` holds while a database of second generation files gets its first file of the
/// third: a profile that is found under its old key is moved to the new one with all that hangs on it.
FoundProfile FindProfileRow(const ImportProfile &profile, bool rekey);
/// Moves all dependent rows of a profile to a new key; the row of Profiles is the caller's.
void ConvertProfileData(Session &session, const QString &old_key, const QString &new_key);

/// Indexes for the look-ups of profiles by disc and by UPC, kept only while an import gives new keys: without them each
/// profile of the file would search two tables.
class RekeyingIndexes {
public:
    explicit RekeyingIndexes(Session &session);
    ~RekeyingIndexes();
    RekeyingIndexes(const RekeyingIndexes &) = delete;
    RekeyingIndexes &operator=(const RekeyingIndexes &) = delete;

private:
    Session &session_;
};

} // namespace ostrand
