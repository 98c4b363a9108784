#include "shell/ui/frmAbout.h"

#include "shell/ProgramVersion.h"
#include "shell/Session.h"
#include "shell/ui/LinkLabel.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

LinkLabel *MakeLink(Session &session, const QString &name, const char16_t *link, const QString &accessible_name) {
    auto *label = new LinkLabel(session.services.opener);
    label->setObjectName(name);
    label->setAccessibleName(Translate(session, accessible_name));
    label->SetLink(QString::fromUtf16(link), ShownLink(QString::fromUtf16(link)));
    label->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    return label;
}

} // namespace

frmAbout::frmAbout(Session &session, QWidget *parent) : QDialog(parent) {
    setObjectName(u"frmAbout"_s);
    setModal(true);
    const QString title = QString::fromUtf16(kProgramTitle);
    setWindowTitle(Translate(session, u"About"_s) + u' ' + title);

    auto *lblTitle = new QLabel(title, this);
    lblTitle->setObjectName(u"lblTitle"_s);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 2);
    large.setBold(true);
    lblTitle->setFont(large);
    auto *lblVersion = new QLabel(AboutVersionText(session), this);
    lblVersion->setObjectName(u"lblVersion"_s);
    lblVersion->setTextFormat(Qt::PlainText);
    lblVersion->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *cmdOK = new QPushButton(Translate(session, u"OK"_s), this);
    cmdOK->setObjectName(u"cmdOK"_s);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    const int gap = fontMetrics().lineSpacing();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * gap, gap + gap / 2, 2 * gap, gap);
    layout->addWidget(lblTitle);
    layout->addWidget(lblVersion);
    layout->addSpacing(gap);
    layout->addWidget(MakeLink(session, u"hyper_homepage"_s, kHomePage, u"Home page"_s));
    layout->addWidget(MakeLink(session, u"hyper_mail"_s, kMailAddress, u"Mail address"_s));
    layout->addSpacing(gap);
    layout->addStretch();
    layout->addWidget(cmdOK, 0, Qt::AlignRight);
    setMinimumWidth(fontMetrics().averageCharWidth() * 48);
    cmdOK->setFocus();
}

} // namespace ostrand
