#!/usr/bin/env python3
"""Writes the sample collection below resources/samples from the tables beside this script, and the list of covers and
portraits that draw_samples draws. The same tables give the same bytes on every machine.
"""

import pathlib

from additions import Additions
from tables import chance, read_people, read_profiles
from version2 import Version2
from version3 import Version3
from xml_text import XmlText

ROOT = pathlib.Path(__file__).resolve().parents[2]
SAMPLES = ROOT / "resources" / "samples"
DRAWINGS = ROOT / "tools" / "draw_samples" / "drawings.txt"
PROGRAM_VERSION = "0.1.0"


def write_infos(infos, path):
    xml = XmlText()
    xml.line('<?xml version="1.0" encoding="utf-8"?>')
    xml.line(f"<!-- Ostrand Version {PROGRAM_VERSION} Additional Info Export -->")

    def rows(name):
        for _, profile, kind, value in sorted(info for info in infos if info[0] == name):
            attributes = {"ID": profile, "Type": kind} if kind else {"ID": profile}
            xml.element("Info", value, **attributes)

    def names():
        for name in sorted({info[0] for info in infos}, key=str.lower):
            xml.group("AdditionalInfo", lambda: rows(name), Name=name)

    xml.group("AdditionalInfos", names)
    xml.save(path, "utf-8")


def drawing_lines(profiles, people):
    for profile in profiles:
        director = profile.parts("director", ",")[:1] or [""]
        genre = profile.genres[-1] if profile.genres[0] == "Television" else profile.genres[0]
        fields = [profile.id, profile.title, genre, str(profile.year), director[0], profile.get("trait"),
                  "bw" if profile.get("color") == "bw" else "color"]
        yield "|".join(["front", *fields])
        if chance(24, profile.id, "back"):
            tagline = profile.get("overview").split("\n")[0]
            yield "|".join(["back", *fields, tagline])
    for name in people.portraits:
        yield "portrait|" + name


def main():
    people = read_people()
    profiles = read_profiles(people)
    SAMPLES.mkdir(parents=True, exist_ok=True)
    Version3(people).write(profiles, SAMPLES / "collection.xml")
    Version2(people).write(profiles, SAMPLES / "collection-2x.xml")
    additions = Additions().read()
    additions.save(SAMPLES / "additions.sql")
    write_infos(additions.infos, SAMPLES / "additional-infos.xml")
    DRAWINGS.parent.mkdir(parents=True, exist_ok=True)
    DRAWINGS.write_text("\n".join(drawing_lines(profiles, people)) + "\n", "utf-8")


if __name__ == "__main__":
    main()
