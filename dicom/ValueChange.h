#pragma once

#include "dicom/ElementReader.h"
#include "dicom/Levels.h"
#include "dicom/Treatment.h"

#include <QByteArray>

#include <optional>

namespace dravolin {

// Decides what becomes of one element after the other of a data set.
class ValueChange
{
public:
    struct Result
    {
        QString problem; // why the object cannot be treated; "" when it can
        bool erase = false;
        std::optional<QByteArray> value; // the new value; none: the element stays as it is or goes
        Vr representation = 0;           // to write the new value in
    };

    // With `toUtf8` all text of the data set is moved to UTF-8.
    ValueChange(const Treatment &treatment, int daysBack, bool toUtf8)
        : m_treatment(treatment), m_daysBack(daysBack), m_toUtf8(toUtf8)
    {
    }

    // The rules of the top level: it has to have what is set by them.
    [[nodiscard]] AttributeRules rules() const;
    // What becomes of the element that the reader stands at.
    [[nodiscard]] Result apply(ElementReader &reader, const Element &element, const Surroundings &around);
    [[nodiscard]] Result inserted(TagNumber tag, const AttributeRule &rule, const Notation &notation,
                                  const QByteArray &characterSet);
    // Whether a sequence goes as a whole.
    [[nodiscard]] bool erasesSequence(const Element &element, const Surroundings &around) const;
    [[nodiscard]] bool erasesPrivate(TagNumber tag, const Surroundings &around) const;

    // True once a value did not go into the object's character set.
    [[nodiscard]] bool needsUtf8() const { return m_needsUtf8; }

private:
    [[nodiscard]] Result byRule(ElementReader &reader, const Element &element, const AttributeRule &rule,
                                const QByteArray &characterSet);
    [[nodiscard]] Result newValue(const Element &element, const QString &text,
                                  const QByteArray &characterSet);
    [[nodiscard]] Result fromTable(ElementReader &reader, const Element &element,
                                   const QByteArray &characterSet);
    [[nodiscard]] Result mappedUids(ElementReader &reader, const Element &element) const;
    [[nodiscard]] Result movedDates(ElementReader &reader, const Element &element) const;
    [[nodiscard]] Result movedText(ElementReader &reader, const Element &element,
                                   const QByteArray &characterSet) const;

    const Treatment &m_treatment;
    int m_daysBack;
    bool m_toUtf8;
    bool m_needsUtf8 = false;
};

} // namespace dravolin
