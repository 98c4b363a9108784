// A person's name between its two shapes: one string, and the three fields of a collection file.
#pragma once

#include <QString>

namespace ostrand {

/// Cuts a full name into three fields and joins three fields into a full name. The birth year is carried only.
class Name {
public:
    const QString &FullName() const { return full_name_; }
    const QString &FirstName() const { return first_name_; }
    const QString &LastName() const { return last_name_; }
    const QString &MiddleName() const { return middle_name_; }

    /// Keeps the text as it stands and cuts it into the three fields.
    void SetFullName(const QString &text);
    /// These store the field and join the full name anew.
    void SetFirstName(const QString &text);
    void SetMiddleName(const QString &text);
    void SetLastName(const QString &text);

    /// Empties the names; the birth year keeps its value.
    void Clear();

    void SetBirthYear(int year) { birth_year_ = year; }
    int BirthYear() const { return birth_year_; }

private:
    void JoinName();
    /// First, middle and last name, joined by "|".
    static QString SplitName(const QString &text);

    QString first_name_;
    QString last_name_;
    QString middle_name_;
    QString full_name_;
    int birth_year_ = 0;
};

} // namespace ostrand
