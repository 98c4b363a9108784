"""Writes profiles in the older form of the collection file, with elements in the place of attributes."""

import details
from tables import Divider
from xml_text import XmlText

MARKS = {"Group": "[DivGroup]", "Team": "[DivTeam]", "Episode": "[DivEpisode]", "EndDiv": "[DivEnd]"}
OLD_FEATURES = details.FEATURES[:16]


def old_upc(profile):
    """The form that a bar code had before: the last twelve characters."""
    text = details.upc(profile)
    return text[-12:] if text[0].isdigit() else text


def old_id(profile):
    bare, point, locality = profile.id.partition(".")
    if bare.startswith("I"):
        return bare[1:] + point + locality
    return (old_upc(profile) if bare[0].isdigit() else bare) + point + locality


class Version2:
    def __init__(self, people):
        self.people = people
        self.xml = XmlText()
        self.ids = {}

    def write(self, profiles, path):
        self.ids = {profile.id: old_id(profile) for profile in profiles}
        self.xml.line('<?xml version="1.0" encoding="windows-1252"?>')
        self.xml.group("Collection", lambda: [self.profile(profile) for profile in profiles])
        self.xml.save(path, "windows-1252")

    def profile(self, profile):
        self.xml.group("DVD", lambda: self.sections(profile))

    def fields(self, name, **values):
        self.xml.group(name, lambda: [self.xml.element(key, value) for key, value in values.items()])

    def sections(self, profile):
        xml = self.xml
        self.head(profile)
        xml.list("Genres", "Genre", profile.genres)
        xml.list("Regions", "Region", [r for r in details.regions(profile) if r not in "ABC"])
        self.format(profile)
        on = details.features(profile)
        xml.group("Features", lambda: [*(xml.element(name, name in on) for name in OLD_FEATURES),
                                       xml.element("FeatureOther", profile.get("other"))])
        xml.list("Studios", "Studio", details.studios(profile))
        xml.element("MediaPublisher", (details.companies(profile) or [""])[0])
        xml.group("Audio", lambda: [self.fields("AudioFormat", AudioLanguage=track[0], AudioCompression=track[1],
                                                AudioChannels=track[2]) for track in details.audio(profile)])
        xml.list("Subtitles", "Subtitle", details.subtitles(profile))
        self.list_price(profile)
        xml.group("Actors", lambda: [self.actor(entry) for entry in profile.cast])
        xml.group("Credits", lambda: [self.credit(entry) for entry in profile.crew])
        xml.element("Overview", profile.get("overview"))
        xml.element("EasterEggs", profile.get("eggs"))
        xml.group("Discs", lambda: [self.disc(disc) for disc in details.discs(profile)])
        self.own_data(profile)

    def head(self, profile):
        xml = self.xml
        xml.element("ProfileTimestamp", details.timestamp(profile))
        xml.element("ID", self.ids[profile.id])
        xml.element("UPC", old_upc(profile))
        xml.element("CollectionType", profile.get("type", "Owned"))
        xml.element("Title", profile.title)
        xml.element("Description", profile.get("trait"))
        xml.element("OriginalTitle", profile.get("original"))
        xml.element("ProductionYear", profile.year)
        if details.released(profile):
            xml.element("Released", details.released(profile))
        xml.element("RunningTime", profile.minutes)
        rated = profile.parts("rated")
        xml.element("Rating", rated[0] if rated else "")
        xml.element("RatingDetails", rated[1] if len(rated) > 1 else "")
        xml.element("CaseType", profile.get("case", "Keep Case"))

    def format(self, profile):
        aspect = details.aspect(profile)
        self.fields("Format", FormatAspectRatio=aspect, FormatVideoStandard=details.country(profile)[2],
                    FormatLetterBox=aspect != "1.33", FormatPanAndScan=False, FormatFullFrame=aspect == "1.33",
                    Format16X9=aspect != "1.33")

    def list_price(self, profile):
        price = details.list_price(profile)
        if price:
            self.fields("SRPInfo", SRP=price[2], SRPCurrencyID=price[0], SRPCurrencyName=price[1])

    def person(self, credit):
        first, middle, last = self.people.split(credit.name)
        values = {"FirstName": first, "MiddleName": middle, "LastName": last}
        if credit.birth_year:
            values["BirthYear"] = credit.birth_year
        return values

    def actor(self, entry):
        if isinstance(entry, Divider):
            self.fields("Actor", Name=entry.caption, Role=MARKS[entry.kind])
            return
        self.fields("Actor", **self.person(entry), Role=entry.role, IsVoice=entry.voice, IsUncredited=entry.uncredited,
                    IsCreditOnly=False)

    def credit(self, entry):
        if isinstance(entry, Divider):
            self.fields("Credit", Name=entry.caption, Role=MARKS[entry.kind])
            return
        self.fields("Credit", **self.person(entry), CreditType=entry.kind, CreditSubtype=entry.custom or entry.role)

    def disc(self, disc):
        self.fields("Disc", Description=disc["DescriptionSideA"], DiscIDSideA=disc["DiscIDSideA"],
                    LabelSideA=disc["LabelSideA"], DiscIDSideB=disc["DiscIDSideB"], LabelSideB=disc["LabelSideB"],
                    DualSided=disc["DualSided"], DualLayered=disc["DualLayeredSideA"], Flipper=disc["DualSided"],
                    Location=disc["Location"], Slot=disc["Slot"])

    def own_data(self, profile):
        xml = self.xml
        xml.element("SortTitle", details.sort_title(profile))
        xml.element("LastEdited", details.timestamp(profile))
        if profile.get("wish"):
            xml.element("WishPriority", profile.get("wish"))
        self.purchase(profile.parts("buy"))
        film, video, audio, extras = profile.get("review", "0 0 0 0").split()
        self.fields("Review", ReviewFilm=film, ReviewVideo=video, ReviewAudio=audio, ReviewExtras=extras)
        xml.group("Events", lambda: [self.event(*line.split(" ", 2)) for line in profile.lines("events")])
        loan = profile.parts("loan")
        if loan:
            first, last = details.USERS[loan[0]][:2]
            self.fields("LoanInfo", LoanedTo=first, LoanedToLast=last, LoanedDue=loan[1])
        xml.list("BoxSet", "BoxSetChild", [self.ids.get(child, child) for child in profile.parts("box", ",")])
        xml.element("Notes", profile.get("notes"))
        xml.group("Tags", lambda: [self.fields("Tag", Name=tag.rpartition("/")[2], FullyQualifiedName=tag)
                                   for tag in profile.parts("tags", ";")])

    def purchase(self, buy):
        if buy:
            self.xml.group("PurchaseInfo", lambda: self.purchase_fields(*buy))

    def purchase_fields(self, price, place, kind, date):
        currency, name, shown, _ = details.price(*price.split())
        self.xml.element("PurchaseDate", date)
        self.xml.element("PurchasePlace", place)
        self.xml.element("PurchPlaceType", kind)
        self.xml.element("PurchPlaceWebsite", details.SHOPS[place])
        self.fields("PurchasePriceInfo", PurchasePriceCurrencyID=currency, PurchasePriceCurrencyName=name,
                    PurchasePrice=shown)

    def event(self, time, kind, user):
        first, last, mail, phone = details.USERS[user]
        self.xml.group("Event", lambda: [
            self.fields("User", FirstName=first, LastName=last, PhoneNumber=phone, EmailAddress=mail),
            self.xml.element("EventType", kind), self.xml.element("Timestamp", time)])
