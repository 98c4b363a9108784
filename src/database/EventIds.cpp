#include "database/EventIds.h"

#include "shell/Session.h"

#include <cmath>

namespace ostrand {

using namespace Qt::StringLiterals;

int NewEventId(Session &session) {
    constexpr double kRange = 2147483648.0;
    constexpr int kDraws = 100;
    qint64 number = 0;
    for (int draw = 0;; ++draw) {
        number = draw < kDraws ? std::llround(session.services.random.Next() * kRange) : number + 1;
        if (number <= 0 || number >= qint64(kRange)) {
            number = 0;
            continue;
        }
        if (session.Database
                ->OpenRecordset(QString(u"SELECT * FROM Events WHERE EventID = "_s + QString::number(number)))
                .Eof()) {
            return int(number);
        }
    }
}

} // namespace ostrand
