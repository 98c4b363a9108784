#include "shell/Progress.h"

namespace ostrand {

frmProgress::frmProgress(ProgressView &view, EventPump &pump) : view_(view), pump_(pump) {}

void frmProgress::Load(const QString &title) {
    loaded_ = true;
    finished_ = false;
    cancelled_ = false;
    details_ = false;
    close_when_finished_ = false;
    next_key_ = 1;
    item_.clear();
    sub_item_.clear();
    nodes_.clear();
    view_.Opened(title);
    SetLine({});
    SetDetail({});
    SetCounter({});
    SetBar(0, 0);
}

void frmProgress::SetTitle(const QString &title) {
    if (loaded_) {
        view_.TitleChanged(title);
    }
}

void frmProgress::SetLine(const QString &line) {
    if (loaded_) {
        view_.LineChanged(line);
    }
}

void frmProgress::SetDetail(const QString &detail) {
    if (loaded_) {
        view_.DetailChanged(detail);
    }
}

void frmProgress::SetCounter(const QString &counter) {
    if (loaded_) {
        view_.CounterChanged(counter);
    }
}

void frmProgress::SetBar(int value, int maximum) {
    if (loaded_) {
        view_.BarChanged(value, maximum);
    }
}

void frmProgress::ShowDetails(bool on) {
    close_when_finished_ = on && read_auto_close && read_auto_close();
    details_ = on;
}

QString frmProgress::AddNode(const QString &text, const QString &key, const QString &parent) {
    QString own = key;
    while (own.isEmpty() || nodes_.contains(own)) {
        own = u'K' + QString::number(next_key_++);
    }
    nodes_.insert(own, false);
    view_.NodeAdded(own, parent, text);
    return own;
}

void frmProgress::Tick(const QString &key) {
    const auto node = nodes_.find(key);
    if (loaded_ && node != nodes_.end() && !*node) {
        *node = true;
        view_.NodeTicked(key);
    }
}

QString frmProgress::Translated(const QString &text) const {
    return translate ? translate(text) : text;
}

void frmProgress::AddInfo(const QString &text, const QString &key) {
    if (!loaded_) {
        return;
    }
    if (details_) {
        ItemDone();
        item_ = AddNode(text, key, {});
    }
    pump_.Turn();
}

void frmProgress::ItemDone() {
    SubItemDone();
    Tick(item_);
}

void frmProgress::AddSubInfo(const QString &text, const QString &key) {
    if (!loaded_) {
        return;
    }
    if (details_) {
        sub_item_ = AddNode(text, key, item_);
    }
    pump_.Turn();
}

void frmProgress::SubItemDone() {
    Tick(sub_item_);
    sub_item_.clear();
}

void frmProgress::UnloadForm(bool done) {
    if (!loaded_) {
        return;
    }
    if (!done || !details_) {
        Close();
        return;
    }
    AddInfo(Translated(QStringLiteral("Finished!")));
    ItemDone();
    if (write_auto_close) {
        write_auto_close(close_when_finished_);
    }
    if (close_when_finished_) {
        Close();
    } else if (loaded_) { // the user may have closed it while events ran
        finished_ = true;
        view_.Finished();
    }
}

void frmProgress::Close() {
    if (!loaded_) {
        return;
    }
    loaded_ = false;
    finished_ = false;
    cancelled_ = true;
    view_.Closed();
}

bool frmProgress::IsProfileKey(const QString &key) {
    return key.startsWith(QStringLiteral("Key_")) || key.startsWith(QStringLiteral("OSV"));
}

} // namespace ostrand
