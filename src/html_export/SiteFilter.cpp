#include "html_export/SiteFilter.h"

#include "database/DatabaseFunctions.h"
#include "queries/QueryVariables.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

bool IsWordUnit(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

/// Walks the words of a statement that stand outside of texts, quoted names and brackets. The semicolon behind a
/// statement is one of them.
class OuterWords {
public:
    explicit OuterWords(QStringView text) : text_(text) {}

    /// The next word; empty at the end.
    QStringView Next() {
        while (at_ < text_.size()) {
            const QChar c = text_[at_];
            if (IsWordUnit(c)) {
                const qsizetype from = at_;
                while (at_ < text_.size() && IsWordUnit(text_[at_])) {
                    ++at_;
                }
                if (depth_ == 0) {
                    return text_.sliced(from, at_ - from);
                }
                continue;
            }
            if (c == u';' && depth_ == 0) {
                return text_.sliced(at_++, 1);
            }
            Skip(c);
        }
        return {};
    }
    /// Behind the last word.
    qsizetype At() const { return at_; }

private:
    void Skip(QChar c) {
        static constexpr QStringView kOpen = u"'\"[`#", kClose = u"'\"]`#";
        ++at_;
        if (const qsizetype quote = kOpen.indexOf(c); quote >= 0) {
            const qsizetype end = text_.indexOf(kClose[quote], at_);
            at_ = end < 0 ? text_.size() : end + 1;
        } else if (c == u'(') {
            ++depth_;
        } else if (c == u')') {
            --depth_;
        }
    }

    QStringView text_;
    qsizetype at_ = 0;
    int depth_ = 0;
};

bool IsOneOf(QStringView word, std::initializer_list<QLatin1String> words) {
    return std::any_of(words.begin(), words.end(),
                       [word](QLatin1String other) { return word.compare(other, Qt::CaseInsensitive) == 0; });
}

} // namespace

QString WhereClause(const QString &statement) {
    OuterWords words(statement);
    qsizetype begin = -1;
    for (QStringView word = words.Next(); !word.isEmpty(); word = words.Next()) {
        if (begin < 0 && IsOneOf(word, {"WHERE"_L1})) {
            begin = words.At();
        } else if (begin >= 0 && IsOneOf(word, {"ORDER"_L1, "GROUP"_L1, "HAVING"_L1, "UNION"_L1, ";"_L1})) {
            return statement.mid(begin, words.At() - word.size() - begin).trimmed();
        }
    }
    return begin < 0 ? QString() : statement.mid(begin).trimmed();
}

QString SavedQueryCondition(Session &session, const QString &query, const QString &current_col_type) {
    const sql::Recordset rows = session.Database->OpenRecordset(
        QString("SELECT SQLStatement FROM SQLQueries WHERE Name = '"_L1 + EscapeSql(query) + u'\''));
    if (rows.Eof()) {
        return {};
    }
    bool cancelled = false;
    return WhereClause(ResolveQueryVariables(session, current_col_type, rows.Text(0), cancelled));
}

QString ColTypeCondition(const QStringList &types) {
    constexpr auto kOr = " OR "_L1;
    QString condition;
    for (const QString &type : types) {
        condition += kOr + "ColType = '"_L1 + EscapeSql(type) + u'\'';
        if (type.isEmpty()) {
            condition += " OR ColType Is NULL"_L1;
        }
    }
    return u'(' + condition.mid(kOr.size()) + u')';
}

} // namespace ostrand
