// Writes generated profiles as a collection file of version 3.8.
#pragma once

#include "Population.h"
#include "Random.h"

#include <QByteArray>
#include <QIODevice>

namespace ostrand::generator {

class CollectionWriter {
public:
    /// `device` is open for writing; `profiles` of the same `seed` give the same bytes.
    CollectionWriter(QIODevice &device, int profiles, std::uint64_t seed);

    /// Writes the whole file; false when the device refuses.
    bool Write();

private:
    struct Profile;

    bool Flush();
    void Line(const char *text) { buffer_.append(text).append("\r\n"); }
    void Text(int depth, const char *name, const QByteArray &value);
    void Number(int depth, const char *name, int value) { Text(depth, name, QByteArray::number(value)); }
    void Flag(int depth, const char *name, bool value) { Text(depth, name, value ? "true" : "false"); }
    void Escape(const QByteArray &text);
    void Attribute(const char *name, const QByteArray &value);

    QByteArray Identifier(int index) const;
    bool IsBox(int index) const;
    int ParentOf(int index) const;

    void WriteProfile(int index);
    void WriteHead(const Profile &profile);
    void WriteFormat(const Profile &profile);
    void WriteFeatures(const Profile &profile);
    void WriteTracks(const Profile &profile);
    void WriteCredits(const Profile &profile);
    void WriteName(const Person &person);
    void WriteActor(const Profile &profile);
    void WriteCredit(const Profile &profile);
    void WriteDivider(const QByteArray &caption, const char *type);
    void WriteTexts(const Profile &profile);
    void WritePurchase(const Profile &profile);
    void WriteHistory(const Profile &profile);
    void WriteBoxSet(const Profile &profile);

    QIODevice &device_;
    QByteArray buffer_;
    int profiles_;
    std::uint64_t seed_;
    Population population_;
};

} // namespace ostrand::generator
