// The grammar of skins: tags in a page, attributes in a tag.
#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>

namespace ostrand {

/// A failure inside a producer of a tag's text, with a text for the user.
class SkinFailure : public std::exception {
public:
    explicit SkinFailure(QString text) : text_(std::move(text)), bytes_(text_.toUtf8()) {}
    const QString &Text() const { return text_; }
    const char *what() const noexcept override { return bytes_.constData(); }

private:
    QString text_;
    QByteArray bytes_;
};

/// The tags of a page, in their order. A tag is `<DP Name="` or `<OSV Name="` in any case, up to the first quote that
/// is followed by white space at will, a slash at will, and ">". It stands on one line; only the white space behind its
/// last quote may hold line ends. Takes time in proportion to the page, whatever stands in it.
QStringList FindSkinTags(const QString &page);

/// True when a tag begins at or behind `from`, whether or not it ends.
bool HoldsTagOpening(QStringView text, qsizetype from = 0);
/// True when the text breaks off inside the opening of a tag, so that what follows it could make it one.
bool EndsInTagOpening(QStringView text);

/// The value of an attribute, or the default where the tag has none or an empty one; "yes", "no" and "break" in any
/// case become "true", "false" and "<br/>", in defaults too. Only the first attribute of a name counts.
QString GetTagAttribute(const QString &tag, QStringView name, const QString &preset);
/// The same as a truth value: "true" or "false" in any case, or a number. Any other text throws SkinFailure.
bool GetTagFlag(const QString &tag, QStringView name, bool preset);
/// The same as a whole number; the default where the text is no number.
int GetTagNumber(const QString &tag, QStringView name, int preset);

} // namespace ostrand
