#include "browser/ProfileDiscs.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

QString Mark(const sql::Recordset &rows, QStringView field) {
    return rows.Boolean(field) ? u"X"_s : QString();
}

QString WithIdentity(const sql::Recordset &rows, QStringView description, QStringView disc_id, QStringView label) {
    return (rows.Text(description) + MakeXForPresentDiscID(rows.Text(disc_id), rows.Text(label))).trimmed();
}

/// A table of prices with the currencies of its rows.
sql::Recordset OpenPrices(Session &session, const QString &table, const SheetTitle &title) {
    return session.Database->OpenRecordset(QString(u"SELECT * FROM "_s + table +
                                                   u" t LEFT JOIN Currencies c ON c.CurrencyID = t.CurrencyID WHERE "
                                                   "t.ProfileID = '"_s +
                                                   EscapeSql(title.id) + u'\''));
}

/// A price by the user's decimal mark, with its currency.
QString PriceText(const Session &session, const sql::Recordset &rows, QStringView field) {
    QString text = rows.Text(field);
    if (text.isEmpty()) {
        return text;
    }
    if (!session.DecimalSeparator.isEmpty()) {
        text.replace(u'.', session.DecimalSeparator);
    }
    return (text + u' ' + rows.Text(u"CurrencyName")).trimmed();
}

/// The day count 0 stands for a missing date.
QString DateText(const sql::Recordset &rows, QStringView field) {
    return rows.IsNull(field) || rows.Real(field) == 0 ? QString() : rows.Text(field).left(10);
}

} // namespace

QStringList DiscColumns(Session &session) {
    const auto shown = [&](const QString &text) { return Translate(session, text); };
    return {shown(u"Description A"_s), shown(u"Description B"_s), shown(u"DS"_s),  shown(u"DLA"_s),
            shown(u"DLB"_s),           shown(u"Location"_s),      shown(u"Slot"_s)};
}

std::vector<ListTableRow> ReadDiscs(Session &session, const SheetTitle &title) {
    std::vector<ListTableRow> discs;
    for (sql::Recordset rows = session.Database->OpenRecordset(RowsOf(u"Discs", title) + u" ORDER BY DiscNo"_s);
         !rows.Eof(); rows.MoveNext()) {
        discs.push_back({.texts = {WithIdentity(rows, u"Description", u"DiscIDSideA", u"LabelSideA"),
                                   WithIdentity(rows, u"DescriptionSideB", u"DiscIDSideB", u"LabelSideB"),
                                   Mark(rows, u"DualSided"), Mark(rows, u"DualLayered"),
                                   Mark(rows, u"DualLayeredSideB"), rows.Text(u"Location"), rows.Text(u"Slot")},
                         .key = rows.Text(u"DiscNo")});
    }
    return discs;
}

QString MakeXForPresentDiscID(const QString &disc_id, const QString &label) {
    if (disc_id.isEmpty()) {
        return {};
    }
    return u" ("_s + disc_id + (label.isEmpty() ? QString() : u", "_s + label) + u')';
}

QList<PriceLine> ReadPrices(Session &session, const SheetTitle &title) {
    const auto shown = [&](const QString &text) { return Translate(session, text); };
    QString retail;
    QString place;
    QString date;
    QString price;
    if (!title.id.isEmpty() && !title.is_episode) {
        if (const sql::Recordset rows = OpenPrices(session, u"SRPInfo"_s, title); !rows.Eof()) {
            retail = PriceText(session, rows, u"SRPValue");
        }
        if (const sql::Recordset rows = OpenPrices(session, u"PurchaseInfo"_s, title); !rows.Eof()) {
            place = rows.Text(u"PurchasePlace");
            date = DateText(rows, u"PurchaseDate");
            price = PriceText(session, rows, u"Price");
        }
    }
    return {{shown(u"Suggested Retail Price:"_s), retail},
            {shown(u"Purchase Place:"_s), place},
            {shown(u"Purchase Date:"_s), date},
            {shown(u"Purchase Price:"_s), price}};
}

} // namespace ostrand
