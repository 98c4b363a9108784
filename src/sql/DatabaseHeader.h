// The first bytes of a database file.
#pragma once

#include <QByteArrayView>

#include <optional>

namespace ostrand::sql {

/// Marks the files of this program in their headers.
inline constexpr int kApplicationId = 0x4F737472;

struct DatabaseHeader {
    static constexpr int kSize = 100; ///< bytes

    qint64 page_size = 0;  ///< in bytes
    qint64 page_count = 0; ///< 0 where the header does not tell it for certain
    int application_id = 0;
};

/// Reads a header; empty where the bytes are none.
std::optional<DatabaseHeader> ReadDatabaseHeader(QByteArrayView bytes);

} // namespace ostrand::sql
