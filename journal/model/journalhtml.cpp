// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalhtml.h"

#include "shell/core/dates.h"
#include "shell/core/lightmarks.h"
#include "shell/pictures/keptpictures.h"
#include "storage/disk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Stands for the folder of the pictures until it is known; no text of an entry keeps it.
constexpr QChar folderMark = u'\u0001';

const QString head = uR"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>%1</title>
<style>
body { max-width: 40em; margin: 2em auto; padding: 0 1em; font: 1.05em/1.55 Georgia, serif; color: #222; background: #fdfcf9; }
h1 { font-weight: normal; }
article { margin: 2.5em 0; border-top: 1px solid #ccc; }
p { margin: 0 0 0.7em; white-space: pre-wrap; overflow-wrap: anywhere; }
.tags, figcaption { color: #666; font-size: 0.9em; }
figure { margin: 1em 0; break-inside: avoid; }
img { max-width: 100%; }
.missing { border: 1px dashed #999; padding: 2em; }
@media (prefers-color-scheme: dark) { body { color: #ddd; background: #1d1d1f; } .tags, figcaption { color: #aaa; } }
</style>
</head>
<body>
<h1>%1</h1>
)"_s;

QString escaped(QStringView text)
{
    return text.toString().remove(folderMark).toHtmlEscaped();
}

/// A line with what is bold and italic in it.
QString styled(QStringView line, const MarkedLine &marked)
{
    QString html;
    for (const MarkedRun &run : marked.runs) {
        QString text = escaped(line.sliced(run.at, run.length));
        if (run.isItalic)
            text = u"<i>"_s + text + u"</i>"_s;
        if (run.isBold)
            text = u"<b>"_s + text + u"</b>"_s;
        html += text;
    }
    return html;
}

} // namespace

JournalHtml::JournalHtml(const QList<JournalEntry> &entries, const QString &title, DateStyle style,
                         const DataFolder &folder)
    : m_folder(folder)
    , m_title(title)
{
    for (const JournalEntry &entry : entries)
        addEntry(entry, style);
}

void JournalHtml::addEntry(const JournalEntry &entry, DateStyle style)
{
    m_body += u"<article id=\"%1\">\n<h2>"_s.arg(entry.date.toString(Qt::ISODate));
    m_body += escaped(Dates::longText(entry.date, style)) + u"</h2>\n"_s;
    addText(entry);
    if (!entry.tags.isEmpty())
        m_body += u"<p class=\"tags\">"_s + escaped(entry.tags.join(u", "_s)) + u"</p>\n"_s;
    m_body += u"</article>\n"_s;
}

void JournalHtml::addText(const JournalEntry &entry)
{
    std::set<int> placed;
    bool isInList = false;
    const auto setInList = [&](bool isList) {
        if (isList != isInList)
            m_body += isList ? u"<ul>\n"_s : u"</ul>\n"_s;
        isInList = isList;
    };
    const QStringList lines = entry.text.isEmpty() ? QStringList() : entry.text.split(u'\n');
    for (const QString &line : lines) {
        const MarkedLine marked = LightMarks::of(line);
        const bool isPicture = marked.kind == MarkedLine::Picture && marked.picture <= entry.pictures.size();
        setInList(marked.kind == MarkedLine::List);
        if (isPicture && placed.insert(marked.picture).second) {
            addPicture(entry.pictures[marked.picture - 1], entry.date);
        } else if (marked.kind == MarkedLine::Heading) {
            m_body += u"<h3>"_s + styled(line, marked) + u"</h3>\n"_s;
        } else if (marked.kind == MarkedLine::List) {
            m_body += u"<li style=\"margin-left: %1em\">"_s.arg(2 * marked.indent);
            m_body += styled(line, marked) + u"</li>\n"_s;
        } else if (!line.trimmed().isEmpty()) {
            m_body += u"<p>"_s + (marked.kind == MarkedLine::Picture ? escaped(line) : styled(line, marked)) +
                      u"</p>\n"_s;
        }
    }
    setInList(false);
    for (int number = 1; number <= entry.pictures.size(); ++number) {
        if (!placed.contains(number))
            addPicture(entry.pictures[number - 1], entry.date);
    }
}

void JournalHtml::addPicture(const JournalPicture &picture, QDate date)
{
    const QString source = KeptPictures::locate(m_folder, picture.path);
    const QString caption = escaped(picture.caption);
    m_body += u"<figure>"_s;
    if (source.isEmpty()) {
        const QString name = QFileInfo(picture.path).fileName();
        if (!m_missing.contains(name))
            m_missing.append(name);
        m_body += u"<div class=\"missing\">"_s + escaped(name) + u"</div>"_s;
    } else {
        const QString name = QString::fromLatin1(QUrl::toPercentEncoding(nameFor(source, date)));
        m_body += u"<img src=\""_s + folderMark + u'/' + name + u"\" alt=\""_s + caption + u"\">"_s;
    }
    if (!caption.isEmpty())
        m_body += u"<figcaption>"_s + caption + u"</figcaption>"_s;
    m_body += u"</figure>\n"_s;
}

QString JournalHtml::nameFor(const QString &source, QDate date)
{
    const auto known = std::ranges::find(m_pictures, source, &Picture::source);
    if (known != m_pictures.end())
        return known->name;
    const QFileInfo file(source);
    const QString plain = date.toString(Qt::ISODate) + u' ' + file.completeBaseName();
    const QString ending = file.suffix().isEmpty() ? QString() : QString(u'.' + file.suffix());
    QString name = plain + ending;
    const auto isTaken = [this](const QString &sought) {
        return std::ranges::any_of(m_pictures, [&sought](const Picture &picture) {
            return picture.name.compare(sought, Qt::CaseInsensitive) == 0;
        });
    };
    for (int number = 2; isTaken(name); ++number)
        name = plain + u' ' + QString::number(number) + ending;
    m_pictures.push_back({source, name});
    return name;
}

QString JournalHtml::folderOf(const QString &path)
{
    return QFileInfo(path).completeBaseName() + u" pictures"_s;
}

QByteArray JournalHtml::file(const QString &path) const
{
    QString body = m_body;
    body.replace(folderMark, QString::fromLatin1(QUrl::toPercentEncoding(folderOf(path))));
    const QString title = escaped(m_title);
    const QString whole = QString(head).replace(u"%1"_s, title) + body + u"</body>\n</html>\n"_s;
    return whole.toUtf8();
}

QStringList JournalHtml::copyPictures(const QString &path) const
{
    const QString folder = QFileInfo(path).absolutePath() + u'/' + folderOf(path);
    QStringList failed = m_missing;
    const bool hasFolder = m_pictures.empty() || QDir().mkpath(folder);
    for (const Picture &picture : m_pictures) {
        QFile source(picture.source);
        const bool isRead = hasFolder && source.open(QIODevice::ReadOnly);
        if (!isRead || !Disk::writeWhole(folder + u'/' + picture.name, source.readAll()))
            failed.append(picture.name);
    }
    return failed;
}
