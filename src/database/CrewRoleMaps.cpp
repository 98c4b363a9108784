#include "database/CrewRoleMaps.h"

namespace ostrand {

namespace {

struct CreditRow {
    QStringView job;
    QStringView type;
};

constexpr CreditRow kCreditTypes[] = {
    {u"Director", u"Direction"},
    {u"Original Material By", u"Writing"},
    {u"Screenwriter", u"Writing"},
    {u"Writer", u"Writing"},
    {u"Original Characters By", u"Writing"},
    {u"Created By", u"Writing"},
    {u"Story By", u"Writing"},
    {u"Producer", u"Production"},
    {u"Executive Producer", u"Production"},
    {u"Director of Photography", u"Cinematography"},
    {u"Cinematographer", u"Cinematography"},
    {u"Film Editor", u"Film Editing"},
    {u"Composer", u"Music"},
    {u"Song Writer", u"Music"},
    {u"Theme By", u"Music"},
    {u"Sound", u"Sound"},
    {u"Sound Designer", u"Sound"},
    {u"Supervising Sound Editor", u"Sound"},
    {u"Sound Editor", u"Sound"},
    {u"Sound Re-Recording Mixer", u"Sound"},
    {u"Production Sound Mixer", u"Sound"},
    {u"Production Designer", u"Art"},
    {u"Art Director", u"Art"},
    {u"Costume Designer", u"Art"},
    {u"Make-up Artist", u"Art"},
    {u"Visual Effects", u"Art"},
    {u"Make-up Effects", u"Art"},
    {u"Creature Design", u"Art"},
};

} // namespace

QString CrewRoleMaps::DefaultMapping() {
    return QStringLiteral(
        "Director=Direction|Original Material By=Writing|Screenwriter=Writing|Writer=Writing|"
        "Original Characters By=Writing|Created By=Writing|Story By=Writing|Executive Story Editor=Writing|"
        "Story Editor=Writing|Producer=Production|Executive Producer=Production|Line Producer=Production|"
        "Co-Producer=Production|Director of Photography=Cinematography|Cinematographer=Cinematography|"
        "Supervising Film Editor=Film Editing|Film Editor=Film Editing|Composer=Music|Song Writer=Music|"
        "Theme By=Music|Supervising Music Editor=Music|Music Editor=Music|Sound=Sound|Sound Director=Sound|"
        "Sound Supervisor=Sound|Supervising Sound Editor=Sound|Sound Editor=Sound|Dubbing Editor=Sound|"
        "Supervising Dialogue Editor=Sound|Dialogue Editor=Sound|Supervising ADR Editor=Sound|"
        "ADR Editor=Sound|Supervising Foley Editor=Sound|Foley Editor=Sound|Footsteps Editor=Sound|"
        "Supervising Sound Effects Editor=Sound|Sound Effects Edtior=Sound|Sound Design=Sound|"
        "Sound Designer=Sound|Sound Re-Recording Mixer=Sound|Sound Mixer=Sound|Dubbing Mixer=Sound|"
        "Production Sound Mixer=Sound|Location Sound=Sound|Sound Recordist=Sound|Production Designer=Art|"
        "Supervising Art Director=Art|Art Director=Art|Set Decorator=Art|Costume Designer=Art|"
        "Make-up Artist=Art|Make-up Effects=Art|Creature Design=Art|Visual Effects Supervisor=Art|"
        "Visual Effects=Art");
}

void CrewRoleMaps::Load(const QString &mapping) {
    mapping_ = mapping;
    category_of_.clear();
    categories_.clear();
    for (const QStringView pair : QStringView(mapping).split(u'|')) {
        const QList<QStringView> halves = pair.split(u'=');
        if (halves.size() < 2) {
            continue;
        }
        const QString job = halves[0].trimmed().toString().toCaseFolded();
        const QString category = halves[1].trimmed().toString();
        if (job.isEmpty() || category.isEmpty() || category_of_.contains(job)) {
            continue;
        }
        // A branch spelt in several ways keeps the spelling that was met first.
        const auto known = std::find_if(categories_.cbegin(), categories_.cend(), [&](const QString &met) {
            return met.compare(category, Qt::CaseInsensitive) == 0;
        });
        category_of_.insert(job, known == categories_.cend() ? category : *known);
        if (known == categories_.cend()) {
            categories_.append(category);
        }
    }
}

QString CrewRoleMaps::Category(const QString &job) const {
    return category_of_.value(job.toCaseFolded());
}

bool CrewRoleMaps::HasCategory(const QString &job) const {
    return category_of_.contains(job.toCaseFolded());
}

QString CrewRoleMaps::CreditType(const QString &job) {
    for (const CreditRow &row : kCreditTypes) {
        if (row.job.compare(job, Qt::CaseInsensitive) == 0) {
            return row.type.toString();
        }
    }
    return {};
}

} // namespace ostrand
