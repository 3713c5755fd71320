#pragma once

#include <QByteArray>
#include <QList>

namespace dravolin::test {

// Every name here is one that the file system allows.
inline const QList<QByteArray> oddNames = {"plain",
                                           "with blank",
                                           "quote\"s",
                                           "apostrophe's",
                                           "$HOME",
                                           "`id`",
                                           "back\\slash",
                                           "line\nbreak",
                                           "-nb",
                                           "[",
                                           "*",
                                           ".hidden",
                                           "Latin-1 \xFC",
                                           "\xFF\xFE",
                                           "cut \xE2\x82",
                                           "\xEF\xBB\xBFmark",
                                           "\xED\xA0\x80 surrogate",
                                           "\xF0\x9F\x98\x80",
                                           "combining e\xCC\x81",
                                           "precomposed \xC3\xA9",
                                           " ",
                                           "~",
                                           "%s %1 %n"};

} // namespace dravolin::test
