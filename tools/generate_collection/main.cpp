// Writes a big collection file for measurements: generate_collection N OUT.xml [seed].
#include "CollectionWriter.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

int Fail(const QString &text) {
    QTextStream(stderr) << text << Qt::endl;
    return 1;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    bool good_count = false;
    bool good_seed = true;
    const int count = arguments.value(1).toInt(&good_count);
    const qulonglong seed = arguments.size() > 3 ? arguments.at(3).toULongLong(&good_seed) : 1;
    if (arguments.size() < 3 || arguments.size() > 4 || !good_count || !good_seed || count < 1) {
        return Fail(u"Usage: generate_collection N OUT.xml [seed]"_s);
    }
    QFile file(arguments.at(2));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return Fail(u"Cannot write "_s + file.fileName());
    }
    if (!ostrand::generator::CollectionWriter(file, count, seed).Write()) {
        return Fail(u"Writing failed: "_s + file.errorString());
    }
    return 0;
}
