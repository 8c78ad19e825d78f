// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/tabtext.h"

QString TabText::cell(QString text)
{
    for (QChar &character : text) {
        if (character == u'\t' || character == u'\r' || character == u'\n')
            character = u' ';
    }
    return text;
}

QString TabText::row(const QStringList &cells)
{
    QString line;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (i > 0)
            line += u'\t';
        line += cell(cells[i]);
    }
    return line;
}
