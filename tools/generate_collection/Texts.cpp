#include "Texts.h"

#include <array>

namespace ostrand::generator {

namespace {

constexpr std::array<const char *, 24> kAdjectives{"Silent", "Crooked", "Last",   "Borrowed", "Hidden",  "Electric",
                                                   "Paper",  "Distant", "Broken", "Golden",   "Second",  "Salted",
                                                   "Lonely", "Wooden",  "Frozen", "Careless", "Blue",    "Na\xEFve",
                                                   "Velvet", "Hungry",  "Secret", "Tall",     "Patient", "Loud"};
constexpr std::array<const char *, 28> kNouns{
    "Harbour", "Orchard", "Kitchen", "Engine",  "Winter", "Letter",  "Bridge", "Stranger", "Garden", "Machine",
    "Island",  "Teacher", "Train",   "Evening", "Window", "Summer",  "Dancer", "Compass",  "Valley", "Caf\xE9",
    "Mirror",  "Circus",  "Anchor",  "Lantern", "Forest", "Station", "Ladder", "Pocket"};
constexpr std::array<const char *, 20> kJobs{
    "Nurse", "Detective", "Waiter", "Teacher", "Clerk",  "Driver", "Sergeant", "Reporter", "Neighbour", "Bartender",
    "Judge", "Janitor",   "Doctor", "Soldier", "Singer", "Farmer", "Thief",    "Pilot",    "Cook",      "Guard"};
constexpr std::array<const char *, 20> kNames{"Anna", "Bert", "Carla", "Dov",  "Elsa",  "Finn", "Gina",
                                              "Hugo", "Ida",  "Jack",  "Kit",  "Lotte", "Max",  "Nina",
                                              "Otto", "Pia",  "Quinn", "Ruth", "Sven",  "Tess"};
constexpr std::array<const char *, 14> kWho{"a retired teacher",
                                            "the youngest of three sisters",
                                            "an unlucky inspector",
                                            "a stubborn widow",
                                            "the new doctor",
                                            "a travelling salesman",
                                            "his former partner",
                                            "the night watchman",
                                            "two brothers",
                                            "a girl from the coast",
                                            "the only witness",
                                            "an old friend",
                                            "the mayor\x92s daughter",
                                            "a clumsy burglar"};
constexpr std::array<const char *, 14> kDoes{"discovers a letter in",
                                             "returns after ten years to",
                                             "must choose between love and",
                                             "hides the truth about",
                                             "loses everything at",
                                             "is followed to",
                                             "falls in love with",
                                             "has until midnight to leave",
                                             "makes a bet on",
                                             "finds an unlikely ally in",
                                             "tries to save",
                                             "inherits",
                                             "cannot forget",
                                             "takes the blame for"};
constexpr std::array<const char *, 14> kWhat{"an abandoned station",
                                             "the house by the river",
                                             "a town without children",
                                             "the last performance",
                                             "a stolen painting",
                                             "the coldest winter in years",
                                             "an old railway line",
                                             "a family secret",
                                             "the wrong suitcase",
                                             "the summer of 1968",
                                             "a caf\xE9 in the old quarter",
                                             "the lighthouse",
                                             "an empty theatre",
                                             "the perfect plan"};
constexpr std::array<const char *, 8> kLinks{"But when ",   "Meanwhile ",           "Years later, ", "Before long, ",
                                             "By chance, ", "Against all advice, ", "In the end, ",  "That night, "};

QByteArray Capital(QByteArray text) {
    text[0] = static_cast<char>(text.at(0) - (text.at(0) >= 'a' && text.at(0) <= 'z' ? 32 : 0));
    return text;
}

QByteArray Clause(Random &random) {
    return Join({random.Pick(kWho), " ", random.Pick(kDoes), " ", random.Pick(kWhat)});
}

QByteArray Sentence(Random &random) {
    const auto kind = random.Below(4);
    if (kind == 0) {
        return Capital(Clause(random)) + '.';
    }
    if (kind == 1) {
        return Join({"But when ", Clause(random), ", ", Clause(random), "."});
    }
    if (kind == 2) {
        const QByteArray link = kLinks[1 + random.Below(kLinks.size() - 1)];
        return link + Clause(random) + '.';
    }
    return Join({Capital(Clause(random)), " \x96 ", "and ", Clause(random), "."});
}

} // namespace

QByteArray MakeTitle(Random &random) {
    const auto kind = random.Below(6);
    const QByteArray thing = Join({random.Pick(kAdjectives), " ", random.Pick(kNouns)});
    if (kind < 2) {
        return "The " + thing;
    }
    if (kind == 2) {
        return thing;
    }
    if (kind == 3) {
        return Join({random.Pick(kNames), " and the ", random.Pick(kNouns)});
    }
    if (kind == 4) {
        return "The " + QByteArray(random.Pick(kNouns)) + " of the " + thing;
    }
    return QByteArray(random.Pick(kJobs)) + "'s " + thing;
}

QByteArray MakeRole(Random &random) {
    const auto kind = random.Below(10);
    if (kind < 4) {
        return random.Pick(kJobs);
    }
    if (kind < 7) {
        return Join({random.Pick(kNames), " ", random.Pick(kNouns)});
    }
    if (kind < 9) {
        return Join({random.Pick(kAdjectives), " ", random.Pick(kJobs)});
    }
    return QByteArray(random.Pick(kNames));
}

QByteArray MakeOverview(Random &random, int length) {
    QByteArray text;
    while (text.size() < length) {
        if (!text.isEmpty()) {
            text += random.Chance(20) ? "\r\n\r\n" : " ";
        }
        text += Sentence(random);
    }
    return text;
}

} // namespace ostrand::generator
