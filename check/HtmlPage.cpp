#include "check/HtmlPage.h"

#include "base/Texts.h"

namespace dravolin::check {

namespace {

constexpr char style[] =
    "body{font-family:sans-serif;max-width:60em;margin:2em auto;padding:0 1em;color:#111}"
    "table{border-collapse:collapse;width:100%;margin:.5em 0 1.5em}"
    "th,td{border:1px solid #999;padding:.25em "
    ".5em;text-align:left;vertical-align:top;overflow-wrap:anywhere}"
    "th{background:#eee}pre{border:1px solid #999;padding:.5em;white-space:pre-wrap}"
    ".verdict{border:3px solid;padding:.5em "
    "1em;font-size:1.2em}.found{border-color:#b00}.incomplete{border-color:#b60}"
    ".clean{border-color:#070}.sign{margin-top:4em}.sign span{display:inline-block;width:45%;border-top:1px "
    "solid;"
    "margin-right:4%}@media print{body{margin:0;max-width:none}tr{break-inside:avoid}h2{break-after:avoid}}";

QString classOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Clean: return QStringLiteral("clean");
    case Verdict::Found: return QStringLiteral("found");
    case Verdict::Incomplete: return QStringLiteral("incomplete");
    }
    return {};
}

} // namespace

void HtmlPage::add(const char *form, const QString &text)
{
    m_html += QString::fromLatin1(form).arg(text.toHtmlEscaped());
}

void HtmlPage::verdict(Verdict verdict, const QString &text)
{
    m_html += QStringLiteral("<p class=\"verdict %1\">%2</p>\n").arg(classOf(verdict), text.toHtmlEscaped());
}

void HtmlPage::table(const QStringList &columns, const QList<QStringList> &rows)
{
    m_html += QStringLiteral("<table>\n") + row(columns, QStringLiteral("th"));
    for (const QStringList &cells : rows)
        m_html += row(cells, QStringLiteral("td"));
    m_html += QStringLiteral("</table>\n");
}

QString HtmlPage::row(const QStringList &cells, const QString &element)
{
    QString html = QStringLiteral("<tr>");
    for (const QString &cell : cells)
        html += u'<' + element + u'>' + cell.toHtmlEscaped() + QStringLiteral("</") + element + u'>';
    return html + QStringLiteral("</tr>\n");
}

void HtmlPage::signature()
{
    m_html += QStringLiteral("<p class=\"sign\"><span>%1</span><span>%2</span></p>\n")
                  .arg(Texts::tr("Place, date"), Texts::tr("Signature"));
}

QString HtmlPage::html(const QString &title) const
{
    return QStringLiteral(
               "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
               "<style>%2</style>\n</head>\n<body>\n%3</body>\n</html>\n")
        .arg(title.toHtmlEscaped(), QLatin1String(style), m_html);
}

} // namespace dravolin::check
