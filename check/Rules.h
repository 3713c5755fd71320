#pragma once

#include "check/ObjectReader.h"
#include "config/ConfigurationFile.h"

#include <QList>
#include <QString>

#include <map>

namespace dravolin::check {

// An attribute that is not as the configuration says.
struct Deviation
{
    Tag tag = 0;
    QString path;        // where it stands
    bool wanted = false; // true: it has another value than the rule sets; false: the rule takes it away
};

// What a configuration says about attributes: to be absent, or to have one value, at every level. Read by any
// thread.
class Rules
{
public:
    // Tags that are no tag, and the attributes whose values come from the main window, say nothing.
    explicit Rules(const TagRules &rules);

    // Adds a deviation when the element, whose value is `text` where it is one, or a sequence that holds it,
    // is not as its rule says. An attribute without a value is as good as absent.
    void compare(const Element &element, const QString &text, QList<Deviation> &deviations) const;
    // The values that the rules set.
    [[nodiscard]] QStringList values() const;

private:
    [[nodiscard]] bool isTakenAway(Tag tag) const;

    std::map<Tag, std::optional<QString>> m_rules; // nothing: absent
};

} // namespace dravolin::check
