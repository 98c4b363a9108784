// The settings file: what is written reads back, and nothing else changes.

#include "base/IniFile.h"
#include "base/Text.h"

#include <cstdlib>

using namespace ostrand;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString text = DecodeUserText(QByteArrayView(data, qsizetype(size)));
    const QString section = QStringLiteral("Main");
    const QString key = QStringLiteral("Version");
    IniFile::Find(text, section, key, {});
    // A section's name inside a line, or a line that only looks like the key's, may keep the value from being found,
    // but a second write must find what the first one left.
    const QString once = IniFile::Replaced(text, section, key, QStringLiteral("1.2.3"));
    const QString twice = IniFile::Replaced(once, section, key, QStringLiteral("1.2.3"));
    const QString found = IniFile::Find(once, section, key, QStringLiteral("none"));
    if (found == QStringLiteral("1.2.3") && twice != once)
        std::abort();
    if (text.isEmpty() && found != QStringLiteral("1.2.3"))
        std::abort();
    const QString name = SafeFileName(text);
    if (name.contains(u'/') || name.contains(u'\\') || name == QStringLiteral(".") || name == QStringLiteral(".."))
        std::abort();
    return 0;
}
