#include "dicom/LibraryLog.h"

#include <dcmtk/config/osconfig.h>
#include <dcmtk/oflog/oflog.h>

namespace dravolin {

void silenceLibrary()
{
    OFLog::configure(OFLogger::OFF_LOG_LEVEL);
}

} // namespace dravolin
