// The folders of the system.
#pragma once

#include "platform/Services.h"

namespace ostrand {

class SystemFolders : public Folders {
public:
    /// `system_temp` stands in for the system's folder of temporary files when it is not empty.
    explicit SystemFolders(const QString &system_temp = {});
    QString Documents() const override;
    /// A folder that is made here and that only this user may enter.
    QString Temp() const override { return temp_; }
    QString Program() const override;
    QStringList Resources() const override;
    QString UserName() const override;

private:
    QString temp_;
};

} // namespace ostrand
