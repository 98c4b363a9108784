// The skins that come with the program.
#pragma once

namespace ostrand {

struct Session;

/// Makes the folder of skins in the data folder, with the program's own skins in it. A folder that holds anything stays
/// as it is: what the user changed or removed does not come back.
void InstallSkins(const Session &session);

} // namespace ostrand
