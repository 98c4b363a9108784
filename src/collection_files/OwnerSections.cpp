// Sections that tell of the owner: prices, shops, events and loans.

#include "collection_files/ElementValues.h"
#include "collection_files/ImportProfile.h"
#include "collection_files/Rows.h"
#include "collection_files/SectionReaders.h"
#include "database/DatabaseFunctions.h"
#include "database/EventIds.h"
#include "shell/Session.h"
#include "xml/XmlNodes.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

// What the rows of prices hold of a currency's identifier; a longer one would not be found among the currencies.
constexpr int kLongestCurrency = 5;

struct Price {
    QString value;
    QString symbol;
    QString currency_id;
    QString currency_name;
};

void ParseInto(const ImportProfile &profile, const QString &text, Price &price) {
    const QString parsed = ParsePrice(text, profile.GetSession().Database->GetEnvironment().decimal_mark);
    const qsizetype bar = parsed.indexOf(u'|');
    price.value = parsed.left(bar);
    price.symbol = parsed.mid(bar + 1);
}

/// A price of the third generation: all of it in attributes.
Price ReadPriceAttributes(const ImportProfile &profile, pugi::xml_node element) {
    Price price{.value = {},
                .symbol = {},
                .currency_id = XmlAttribute(element, "DenominationType").left(kLongestCurrency),
                .currency_name = XmlAttribute(element, "DenominationDesc")};
    ParseInto(profile, XmlAttribute(element, "FormattedValue"), price);
    return price;
}

Price ReadPriceChildren(const ImportProfile &profile, pugi::xml_node element, const char *value, const char *id,
                        const char *name, const QString &preset) {
    Price price{.value = {},
                .symbol = {},
                .currency_id = XmlChildText(element, id).left(kLongestCurrency),
                .currency_name = XmlChildText(element, name)};
    ParseInto(profile, XmlChildText(element, value, preset), price);
    return price;
}

void InsertCurrency(Session &session, const Price &price) {
    if (!price.currency_id.isEmpty() && !price.value.isEmpty()) {
        InsertRow(session, QLatin1String("Currencies"),
                  {{QLatin1String("CurrencyID"), price.currency_id},
                   {QLatin1String("CurrencyName"), price.currency_name},
                   {QLatin1String("CurrencySymbol"), price.symbol}});
    }
}

/// The currency of a row that must not be lost: none where the file names none, or names one that has no price and
/// so no row of its own.
RowValue CurrencyReference(Session &session, const Price &price) {
    if (!price.value.isEmpty() || price.currency_id.isEmpty()) {
        return RowValue::TextOrNull(price.currency_id);
    }
    const bool known = !session.Database
                            ->OpenRecordset(QString(u"SELECT CurrencyID FROM Currencies WHERE CurrencyID = '"_s +
                                                    EscapeSql(price.currency_id) + u'\''))
                            .Eof();
    return known ? RowValue(price.currency_id) : RowValue::Null();
}

struct Person {
    QString id;
    QString phone;
    QString mail;
};

QString JoinedName(const QString &first, const QString &last) {
    return first.isEmpty() || last.isEmpty() ? first + last : first + u' ' + last;
}

Person ReadPerson(pugi::xml_node user, bool attributes) {
    const auto text = [&](const char *name) {
        return attributes ? XmlAttribute(user, name) : XmlChildText(user, name);
    };
    return {.id = JoinedName(text("FirstName"), text("LastName")),
            .phone = text("PhoneNumber"),
            .mail = text("EmailAddress")};
}

void InsertUser(Session &session, const Person &person) {
    InsertRow(session, QLatin1String("Users"),
              {{QLatin1String("UserID"), person.id},
               {QLatin1String("PhoneNumber"), person.phone},
               {QLatin1String("EmailAddress"), person.mail},
               {QLatin1String("IsActive"), true}});
}

QString PlaceType(const QString &type) {
    return type == u"O"_s ? u"Online"_s : type == u"L"_s ? u"Local"_s : type;
}

Price ReadPurchasePrice(const ImportProfile &profile, pugi::xml_node purchase) {
    if (!profile.run.is_profiler3) {
        return ReadPriceChildren(profile, purchase.child("PurchasePriceInfo"), "PurchasePrice",
                                 "PurchasePriceCurrencyID", "PurchasePriceCurrencyName", u"|"_s);
    }
    const pugi::xml_node own = purchase.child("PurchasePrice");
    return ReadPriceAttributes(profile, own ? own : profile.dvd.child("PurchasePrice"));
}

} // namespace

