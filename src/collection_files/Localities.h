// The countries of a collection file's localities.
#pragma once

namespace ostrand {

struct Session;

/// Fills `Session::CountryNames`: the number behind the "." of a disc identifier to the name of the country.
void FillCountryNames(Session &session);

} // namespace ostrand
