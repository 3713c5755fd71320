#include "support/RecordingHost.h"

#include <QTest>

namespace dravolin::test {

namespace {

QString nameOf(Question question)
{
    switch (question) {
    case Question::LargeDrop: return QStringLiteral("LargeDrop");
    case Question::OverwriteSource: return QStringLiteral("OverwriteSource");
    }
    Q_UNREACHABLE();
}

QString nameOf(RunKind kind)
{
    switch (kind) {
    case RunKind::Anonymize: return QStringLiteral("Anonymize");
    case RunKind::Construct: return QStringLiteral("Construct");
    case RunKind::OnlyGenerate: return QStringLiteral("OnlyGenerate");
    }
    Q_UNREACHABLE();
}

QString numbers(const char *text, quint64 done, quint64 all)
{
    return QString::fromUtf8(text).arg(done).arg(all);
}

} // namespace

QString nameOf(Refusal refusal)
{
    switch (refusal) {
    case Refusal::InvalidStudyInstanceUid: return QStringLiteral("InvalidStudyInstanceUid");
    case Refusal::NoTags: return QStringLiteral("NoTags");
    case Refusal::NoTagForTable: return QStringLiteral("NoTagForTable");
    case Refusal::TableUnreadable: return QStringLiteral("TableUnreadable");
    case Refusal::TableWithoutMissing: return QStringLiteral("TableWithoutMissing");
    case Refusal::OutOfFileHandles: return QStringLiteral("OutOfFileHandles");
    }
    Q_UNREACHABLE();
}

QString rootCall(const QString &root, bool valid)
{
    return QStringLiteral("root %1: %2")
        .arg(valid ? QStringLiteral("valid") : QStringLiteral("invalid"), root);
}

QString progressCall(Progress::Event event, quint64 done, quint64 all)
{
    switch (event) {
    case Progress::Event::FoldersAnonymized: return numbers("anonymized %1/%2 folders", done, all);
    case Progress::Event::PropagationBegins: return QStringLiteral("propagation begins");
    case Progress::Event::FoldersPropagated: return numbers("propagated %1/%2 folders", done, all);
    case Progress::Event::FilesPropagated: return numbers("file %1/%2", done, all);
    case Progress::Event::PropagationEnds: return QStringLiteral("propagation ends");
    }
    Q_UNREACHABLE();
}

QString endCall(const QString &summary, const QString &logText)
{
    return QStringLiteral("ends: %1|%2").arg(summary, logText);
}

Choices RecordingHost::choices()
{
    if (recordReads)
        calls.append(QStringLiteral("read choices"));
    return chosen;
}

CaseTexts RecordingHost::texts()
{
    if (recordReads)
        calls.append(QStringLiteral("read texts"));
    return fields;
}

void RecordingHost::setRoot(const RootCheck &root)
{
    calls.append(rootCall(root.trimmedRoot, root.valid));
    fields.uidRoot = root.trimmedRoot;
}

bool RecordingHost::ask(Question question)
{
    calls.append(QStringLiteral("ask ") + nameOf(question));
    if (answers.isEmpty())
        QTest::qFail("a question that nobody expected", __FILE__, __LINE__);
    return !answers.isEmpty() && answers.takeFirst();
}

void RecordingHost::refuse(Refusal refusal, const QString &detail)
{
    calls.append(QStringLiteral("refuse %1: %2").arg(nameOf(refusal), detail));
}

void RecordingHost::runBegins(const RunBeginning &beginning, std::function<void()> start)
{
    calls.append(QStringLiteral("begins %1: %2").arg(nameOf(beginning.kind), beginning.constructionTag));
    start();
}

void RecordingHost::progress(const Progress &progress)
{
    calls.append(progressCall(progress.event, progress.done, progress.all));
}

void RecordingHost::runEnds(const RunJudgement &judgement)
{
    QVERIFY(judgement.wantsLogWindow || judgement.logText.isEmpty());
    calls.append(endCall(judgement.summary, judgement.logText));
    judgements.append(judgement);
}

void RecordingHost::tablesFound(const TitleToPath &tables)
{
    calls.append(QStringLiteral("tables: ") + tables.keys().join(u'|'));
}

} // namespace dravolin::test
