-- The collection of the kept pages: one statement a line. All titles and persons are invented.

-- Key_0012345678905.4 has everything, with texts that could break a page.
INSERT INTO Profiles (ProfileID, Title, OriginalTitle, SortTitle, OriginalSortTitle, CustomTitle, CustomSortTitle, Description, ColNo, ColType, UPC, Rating, RatingSystem, RatingDetails, ProdYear, Released, Runtime, CaseType, Medium, Overview, Notes, EasterEggs, LastEdited, WishListPriority, Locality, CountryOfOrigin) VALUES ('Key_0012345678905.4', 'The "Glass" Harbour''s <i>Edge</i> & Co', 'Das Glashafen-Rätsel', 'Glass Harbour, The', 'Glashafen-Rätsel, Das', 'Glass \ 2', 'Glass 02', 'Director''s <b>Cut</b>', '7a', 'Owned', '012345678905', 'PG-13', 'Board & Co', 'mild "peril"', 1999, #2001-03-04#, 135, 'Keep Case, Slip Cover', 'DVD', 'A "quiet" town.' & Chr(13) & Chr(10) & 'It''s <b>not</b> & never was \ quiet.' & Chr(10) & 'Ünïcode: 映画.', 'See ../notes/a b.txt and ..\notes\c.txt' & Chr(13) & Chr(10) & '<dp name="NONE">, a tag that is none', 'Press "up".' & Chr(13) & Chr(10) & 'Then <em>down</em>.', #2024-05-16 09:08:07#, 4, 'Deutschland', 'Italy');
-- A box set on another medium, and a child of it whose key holds a quote. Key_0012345678905.4 is in it too.
INSERT INTO Profiles (ProfileID, Title, SortTitle, ColNo, ColType, UPC, Rating, ProdYear, Released, Runtime, CaseType, Medium, Overview) VALUES ('Key_4012345678901', 'Harbour Collection', 'Harbour Collection', '8', 'WishList', '4012345678901', 'G', 2003, #1899-12-30#, 59, 'Digipak', 'Blu-ray Disc', 'Two films.');
INSERT INTO Profiles (ProfileID, Title, OriginalTitle, SortTitle, CustomTitle, ColType, UPC, ProdYear, Released, Runtime, CaseType, Medium) VALUES ('Key_O''Hara-7', 'An "Old" Kiln', 'Kiln', 'An "Old" Kiln', 'My Kiln', 'Ordered', '12345670', 2010, #2010-11-30#, 60, 'Keep Case', 'HD DVD');
INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_0012345678905.4', 'Key_4012345678901');
INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_O''Hara-7', 'Key_4012345678901');
-- Nothing but its key.
INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_OSV17', '');
-- A season, with two episodes: one with everything, one with its key alone.
INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType, UPC, ProdYear, Runtime, Medium) VALUES ('Key_5.TV', 'Tideline: Season 1', 'Tideline 1', 'Sold & Gone', '5-55555-55555-5', 2004, 0, 'VHS');
-- In the box of the season: made with this program, and with an original title alone.
INSERT INTO Profiles (ProfileID, Title, OriginalTitle, SortTitle, Description) VALUES ('Key_osv 21', '', 'Flutkarte', 'Flutkarte', 'A "map"');
INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_osv 21', 'Key_5.TV');
INSERT INTO TVSeries (SeriesID, OriginalTitle, Title, SortTitle) VALUES ('S1', 'Gezeiten', 'Tideline', 'Tideline');
INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle, EpisodeOriginalTitle, AirDate, Runtime, Rating, RatingSystem, RatingDetails, Overview, Notes) VALUES ('OSVE''1', 'S1', '1', '1', 'Low "Water"', 'Niedrigwasser', #2004-10-05#, 45, 'TV-14', 'Board & Co', 'damp', 'Rain.' & Chr(13) & Chr(10) & '<b>Wind</b>.', 'See ../a.txt');
INSERT INTO Episodes (EpisodeID, SeriesID, Season) VALUES ('Key_OSVE 2', 'S0', '1');
INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_5.TV', 'OSVE''1');
INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_5.TV', 'Key_OSVE 2');

-- Credits: captions, a group, roles that repeat its name, voices, uncredited ones, names of one part, aliases.
INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('M. Okonski', 'Mara Liv Okonski', 1951);
INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('J. Teld', 'Jonas Teld', 0);
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role, BirthYear) VALUES ('Key_0012345678905.4', 1, true, 'Mara Liv Okonski', 'Ada', 1951);
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 2, true, 'Aboard the "Petrel"', '[Divider]');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role, IsUncredited) VALUES ('Key_0012345678905.4', 3, true, 'Siobhan O''Marra', 'The "Fox" <b>& Co</b> \', true);
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 4, true, 'Harbour Choir', '[DivGroup]');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 5, true, 'J. Teld', 'Harbour Choir');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role, IsVoice) VALUES ('Key_0012345678905.4', 6, true, 'Iva Renn', 'Harbour Choir', true);
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 7, true, 'Others', '[DivEnd]');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role, IsVoice, IsUncredited, IsCreditOnly, BirthYear) VALUES ('Key_0012345678905.4', 8, true, 'Teld', '', true, true, true, 0);
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, IsVoice, IsCreditOnly) VALUES ('Key_0012345678905.4', 9, true, 'Nils Arvid Aue', true, true);
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role, BirthYear) VALUES ('Key_0012345678905.4', 10, true, 'M. Okonski', '', 1951);
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role, BirthYear) VALUES ('Key_0012345678905.4', 1, false, 'M. Okonski', 'Director', 1951);
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 2, false, 'The "Ink" & Paper', '[Divider]');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 3, false, 'Siobhan O''Marra', 'Screenwriter');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 4, false, 'J. Teld', 'story by');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 5, false, 'Olm Brandt', 'Executive Producer');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 6, false, 'Uta Falk', 'Cinematographer');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 7, false, 'Pim', 'Film Editor');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 8, false, 'Rosa Dene', 'Composer');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 9, false, 'Kai Lund', 'Sound Designer');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 10, false, 'Wim Oake', 'Sound Mixer');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 11, false, 'Tess Bray', 'Costume Designer');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name, Role) VALUES ('Key_0012345678905.4', 12, false, 'Rex', 'Dog "Handler" <i>');
INSERT INTO CastCrew (ProfileID, Position, IsCast, Name) VALUES ('Key_0012345678905.4', 13, false, 'Ann Helm');
INSERT INTO TVCastCrew (EpisodeID, Position, IsCast, Name, Role, BirthYear) VALUES ('OSVE''1', 1, true, 'Mara Liv Okonski', 'Edda', 1951);
INSERT INTO TVCastCrew (EpisodeID, Position, IsCast, Name, Role) VALUES ('OSVE''1', 2, true, 'Guests', '[Divider]');
INSERT INTO TVCastCrew (EpisodeID, Position, IsCast, Name, Role, IsCreditOnly) VALUES ('OSVE''1', 3, true, 'Siobhan O''Marra', 'Widow', true);
INSERT INTO TVCastCrew (EpisodeID, Position, IsCast, Name, Role) VALUES ('OSVE''1', 1, false, 'Iva Renn', 'Director');
INSERT INTO TVCastCrew (EpisodeID, Position, IsCast, Name, Role) VALUES ('OSVE''1', 2, false, 'J. Teld', 'Writer');

