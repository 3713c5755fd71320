#pragma once

#include "config/LutFile.h"
#include "dicom/Dictionary.h"
#include "processing/Edits.h"

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

// What is to be done to an object, whichever file it is in.
namespace dravolin {

struct AttributeRule
{
    enum class Kind {
        Erase,    // at every level
        Set,      // the value at the top level, there or not
        FromTable // at every level, there or nowhere: the table's value for the whole old one
    };
    Kind kind = Kind::Erase;
    QString value;
    // what Kind::Set does below the top level; a sequence is erased there in any case
    enum class Copies { Set, Erase, AsWithoutRule };
    Copies copies = Copies::Set;

    bool operator==(const AttributeRule &) const = default;
};

using AttributeRules = QMap<TagNumber, AttributeRule>;

struct Treatment
{
    AttributeRules rules;
    LutTable
        table; // for Kind::FromTable: <missing> is what an unknown value becomes, <skip> leaves one as it is
    bool removePrivate = true;
    QSet<QString> keptPrivate; // as privateName() writes them
    // The new UID for an old one; none: UIDs stay. Asked for every value of VR UI that names an instance of
    // something and is not registered by DICOM. Has to bear calls from several threads.
    std::function<QByteArray(const QByteArray &)> newUid;
    // By how many days the dates of a patient are moved back, who is named by the Patient ID of the source;
    // none: dates stay. From several threads as well.
    std::function<int(const QByteArray &patientId)> daysBack;
};

// The rules that `edits` mean, the later one for the same attribute; a value for one that was erased before
// is set at the top level alone. The value "" (two quotes) is the empty one. What would do nothing, or would
// make all files the same object, makes a text in `problems` and no rule. Values that begin as a table's
// marker become Kind::FromTable when `withTable`.
[[nodiscard]] AttributeRules attributeRules(const QList<Edit> &edits, bool withTable, QStringList *problems);

// gggg,"creator",ee: a private attribute without the block that its creator happens to have in a file.
[[nodiscard]] QString privateName(quint16 group, const QString &creator, quint8 element);

// Whether values of the attribute are UIDs of classes, syntaxes or code systems, which are never replaced.
[[nodiscard]] bool namesNoInstance(TagNumber tag);

} // namespace dravolin
