#include "queries/ui/frmSQLUserInput.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kWindowChars = 64;
constexpr int kFieldChars = 24; ///< at least; the values may be much longer
constexpr int kListedRows = 16;

/// Takes free text; the values offered are those that hold it.
void PrepareCombo(QComboBox &combo) {
    combo.setEditable(true);
    combo.setInsertPolicy(QComboBox::NoInsert);
    combo.setMaxVisibleItems(kListedRows);
    combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo.setMinimumContentsLength(kFieldChars);
    auto *list = new QListView(&combo);
    list->setUniformItemSizes(true); // there may be as many values as titles
    combo.setView(list);
    combo.completer()->setCompletionMode(QCompleter::PopupCompletion);
    combo.completer()->setFilterMode(Qt::MatchContains);
    combo.completer()->setMaxVisibleItems(kListedRows);
}

} // namespace

frmSQLUserInput::frmSQLUserInput(const Translator &translator, const QString &prompt, const QString &title,
                                 QWidget *parent) :
    QDialog(parent),
    labelMessage_(new QLabel(prompt, this)), textInput_(new QLineEdit(this)), comboVarValues_(new QComboBox(this)) {
    setObjectName(u"frmSQLUserInput"_s);
    setWindowTitle(title.isEmpty() ? u"Ostrand"_s : title);
    labelMessage_->setObjectName(u"labelMessage"_s);
    labelMessage_->setTextFormat(Qt::PlainText);
    labelMessage_->setWordWrap(true);
    labelMessage_->setBuddy(textInput_);
    textInput_->setObjectName(u"textInput"_s);
    textInput_->setAccessibleName(prompt);
    comboVarValues_->setObjectName(u"comboVarValues"_s);
    comboVarValues_->setAccessibleName(prompt);
    PrepareCombo(*comboVarValues_);
    connect(comboVarValues_->lineEdit(), &QLineEdit::returnPressed, this, &frmSQLUserInput::TakeWrittenText);
    comboVarValues_->hide();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(labelMessage_);
    layout->addWidget(textInput_);
    layout->addWidget(comboVarValues_);
    layout->addStretch();
    AddButtons(translator);
    setMinimumWidth(fontMetrics().averageCharWidth() * kWindowChars);
    textInput_->setFocus();
}

void frmSQLUserInput::AddButtons(const Translator &translator) {
    auto *buttons = new QDialogButtonBox(this);
    auto *ok = buttons->addButton(Translate(translator, u"OK"_s), QDialogButtonBox::AcceptRole);
    auto *cancel = buttons->addButton(Translate(translator, u"Cancel"_s), QDialogButtonBox::RejectRole);
    ok->setObjectName(u"cbOK"_s);
    ok->setDefault(true);
    cancel->setObjectName(u"cbCancel"_s);
    layout()->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmSQLUserInput::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmSQLUserInput::reject);
}

void frmSQLUserInput::SetValues(const QStringList &values) {
    combo_ = true;
    comboVarValues_->clear();
    comboVarValues_->addItems(values);
    comboVarValues_->setCurrentIndex(-1);
    comboVarValues_->show();
    textInput_->hide();
    labelMessage_->setBuddy(comboVarValues_);
    comboVarValues_->setFocus();
}

void frmSQLUserInput::SetPreset(const QString &preset) {
    textInput_->setText(preset);
    textInput_->selectAll();
    comboVarValues_->setEditText(preset);
    comboVarValues_->lineEdit()->selectAll();
}

void frmSQLUserInput::SetPlainFont() {
    QFont plain = textInput_->font();
    plain.setFamily(u"Arial"_s);
    textInput_->setFont(plain);
}

void frmSQLUserInput::SetNumeric(bool on) {
    numeric_ = on;
    const QRegularExpression digits(u"[\\x{00}-\\x{20}0-9]*"_s);
    textInput_->setValidator(on ? new QRegularExpressionValidator(digits, textInput_) : nullptr);
}

QString frmSQLUserInput::InputString() const {
    return combo_ ? comboVarValues_->currentText() : textInput_->text();
}

void frmSQLUserInput::TakeWrittenText() {
    const QAbstractItemView *offered = comboVarValues_->completer()->popup();
    // Enter, which otherwise would do no more than close the list. On a value in the list it chooses that.
    if (offered->isVisible() && !offered->currentIndex().isValid()) {
        QMetaObject::invokeMethod(this, &frmSQLUserInput::accept, Qt::QueuedConnection);
    }
}

void frmSQLUserInput::accept() {
    output_ = InputString();
    QDialog::accept();
}

} // namespace ostrand
