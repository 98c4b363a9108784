#include "collection_files/KnownDigests.h"

#include "shell/Session.h"

using namespace Qt::StringLiterals;

namespace ostrand {

void KnownDigests::Load(Session &session) {
    constexpr qsizetype kPrefix = 4; // "Key_"
    ScannedElement::Digest digest;
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT ProfileID, MD5 FROM Profiles");
    digests_.reserve(std::size_t(rows.RecordCount()));
    for (; !rows.Eof(); rows.MoveNext()) {
        const QByteArray bytes = QByteArray::fromHex(rows.Get(1).Text().toLatin1());
        if (bytes.size() == qsizetype(digest.size())) {
            std::copy_n(bytes.begin(), digest.size(), digest.begin());
            digests_.emplace(rows.Get(0).Text().mid(kPrefix).toStdString(), digest);
        }
    }
}

bool KnownDigests::IsUnchanged(const ScannedElement &element) const {
    const auto known = digests_.find(element.text);
    return known != digests_.end() && known->second == element.digest;
}

void KnownDigests::Store(const std::string &id, const ScannedElement::Digest &digest) {
    digests_.insert_or_assign(id, digest);
}

} // namespace ostrand
