#include "shell/ui/frmListView.h"

namespace ostrand {

ListViewContent ContentOf(std::unique_ptr<ListTable> table) {
    const ListTable *rows = table.get();
    const QString caption = table->caption;
    const auto target = [rows](int row) {
        const ListTableRow &found = rows->Rows().at(size_t(row));
        return std::pair(found.key, found.kind);
    };
    std::function<ListViewContent()> again;
    if (table->again) {
        again = [make = table->again] { return ContentOf(make()); };
    }
    return {std::move(table), caption, target, again};
}

} // namespace ostrand
