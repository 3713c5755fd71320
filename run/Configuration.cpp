#include "run/Configuration.h"

#include "run/UidRootFields.h"

namespace dravolin {

QString selectedConfiguration(const RunContext &context)
{
    return context.state.get(&RunState::allConfigPaths).value(context.host.choices().configuration);
}

void loadTagsToAnonymize(const RunContext &context, const QString &path)
{
    TagRules rules = loadConfiguration(path);
    // all texts at one moment, so that two attributes never get two case numbers
    const CaseTexts texts = context.host.texts();
    addFixedTags(rules, texts, composeStudyInstanceUid(context.host, texts, context.uuids));
    context.state.setRules(std::move(rules));
}

void dropTableMarkers(SharedRunState &shared)
{
    shared.update([](RunState &state) {
        const QStringList values = state.newValueDict.values();
        QList<qsizetype> markers;
        for (qsizetype i = 0; i < values.size(); ++i) {
            if (values.at(i).startsWith(tableMarkerPrefix))
                markers.append(i);
        }
        if (!markers.isEmpty() && state.firstFoundLUTtagInNewValueDict.isEmpty()) {
            QString name = values.at(markers.first()).sliced(tableMarkerPrefix.size());
            name.chop(1); // the ">", or whatever stands in its place
            state.firstFoundLUTtagInNewValueDict = name;
        }
        // intended: the indexes stay while the keys move up, so that the n-th marker hits the key n places
        // behind
        qsizetype position = 0;
        qsizetype taken = 0;
        for (auto at = state.newValueDict.begin(); at != state.newValueDict.end(); ++position) {
            const bool hit = taken < markers.size() && position == markers.at(taken) + taken;
            at = hit ? state.newValueDict.erase(at) : std::next(at);
            taken += hit;
        }
    });
}

} // namespace dravolin