-- Lists.
INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_0012345678905.4', 'Thriller');
INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_0012345678905.4', 'Drama');
INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_0012345678905.4', 'Sea & "Shore"');
INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_O''Hara-7', 'Drama');
INSERT INTO Features (ProfileID, Feature) VALUES ('Key_0012345678905.4', 'Trailers');
INSERT INTO Features (ProfileID, Feature) VALUES ('Key_0012345678905.4', 'Digital Copy');
INSERT INTO Features (ProfileID, Feature) VALUES ('Key_0012345678905.4', 'A "Walk" on the pier');
INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('Key_0012345678905.4', 'German');
INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('Key_0012345678905.4', 'English');
INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('Key_0012345678905.4', 'Tern & Sons', 'Studio');
INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('Key_0012345678905.4', 'Auk "Films"', '');
INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('Key_0012345678905.4', 'Gull''s Home Video', 'Media Company');
INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('Key_0012345678905.4', 'Plover Discs', 'Media Company');
INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('Key_0012345678905.4', 'Mood', 'Mood');
INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('Key_0012345678905.4', 'Calm', 'Mood/Calm');
INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('Key_0012345678905.4', 'Lent "out"', 'Lent "out"');
INSERT INTO Tags (ProfileID, TagName) VALUES ('Key_0012345678905.4', 'Bare');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'AudioTracks');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'cast');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'CREW');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'EasterEggs');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'Features');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'Overview');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'Rating');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'ReleaseDate');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'SRPInfo');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'Subtitles');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'VideoFormats');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_0012345678905.4', 'BoxSet');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'CaseType');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'Covers');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'Discs');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'Entire');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'Genres');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'ProductionYear');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'Regions');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'RunningTime');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'Studios');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'Title');
INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_O''Hara-7', 'Medium');

