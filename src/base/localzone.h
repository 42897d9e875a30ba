#pragma once

namespace tavrel {

/// Lets the C library read the system's time zone once. Without a TZ of the user's own it looks at the file again for
/// every date that is turned into a day, which costs a long table more than all else. For the start of a program.
void readLocalZoneOnce();

}  // namespace tavrel
