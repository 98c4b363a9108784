"""What the tables leave open: the details of an edition, drawn from its country and its identifier."""

from tables import chance, draw, pick

# locality: country, currency, video standard, DVD region, Blu-ray region, language, film rating systems
COUNTRIES = {
    "": ("United States", "USD", "NTSC", 1, "A", "English"),
    "1": ("New Zealand", "USD", "PAL", 4, "B", "English"),
    "2": ("Australia", "USD", "PAL", 4, "B", "English"),
    "3": ("Canada", "CAD", "NTSC", 1, "A", "English"),
    "4": ("United Kingdom", "GBP", "PAL", 2, "B", "English"),
    "5": ("Germany", "EUR", "PAL", 2, "B", "German"),
    "8": ("France", "EUR", "PAL", 2, "B", "French"),
    "10": ("Spain", "EUR", "PAL", 2, "B", "Spanish"),
    "11": ("Sweden", "SEK", "PAL", 2, "B", "Swedish"),
    "12": ("Norway", "SEK", "PAL", 2, "B", "Norwegian"),
    "13": ("Italy", "EUR", "PAL", 2, "B", "Italian"),
    "17": ("Japan", "JPY", "NTSC", 2, "A", "Japanese"),
    "21": ("Hong Kong", "USD", "NTSC", 3, "A", "Chinese"),
    "22": ("Switzerland", "EUR", "PAL", 2, "B", "German"),
    "44": ("Ireland", "EUR", "PAL", 2, "B", "English"),
}

CURRENCIES = {
    "USD": ("United States (Dollar)", "$"),
    "EUR": ("Europe (Euro)", "€"),
    "GBP": ("Great Britain (Pound)", "£"),
    "CAD": ("Canada (Dollar)", "$"),
    "SEK": ("Sweden (Krona)", "kr"),
    "JPY": ("Japan (Yen)", "¥"),
}

LIST_PRICES = {
    "USD": ["9.98", "14.98", "19.99", "24.99"],
    "EUR": ["9.99", "12.99", "16.99"],
    "GBP": ["7.99", "12.99", "15.99"],
    "CAD": ["14.99", "22.99"],
    "SEK": ["99.00", "149.00"],
    "JPY": ["2800", "3980"],
}

SHOPS = {
    "The Disc Orchard": "www.discorchard.example",
    "Platter & Spindle": "",
    "Tadlow Market Hall": "",
    "Maple Leaf Discs": "www.mapleleafdiscs.example",
    "Last Format Standing": "",
    "Bargain Barrel": "",
    "Disco Volante": "www.discovolante.example",
    "Scheibenwelt am Markt": "",
    "Silberling24": "www.silberling24.example",
    "La Galette": "",
    "Skivhyllan": "",
    "Shinemaru": "www.shinemaru.example",
}

STUDIOS = {
    "English": ["Lantern & Teapot Pictures", "Wembling Film Unit", "Third Sock Productions", "Brackish Bay Films"],
    "German": ["Moosgrüber Film", "Prellbock Produktion"],
    "French": ["Œil-de-bœuf Productions", "Les Films du Parapluie"],
    "Swedish": ["Norrsken & Dotter Film"],
    "Norwegian": ["Siste Ferge Film"],
    "Spanish": ["Niebla y Compañía"],
    "Italian": ["Forchetta Film"],
    "Japanese": ["Studio Amagiri"],
    "Chinese": ["Golden Abacus Films"],
}

PUBLISHERS = {
    "English": ["Dustcover Home Video", "Spinning Plate Entertainment"],
    "German": ["Silberscheibe Heimkino"],
    "French": ["Galette Vidéo"],
    "Japanese": ["Shinemaru Disc"],
}

