#include "batch/Csv.h"

#include "base/Texts.h"

#include <algorithm>

namespace dravolin {

namespace {

constexpr QChar quote = u'"';

QChar separatorOf(const QString &text)
{
    const auto end = std::find_if(text.begin(), text.end(), [](QChar c) { return c == u'\n' || c == u'\r'; });
    const auto times = [&](QChar c) { return std::count(text.begin(), end, c); };
    const QChar candidates[] = {u',', u';', u'\t'};
    return *std::max_element(std::begin(candidates), std::end(candidates),
                             [&](QChar one, QChar other) { return times(one) < times(other); });
}

// Reads one character after the other.
class Parser
{
public:
    explicit Parser(const QString &text) : m_text(text), m_separator(separatorOf(text)) {}

    Csv parse()
    {
        while (m_at < m_text.size())
            parseRow();
        return std::move(m_csv);
    }

private:
    void parseRow()
    {
        CsvRow row{m_line, {parseField()}};
        while (m_at < m_text.size() && m_text.at(m_at) == m_separator) {
            ++m_at;
            row.fields.append(parseField());
        }
        endLine();
        if (row.fields != QStringList{QString()})
            m_csv.rows.append(row);
    }

    QString parseField()
    {
        if (m_at == m_text.size() || m_text.at(m_at) != quote)
            return parsePlain();
        QString value = parseQuoted();
        const int end = m_line;
        if (!parsePlain().isEmpty())
            complain(Texts::tr("there is text behind a closing quotation mark in line %1").arg(end));
        return value;
    }

    // The first problem is told: what follows may come from it.
    void complain(const QString &problem)
    {
        if (m_csv.problem.isEmpty())
            m_csv.problem = problem;
    }

    QString parsePlain()
    {
        const qsizetype start = m_at;
        while (m_at < m_text.size() && m_text.at(m_at) != m_separator && !isLineEnd(m_text.at(m_at)))
            ++m_at;
        return m_text.mid(start, m_at - start);
    }

    QString parseQuoted()
    {
        const int begin = m_line;
        QString value;
        for (++m_at; m_at < m_text.size(); ++m_at) {
            const QChar c = m_text.at(m_at);
            if (c == quote && m_text.mid(m_at + 1, 1) != quote) {
                ++m_at;
                return value;
            }
            m_at += c == quote ? 1 : 0;
            m_line += c == u'\n' ? 1 : 0;
            value += c;
        }
        complain(Texts::tr("the quotation mark in line %1 is never closed").arg(begin));
        return value;
    }

    void endLine()
    {
        if (m_text.mid(m_at, 2) == QStringLiteral("\r\n"))
            ++m_at;
        ++m_at;
        ++m_line;
    }

    static bool isLineEnd(QChar c) { return c == u'\n' || c == u'\r'; }

    const QString &m_text;
    QChar m_separator;
    qsizetype m_at = 0;
    int m_line = 1;
    Csv m_csv;
};

} // namespace

Csv parseCsv(const QString &text)
{
    return Parser(text).parse();
}

QString csvField(const QString &value)
{
    const auto needsQuotes = [](QChar c) { return c == quote || c == u',' || c == u'\n' || c == u'\r'; };
    if (std::none_of(value.begin(), value.end(), needsQuotes))
        return value;
    return quote + QString(value).replace(quote, QStringLiteral("\"\"")) + quote;
}

QString csvLine(const QStringList &values)
{
    QStringList fields;
    for (const QString &value : values)
        fields.append(csvField(value));
    return fields.join(u',') + QStringLiteral("\r\n");
}

} // namespace dravolin
