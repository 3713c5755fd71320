#pragma once

namespace dravolin {

// Reads the list of the system's fonts on a thread of its own while the application object connects to the
// screen. The toolkit then finds it read; without a thread it reads it itself, later. To be called once, by
// the only thread, before there is an application object.
void readFontsAhead();

} // namespace dravolin
