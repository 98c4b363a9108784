// Event loop, clock, random numbers and locale of the system.
#pragma once

#include "platform/Services.h"

#include <QElapsedTimer>
#include <QLocale>

namespace ostrand {

/// Turns the loop of the application object.
class QtEventPump : public EventPump {
public:
    void Turn() override;
};

class SystemClock : public Clock {
public:
    SystemClock() { timer_.start(); }
    double Now() const override;
    double SecondsSinceMidnight() const override;
    qint64 Milliseconds() const override { return timer_.elapsed(); }

private:
    QElapsedTimer timer_;
};

class SystemRandom : public RandomNumbers {
public:
    double Next() override;
};

/// The user's locale, or the one of a name such as "de-DE".
class SystemLocaleInfo : public SystemLocale {
public:
    explicit SystemLocaleInfo(const QString &name = {});
    /// Whether a name names a locale.
    static bool IsKnown(const QString &name);
    QString DecimalSeparator() const override { return locale_.decimalPoint(); }
    QString LongDatePattern() const override { return locale_.dateFormat(QLocale::LongFormat); }
    QString DefaultLanguage() const override;

private:
    QLocale locale_;
};

} // namespace ostrand
