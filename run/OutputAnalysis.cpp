#include "run/OutputAnalysis.h"

#include "base/NOXUtils.h"
#include "base/Lines.h"
#include "base/Texts.h"

#include <algorithm>
#include <bitset>
#include <cstring>
#include <limits>
#include <string_view>
#include <unordered_set>

namespace dravolin {

namespace {

QString firstSummary(const RunReport &report)
{
    const quint64 errors = report.errCount;
    const int form = pluralNumber(errors);
    if (errors != 0)
        return withCounts(
            report.constructing
                ? Texts::tr("Done constructing LUT. File placed on Desktop.\nEncountered %1 error%2.\n"
                            "See messages logged to console.",
                            nullptr, form)
                : Texts::tr("Done...\nEncountered %1 error%2.\nSee messages logged to console.", nullptr,
                            form),
            {errors});
    if (report.constructing)
        return Texts::tr("\nDone constructing LUT. File placed on Desktop.");
    if (report.usingLUT)
        return withCounts(Texts::tr("Done!\nLUT tag propagated to %1 file%2.\nSkipped %3 DICOM file%4.",
                                    nullptr, pluralNumber(report.numLUTadaptedFiles)),
                          {report.numLUTadaptedFiles, report.numLUTskippedFiles});
    return Texts::tr("\nDone!");
}

QString summaryWithErrors(quint64 filesWithErrors, quint64 errorLines)
{
    if (filesWithErrors == 0)
        return withCounts(Texts::tr("\nDone, with %1 error%2.", nullptr, pluralNumber(errorLines)),
                          {errorLines});
    return withCounts(Texts::tr("\nDone. %1 file%2 with errors.", nullptr, pluralNumber(filesWithErrors)),
                      {filesWithErrors});
}

// An optional sign and ASCII digits; 0 when there are none, saturating at 64 bits.
qint64 leadingInteger(QStringView text)
{
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    constexpr qint64 maximum = std::numeric_limits<qint64>::max();
    qint64 value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            break;
        const qint64 digit = c.unicode() - u'0';
        if (value > (maximum - digit) / 10)
            return negative ? std::numeric_limits<qint64>::min() : maximum;
        value = value * 10 + digit;
    }
    return negative ? -value : value;
}

// Inline, unlike QStringView's own: it is asked several times a line.
bool startsWith(QStringView text, QStringView prefix)
{
    return text.size() >= prefix.size() &&
           std::memcmp(text.utf16(), prefix.utf16(), static_cast<size_t>(prefix.size()) * sizeof(QChar)) == 0;
}

bool endsWith(QStringView text, QStringView suffix)
{
    return text.size() >= suffix.size() && std::equal(suffix.rbegin(), suffix.rend(), text.rbegin());
}

// Folder names, asked for with the beginning of every complaint about a file. It views the names.
class FolderNames
{
public:
    explicit FolderNames(const QStringList &names)
    {
        for (const QString &name : names) {
            m_names.insert(units(name));
            m_longest = std::max(m_longest, name.size());
            m_firsts.set(firstOf(name + u':'));
        }
    }

    // Whether `text`, which is in lower case, begins with one of the names followed by ":". Only what stands
    // before a ":" is looked up, so that the number of names does not matter, and nothing when none of them
    // has the text's first character.
    [[nodiscard]] bool beginLowered(QStringView text) const
    {
        if (text.isEmpty() || !m_firsts.test(firstOf(text)))
            return false;
        const std::u16string_view all = units(text.first(std::min(text.size(), neededCharacters())));
        for (size_t colon = all.find(u':'); colon != all.npos; colon = all.find(u':', colon + 1)) {
            if (m_names.contains(all.substr(0, colon)))
                return true;
        }
        return false;
    }

    // How many characters of a text beginLowered needs to see.
    [[nodiscard]] qsizetype neededCharacters() const { return m_longest + 1; }

private:
    static unsigned char firstOf(QStringView text)
    {
        return static_cast<unsigned char>(text.front().unicode());
    }

    static std::u16string_view units(QStringView text)
    {
        return {text.utf16(), static_cast<size_t>(text.size())};
    }

    std::unordered_set<std::u16string_view> m_names;
    std::bitset<256> m_firsts; // low bytes of the first characters of the names, with the ":" behind them
    qsizetype m_longest = -1;  // without names not even the first character is looked at
};

// What the lines of the output add up to. Output may be many megabytes of error lines, so nothing here copies
// a line that is not collected.
class LineJudge
{
public:
    explicit LineJudge(const QStringList &folderNames) : m_folderNames(folderNames) {}

