#include "people/Name.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr std::array<QStringView, 28> kTitles = {
    u"sir",       u"lady",      u"madame",   u"de",       u"capt.",     u"lt.",    u"captain",
    u"mr.",       u"miss",      u"mrs.",     u"ms.",      u"dr.",       u"ssgt.",  u"dr",
    u"corporal",  u"constable", u"sergeant", u"reverend", u"professor", u"prof.",  u"dame",
    u"inspector", u"senator",   u"sen.",     u"queen",    u"king",      u"prince", u"princess"};

constexpr std::array<QStringView, 8> kSuffixes = {u"jr.", u"sr.", u"sr", u"jr", u"junior", u"senior", u"ii", u"iii"};

constexpr std::array<QStringView, 7> kParticleStarts = {u"s", u"l", u"n", u"v", u"d", u"mc", u"lo"};

template <std::size_t count>
bool Contains(const std::array<QStringView, count> &words, const QString &word) {
    return std::find(words.begin(), words.end(), QStringView(word)) != words.end();
}

bool IsGroupName(const QString &text) {
    const QString lower = text.toLower();
    return lower.contains(u" the ") || lower.contains(u"==") || text.startsWith(u"The ");
}

bool IsSuffix(const QString &word) {
    const QString lower = word.toLower();
    return lower.contains(u'(') || Contains(kSuffixes, lower);
}

// Deliberately coarse: Sue, Don and Ned are particles, Lee is none.
bool IsParticle(const QString &word) {
    if (word.size() < 2 || word.size() > 3) {
        return false;
    }
    const QString lower = word.toLower();
    if (lower == u"el") {
        return true;
    }
    if (lower == u"lee") {
        return false;
    }
    return std::any_of(kParticleStarts.begin(), kParticleStarts.end(),
                       [&](QStringView start) { return lower.startsWith(start); });
}

bool GoesToMiddle(const QString &word) {
    if (word.contains(u'.') && word != u"v." && word.toLower() != u"st.") {
        return true;
    }
    return !word.endsWith(u',') && !IsParticle(word);
}

QString Joined(const QString &first, const QString &middle, const QString &last) {
    return first + u'|' + middle + u'|' + last;
}

} // namespace

void Name::SetFullName(const QString &text) {
    full_name_ = text;
    const QStringList parts = SplitName(text).split(u'|');
    first_name_ = parts.value(0);
    middle_name_ = parts.value(1);
    last_name_ = parts.value(2);
}

void Name::SetFirstName(const QString &text) {
    first_name_ = text;
    JoinName();
}

void Name::SetMiddleName(const QString &text) {
    middle_name_ = text;
    JoinName();
}

void Name::SetLastName(const QString &text) {
    last_name_ = text;
    JoinName();
}

void Name::Clear() {
    full_name_.clear();
    first_name_.clear();
    middle_name_.clear();
    last_name_.clear();
}

void Name::JoinName() {
    full_name_ = first_name_;
    if (!middle_name_.isEmpty()) {
        full_name_ += u' ' + middle_name_;
    }
    if (!last_name_.isEmpty()) {
        full_name_ += u' ' + last_name_;
    }
}

QString Name::SplitName(const QString &text) {
    if (text.isEmpty() || IsGroupName(text)) {
        return Joined(text, {}, {});
    }
    const QStringList words = text.split(u' ');
    if (words.size() == 1) {
        return Joined(words[0], {}, {});
    }
    if (words.size() == 2) {
        return Joined(words[0], {}, words[1]);
    }
    QString first = words[0];
    qsizetype start = 1;
    if (Contains(kTitles, first.toLower())) {
        first += u' ' + words[1];
        start = 2;
    }
    qsizetype end = words.size() - 1;
    QString last = words[end];
    if (IsSuffix(last)) {
        last = words[end - 1] + u' ' + last;
        --end;
    }
    QString middle;
    bool in_middle = false;
    for (qsizetype i = end - 1; i >= start; --i) {
        in_middle = in_middle || GoesToMiddle(words[i]);
        if (in_middle) {
            middle = words[i] + u' ' + middle;
        } else {
            last = words[i] + u' ' + last;
        }
    }
    if (!middle.isEmpty()) {
        middle.chop(1);
    }
    return Joined(first, middle, last);
}

} // namespace ostrand
