// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/manual/manual.h"

#include "shell/core/helpcontexts.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// The macro has to stand outside every namespace.
static void initializePages()
{
    Q_INIT_RESOURCE(quillery_manual);
}

namespace {

constexpr qsizetype excerptBefore = 30;
constexpr qsizetype excerptLength = 90;

QString between(const QString &html, const QString &start, const QString &end)
{
    const qsizetype from = html.indexOf(start);
    const qsizetype to = html.indexOf(end, from);
    return from < 0 || to < 0 ? QString()
                              : Manual::plainText(html.mid(from + start.size(), to - from - start.size()));
}

/// About 90 characters around `position`, cut between words.
QString excerpt(const QString &text, qsizetype position)
{
    qsizetype start = position <= excerptBefore ? 0 : text.indexOf(u' ', position - excerptBefore) + 1;
    if (start > position)
        start = position;
    qsizetype end =
        start + excerptLength >= text.size() ? text.size() : text.lastIndexOf(u' ', start + excerptLength);
    if (end <= position)
        end = std::min(start + excerptLength, text.size());
    QString result = text.mid(start, end - start);
    if (start > 0)
        result.prepend(u"… "_s);
    if (end < text.size())
        result.append(u" …"_s);
    return result;
}

} // namespace

Manual::Manual(const QString &dataFolder)
{
    initializePages();
    const QDir folder(u":/manual"_s);
    for (const QString &name : folder.entryList({u"*.html"_s}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QString html = QString::fromUtf8(file.readAll());
        html.replace("%FOLDER%"_L1, QDir::toNativeSeparators(dataFolder).toHtmlEscaped());
        QString body = html;
        // The heading repeats the title, which is searched on its own.
        static const QRegularExpression heading(u"<h1>.*</h1>"_s);
        m_pages.append({name.left(name.indexOf(u'.')).toInt(), between(html, u"<title>"_s, u"</title>"_s),
                        html, plainText(body.remove(heading))});
    }
}

const ManualPage &Manual::page(int context) const
{
    const auto at = [this](int wanted) {
        return std::find_if(m_pages.begin(), m_pages.end(),
                            [wanted](const ManualPage &page) { return page.context == wanted; });
    };
    const auto found = at(context);
    return found != m_pages.end() ? *found : *at(HelpContext::ProgramOverview);
}

QList<ManualHit> Manual::find(const QString &words) const
{
    const QStringList wanted = words.simplified().split(u' ', Qt::SkipEmptyParts);
    if (wanted.isEmpty())
        return {};

    QList<ManualHit> inTitle, inText;
    for (const ManualPage &page : m_pages) {
        const auto isIn = [](const QString &text) {
            return [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); };
        };
        if (!std::all_of(wanted.begin(), wanted.end(), isIn(page.title + u' ' + page.text)))
            continue;
        qsizetype position = 0;
        for (const QString &word : wanted) {
            if (const qsizetype found = page.text.indexOf(word, 0, Qt::CaseInsensitive); found >= 0) {
                position = found;
                break;
            }
        }
        const bool isTitled = std::any_of(wanted.begin(), wanted.end(), isIn(page.title));
        (isTitled ? inTitle : inText).append({page.context, page.title, excerpt(page.text, position)});
    }
    return inTitle + inText;
}

QString Manual::plainText(QString html)
{
    static const QRegularExpression head(u"<head>.*</head>"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    // A heading leads its paragraph. Marks within a line are nothing, those between lines are blanks.
    static const QRegularExpression inlineMark(u"</?(a|b|i)\\b[^>]*>"_s);
    static const QRegularExpression mark(u"<[^>]*>"_s);
    html.remove(head).replace("</h2>"_L1, ": "_L1).remove(inlineMark).replace(mark, u" "_s);
    html.replace("&lt;"_L1, "<"_L1).replace("&gt;"_L1, ">"_L1).replace("&quot;"_L1, "\""_L1);
    return html.replace("&amp;"_L1, "&"_L1).simplified();
}
