// Which credit type a job has, and which branch of the crew tree shows it.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace ostrand {

/// The two role maps of an open database.
class CrewRoleMaps {
public:
    /// The mapping that a new database starts with, as `job=branch` pairs joined by "|". The misspelling in it is in
    /// users' data and stays.
    static QString DefaultMapping();

    /// Fills the crew tree map from a mapping text; the first occurrence of a job wins.
    void Load(const QString &mapping);
    const QString &Mapping() const { return mapping_; }

    /// The branch of a job, empty when the map has none. Jobs compare without case.
    QString Category(const QString &job) const;
    bool HasCategory(const QString &job) const;
    /// Branches in the order of their first appearance.
    const QStringList &Categories() const { return categories_; }

    /// The credit type of a job title in the terms of the collection file, empty for any other job.
    static QString CreditType(const QString &job);

private:
    QString mapping_;
    QHash<QString, QString> category_of_; // folded job to branch
    QStringList categories_;
};

} // namespace ostrand