void ImportSrpInfo(const ImportProfile &profile) {
    Session &session = profile.GetSession();
    DeleteRows(profile, QLatin1String("SRPInfo"), kProfileID);
    const Price price = profile.run.is_profiler3 ? ReadPriceAttributes(profile, profile.dvd.child("SRP"))
                                                 : ReadPriceChildren(profile, profile.dvd.child("SRPInfo"), "SRP",
                                                                     "SRPCurrencyID", "SRPCurrencyName", {});
    InsertCurrency(session, price);
    if (!price.value.isEmpty()) {
        InsertRow(session, QLatin1String("SRPInfo"),
                  {{kProfileID, profile.key},
                   {QLatin1String("SRPValue"), price.value},
                   {QLatin1String("CurrencyID"), CurrencyReference(session, price)}});
    }
}

void ImportPurchaseInfo(const ImportProfile &profile) {
    Session &session = profile.GetSession();
    DeleteRows(profile, QLatin1String("PurchaseInfo"), kProfileID);
    const pugi::xml_node purchase = profile.dvd.child("PurchaseInfo");
    const bool is_new = profile.run.is_profiler3;
    const QString date = XmlParseDate(XmlChildText(purchase, "PurchaseDate"));
    const QString place = XmlChildText(purchase, "PurchasePlace");
    const Price price = ReadPurchasePrice(profile, purchase);

    InsertCurrency(session, price);
    InsertRow(
        session, QLatin1String("Retailers"),
        {{QLatin1String("Name"), place},
         {QLatin1String("Type"), PlaceType(XmlChildText(purchase, is_new ? "PurchasePlaceType" : "PurchPlaceType"))},
         {QLatin1String("Website"), XmlChildText(purchase, is_new ? "PurchasePlaceWebsite" : "PurchPlaceWebsite")}});
    if (!place.isEmpty() || !date.isEmpty()) {
        InsertRow(session, QLatin1String("PurchaseInfo"),
                  {{kProfileID, profile.key},
                   {QLatin1String("Price"), price.value},
                   {QLatin1String("CurrencyID"), CurrencyReference(session, price)},
                   {QLatin1String("PurchaseDate"), date},
                   {QLatin1String("PurchasePlace"), place}});
    }
}

void ImportEvents(const ImportProfile &profile) {
    Session &session = profile.GetSession();
    DeleteRows(profile, QLatin1String("Events"), kProfileID);
    for (const pugi::xml_node event : profile.dvd.child("Events").children("Event")) {
        const Person person = ReadPerson(event.child("User"), profile.run.is_profiler3);
        InsertUser(session, person);
        InsertRow(session, QLatin1String("Events"),
                  {{QLatin1String("EventID"), NewEventId(session)},
                   {kProfileID, profile.key},
                   {QLatin1String("UserID"), person.id},
                   {QLatin1String("EventType"), ReverseTranslate(session, XmlChildText(event, "EventType"))},
                   {QLatin1String("EventTimeStamp"), XmlParseDate(XmlChildText(event, "Timestamp"))}});
    }
}

void ImportLoanInfo(const ImportProfile &profile) {
    Session &session = profile.GetSession();
    DeleteRows(profile, QLatin1String("LoanInfo"), kProfileID);
    const pugi::xml_node loan = profile.dvd.child("LoanInfo");
    Person person;
    QString due;
    if (!profile.run.is_profiler3) {
        person.id = JoinedName(XmlChildText(loan, "LoanedTo"), XmlChildText(loan, "LoanedToLast"));
        due = XmlChildText(loan, "LoanedDue");
    } else if (IsTrue(XmlChildText(loan, "Loaned"))) {
        person = ReadPerson(loan.child("User"), true);
        due = XmlChildText(loan, "Due");
    }
    if (person.id.isEmpty()) {
        return;
    }
    // The borrower comes first, so that no loan falls to the reference.
    InsertUser(session, person);
    InsertRow(session, QLatin1String("LoanInfo"),
              {{kProfileID, profile.key},
               {QLatin1String("UserID"), person.id},
               {QLatin1String("LoanedDue"), XmlParseDate(due)}});
}

} // namespace ostrand