FEATURES = [
    "FeatureSceneAccess", "FeatureCommentary", "FeatureTrailer", "FeaturePhotoGallery", "FeatureDeletedScenes",
    "FeatureMakingOf", "FeatureProductionNotes", "FeatureGame", "FeatureDVDROMContent", "FeatureMultiAngle",
    "FeatureMusicVideos", "FeatureInterviews", "FeatureStoryboardComparisons", "FeatureOuttakes",
    "FeatureClosedCaptioned", "FeatureTHXCertified", "FeaturePIP", "FeatureBDLive", "FeatureBonusTrailers",
    "FeatureDigitalCopy",
]
COMMON_FEATURES = {"FeatureSceneAccess": 90, "FeatureTrailer": 60, "FeatureMakingOf": 45, "FeatureDeletedScenes": 35}

USERS = {
    "Nora Quist": ("Nora", "Quist", "nora@quist.example", "555-0101"),
    "Ben Tadlow": ("Ben", "Tadlow", "ben@tadlow.example", "555-0102"),
    "Cornelius Tadlow": ("Cornelius", "Tadlow", "", "555-0103"),
    "Mum": ("Mum", "", "", ""),
}

AGES = {"PG": "10", "PG-13": "13", "R": "17", "12": "12", "12A": "12", "15": "15", "U": "0", "G": "0", "M": "15",
        "FSK-0": "0", "FSK-6": "6", "FSK-12": "12", "TV-14": "14", "7": "7", "11": "11", "A": "0", "T": "0", "0": "0"}


def country(profile):
    return COUNTRIES[profile.locality]


def language(profile):
    return country(profile)[5]


def media(profile):
    """The names of the media flags that are set, and the custom medium."""
    text = profile.get("medium", "DVD")
    if text.startswith("Custom "):
        return [], text[7:]
    names = {"DVD": "DVD", "HD DVD": "HDDVD", "Blu-ray": "BluRay"}
    return [names[part] for part in text.split(" + ")], ""


def features(profile):
    if profile.minimal:
        return []
    drawn = [name for name in FEATURES if chance(COMMON_FEATURES.get(name, 9), profile.id, name)]
    # Each feature stands in the collection at least once.
    fixed = {"0000000010035": FEATURES[:10], "0000000010141": FEATURES[10:]}.get(profile.id, [])
    return [name for name in FEATURES if name in drawn or name in fixed]


def audio(profile):
    """Tracks as content, format and channels."""
    flags, _ = media(profile)
    high = "BluRay" in flags or "HDDVD" in flags
    old = profile.year < 1970
    if profile.minimal:
        return []
    main = ("DTS-HD Master Audio", "5.1") if high else ("Dolby Digital", "5.1")
    if old:
        main = ("Dolby Digital", "Mono")
    elif not high and profile.year < 2000:
        main = ("Dolby Digital", "Dolby Surround")
    tracks = [(language(profile), *main)]
    if chance(45, profile.id, "second") and not old:
        other = "French" if language(profile) == "English" else "English"
        tracks.append((other, "Dolby Digital", "2-Channel Stereo"))
    if "FeatureCommentary" in features(profile):
        tracks.append(("Commentary", "Dolby Digital", "2-Channel Stereo"))
    return tracks


def subtitles(profile):
    if profile.minimal:
        return []
    wanted = ["English", "French", "Spanish", "German", "Swedish"]
    own = language(profile)
    return [own] + [name for name in wanted if name != own and chance(35, profile.id, "sub", name)]


def regions(profile):
    flags, custom = media(profile)
    if custom or profile.minimal or chance(10, profile.id, "no region"):
        return []
    if flags == ["BluRay"]:
        return ["All"] if chance(15, profile.id, "all") else [country(profile)[4]]
    return [str(country(profile)[3])] + (["4"] if country(profile)[3] == 2 and chance(40, profile.id, "4") else [])


def studios(profile):
    if profile.minimal:
        return []
    choices = STUDIOS[language(profile)]
    found = [pick(choices, profile.id, "studio")]
    second = pick(STUDIOS["English"], profile.id, "second studio")
    return found + ([second] if second not in found and chance(30, profile.id, "two studios") else [])


