#include "app/FontsAhead.h"

#include <fontconfig/fontconfig.h>

#include <clocale>
#include <system_error>
#include <thread>

namespace dravolin {

void readFontsAhead()
{
    // the application object does the same: numbers in the list must not be read while the locale changes
    std::setlocale(LC_ALL, "");
    try {
        std::thread([] { FcInit(); }).detach();
    } catch (const std::system_error &) {
        // nothing is lost but a few milliseconds
    }
}

} // namespace dravolin
