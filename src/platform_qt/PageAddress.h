// The address that a page gave a link.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace ostrand {

/// The address as the page has it, escapes included. QUrl escapes every "%" of an address as soon as one of them begins
/// no escape, as in the name "100%"; that is undone.
inline QString PageAddress(const QUrl &url) {
    const QByteArray told = url.toEncoded();
    QByteArray undone = told;
    undone.replace("%25", "%");
    const auto is_hex = [&](qsizetype at) {
        return at < undone.size() && QByteArrayView("0123456789abcdefABCDEF").contains(undone[at]);
    };
    bool is_escaped = told.count('%') == told.count("%25");
    bool has_bare = false;
    for (qsizetype i = 0; is_escaped && i < undone.size(); ++i) {
        has_bare = has_bare || (undone[i] == '%' && !(is_hex(i + 1) && is_hex(i + 2)));
    }
    is_escaped = is_escaped && has_bare;
    return QString::fromUtf8(is_escaped ? undone : told);
}

} // namespace ostrand
