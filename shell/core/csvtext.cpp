// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/csvtext.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestName = 60;

QString cellText(const QString &text)
{
    if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n') && !text.contains(u'\r'))
        return text;
    return u'"' + QString(text).replace(u"\""_s, u"\"\""_s) + u'"';
}

} // namespace

QString CsvText::line(const QStringList &cells)
{
    QStringList texts;
    for (const QString &cell : cells)
        texts << cellText(cell);
    return texts.join(u',') + u"\r\n"_s;
}

QByteArray CsvText::file(const QString &lines)
{
    // Without the mark spreadsheets take the letters for those of an older code page.
    return QString(QChar(QChar::ByteOrderMark) + lines).toUtf8();
}

QString CsvText::fileName(const QString &name, const QString &what)
{
    QString base;
    for (const QChar character : name.simplified().left(longestName)) {
        if (character.isPrint() && !u"/\\:*?\"<>|"_s.contains(character))
            base += character;
    }
    while (base.startsWith(u'.'))
        base.remove(0, 1);
    return QString(base + u' ' + what).trimmed() + u".csv"_s;
}