-- Discs and formats.
INSERT INTO Discs (ProfileID, DiscNo, Description, DiscIDSideA, DiscIDSideB, LabelSideA, LabelSideB, DescriptionSideB, DualSided, DualLayered, Flipper, Location, Slot) VALUES ('Key_0012345678905.4', 1, 'The "Film"', 'ID1A', 'ID1B', 'LAB1A', NULL, 'Side B', true, true, false, 'Shelf & Co', '12');
INSERT INTO Discs (ProfileID, DiscNo, DiscIDSideA, LabelSideA, LabelSideB, DualSided, DualLayered, Flipper, Slot) VALUES ('Key_0012345678905.4', 2, 'ID2A', 'LAB2A', 'LAB2B', true, false, true, '13');
INSERT INTO Discs (ProfileID, DiscNo, DualSided, DualLayered, Flipper) VALUES ('Key_O''Hara-7', 1, true, true, false);
INSERT INTO Discs (ProfileID, DiscNo, DiscIDSideB, DualSided, DualLayered, Flipper) VALUES ('Key_4012345678901', 1, 'IDB', false, false, false);
INSERT INTO VideoFormat (ProfileID, AspectRatio, VideoStandard, LetterBox, PanAndScan, FullFrame, F16X9) VALUES ('Key_0012345678905.4', '2.35', 'PAL', true, true, true, true);
INSERT INTO VideoFormat (ProfileID, AspectRatio, VideoStandard, LetterBox, PanAndScan, FullFrame, F16X9) VALUES ('Key_O''Hara-7', '1.85', 'NTSC', true, false, false, false);
INSERT INTO VideoFormat (ProfileID) VALUES ('Key_4012345678901');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_0012345678905.4', 2, 'German', 'DTS (Digital Theater Systems)', '6.1 Surround');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_0012345678905.4', 1, 'English', 'DD (Dolby Digital)', '5.1 Surround');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_0012345678905.4', 3, 'Commentary "1"', 'PCM (Pulse Code Modulation)', '');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_O''Hara-7', 1, 'English', 'MPEG Audio Stream', 'Mono');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_O''Hara-7', 2, 'English', 'DD (Dolby Digital)', 'Stereo');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_O''Hara-7', 3, 'English', 'DD (Dolby Digital)', 'Dolby Surround');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_O''Hara-7', 4, 'English', 'Wax', 'Pro-logic');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_O''Hara-7', 5, 'English', 'Wax', '5.0 Surround');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_O''Hara-7', 6, 'English', 'Wax', '7.1 Surround');
INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('Key_O''Hara-7', 7, 'English', 'Wax', '22.2');
INSERT INTO AudioFormats (ProfileID, OrderPos) VALUES ('Key_4012345678901', 1);
INSERT INTO Regions (ProfileID, Region) VALUES ('Key_0012345678905.4', 4);
INSERT INTO Regions (ProfileID, Region) VALUES ('Key_0012345678905.4', 1);
INSERT INTO Regions (ProfileID, Region) VALUES ('Key_0012345678905.4', 2);
INSERT INTO Regions (ProfileID, Region) VALUES ('Key_4012345678901', 3);
INSERT INTO Regions (ProfileID, Region) VALUES ('Key_4012345678901', 1);
INSERT INTO Regions (ProfileID, Region) VALUES ('Key_O''Hara-7', 0);
INSERT INTO Regions (ProfileID, Region) VALUES ('Key_5.TV', 12);