def companies(profile):
    if profile.minimal:
        return []
    return [pick(PUBLISHERS.get(language(profile), PUBLISHERS["English"]), profile.id, "company")]


def price(currency, value):
    """Attributes and text of a price element."""
    name, symbol = CURRENCIES[currency]
    return currency, name, f"{symbol}{value}", value.rstrip("0").rstrip(".") if "." in value else value


def list_price(profile):
    if profile.minimal or profile.id.startswith("I"):
        return None
    currency = country(profile)[1]
    return price(currency, pick(LIST_PRICES[currency], profile.id, "srp"))


def aspect(profile):
    return profile.get("aspect") or ("1.33" if profile.year < 1955 else pick(["1.78", "1.85", "2.35"], profile.id))


def disc_count(profile):
    if profile.get("box") or profile.minimal:
        return 0
    return int(profile.get("discs", "1"))


def disc_id(profile, number):
    bare = profile.id.partition(".")[0]
    if bare.startswith("I"):
        return bare[1:]
    return f"{draw(profile.id, 'disc', number):016X}"[-16:]


def discs(profile):
    """One dictionary of the 3.x element names a disc."""
    result = []
    for number in range(1, disc_count(profile) + 1):
        both = profile.get("sides") == "yes"
        shelf = pick(["Shelf A", "Shelf B", "Changer", ""], profile.id, "shelf")
        result.append({
            "DescriptionSideA": "Main Feature" if number == 1 else "Bonus Material",
            "DescriptionSideB": "Full Frame Version" if both else "",
            "DiscIDSideA": disc_id(profile, number),
            "DiscIDSideB": f"{draw(profile.id, 'B'):016X}"[-16:] if both else "",
            "LabelSideA": label(profile.title),
            "LabelSideB": "SIDE_B" if both else "",
            "DualLayeredSideA": chance(70, profile.id, "layer"),
            "DualLayeredSideB": False,
            "DualSided": both,
            "Location": shelf,
            "Slot": str(1 + draw(profile.id, "slot") % 400) if shelf == "Changer" else "",
        })
    return result


def label(title):
    plain = "".join(c if c.isascii() and c.isalnum() else "_" for c in title.upper())
    while "__" in plain:
        plain = plain.replace("__", "_")
    return plain.strip("_")[:32]


def sort_title(profile):
    if profile.get("sort"):
        return profile.get("sort")
    for article in ("The ", "A ", "Der ", "Die ", "Das ", "Le ", "La ", "L'", "El "):
        if profile.title.startswith(article):
            return f"{profile.title[len(article):]}, {article.strip()}"
    return profile.title


def upc(profile):
    bare = profile.id.partition(".")[0]
    if bare.startswith("I"):
        hexa = bare[1:]
        return "Disc ID: " + "-".join(hexa[i:i + 4] for i in range(0, 16, 4))
    if bare.startswith("M"):
        return f"Manual DVD #{bare[1:]}"
    return f"{bare[0]}-{bare[1:7]}-{bare[7:]}"


def released(profile):
    if profile.minimal or profile.get("count") == "0" or chance(12, profile.id, "no date"):
        return ""
    year = max(profile.year, 1999) + (0 if profile.year > 2018 else 1)
    return f"{year}-{1 + draw(profile.id, 'month') % 12:02d}-{1 + draw(profile.id, 'day') % 28:02d}"


def timestamp(profile):
    if profile.get("count") == "0" and profile.id.startswith("I"):
        return "1899-12-30"
    minute, second = draw(profile.id, "minute") % 60, draw(profile.id, "second") % 60
    return f"2020-{1 + draw(profile.id, 'm') % 12:02d}-{1 + draw(profile.id, 'd') % 28:02d}T19:{minute:02d}:{second:02d}.000Z"
