#include "browser/Commands.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The menus and the entry that make no sense without a database, besides the context menus.
constexpr std::array kDatabaseMenus = {u"mEdit", u"mTools", u"mSettings", u"mUpdate", u"mImport", u"mExport", u"mView"};

bool BelongsToView(InView view, bool movies) {
    return view == InView::Both || (view == InView::Movies) == movies;
}

} // namespace

Commands::Commands(ViewState &view) : view_(view), movies_(!view.mTVShows) {
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.IsSeparator()) {
            continue;
        }
        auto state = std::make_unique<State>();
        state->entry = &entry;
        state->visible = !entry.hidden;
        state->text = OfTable(entry.text);
        state->tool_tip = OfTable(entry.tool_tip);
        states_.emplace(OfTable(entry.name), std::move(state));
    }
    for (const auto &[name, state] : states_) {
        state->parent = state->entry->parent == nullptr ? nullptr : &At(OfTable(state->entry->parent));
        state->same_as = state->entry->same_as == nullptr ? nullptr : &At(OfTable(state->entry->same_as));
    }
}

void Commands::Handle(const QString &name, std::function<void()> handler) {
    At(name).handler = std::move(handler);
    Refresh();
}

const std::function<void()> &Commands::HandlerOf(const State &state) {
    return state.handler || state.same_as == nullptr ? state.handler : HandlerOf(*state.same_as);
}

bool Commands::HasHandler(const QString &name) const {
    return static_cast<bool>(HandlerOf(At(name)));
}

bool Commands::Run(const QString &name) {
    if (!IsEnabled(name)) {
        return false;
    }
    // A copy, because the handler may set another one for its own entry.
    if (const std::function<void()> handler = HandlerOf(At(name))) {
        handler();
        return true;
    }
    return false;
}

bool Commands::IsUsable(const State &state) const {
    if (!state.enabled || !BelongsToView(state.entry->view, movies_)) {
        return false;
    }
    if (state.parent != nullptr && !IsUsable(*state.parent)) {
        return false;
    }
    if (state.entry->is_menu || state.handler) {
        return true;
    }
    return state.same_as != nullptr && IsUsable(*state.same_as);
}

bool Commands::IsEnabled(const QString &name) const {
    return IsUsable(At(name));
}

bool Commands::IsVisible(const QString &name) const {
    return At(name).visible;
}

bool Commands::IsChecked(const QString &name) const {
    const State &state = At(name);
    const MenuEntry &entry = *state.entry;
    if (entry.checked != nullptr) {
        return view_.*entry.checked != entry.inverse;
    }
    return entry.grid_lines != nullptr ? view_.grid_lines.*entry.grid_lines : state.checked;
}

QString Commands::Text(const QString &name) const {
    return At(name).text;
}

QString Commands::ToolTip(const QString &name) const {
    return At(name).tool_tip;
}

void Commands::SetEnabled(const QString &name, bool enabled) {
    if (std::exchange(At(name).enabled, enabled) != enabled) {
        Refresh();
    }
}

void Commands::SetVisible(const QString &name, bool visible) {
    if (std::exchange(At(name).visible, visible) != visible) {
        Refresh();
    }
}

void Commands::SetChecked(const QString &name, bool checked) {
    if (std::exchange(At(name).checked, checked) != checked) {
        Refresh();
    }
}

void Commands::SetText(const QString &name, const QString &text) {
    if (std::exchange(At(name).text, text) != text) {
        RefreshTexts();
    }
}

void Commands::SetToolTip(const QString &name, const QString &tool_tip) {
    if (std::exchange(At(name).tool_tip, tool_tip) != tool_tip) {
        RefreshTexts();
    }
}

void Commands::FollowView(bool movies) {
    movies_ = movies;
    Refresh();
}

void Commands::Refresh() {
    changed_ = true;
    Tell();
}

void Commands::RefreshTexts() {
    texts_changed_ = true;
    Tell();
}

void Commands::Together(const std::function<void()> &changes) {
    ++together_;
    changes();
    --together_;
    Tell();
}

void Commands::Tell() {
    if (together_ > 0) {
        return;
    }
    if (std::exchange(texts_changed_, false)) {
        Q_EMIT TextsChanged();
    }
    if (std::exchange(changed_, false)) {
        Q_EMIT Changed();
    }
}

void EnableDBMenues(Commands &commands, bool enabled) {
    commands.Together([&] {
        for (const char16_t *menu : kDatabaseMenus) {
            commands.SetEnabled(OfTable(menu), enabled);
        }
        for (const MenuEntry &entry : MenuEntries()) {
            if (entry.is_context_menu) {
                commands.SetEnabled(OfTable(entry.name), enabled);
            }
        }
    });
}

void ShowAuditMenus(Commands &commands, bool shown) {
    commands.Together([&] {
        commands.SetVisible(u"mShowAuditTrail"_s, shown);
        commands.SetVisible(u"mSVNAuditTrailDatabase"_s, shown);
    });
}

} // namespace ostrand
