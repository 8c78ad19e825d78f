// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/keepinglines.h"

#include "album/window/windowlines.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostNamed = 8;

using AlbumLines::number;

/// The first of them, each on a line of its own.
QString some(const QStringList &names)
{
    QString list = names.mid(0, mostNamed).join(u'\n');
    if (names.size() > mostNamed)
        list += u"\nand %1 more"_s.arg(number(names.size() - mostNamed));
    return list;
}

} // namespace

QString KeepingLines::progress(int done, int total)
{
    return u"%1 of %2"_s.arg(number(done), number(total));
}

QString KeepingLines::missing(qsizetype count)
{
    if (count == 0)
        return u"No picture is missing."_s;
    const QString are = count == 1 ? u"1 picture is missing."_s : number(count) + u" pictures are missing."_s;
    return are + u" Choose the folder in which to look, such as the new place of the old one. Pictures are "
                 u"known by "
                 u"their content, whatever they are called now."_s;
}

QString KeepingLines::found(qsizetype count, qsizetype missing, const QString &folder, bool wasStopped)
{
    const QString place = QDir::toNativeSeparators(folder);
    const QString stopped = wasStopped ? u" It was stopped before all was looked at."_s : QString();
    if (count == 0)
        return u"None of the missing pictures lies in %1.%2"_s.arg(place, stopped);
    return u"%1 of %2 missing pictures found in %3.%4"_s.arg(number(count), number(missing), place, stopped);
}

QString KeepingLines::link(qsizetype count)
{
    if (count == 0)
        return u"Lin&k"_s;
    return count == 1 ? u"Lin&k 1 Picture"_s : u"Lin&k %1 Pictures"_s.arg(number(count));
}

QString KeepingLines::linked(qsizetype count)
{
    return u"Found again: "_s + AlbumLines::pictures(count);
}

QString KeepingLines::alikeFound(qsizetype groups, bool wasStopped)
{
    const QString stopped = wasStopped ? u" It was stopped before all was looked at."_s : QString();
    if (groups == 0)
        return u"No two pictures are alike."_s + stopped;
    const QString there = groups == 1 ? u"One picture is there more than once."_s
                                      : u"%1 pictures are there more than once."_s.arg(number(groups));
    return there + u' ' + alikeHint() + stopped;
}

QString KeepingLines::group(qsizetype count, bool isSame)
{
    return AlbumLines::pictures(count) + (isSame ? u", the same content"_s : u", another size or turn"_s);
}

QString KeepingLines::alikeFacts(const Photo &photo, const QString &date, const QStringList &albums)
{
    QStringList lines{photo.caption, photo.fileName(), AlbumWindowLines::facts(photo), date,
                      albums.join(u", "_s)};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

Message KeepingLines::trashQuestion(const QStringList &names)
{
    const QString what =
        names.size() == 1
            ? u"Move this picture into the trash of the system?"_s
            : u"Move these %1 pictures into the trash of the system?"_s.arg(number(names.size()));
    return {
        u"Photo Album"_s,
        what + u'\n' + some(names) +
            u"\nThey go off the list and out of all albums; the files can be brought back from the trash only."_s,
        Message::Question,
        {Answer::Yes, Answer::No},
        Answer::No};
}

QString KeepingLines::trashed(qsizetype count)
{
    return u"Moved into the trash: "_s + AlbumLines::pictures(count);
}

QString KeepingLines::notTrashed(const QStringList &names)
{
    return u"The system refused to take into its trash: "_s + names.mid(0, mostNamed).join(u", "_s);
}

QString KeepingLines::exported(const AlbumExport::Result &result, const QString &folder)
{
    const QString what = AlbumLines::pictures(result.written);
    const QString place = QDir::toNativeSeparators(folder);
    if (result.isDiskFull)
        return u"The disk is full: %1 stand in %2"_s.arg(what, place);
    if (result.wasStopped)
        return u"Stopped: %1 stand in %2"_s.arg(what, place);
    return u"Copied to %2: %1"_s.arg(what, place);
}

QString KeepingLines::exportFaults(const AlbumExport::Result &result)
{
    QStringList parts;
    if (!result.failed.isEmpty())
        parts << u"These could not be copied:\n"_s + some(result.failed);
    if (!result.withoutTexts.isEmpty())
        parts << u"These were copied without what is said of them, since their files take none:\n"_s +
                     some(result.withoutTexts);
    return parts.join(u'\n');
}

Message KeepingLines::exportFaultsMessage(const AlbumExport::Result &result)
{
    return {u"Export"_s, u"Not all of it could be given out whole\n"_s + exportFaults(result),
            Message::Warning};
}

QString KeepingLines::card(qsizetype fresh, int known)
{
    QString there = fresh == 0   ? u"No new pictures"_s
                    : fresh == 1 ? u"1 new picture"_s
                                 : number(fresh) + u" new pictures"_s;
    if (known == 0)
        return there;
    return there + u", %1 that %2 here already"_s.arg(number(known), known == 1 ? u"is"_s : u"are"_s);
}

QString KeepingLines::cardOffer(const QString &name, qsizetype fresh)
{
    return name + u": "_s + card(fresh, 0);
}

QString KeepingLines::noCards()
{
    return u"No card or telephone with pictures is plugged in."_s;
}

QString KeepingLines::copyIn(qsizetype count)
{
    if (count == 0)
        return u"Copy &In"_s;
    return count == 1 ? u"Copy &In 1 Picture"_s : u"Copy &In %1 Pictures"_s.arg(number(count));
}
