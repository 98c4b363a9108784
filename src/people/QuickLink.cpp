#include "people/QuickLink.h"

#include "database/DatabaseFunctions.h"
#include "people/CrossLinks.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"
#include "sql/Collation.h"

using namespace Qt::StringLiterals;

namespace ostrand {

bool AddAlias(Session &session, const QString &name, int birth_year) {
    if (!session.Database || name.isEmpty()) {
        return false;
    }
    const QString present = GetCommonName(session, name, birth_year);
    bool cancelled = false;
    const QString text = InputText(session, Translate(session, u"Enter the 'common' name for cross-linking:"_s),
                                   Translate(session, u"Enter Common Name for"_s) + u' ' + name, cancelled, present);
    // A name is no alias of itself in other letters.
    if (cancelled || text == present || (name == present && sql::Compare(text, name) == 0)) {
        return false;
    }
    const QString row =
        u" WHERE AliasName = '"_s + EscapeSql(name) + u"' AND BirthYear = "_s + QString::number(birth_year);
    const QString common = EscapeSql(text);
    QString statement;
    if (text.isEmpty()) {
        statement = u"DELETE FROM Alias"_s + row;
    } else if (name != present) {
        statement = u"UPDATE Alias SET CommonName = '"_s + common + u'\'' + row;
    } else {
        statement = u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('"_s + EscapeSql(name) + u"', '"_s +
                    common + u"', "_s + QString::number(birth_year) + u')';
    }
    return session.Database->Execute(statement) > 0;
}

} // namespace ostrand
