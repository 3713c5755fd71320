#pragma once

#include "check/Summary.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace dravolin::check {

// A page for people, to be read in a browser and printed: one file, without scripts, pictures or addresses.
// All texts are taken as they are and escaped here.
class HtmlPage
{
public:
    void title(const QString &text) { add("<h1>%1</h1>\n", text); }
    void heading(const QString &text) { add("<h2>%1</h2>\n", text); }
    void paragraph(const QString &text) { add("<p>%1</p>\n", text); }
    void lines(const QStringList &texts) { add("<pre>%1</pre>\n", texts.join(u'\n')); }
    void verdict(Verdict verdict, const QString &text);
    void verdict(Verdict verdict) { this->verdict(verdict, textOf(verdict)); }
    void table(const QStringList &columns, const QList<QStringList> &rows);
    // Where somebody signs by hand.
    void signature();

    // The whole page.
    [[nodiscard]] QString html(const QString &title) const;

private:
    void add(const char *form, const QString &text);
    [[nodiscard]] static QString row(const QStringList &cells, const QString &element);

    QString m_html;
};

} // namespace dravolin::check
