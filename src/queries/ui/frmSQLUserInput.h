// The dialog that asks for one value.
#pragma once

#include "shell/Translator.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;

namespace ostrand {

/// Asks in a plain field, or in one with values to choose from that takes free text too.
class frmSQLUserInput : public QDialog {
    Q_OBJECT
    Q_PROPERTY(bool IsNumeric READ IsNumeric WRITE SetNumeric)
    Q_PROPERTY(QString InputString READ InputString)
public:
    frmSQLUserInput(const Translator &translator, const QString &prompt, const QString &title,
                    QWidget *parent = nullptr);

    /// comboVarValues takes the place of textInput, also for a list without a value.
    void SetValues(const QStringList &values);
    void SetPreset(const QString &preset);
    /// textInput in Arial.
    void SetPlainFont();
    /// textInput then refuses characters above code 32 that are no digits.
    void SetNumeric(bool on);
    bool IsNumeric() const { return numeric_; }

    /// What stands in the field now.
    QString InputString() const;
    /// The text at OK; nothing before it and after Cancel.
    const std::optional<QString> &OutputString() const { return output_; }

    void accept() override;

private:
    void AddButtons(const Translator &translator);
    void TakeWrittenText();

    QLabel *labelMessage_;
    QLineEdit *textInput_;
    QComboBox *comboVarValues_;
    bool numeric_ = false;
    bool combo_ = false;
    std::optional<QString> output_;
};

} // namespace ostrand
