#include "people/ui/frmComparerTools.h"

#include "people/HeadshotImport.h"
#include "people/HeadshotTools.h"
#include "shell/ui/WindowPlace.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace ostrand {

frmComparerTools::frmComparerTools(Session &session, HeadshotImport &import, QWidget *parent) :
    PeopleWindow(session, "frmComparerTools", u"Tools", parent), import_(import) {
    setModal(true);
    auto *layout = new QVBoxLayout(this);
    AddButton(*layout, "cbCopyWhereNone", u"Copy Where None Exists",
              u"Copies the pictures of all persons that have none in the headshot folder",
              [this] { import_.CopyWhereNone(); });
    AddButton(*layout, "cbCopyAllAlternative", u"Copy All as Alternatives",
              u"Copies all pictures beside those that exist", [this] { import_.CopyAllAlternative(); });
    layout->addSpacing(fontMetrics().height());
    AddTool(*layout, "cbRemoveTrailingSpaces", u"Remove Trailing Spaces",
            u"Takes blanks at the ends and underscores out of the names", RemoveTrailingSpaces);
    AddTool(*layout, "cbRenameAlternatives", u"Rename Alternatives (name1->name_1)",
            u"Gives further pictures of a person the names of alternates", RenameAlternatives);
    AddTool(*layout, "cbRenameAliase", u"Rename Aliases to Common Names",
            u"Moves the pictures of an alias to the common name", RenameAlias);
    AddButton(*layout, "cbRemoveIdenticals", u"Remove Identical Images",
              u"Deletes the files of the source folder that the headshot folder has already",
              [this] { import_.RemoveIdenticalImages(); });
    layout->addSpacing(fontMetrics().height());
    layout->addStretch();
    AddButton(*layout, "cbClose", u"Close", u"Closes this window", [this] { close(); });
    new WindowPlace(session_, QStringLiteral("HeadshotTools"), this, sizeHint());
}

void frmComparerTools::AddTool(QBoxLayout &layout, const char *name, const char16_t *caption, const char16_t *tool_tip,
                               void (*tool)(Session &session, const QString &folder)) {
    AddButton(layout, name, caption, tool_tip, [this, tool] {
        if (!import_.FileListImages.Folder().isEmpty()) {
            tool(session_, import_.FileListImages.Folder());
            import_.UpdateSourceImageList();
        }
    });
}

} // namespace ostrand
