INSERT INTO Tags (FilmID, Tag) VALUES ('3', 'Rain')
UPDATE Films SET Title = UCase(Title), Price = Price * 2 WHERE FilmID < 3
DELETE * FROM Tags WHERE Tag = 'top'
UPDATE Films f INNER JOIN Tags t ON f.FilmID = t.FilmID SET f.Notes = t.Tag
INSERT INTO Users (UserID) SELECT Title FROM Films
SELECT * FROM Films