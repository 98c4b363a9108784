#include "shell/ui/frmListView.h"

namespace ostrand {

ListViewContent ContentOf(std::unique_ptr<ListTable> table) {
    const ListTable *rows = table.get();
    const QString caption = table->caption;
    return {std::move(table), caption, [rows](int row) {
                const ListTableRow &found = rows->Rows().at(size_t(row));
                return std::pair(found.key, found.kind);
            }};
}

} // namespace ostrand
