#include "sql/DatabaseHeader.h"

#include <QtEndian>

namespace ostrand::sql {

namespace {

constexpr int kPageSizeAt = 16;
constexpr int kChangeCounterAt = 24;
constexpr int kPageCountAt = 28;
constexpr int kApplicationIdAt = 68;
constexpr int kPageCountValidForAt = 92;

quint32 Read32(QByteArrayView bytes, int at) {
    return qFromBigEndian<quint32>(bytes.data() + at);
}

} // namespace

std::optional<DatabaseHeader> ReadDatabaseHeader(QByteArrayView bytes) {
    if (bytes.size() < DatabaseHeader::kSize || !bytes.startsWith(QByteArrayView("SQLite format 3\0", 16))) {
        return std::nullopt;
    }
    DatabaseHeader header;
    const auto page_size = qFromBigEndian<quint16>(bytes.data() + kPageSizeAt);
    header.page_size = page_size == 1 ? 65536 : page_size;
    if (header.page_size < 512 || (header.page_size & (header.page_size - 1)) != 0) {
        return std::nullopt;
    }
    if (Read32(bytes, kChangeCounterAt) == Read32(bytes, kPageCountValidForAt)) {
        header.page_count = Read32(bytes, kPageCountAt);
    }
    header.application_id = int(Read32(bytes, kApplicationIdAt));
    return header;
}

} // namespace ostrand::sql
