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
        keys_.insert({key});
        return keys_.size() != before;
    }
    bool Contains(const QString &key) const { return keys_.contains({key}); }

private:
    struct Key {
        QString text;
        bool operator==(const Key &other) const {
            return text.size() == other.text.size() && text.compare(other.text, Qt::CaseInsensitive) == 0;
        }
        friend size_t qHash(const Key &key, size_t seed) {
            constexpr size_t kFactor = 0x100000001B3;
            size_t hash = seed;
            for (const QChar unit : key.text) {
                hash = (hash ^ unit.toCaseFolded().unicode()) * kFactor;
            }
            return hash ^ hash >> 32;
        }
    };
    QSet<Key> keys_;
};

} // namespace ostrand
