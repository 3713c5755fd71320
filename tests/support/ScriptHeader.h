#pragma once

#include <QString>

namespace dravolin::test {

// What every script of a job begins with, to the letter.
inline const QString header =
    QStringLiteral("#!/bin/sh\n#This is a temporary file created by Dravolin. If you are reading "
                   "this, the file is garbage that can safely be deleted.\n");

} // namespace dravolin::test
