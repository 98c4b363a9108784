"""Writes the statements that add what a collection file cannot hold."""

import re

from tables import FOLDER

SAFE_REMOVED = '?\\/*<>'
KEY_REMOVED = '-,.!\'" '


def quote(text):
    return "'" + str(text).replace("'", "''") + "'"


def insert(table, **values):
    def shown(value):
        return str(value).lower() if isinstance(value, (bool, int)) else quote(value)

    return f"INSERT INTO {table} ({', '.join(values)}) VALUES ({', '.join(map(shown, values.values()))});"


def series_key(title):
    safe = "".join(c for c in title.replace(":", " -") if c not in SAFE_REMOVED)
    return "Key_" + "".join(c for c in safe if c not in KEY_REMOVED)


def person(text):
    match = re.match(r"(.+?)(?: \((\d+)\))?$", text)
    return match[1], int(match[2] or 0)


class Additions:
    def __init__(self):
        self.statements = []
        self.infos = []
        self.series = ""
        self.regulars = []
        self.group = ("", "")
        self.episode = ""
        self.positions = {}

    def add(self, table, **values):
        self.statements.append(insert(table, **values))

    def read(self):
        for line in (FOLDER / "additions.txt").read_text("utf-8").splitlines():
            if line and not line.startswith("#"):
                key, _, rest = line.partition(": ")
                values = [part.strip().replace("¦", "|") for part in rest.split("|")]
                getattr(self, "add_" + key)(*values)
        return self

    def save(self, path):
        path.write_bytes(("\n".join(self.statements) + "\n").encode("utf-8"))

    def add_series(self, original, title, sort, genre, studio):
        self.series, self.regulars, self.group = series_key(original), [], (genre, studio)
        self.add("TVSeries", SeriesID=self.series, OriginalTitle=original, Title=title, SortTitle=sort,
                 OriginalSortTitle=original)

    def add_regular(self, part, name, role):
        self.regulars.append((part, name, role))

    def add_episode(self, season, number, title, original, minutes, aired, rating, holder):
        self.episode = self.series + season + number
        self.positions = {"cast": 0, "crew": 0}
        self.statements.append(
            insert("Episodes", EpisodeID=self.episode, EpisodeNo=number, EpisodeTitle=title,
                   EpisodeOriginalTitle=original, Season=season, Runtime=int(minutes), Rating=rating,
                   RatingSystem="Television" if rating else "", Airdate=aired, SeriesID=self.series))
        self.add("Genres", ProfileID=self.episode, Genre=self.group[0])
        self.add("Studios", ProfileID=self.episode, Studio=self.group[1], Type="")
        if holder:
            self.add("Profile2Episodes", ProfileID="Key_" + holder, EpisodeID=self.episode)
        for part, name, role in self.regulars:
            self.add_credit(part, name, role, "", True)

    def add_overview(self, *text):
        self.statements.append(f"UPDATE Episodes SET Overview = {quote(' | '.join(text))} "
                               f"WHERE EpisodeID = {quote(self.episode)};")

    def add_guest(self, part, name, role, mark=""):
        self.add_credit(part, name, role, mark, False)

    def add_credit(self, part, name, role, mark, regular):
        self.positions[part] += 1
        full, birth_year = person(name)
        self.add("TVCastCrew", Name=full, Role=role, Position=self.positions[part], EpisodeID=self.episode,
                 BirthYear=birth_year, IsUncredited=mark == "uncredited", IsVoice=mark == "voice",
                 IsCast=part == "cast", IsRegular=regular, IsCreditOnly=False)

    def add_award(self, award, year, category, title, result, nominee, film_year):
        values = {"Award": award, "Year": int(year), "Category": category, "MovieTitle": title,
                  "Won": result == "won", "Nominee": nominee}
        if film_year:
            values["MovieYear"] = int(film_year)
        self.add("Awards", **values)

    def add_title(self, profile, title, sort):
        self.statements.append(f"UPDATE Profiles SET CustomTitle = {quote(title)}, CustomSortTitle = {quote(sort)} "
                               f"WHERE ProfileID = {quote('Key_' + profile)};")

    def add_alias(self, alias, common, birth_year, comment):
        self.add("Alias", AliasName=alias, CommonName=common, BirthYear=int(birth_year), Comment=comment)

    def add_info(self, profile, name, kind, value):
        self.infos.append((name, "Key_" + profile, kind, value))
        self.add("AdditionalInfo", ProfileID="Key_" + profile, InfoName=name, InfoValue=value, InfoType=kind)

    def add_query(self, name, statement):
        self.add("SQLQueries", Name=name, SQLStatement=statement)

    def add_text(self, original, user):
        self.add("Translation", OriginalString=original, UserString=user)
