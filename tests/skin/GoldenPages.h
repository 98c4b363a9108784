// Pages that were read once and must not change: skins, the collection they are filled from, and the expected text.
#pragma once

#include "shell/Session.h"
#include "skin/TagCall.h"
#include "support/Scripted.h"

namespace ostrand::test {

/// Notes down every box that is shown; nothing else is expected.
class NotedDialogs : public UserDialogs {
public:
    MessageAnswer Show(const Message &message) override;
    std::optional<QString> InputText(const QString &, const QString &, const QString &) override { return {}; }
    std::optional<QString> InputCombo(const QString &, const QString &, const QStringList &, const QString &) override {
        return {};
    }
    QString OpenFile(const FileRequest &) override { return {}; }
    QString SaveFile(const FileRequest &) override { return {}; }
    QString BrowseFolder(const QString &, const QString &) override { return {}; }

    /// Each box as `title: text`.
    QStringList boxes;
};

/// The part of a skin file that is rendered as one page.
struct GoldenPart {
    /// "profile" or "episode", the key, and the options, such as "profile, Key_1, offline".
    QString heading;
    QString page;
};
/// The parts of a skin file: each begins with a line "=== " and its heading. What stands above the first is a remark.
std::vector<GoldenPart> GoldenParts(const QString &skin_file);

/// The names of all kept skins, without ".skin".
QStringList GoldenSkins();
/// A skin that is kept, or the page that it gives.
QString ReadGolden(const QString &name);

/// The collection of tests/golden/skin/collection.sql, with covers and portraits, in a folder of its own.
class GoldenCollection {
public:
    GoldenCollection();
    /// The pages of all parts of a skin file, each below its heading. Behind a page stand the boxes that it showed and
    /// what it asked for; in place of one that could not be rendered stands the failure. The folder is told as TEMP.
    QString Render(const QString &skin_file);

    SkinState skin;

private:
    QString RenderPart(const GoldenPart &part);
    void Apply(const QStringList &words);
    QString Page(const QStringList &words, const QString &page);

    TestServices scripted_;
    NotedDialogs dialogs_;
    Services services_{dialogs_,
                       scripted_.progress,
                       scripted_.pump,
                       scripted_.clock,
                       scripted_.random,
                       scripted_.processes,
                       scripted_.folders,
                       scripted_.locale,
                       scripted_.clipboard,
                       scripted_.keyboard,
                       scripted_.opener,
                       scripted_.images,
                       scripted_.downloader};
    Session session_{services_};
    RenderOptions options_;
    QString back_profile_id_;
    QStringList asked_;
};

} // namespace ostrand::test
