#include "services/SystemServices.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRandomGenerator>

namespace ostrand {

namespace {

constexpr double kMillisecondsPerDay = 86'400'000.0;

double MillisecondsSinceMidnight(const QTime &time) {
    return double(time.msecsSinceStartOfDay());
}

} // namespace

void QtEventPump::Turn() {
    QCoreApplication::processEvents();
}

double SystemClock::Now() const {
    const QDateTime now = QDateTime::currentDateTime();
    return double(QDate(1899, 12, 30).daysTo(now.date())) + MillisecondsSinceMidnight(now.time()) / kMillisecondsPerDay;
}

double SystemClock::SecondsSinceMidnight() const {
    return MillisecondsSinceMidnight(QTime::currentTime()) / 1000.0;
}

double SystemRandom::Next() {
    return QRandomGenerator::global()->generateDouble();
}

SystemLocaleInfo::SystemLocaleInfo(const QString &name) : locale_(name.isEmpty() ? QLocale::system() : QLocale(name)) {}

bool SystemLocaleInfo::IsKnown(const QString &name) {
    return QLocale(name).language() != QLocale::C;
}

QString SystemLocaleInfo::DefaultLanguage() const {
    // A system without a language setting speaks the program's own.
    return locale_.language() == QLocale::C ? QStringLiteral("en-US") : locale_.name().replace(u'_', u'-');
}

} // namespace ostrand