    void judge(QStringView line)
    {
        if (!startsWith(line, u"E:"))
            return;
        if (startsWith(line, u"E: There was") || startsWith(line, u"E: There were")) {
            // unsigned, so that sums past 64 bits wrap
            m_filesWithErrors += static_cast<quint64>(closingLineCount(line));
        } else if (startsWith(line, unloadable)) {
            if (m_folderNames.beginLowered(lowered(NOXUtils::trimmed(line.sliced(unloadable.size())))))
                --m_filesWithErrors; // intended: may go below zero and is then shown as an unsigned number
            else
                collect(line);
        } else if (!endsWith(line, u"put value into non-leaf elements!")) {
            collect(line);
        }
    }

    [[nodiscard]] quint64 filesWithErrors() const { return m_filesWithErrors; }
    [[nodiscard]] quint64 errorLines() const { return m_errorLines; }
    [[nodiscard]] const QString &logText() const { return m_logText; }

private:
    static constexpr QStringView unloadable = u"E: unable to load file ";

    // As much of `text` as is looked at for names, in lower case, in memory that is kept from line to line.
    [[nodiscard]] QStringView lowered(QStringView text)
    {
        const QStringView head = text.first(std::min(text.size(), m_folderNames.neededCharacters()));
        m_lowered.resize(head.size());
        bool ascii = true;
        std::transform(head.begin(), head.end(), m_lowered.begin(), [&ascii](QChar c) {
            ascii = ascii && c < u'\x80';
            return c >= u'A' && c <= u'Z' ? QChar(c.unicode() + (u'a' - u'A')) : c;
        });
        if (!ascii)
            m_lowered = text.toString().toLower(); // whole: other letters may become more or fewer
        return m_lowered;
    }

    void collect(QStringView line)
    {
        m_logText += line;
        m_logText += u"\n\n";
        ++m_errorLines;
    }

    FolderNames m_folderNames;
    QString m_lowered;
    quint64 m_filesWithErrors = 0;
    quint64 m_errorLines = 0;
    QString m_logText;
};

QString logNotes(const RunReport &report)
{
    QString notes;
    if (report.constructing)
        notes = Texts::tr("\n\nConstructed LUT file placed on Desktop.\n\n");
    else if (report.usingLUT)
        notes = withCounts(Texts::tr("\n\nLUT tag propagated to %1 file%2.\nSkipped %3 DICOM file%4.\n\n",
                                     nullptr, pluralNumber(report.numLUTadaptedFiles)),
                           {report.numLUTadaptedFiles, report.numLUTskippedFiles});
    if (report.DICOMDIRpaths.isEmpty())
        return notes;
    return notes +
           Texts::tr("Mind you: DICOMDIR files were found.\n"
                     "They do not contain DICOM tags to anonymize but still contain PHI:\n") +
           report.DICOMDIRpaths.join(u'\n') + QStringLiteral("\n\n");
}

} // namespace

qint64 closingLineCount(QStringView line)
{
    constexpr qsizetype wordsBeforeCount = 11;
    constexpr qsizetype wordsBehindCount = 6;
    if (line.size() < wordsBeforeCount + wordsBehindCount)
        return 0;
    const QString reversed = NOXUtils::reverseString(line.sliced(wordsBeforeCount));
    return leadingInteger(NOXUtils::trimmed(QStringView(reversed).sliced(wordsBehindCount)));
}

RunJudgement judgeOutput(const RunReport &report)
{
    LineJudge lines(report.AllFoldersNames);
    forEachLine(report.output, [&lines](QStringView line) { lines.judge(NOXUtils::trimmed(line)); });

    RunJudgement judgement;
    judgement.summary = firstSummary(report);
    judgement.logText = lines.logText();
    judgement.refused = report.errCount != 0;
    judgement.hasErrors = lines.errorLines() != 0 || lines.filesWithErrors() != 0;
    judgement.constructed = report.constructing && !judgement.refused;
    if (lines.logText().isEmpty() && report.DICOMDIRpaths.isEmpty())
        return judgement;
    judgement.wantsLogWindow = true;
    judgement.summary = summaryWithErrors(lines.filesWithErrors(), lines.errorLines());
    judgement.logText += logNotes(report);
    return judgement;
}

} // namespace dravolin
