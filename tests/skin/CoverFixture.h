// A folder of covers for the tags that show them.
#pragma once

#include "ProfileTagFixture.h"

namespace ostrand {

class CoverTest : public ProfileTagTest {
protected:
    void SetUp() override {
        ProfileTagTest::SetUp();
        session.CoverPath = Path(QStringLiteral("my covers/"));
        session.TempFolder = Path(QStringLiteral("temp"));
        RemoveCovers();
    }
    /// The path of the new file.
    QString AddCover(const QString &name) {
        const QString path = folder_.Write(QStringLiteral("my covers/") + name, "image");
        skin.covers.Invalidate();
        return QString(path).replace(QStringLiteral("my covers"), QStringLiteral("my%20covers"));
    }
    void RemoveCovers() {
        QDir(session.CoverPath).removeRecursively();
        QDir().mkpath(session.CoverPath);
        skin.covers.Invalidate();
    }
    /// The URL of a cover, `name` escaped.
    QString Url(const QString &name) const {
        return QStringLiteral("file://") + Path(QStringLiteral("my%20covers/")) + name;
    }
};

} // namespace ostrand
