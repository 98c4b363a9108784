#include "sql/StatementCache.h"

namespace ostrand::sql {

void NoteBakedLiterals(CachedStatement &cached, const Shape &shape) {
    const auto &parameters = cached.compiled.parameters;
    for (int literal = 0; literal < int(shape.literals.size()); ++literal) {
        const bool bound = std::any_of(parameters.begin(), parameters.end(),
                                       [&](const ParameterSlot &slot) { return slot.literal == literal; });
        if (!bound) {
            cached.compiled.baked.push_back(literal);
            cached.baked.push_back(shape.literals[size_t(literal)].text);
        }
    }
}

std::shared_ptr<CachedStatement> StatementCache::Find(const Shape &shape) {
    ++lookups_;
    const auto found = by_key_.constFind(shape.key);
    if (found == by_key_.constEnd()) {
        return nullptr;
    }
    for (const Position position : *found) {
        const CachedStatement &candidate = *position->statement;
        bool same = true;
        for (size_t i = 0; i < candidate.baked.size() && same; ++i) {
            same = candidate.baked[i] == shape.literals[size_t(candidate.compiled.baked[i])].text;
        }
        if (same) {
            ++hits_;
            entries_.splice(entries_.begin(), entries_, position);
            return position->statement;
        }
    }
    return nullptr;
}

void StatementCache::Insert(const Shape &shape, std::shared_ptr<CachedStatement> statement) {
    entries_.push_front({shape.key, std::move(statement)});
    by_key_[shape.key].push_back(entries_.begin());
    if (entries_.size() <= capacity_) {
        return;
    }
    const Position oldest = std::prev(entries_.end());
    const auto known = by_key_.find(oldest->key);
    std::erase(*known, oldest);
    if (known->empty()) {
        by_key_.erase(known);
    }
    entries_.erase(oldest);
}

void StatementCache::Clear() {
    by_key_.clear();
    entries_.clear();
}

} // namespace ostrand::sql
