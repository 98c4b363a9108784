// Folders with pictures.
#pragma once

#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <QDir>
#include <QImage>
#include <gtest/gtest.h>

namespace ostrand::test {

/// A session with a database and an empty headshot folder.
class HeadshotWindowTest : public testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(session.DataFolder);
        CreateCollectionDatabase(session, folder / QStringLiteral("films.mdb"));
        session.HeadshotPath = WithSeparator(folder / QStringLiteral("heads"));
        QDir().mkpath(session.HeadshotPath);
        QDir().mkpath(folder / QStringLiteral("source"));
    }
    QString Picture(const QString &name, QSize size, Qt::GlobalColor color = Qt::darkCyan) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(color);
        EXPECT_TRUE(picture.save(folder / name, "JPG"));
        return folder / name;
    }
    QStringList Files(const QString &name = QStringLiteral("heads")) {
        return QDir(folder / name).entryList(QDir::Files, QDir::Name);
    }

    TempDir folder;
    TestServices services;
    Session session{services.services};
};

} // namespace ostrand::test
