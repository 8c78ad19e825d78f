// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/phototexts.h"

#include <QTextBoundaryFinder>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar ellipsis = u'\u2026';
constexpr qsizetype ellipsisBytes = 3;
/// A text that was cut is no shorter than its room by more than this, which the longest character takes.
constexpr qsizetype mostLeft = 48;

} // namespace

QString PhotoTexts::composed(const QString &text)
{
    QString whole = text.normalized(QString::NormalizationForm_C);
    whole.remove(QChar::Null);
    return whole;
}

bool PhotoTexts::fits(const QString &text, qsizetype bytes)
{
    return composed(text).toUtf8().size() <= bytes;
}

bool PhotoTexts::fitsPath(const QString &path)
{
    const QByteArray bytes = path.toUtf8();
    return !path.isEmpty() && bytes.size() <= pathBytes && !bytes.contains('\0') &&
           QString::fromUtf8(bytes) == path;
}

QString PhotoTexts::cut(const QString &text, qsizetype bytes)
{
    QString whole = composed(text);
    if (fits(whole, bytes))
        return whole;
    // Where the last character begins that has room: a longer one may be made of many.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, whole);
    qsizetype end = 0;
    qsizetype used = 0;
    for (qsizetype next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary()) {
        used += QStringView(whole).sliced(end, next - end).toUtf8().size();
        if (used > bytes - ellipsisBytes)
            break;
        end = next;
    }
    return whole.first(end) + ellipsis;
}

bool PhotoTexts::isCut(const QString &text, qsizetype bytes)
{
    return text.endsWith(ellipsis) && text.toUtf8().size() > bytes - mostLeft;
}

QStringList PhotoTexts::list(const QString &text)
{
    QStringList entries;
    for (const QString &entry : text.split(u';')) {
        const QString name = entry.simplified();
        if (!name.isEmpty() && !entries.contains(name))
            entries.append(name);
    }
    return entries;
}

QString PhotoTexts::joined(const QStringList &list)
{
    QStringList entries;
    for (QString entry : list) {
        entry = composed(entry.replace(u';', u',')).simplified();
        if (!entry.isEmpty() && !entries.contains(entry))
            entries.append(entry);
    }
    return entries.join(u"; "_s);
}
