// The digests of all profiles, read once for the whole of an import.
#pragma once

#include "xml/ElementScanner.h"

#include <string>
#include <unordered_map>

namespace ostrand {

struct Session;

class KnownDigests {
public:
    void Load(Session &session);
    /// True when the profile of that identifier stands in the database with that digest. False decides nothing: keys
    /// that differ in case are told apart here.
    bool IsUnchanged(const ScannedElement &element) const;
    void Store(const std::string &id, const ScannedElement::Digest &digest);
    void Forget(const std::string &id) { digests_.erase(id); }

private:
    std::unordered_map<std::string, ScannedElement::Digest> digests_;
};

} // namespace ostrand
