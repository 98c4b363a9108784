"""Writes profiles as a collection file of version 3.8."""

import details
from tables import Divider
from xml_text import XmlText

COLLECTION_TYPES = {"Owned": True, "Ordered": False, "Wish List": False, "Sold": False, "Kids' Room": True}


class Version3:
    def __init__(self, people):
        self.people = people
        self.xml = XmlText()
        self.number = 0

    def write(self, profiles, path):
        self.xml.line('<?xml version="1.0" encoding="windows-1252"?>')
        self.xml.line("<!--DVD Profiler Collection Export-->")
        parents = {child: profile.id for profile in profiles for child in profile.parts("box", ",")}
        self.xml.group("Collection", lambda: [self.profile(profile, parents) for profile in profiles])
        self.xml.save(path, "windows-1252")

    def profile(self, profile, parents):
        self.xml.group("DVD", lambda: self.sections(profile, parents.get(profile.id, "")))

    def sections(self, profile, parent):
        self.head(profile)
        self.rating(profile)
        self.format(profile)
        self.feature_flags(profile)
        self.companies_and_tracks(profile)
        self.credits(profile)
        self.texts_and_discs(profile)
        self.own_data(profile)
        self.history(profile)
        self.box_and_loan(profile, parent)
        self.notes_and_tags(profile)

    def head(self, profile):
        xml = self.xml
        flags, custom = details.media(profile)
        xml.element("ProfileTimestamp", details.timestamp(profile))
        xml.element("ID", profile.id)
        xml.group("MediaTypes", lambda: self.media_types(flags, custom))
        xml.element("UPC", details.upc(profile))
        kind = profile.get("type", "Owned")
        owned = kind == "Owned" and profile.get("count") != "0"
        self.number += owned
        xml.element("CollectionNumber", self.number if owned else "")
        xml.element("CollectionType", kind, IsPartOfOwnedCollection=COLLECTION_TYPES[kind])
        xml.element("Title", profile.title)
        xml.element("DistTrait", profile.get("trait"))
        xml.element("OriginalTitle", profile.get("original"))
        xml.element("CountryOfOrigin", profile.get("country") or details.country(profile)[0])
        if not profile.minimal:
            xml.element("CountryOfOrigin2")
            xml.element("CountryOfOrigin3")
        xml.element("ProductionYear", profile.year)
        if details.released(profile):
            xml.element("Released", details.released(profile))
        xml.element("RunningTime", profile.minutes)

    def media_types(self, flags, custom):
        for name in ("DVD", "HDDVD", "BluRay"):
            self.xml.element(name, name in flags)
        self.xml.element("CustomMediaType", custom)

    def rating(self, profile):
        rated = profile.parts("rated")
        if not rated:
            return
        television = "Television" in profile.genres
        self.xml.element("RatingSystem", "Television" if television else "Film")
        self.xml.element("Rating", rated[0])
        if rated[0] in details.AGES:
            self.xml.element("RatingAge", details.AGES[rated[0]])
            self.xml.element("RatingVariant", "1" if profile.locality == "11" else "0")
        if len(rated) > 1:
            self.xml.element("RatingDetails", rated[1])

    def format(self, profile):
        xml = self.xml
        xml.element("CaseType", profile.get("case") or ("HD Keep Case" if "BluRay" in details.media(profile)[0]
                                                         else "Keep Case"))
        if profile.get("slip"):
            xml.element("CaseSlipCover", True)
        xml.list("Genres", "Genre", profile.genres)
        if not profile.minimal:
            xml.list("Regions", "Region", details.regions(profile))
            xml.group("Format", lambda: self.format_fields(profile))

    def format_fields(self, profile):
        xml = self.xml
        aspect, mono = details.aspect(profile), profile.get("color") == "bw"
        xml.element("FormatAspectRatio", aspect)
        xml.element("FormatVideoStandard", details.country(profile)[2])
        xml.group("ColorFormat", lambda: [xml.element("ClrColor", not mono), xml.element("ClrBlackAndWhite", mono),
                                          xml.element("ClrColorized", False), xml.element("ClrMixed", False)])
        xml.element("FormatLetterBox", aspect != "1.33")
        xml.element("FormatPanAndScan", profile.get("sides") == "yes")
        xml.element("FormatFullFrame", aspect == "1.33")
        xml.element("Format16X9", aspect != "1.33" and profile.year > 1960)
        xml.element("FormatDualSided", profile.get("sides") == "yes")
        xml.element("FormatDualLayered", any(disc["DualLayeredSideA"] for disc in details.discs(profile)))
        xml.group("Dimensions", lambda: [xml.element("Dim2D", True), xml.element("Dim3DAnaglyph", False),
                                         xml.element("Dim3DBluRay", False)])

    def feature_flags(self, profile):
        if profile.minimal:
            return
        on = details.features(profile)
        other = profile.get("other")
        self.xml.group("Features", lambda: [*(self.xml.element(name, name in on) for name in details.FEATURES),
                                            self.xml.element("OtherFeatures", other)])

    def companies_and_tracks(self, profile):
        xml = self.xml
        xml.list("Studios", "Studio", details.studios(profile))
        xml.list("MediaCompanies", "MediaCompany", details.companies(profile))
        xml.group("Audio", lambda: [self.track(*track) for track in details.audio(profile)])
        xml.list("Subtitles", "Subtitle", details.subtitles(profile))
        price = details.list_price(profile)
        if price:
            self.price("SRP", price)

    def track(self, content, compression, channels):
        self.xml.group("AudioTrack", lambda: [self.xml.element("AudioContent", content),
                                              self.xml.element("AudioFormat", compression),
                                              self.xml.element("AudioChannels", channels)])

    def price(self, name, price):
        self.xml.element(name, price[3], DenominationType=price[0], DenominationDesc=price[1],
                         FormattedValue=price[2])

    def credits(self, profile):
        self.xml.group("Actors", lambda: [self.actor(entry) for entry in profile.cast])
        self.xml.group("Credits", lambda: [self.credit(entry) for entry in profile.crew])

    def person(self, credit):
        first, middle, last = self.people.split(credit.name)
        return {"FirstName": first, "MiddleName": middle, "LastName": last, "BirthYear": credit.birth_year}

    def divider(self, entry):
        self.xml.element("Divider", Caption=entry.caption, Type=entry.kind)

    def actor(self, entry):
        if isinstance(entry, Divider):
            self.divider(entry)
            return
        self.xml.element("Actor", **self.person(entry), Role=entry.role, CreditedAs=entry.credited_as,
                         Voice=entry.voice, Uncredited=entry.uncredited)

    def credit(self, entry):
        if isinstance(entry, Divider):
            self.divider(entry)
            return
        custom = {"CustomRole": entry.custom} if entry.custom else {}
        self.xml.element("Credit", **self.person(entry), CreditType=entry.kind, CreditSubtype=entry.role,
                         CreditedAs=entry.credited_as, **custom)

    def texts_and_discs(self, profile):
        self.xml.element("Overview", profile.get("overview"))
        self.xml.element("EasterEggs", profile.get("eggs"))
        self.xml.group("Discs", lambda: [self.disc(disc) for disc in details.discs(profile)])

    def disc(self, disc):
        order = ["DescriptionSideA", "DescriptionSideB", "DiscIDSideA", "DiscIDSideB", "LabelSideA", "LabelSideB",
                 "DualLayeredSideA", "DualLayeredSideB", "DualSided", "Location", "Slot"]
        self.xml.group("Disc", lambda: [self.xml.element(name, disc[name]) for name in order])

    def own_data(self, profile):
        xml = self.xml
        xml.element("SortTitle", details.sort_title(profile))
        if not profile.minimal:
            xml.element("LastEdited", details.timestamp(profile).replace("2020-", "2023-"))
        xml.element("WishPriority", profile.get("wish", "0"))
        xml.element("CountAs", profile.get("count", "1"))
        self.purchase(profile)
        film, video, audio, extras = [part for part in profile.get("review", "0 0 0 0").split()]
        xml.element("Review", Film=film, Video=video, Audio=audio, Extras=extras)
        banners = profile.get("banners").replace('"', "").split()
        front, back = [part.partition("=")[2] for part in banners] if len(banners) == 2 else ("Automatic", "Automatic")
        if profile.get("banners").startswith('Front="HD'):
            front, back = "HD DVD", "Off"
        xml.element("MediaBanners", Front=front, Back=back)
        if profile.get("exclusions"):
            xml.group("Exclusions", lambda: [xml.element(name, True) for name in profile.parts("exclusions", ",")])

    def purchase(self, profile):
        if profile.minimal:
            return
        buy = profile.parts("buy")
        self.xml.group("PurchaseInfo", lambda: self.purchase_fields(profile, buy))

    def purchase_fields(self, profile, buy):
        xml = self.xml
        currency, value = buy[0].split() if buy else (details.country(profile)[1], "0")
        self.price("PurchasePrice", details.price(currency, value if buy else "0.00"))
        place = buy[1] if buy else ""
        xml.element("PurchasePlace", place)
        xml.element("PurchasePlaceType", buy[2] if buy else "")
        xml.element("PurchasePlaceWebsite", details.SHOPS[place] if place else "")
        if buy:
            xml.element("PurchaseDate", buy[3])
        xml.element("ReceivedAsGift", False)
        xml.element("GiftFrom", FirstName="", LastName="")

    def user(self, name):
        first, last, mail, phone = details.USERS[name]
        self.xml.element("User", FirstName=first, LastName=last, EmailAddress=mail, PhoneNumber=phone)

    def history(self, profile):
        self.xml.group("Events", lambda: [self.event(*line.split(" ", 2)) for line in profile.lines("events")])

    def event(self, time, kind, user):
        self.xml.group("Event", lambda: [self.xml.element("EventType", kind), self.xml.element("Timestamp", time),
                                         self.xml.element("Note"), self.user(user)])

    def box_and_loan(self, profile, parent):
        xml = self.xml
        xml.group("BoxSet", lambda: [xml.element("Parent", parent),
                                     xml.list("Contents", "Content", profile.parts("box", ","))])
        loan = profile.parts("loan")
        xml.group("LoanInfo", lambda: [xml.element("Loaned", bool(loan)),
                                       *([xml.element("Due", loan[1]), self.user(loan[0])] if loan else [])])

    def notes_and_tags(self, profile):
        xml = self.xml
        xml.element("Notes", profile.get("notes"))
        xml.group("Tags", lambda: [xml.element("Tag", Name=tag.rpartition("/")[2], FullName=tag)
                                   for tag in profile.parts("tags", ";")])
