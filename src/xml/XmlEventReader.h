// Reading XML as events.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace ostrand {

/// What became of a document that was read. The texts are meant for a user.
struct XmlResult {
    bool ok = true;
    /// What is wrong.
    QString reason;
    /// The source line at fault, cut around the fault when it is long.
    QString source;
    /// Its number from 1; 0 when the document could not be read at all.
    qint64 line = 0;
};

struct XmlEventAttribute {
    const char *name;
    const char *value;
};

/// Takes the events. All texts are UTF-8 and live for the call only. Comments and processing instructions bring no
/// event; a text may come in several pieces.
class XmlEventHandler {
public:
    virtual ~XmlEventHandler() = default;
    virtual void StartElement(const char *name, const std::vector<XmlEventAttribute> &attributes) = 0;
    virtual void EndElement(const char *name) = 0;
    virtual void Characters(const char *text, int length) = 0;
    /// Asked behind each start of an element; true ends the reading with a fault of that reason.
    virtual bool Stopped(QString * /*reason*/) { return false; }
};

/// Elements nested more deeply than this are a fault: what is built of them is torn down recursively.
inline constexpr int kMaxXmlDepth = 1000;
/// More entity declarations than this are a fault: each link of a chain of entities costs the parser stack.
inline constexpr int kMaxXmlEntities = 1000;

/// Reads a document strictly and in a stream. The encodings are those that XML names, and 8-bit code pages. Nothing is
/// fetched from outside: an external entity reads as nothing. Entities that grow out of bounds are a fault.
XmlResult XmlReadFile(const QString &path, XmlEventHandler &handler);
XmlResult XmlReadBytes(const QByteArray &bytes, XmlEventHandler &handler);

} // namespace ostrand