-- Prices, purchases, loans, events, reviews.
INSERT INTO Currencies (CurrencyID, CurrencyName, CurrencySymbol) VALUES ('USD', 'Dollar', '$');
INSERT INTO Currencies (CurrencyID, CurrencyName, CurrencySymbol) VALUES ('EUR', 'Euro', '?');
INSERT INTO SRPInfo (ProfileID, SRPValue, CurrencyID) VALUES ('Key_0012345678905.4', 24.5, 'USD');
INSERT INTO SRPInfo (ProfileID, SRPValue, CurrencyID) VALUES ('Key_O''Hara-7', 9.99, 'EUR');
INSERT INTO SRPInfo (ProfileID, SRPValue) VALUES ('Key_4012345678901', 12);
INSERT INTO Retailers (Name) VALUES ('Brine & "Sons"');
INSERT INTO PurchaseInfo (ProfileID, Price, CurrencyID, PurchaseDate, PurchasePlace) VALUES ('Key_0012345678905.4', 1234.75, 'EUR', #2002-12-24#, 'Brine & "Sons"');
INSERT INTO PurchaseInfo (ProfileID, CurrencyID) VALUES ('Key_O''Hara-7', 'USD');
INSERT INTO PurchaseInfo (ProfileID, Price, PurchaseDate) VALUES ('Key_5.TV', 0, #00:00:00#);
INSERT INTO Users (UserID) VALUES ('Bo');
INSERT INTO Users (UserID) VALUES ('D''Arn "Å"');
INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) VALUES ('Key_0012345678905.4', 'D''Arn "Å"', #2024-05-01#);
INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) VALUES ('Key_O''Hara-7', 'Bo', #2024-05-18#);
INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) VALUES ('Key_4012345678901', 'Bo', #2024-05-01#);
INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp, Comment) VALUES (1, 'Key_0012345678905.4', 'Bo', 'Watched', #2003-01-02 20:15:00#, 'A "long" night' & Chr(13) & Chr(10) & 'indeed');
INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (2, 'Key_0012345678905.4', 'D''Arn "Å"', 'Watched', #2003-01-02 20:15:00#);
INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (3, 'Key_0012345678905.4', 'D''Arn "Å"', 'Borrowed', #2023-11-30#);
INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (4, 'Key_0012345678905.4', 'Bo', 'Watched', #2004-02-03 04:05:06#);
INSERT INTO Events (EventID, ProfileID, UserID, EventType) VALUES (5, 'Key_0012345678905.4', 'Bo', 'Returned');
INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (6, 'Key_4012345678901', 'Bo', 'Returned', #2024-05-02#);
INSERT INTO Reviews (ProfileID, Film, Video, Audio, Extras) VALUES ('Key_0012345678905.4', 6, 4, 2, 1);
INSERT INTO Reviews (ProfileID, Film, Video, Audio, Extras) VALUES ('Key_O''Hara-7', 0, 0, 0, 0);
INSERT INTO Reviews (ProfileID, Film) VALUES ('Key_4012345678901', 9);

-- Awards: of the film, of other years and of another film, and of the series.
INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('Golden Gull', 2001, 'Song & "Dance"', 'Das Glashafen-Rätsel', false, 'Iva Renn (The "Tide") & Siobhan O''Marra; Nils Aue, Jr and J. Teld');
INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('Golden Gull', 1998, 'Film', 'Das Glashafen-Rätsel', true, 'Mara Liv Okonski,Pim');
INSERT INTO Awards (Award, Year, MovieTitle, Won) VALUES ('Silver <Oar>', 2000, 'Das Glashafen-Rätsel', true);
INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('Amber Crab', 1997, 'Film', 'Das Glashafen-Rätsel', true, 'Too Early');
INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('Amber Crab', 2002, 'Film', 'Das Glashafen-Rätsel', true, 'Too Late');
INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('Amber Crab', 1999, 'Film', 'Another', true, 'Nobody Here');
INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('Golden Gull', 2005, 'Script', 'Gezeiten', true, '"Niedrigwasser": Iva Renn and Jonas Teld');
INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('Golden Gull', 2005, 'Script', 'Gezeiten', false, '"Ebbe": Uta Falk');

-- What the program adds, and settings.
INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue, InfoType) VALUES ('Key_0012345678905.4', 'Site', 'http://harbour.example/?a=1&b="2"', 'Link');
INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_0012345678905.4', 'Budget', '12 <b>m</b>' & Chr(13) & Chr(10) & 'or "so"');
INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_0012345678905.4', 'Wind''s', NULL);
INSERT INTO MetaInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_0012345678905.4', 'RatingAge', '13');
INSERT INTO MetaInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_0012345678905.4', 'MediaBannerFront', 'Automatic');
INSERT INTO MetaInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_0012345678905.4', 'MediaBannerBack', 'Off');
INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('Owner', 'Å. "Bo" <x>');
INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('Schema', '90');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Drama', 'Schauspiel');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Trailers', 'Vorschau');
INSERT INTO Translation (OriginalString, UserString) VALUES ('German', 'Deutsch');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Studio', 'Atelier');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Media Company', 'Verleih');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Keep Case, Slip Cover', 'Hülle im Schuber');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Keep Case', 'Hülle');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Italy', 'Italien');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Deutschland', 'Land');
INSERT INTO Translation (OriginalString, UserString) VALUES ('DTS', 'D.T.S.');
INSERT INTO Translation (OriginalString, UserString) VALUES ('DTS (Digital Theater Systems)', 'DTS lang');
INSERT INTO Translation (OriginalString, UserString) VALUES ('6.1 Surround', 'Rundum 6.1');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Flipper', 'Wendescheibe');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Double-Sided', 'Doppelseitig');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Single-Layered', 'Einschichtig');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Anamorphic Widescreen', 'Breitbild');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Watched', 'Gesehen');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Budget', 'Kosten');
INSERT INTO Translation (OriginalString, UserString) VALUES ('for', 'wegen');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Sold & Gone', 'Weg');
INSERT INTO Translation (OriginalString, UserString) VALUES ('TV', 'Fernsehen');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Owned', 'Besitz');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Back', 'Zurück');
INSERT INTO Translation (OriginalString, UserString) VALUES ('(voice)', '(Stimme)');
INSERT INTO Translation (OriginalString, UserString) VALUES ('(uncredited)', '(ungenannt)');
INSERT INTO Translation (OriginalString, UserString) VALUES ('(voice, uncredited)', '(Stimme, ungenannt)');
INSERT INTO Translation (OriginalString, UserString) VALUES ('(credit only)', '(nur genannt)');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Direction', 'Regie');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Director', 'Spielleiter');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Really Want', 'Sehr gern');
INSERT INTO Translation (OriginalString, UserString) VALUES ('Harbour', 'Hafen');
