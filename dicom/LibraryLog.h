#pragma once

namespace dravolin {

// DCMTK tells about what it meets on standard error, in texts for those who write programs. From here on it
// says nothing. Before any other thread uses it.
void silenceLibrary();

} // namespace dravolin
