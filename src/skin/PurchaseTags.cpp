// What a profile costs, where and when it was bought, and whose it is.

#include "shell/Session.h"
#include "skin/EntryList.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

/// A number of the database by the user's decimal mark.
QString LocalNumber(const TagCall &call, QString number) {
    const QString &mark = call.session.DecimalSeparator;
    return mark.isEmpty() ? number : number.replace(u'.', mark);
}

QString WithSymbol(const TagCall &call, const sql::Recordset &rows, QStringView price) {
    return FixCurrencySymbol(rows.Text(u"CurrencySymbol")) + LocalNumber(call, rows.Text(price));
}

/// Prices with their currencies, the price's table under a name of one letter.
sql::Recordset PriceRows(const TagCall &call, const QString &table, QChar alias) {
    return call.Rows(u"SELECT * FROM "_s + table + u' ' + alias + u" LEFT JOIN Currencies c ON c.CurrencyID = "_s +
                     alias + u".CurrencyID WHERE ProfileID = "_s + call.QuotedKey());
}

} // namespace

void GetDPSRP(const TagCall &call, QString &text) {
    const sql::Recordset rows = PriceRows(call, u"SRPInfo"_s, u's');
    if (!rows.Eof()) {
        text = WithSymbol(call, rows, u"SRPValue");
    }
}

void GetDPPurchPrice(const TagCall &call, QString &text) {
    const sql::Recordset rows = PriceRows(call, u"PurchaseInfo"_s, u'p');
    if (!rows.Eof() && !rows.IsNull(u"Price")) {
        text = WithSymbol(call, rows, u"Price");
    }
}

void GetDPPurchDate(const TagCall &call, QString &text) {
    const sql::Recordset rows = ProfileRows(call, u"PurchaseInfo"_s);
    // A day count of 0 is a time without a date.
    if (!rows.Eof() && !rows.IsNull(u"PurchaseDate") && rows.Real(u"PurchaseDate") != 0) {
        text = call.Text(u"Prefix") + rows.Text(u"PurchaseDate");
    }
}

void GetDPPurchPlace(const TagCall &call, QString &text) {
    const sql::Recordset rows = ProfileRows(call, u"PurchaseInfo p"_s);
    const QString place = rows.Eof() ? QString() : rows.Text(u"PurchasePlace");
    if (!place.isEmpty()) {
        text = call.Text(u"Prefix") + place;
    }
}

void GetDPOwnership(const TagCall &call, QString &text) {
    const QString type = call.is_episode ? u"TV"_s : call.Field(u"ColType");
    if (type == "WishList"_L1) {
        text = call.Text(u"IfWishList", u"Wishlist"_s);
    } else if (type == "Ordered"_L1) {
        text = call.Text(u"IfOrdered", u"Ordered"_s);
    } else if (type == "Owned"_L1) {
        text = call.Text(u"IfOwned", u"Owned"_s);
    } else {
        text = call.TranslateByTag(type);
    }
}

} // namespace ostrand
