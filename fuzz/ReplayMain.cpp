// Runs a fuzz target over every file of a corpus folder.

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QString::fromLocal8Bit(argv[i]), QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(file.fileName()));
                return 1;
            }
            const QByteArray content = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(content.constData()), size_t(content.size()));
            ++count;
        }
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
