#pragma once

#include <QCoreApplication>

namespace dravolin {

// Texts for people: Texts::tr("English text") looks the text up in the application's string table, with the
// English text as its key, and gives it back where the table does not have it. Any thread.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

} // namespace dravolin
