#include "skin/HeaderVars.h"

#include <QSet>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr const char16_t *kWishes[] = {u"",        u"Vague interest", u"Like to Have It",
                                       u"Want It", u"Really Want",    u"Need It"};

struct LockFlag {
    const char16_t *lock;
    const char16_t *variable;
};

constexpr LockFlag kLocks[] = {
    {u"Entire", u"DP_LockEntire"},
    {u"AudioTracks", u"DP_LockAudioTracks"},
    {u"BoxSet", u"DP_LockBoxSetContents"},
    {u"CaseType", u"DP_LockCaseType"},
    {u"Cast", u"DP_LockCast"},
    {u"Crew", u"DP_LockCrew"},
    {u"Discs", u"DP_LockDiscInformation"},
    {u"EasterEggs", u"DP_LockEasterEggs"},
    {u"Features", u"DP_LockFeatures"},
    {u"Genres", u"DP_LockGenres"},
    {u"Overview", u"DP_LockOverview"},
    {u"ProductionYear", u"DP_LockProductionYear"},
    {u"Rating", u"DP_LockRating"},
    {u"Regions", u"DP_LockRegions"},
    {u"ReleaseDate", u"DP_LockReleaseDate"},
    {u"RunningTime", u"DP_LockRunTime"},
    {u"Covers", u"DP_LockScans"},
    {u"SRPInfo", u"DP_LockSRP"},
    {u"Subtitles", u"DP_LockSubtitles"},
    {u"Studios", u"DP_LockStudios"},
    {u"Title", u"DP_LockTitle"},
    {u"VideoFormats", u"DP_LockVideoFormats"},
    {u"Medium", u"DP_LockMediaType"},
};

void WriteCollectionType(const TagCall &call, ScriptWriter &script) {
    const QString type = RowText(call, u"ColType");
    const bool owned = type == "Owned"_L1;
    const bool ordered = type == "Ordered"_L1;
    const bool wished = type == "WishList"_L1;
    const bool custom = !owned && !ordered && !wished && !type.isEmpty();
    script.Flag(u"DP_CollectionTypeOwned"_s, owned);
    script.Flag(u"DP_CollectionTypeOrdered"_s, ordered);
    script.Flag(u"DP_CollectionTypeWishList"_s, wished);
    script.Flag(u"DP_CollectionTypeCustom"_s, custom);
    script.Text(u"DP_CustomCollectionTypeName"_s, custom ? type : QString());
}

void WriteWish(const TagCall &call, ScriptWriter &script) {
    const qint64 priority = RowValue(call, u"WishListPriority").Integer();
    const QString wish = priority >= 1 && priority <= 5 ? QString::fromUtf16(kWishes[priority]) : QString();
    script.Text(u"DP_WishPriority"_s, wish);
    script.Text(u"DP_WishPriority_Translated"_s, call.Translated(wish));
}

void WritePurchase(const TagCall &call, ScriptWriter &script) {
    const sql::Recordset purchase =
        call.Rows(u"SELECT * FROM PurchaseInfo p LEFT JOIN Currencies c ON c.CurrencyID = p.CurrencyID "
                  "WHERE ProfileID = "_s +
                  call.QuotedKey());
    const bool bought = !purchase.Eof();
    const bool priced = bought && !purchase.IsNull(u"Price");
    script.Value(u"DP_PurchaseDate"_s, ScriptDate(bought ? purchase.Get(u"PurchaseDate") : sql::Value()));
    script.Text(u"DP_PurchasePlace"_s, bought ? purchase.Text(u"PurchasePlace") : QString());
    script.Text(u"DP_PurchasePrice"_s,
                priced ? purchase.Text(u"CurrencySymbol") + purchase.Text(u"Price") : u"$0.00"_s);
}

void WriteLoan(const TagCall &call, ScriptWriter &script) {
    const sql::Recordset watched =
        KeyRows(call, u"Events"_s, u" AND EventType = 'Watched' ORDER BY EventTimeStamp DESC"_s);
    script.Value(u"DP_LastWatched"_s, ScriptDate(watched.Eof() ? sql::Value() : watched.Get(u"EventTimeStamp")));
    const sql::Recordset loan = KeyRows(call, u"LoanInfo"_s);
    script.Text(u"DP_LoanedTo"_s, loan.Eof() ? QString() : loan.Text(u"UserID"));
    script.Value(u"DP_LoanDue"_s, ScriptLoanDate(loan.Eof() ? sql::Value() : loan.Get(u"LoanedDue")));
}

} // namespace

void WritePersonalInformation(const TagCall &call, ScriptWriter &script) {
    script.Section(u"Personal Information"_s);
    WriteCollectionType(call, script);
    script.Text(u"DP_CollectionNumber"_s, RowText(call, call.is_episode ? u"EpisodeNo" : u"ColNo"));
    script.Text(u"DP_SortTitle"_s, RowText(call, u"SortTitle"));
    WriteWish(call, script);
    WritePurchase(call, script);
    script.Value(u"DP_LastEdited"_s, ScriptDateTime(RowValue(call, u"LastEdited")));
    WriteLoan(call, script);
}

void WriteReview(const TagCall &call, ScriptWriter &script) {
    const sql::Recordset review = KeyRows(call, u"Reviews"_s);
    const auto mark = [&](QStringView column) { return review.Eof() ? 0 : review.Integer(column); };
    script.Section(u"Review"_s);
    script.Number(u"DP_ReviewFilm"_s, mark(u"Film"));
    script.Number(u"DP_ReviewVideo"_s, mark(u"Video"));
    script.Number(u"DP_ReviewAudio"_s, mark(u"Audio"));
    script.Number(u"DP_ReviewExtras"_s, mark(u"Extras"));
}

void WriteLocks(const TagCall &call, ScriptWriter &script) {
    QSet<QString> locks;
    for (const QString &lock : KeyTexts(call, u"Locks"_s, u"LockName"_s)) {
        locks.insert(lock.toCaseFolded());
    }
    script.Section(u"Locks"_s);
    for (const LockFlag &flag : kLocks) {
        script.Flag(QString::fromUtf16(flag.variable), locks.contains(QString::fromUtf16(flag.lock).toCaseFolded()));
    }
    script.Text(u"DP_Notes"_s, RowText(call, u"Notes"));
}

} // namespace ostrand
