"""Reads the tables of the sample collection.

A record begins with "= identifier | title | year | minutes | genres". A line "key: value" sets a field; the indented
lines below "key:" are a text of several lines. In `cast` a line is a person and a role, "Name (birth year) <credited
as>: Role", where "{v}" and "{u}" at the end of the role mark a voice or an uncredited part, or a divider,
"[Group] caption", "[Team] caption", "[Episode] caption", "[End]". In `crew` it is "type | subtype | name" or a divider.
"""

import hashlib
import pathlib
import re
from dataclasses import dataclass, field

FOLDER = pathlib.Path(__file__).parent / "tables"


def draw(*what):
    """A number that is the same on every machine and in every run for the same words."""
    return int(hashlib.md5("|".join(map(str, what)).encode()).hexdigest()[:12], 16)


def pick(choices, *what):
    return choices[draw(*what) % len(choices)]


def chance(percent, *what):
    return draw("chance", *what) % 100 < percent


@dataclass
class Credit:
    name: str
    role: str = ""
    kind: str = ""  # credit type of the crew
    custom: str = ""
    credited_as: str = ""
    birth_year: int = 0
    voice: bool = False
    uncredited: bool = False


@dataclass
class Divider:
    caption: str
    kind: str


@dataclass
class Profile:
    id: str
    title: str
    year: int
    minutes: int
    genres: list
    fields: dict = field(default_factory=dict)
    cast: list = field(default_factory=list)
    crew: list = field(default_factory=list)

    def get(self, key, default=""):
        return self.fields.get(key, default)

    def parts(self, key, separator="|"):
        text = self.get(key)
        return [part.strip() for part in text.split(separator)] if text else []

    def lines(self, key):
        return self.get(key).split("\n") if self.get(key) else []

    @property
    def locality(self):
        return self.id.partition(".")[2]

    @property
    def minimal(self):
        return "minimal" in self.fields


@dataclass
class People:
    parts: dict = field(default_factory=dict)
    portraits: list = field(default_factory=list)
    roles: list = field(default_factory=list)
    first: list = field(default_factory=list)
    last: list = field(default_factory=list)
    jobs: list = field(default_factory=list)

    def split(self, name):
        if name in self.parts:
            return self.parts[name]
        words = name.split(" ")
        return words[0], " ".join(words[1:-1]), words[-1] if len(words) > 1 else ""


def read_people():
    people = People()
    for line in (FOLDER / "people.txt").read_text("utf-8").splitlines():
        key, colon, value = line.partition(": ")
        if not line or line.startswith("#"):
            continue
        if colon and key == "portrait":
            people.portraits.append(value)
        elif colon and key == "job":
            kind, subtype, custom, names = [part.strip() for part in value.split("|")]
            people.jobs.append((kind, subtype, custom, names.split("; ")))
        elif colon and key in ("roles", "first", "last"):
            setattr(people, key, value.split("; "))
        else:
            name, first, middle, last = [part.strip() for part in line.split("|")]
            people.parts[name] = (first, middle, last)
    return people


def read_divider(line):
    match = re.match(r"\[(Group|Team|Episode|End)\] ?(.*)", line)
    if not match:
        return None
    return Divider(match[2], "EndDiv" if match[1] == "End" else match[1])


def read_actor(line):
    match = re.match(r"(?P<name>[^(<:]+?)(?: \((?P<year>\d+)\))?(?: <(?P<as>[^>]+)>)?: (?P<role>.*)", line)
    role, voice, uncredited = match["role"], "{v}" in match["role"], "{u}" in match["role"]
    role = role.replace("{v}", "").replace("{u}", "").strip()
    return Credit(match["name"], role, credited_as=match["as"] or "", birth_year=int(match["year"] or 0), voice=voice,
                  uncredited=uncredited)


def read_crew(line):
    kind, subtype, name = [part.strip() for part in line.split("|")]
    return Credit(name, subtype, kind)


def add_supporting_cast(profile, people):
    count = int(profile.get("extras", "")) if profile.get("extras") else 3 + draw(profile.id, "extras") % 9
    if not profile.cast or count == 0:
        return
    supporting = []
    for i in range(count):
        first, last = pick(people.first, profile.id, i, "first"), pick(people.last, profile.id, i, "last")
        supporting.append(Credit(f"{first} {last}", people.roles[(draw(profile.id) + 7 * i) % len(people.roles)],
                                 uncredited=chance(12, profile.id, i)))
    dividers = [i for i, entry in enumerate(profile.cast) if isinstance(entry, Divider)]
    if dividers and profile.cast[dividers[-1]].kind == "Episode":
        profile.cast.append(Divider("", "EndDiv"))
    profile.cast.extend(supporting)


def fill_crew(profile, people):
    for job, kind in (("director", "Direction"), ("writer", "Writing")):
        for name in [n.strip() for n in profile.get(job).split(",") if n.strip()]:
            profile.crew.append(Credit(name, "Director" if job == "director" else "Writer", kind))
    if not profile.crew:
        return
    for i, (kind, subtype, custom, names) in enumerate(people.jobs):
        if i < 6 or chance(60, profile.id, "job", i):
            profile.crew.append(Credit(pick(names, profile.id, i), subtype, kind, custom))


def complete(profile, people):
    profile.cast = [read_divider(line) or read_actor(line) for line in profile.lines("cast")]
    add_supporting_cast(profile, people)
    if profile.get("crew"):
        profile.crew = [read_divider(line) or read_crew(line) for line in profile.lines("crew")]
    else:
        fill_crew(profile, people)
    return profile


def read_profiles(people):
    profiles, key = [], ""
    for name in ("films.txt", "world.txt", "series.txt"):
        for line in (FOLDER / name).read_text("utf-8").splitlines():
            if line.startswith("= "):
                id_, title, year, minutes, genres = [part.strip() for part in line[2:].split("|")]
                profiles.append(Profile(id_, title, int(year), int(minutes), genres.split(", ")))
            elif line.startswith("  ") or (not line and key):
                old = profiles[-1].fields.get(key)
                profiles[-1].fields[key] = line[2:] if not old else old + "\n" + line[2:]
                continue
            elif line and not line.startswith("#"):
                key, _, value = line.partition(":")
                profiles[-1].fields[key] = value.strip()
                if value.strip():
                    key = ""
                continue
            key = ""
    for profile in profiles:
        profile.fields = {k: v.strip("\n") for k, v in profile.fields.items()}
        complete(profile, people)
    return profiles
