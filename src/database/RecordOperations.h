// What several windows do with one profile or one episode.
#pragma once

#include <QString>

#include <functional>

namespace ostrand {

struct Session;

/// What becomes of the cover images of a profile that is deleted.
enum class CoverImages { Ask, Delete, Keep };

/// Deletes a profile with all its rows, and then its cover images. A fault of the database throws SqlError and leaves
/// the profile whole.
void DeleteProfile(Session &session, const QString &id, CoverImages images);
/// The same; with `ask_images` the user decides on images that are there, without it they go.
inline void DeleteProfile(Session &session, const QString &id, bool ask_images) {
    DeleteProfile(session, id, ask_images ? CoverImages::Ask : CoverImages::Delete);
}
/// Deletes an episode with all its rows. Throws SqlError, which leaves it whole.
void DeleteEpisode(Session &session, const QString &id);

/// Whether a cover image is there for a profile, under its key as it is passed.
bool HasCoverImages(const Session &session, const QString &id);
/// Asks whether images go with what is deleted.
bool AskToDeleteImages(Session &session);

/// The next import and whoever looks at dates must see that a profile was changed by hand. Throws SqlError.
void MarkEdited(Session &session, const QString &id);

/// Runs changes that belong together and makes them durable: a fault, which is thrown on, takes all of them back, and a
/// crash leaves all or nothing.
void WriteTogether(Session &session, const std::function<void()> &changes);

} // namespace ostrand
