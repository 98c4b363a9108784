#include "html_export/SiteList.h"

#include "html_export/SiteText.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

QString PageLink(const SiteEntry &entry) {
    return "<a href='./Profiles/"_L1 + UrlPart(entry.page) + ".html'"_L1;
}

/// Two calls, as a table turns its order with each.
QString SortTwice(const QString &id, QLatin1String column) {
    const QString line = "          window.parent."_L1 + id + ".sort("_L1 + column + ");\r\n"_L1;
    return line + line;
}

} // namespace

SiteList::SiteList(const std::vector<SiteTab> &tabs, bool collection_types, SiteListTexts texts) :
    texts_(std::move(texts)), phone_ids_({u"coltypes"_s, u"homeButton"_s}) {
    phone_ = "<a id='homeButton' class='button' href='#coltypes'>"_L1 + HtmlText(texts_.tabs) + "</a>\r\n"_L1;
    phone_ += "<ul id='coltypes' title='"_L1 + (collection_types ? "Collection Type"_L1 : "Media Type"_L1) +
              "' selected='true'>\r\n"_L1;
    for (const SiteTab &tab : tabs) {
        phone_ids_.insert(tab.id);
        phone_ += "<li><a href='#"_L1 + UrlPart(tab.id) + "'>"_L1 + HtmlText(tab.shown) + "</a></li>\r\n"_L1;
    }
    phone_ += "</ul>\r\n"_L1;
}

void SiteList::BeginTab(const SiteTab &tab) {
    WriteScripts(tab);
    tables_ += "<table id='"_L1 + tab.id + "list' style='display: none;'>\r\n<thead>\r\n<tr><th>"_L1 +
               HtmlText(texts_.title) + "</th><th><abbr title='"_L1 + HtmlAttribute(texts_.collection_number) +
               "' style='border: none;'>Coll&nbsp;#</abbr></th></tr></thead>\r\n<tbody>\r\n"_L1;
    phone_ += "<ul id='"_L1 + tab.id + "' title='"_L1 + HtmlAttribute(tab.shown) + "'>\r\n"_L1;
    ++tabs_;
}

void SiteList::WriteScripts(const SiteTab &tab) {
    const QString &id = tab.id;
    const QString table = " = new SortableTable(document.getElementById('"_L1 + id + "list'),"_L1;
    objects_ += id + table + "['CaseInsensitiveString','Number','CaseInsensitiveString']);\r\n"_L1 + id +
                ".onsort = colourTables;\r\n"_L1;
    clicks_ += "        if (window.parent.document.getElementById('"_L1 + id +
               "list').getElementsByTagName('img')[1].getAttribute('src').indexOf('Images/blank.png') > -1) {\r\n"_L1 +
               SortTwice(id, "0"_L1) + "        }\r\n        else {\r\n"_L1 + SortTwice(id, "1"_L1) +
               "        }\r\n"_L1;
    variables_ += "var "_L1 + id + ";\r\n"_L1;
    variable_tables_ +=
        "      "_L1 + id + table + " ['CaseInsensitiveString', 'Number', 'CaseInsensitiveString']);\r\n"_L1;
    menu_ += "<li onclick='changetab("_L1 + QString::number(tabs_) + ")'>"_L1 + HtmlText(tab.shown) + "</li>\r\n"_L1;
    sorting_ += id + ".sort(0,null,'CaseInsensitiveString');\r\n"_L1;
}

void SiteList::EndTab() {
    tables_ += "</tbody>\r\n</table>\r\n"_L1;
    phone_ += "</ul>\r\n"_L1 + phone_below_;
    phone_below_.clear();
}

QString SiteList::TitleLink(const SiteEntry &entry) {
    return PageLink(entry) + " target='profiles' onclick='return jslink(this);'>"_L1 + HtmlText(entry.title) +
           "</a>"_L1;
}

QString SiteList::EndOfRow(const SiteEntry &entry) const {
    const QString col_no = HtmlText(entry.col_no);
    const QString real_sort = HtmlText(entry.real_sort);
    if (boxsets_.empty()) {
        return "</td><td>"_L1 + col_no + "</td><td class='hide'>"_L1 + real_sort + "</td></tr>\r\n"_L1;
    }
    return "<span>"_L1 + real_sort + "</span><span>"_L1 + col_no + "</span></li>\r\n"_L1;
}

void SiteList::Add(const SiteEntry &entry) {
    tables_ += (boxsets_.empty() ? "<tr><td>"_L1 : "<li>"_L1) + TitleLink(entry) + EndOfRow(entry);
    PhoneList() += "<li>"_L1 + PageLink(entry) + u'>' + HtmlText(entry.title) + "</a></li>\r\n"_L1;
}

void SiteList::BeginBoxset(const SiteEntry &entry) {
    tables_ +=
        (boxsets_.empty() ? "<tr><td class='boxset'>"_L1 : "<li class='boxset'>"_L1) + TitleLink(entry) + "<ul>\r\n"_L1;
    const QString id = UniqueId(phone_ids_, entry.page);
    PhoneList() += "<li><a href='#"_L1 + UrlPart(id) + "'>"_L1 + HtmlText(entry.title) + "</a></li>\r\n"_L1;
    boxsets_.push_back(
        {entry, "<ul id='"_L1 + HtmlAttribute(id) + "' title='"_L1 + HtmlAttribute(entry.title) + "'>\r\n"_L1});
}

void SiteList::EndBoxset() {
    const OpenBoxset ended = std::move(boxsets_.back());
    boxsets_.pop_back();
    tables_ += "</ul>"_L1 + EndOfRow(ended.entry);
    phone_below_ += ended.phone + "</ul>\r\n"_L1;
}

} // namespace ostrand
