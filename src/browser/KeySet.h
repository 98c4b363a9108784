// The keys of a list while it is filled.
#pragma once

#include <QSet>
#include <QString>

namespace ostrand {

/// Keys that differ in case alone are one.
class KeySet {
public:
    void Reserve(qsizetype count) { keys_.reserve(count); }
    /// False for a key that was there.
    bool Add(const QString &key) {
        const qsizetype before = keys_.size();
        keys_.insert({key, HashOf(key)});
        return keys_.size() != before;
    }
    bool Contains(const QString &key) const { return keys_.contains({key, HashOf(key)}); }

private:
    struct Key {
        QString text;
        size_t hash;
        bool operator==(const Key &other) const {
            return hash == other.hash && text.size() == other.text.size() &&
                   text.compare(other.text, Qt::CaseInsensitive) == 0;
        }
        friend size_t qHash(const Key &key, size_t seed) { return key.hash ^ seed; }
    };
    static char16_t Folded(char16_t unit) {
        if (unit < 0x80) {
            return unit >= u'A' && unit <= u'Z' ? char16_t(unit + (u'a' - u'A')) : unit;
        }
        return QChar(unit).toCaseFolded().unicode();
    }
    static size_t HashOf(const QString &key) {
        constexpr size_t kFactor = 0x100000001B3;
        size_t hash = 0xCBF29CE484222325;
        for (const QChar unit : key) {
            hash = (hash ^ Folded(unit.unicode())) * kFactor;
        }
        return hash ^ hash >> 32;
    }
    QSet<Key> keys_;
};

} // namespace ostrand
