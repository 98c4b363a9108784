// The start of the window tests: an application without a screen, in which a warning of the toolkit is a failure.

#include <gtest/gtest.h>

namespace {

void FailOnWarning(QtMsgType type, const QMessageLogContext &, const QString &message) {
    // What windows without a screen cannot do is no fault of theirs.
    const bool of_platform = message.startsWith(QStringLiteral("This plugin does not support "));
    if (type != QtDebugMsg && type != QtInfoMsg && !of_platform) {
        ADD_FAILURE() << qPrintable(message);
    }
}

} // namespace

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    app.setStyle(QStringLiteral("Fusion"));
    qInstallMessageHandler(FailOnWarning);
    return RUN_ALL_TESTS();
}
