// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/filetext.h"

FileText::FileText(const QString &text)
    : m_file(new File(escaped(text)))
    , m_length(int(m_file->bytes.size()))
{}

QByteArray FileText::escaped(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    bytes.replace('\\', "\\\\").replace('\t', "\\t").replace('\n', "\\n").replace('\r', "\\r");
    return bytes;
}

QString FileText::plain(QByteArrayView bytes)
{
    QString text = QString::fromUtf8(bytes);
    if (!bytes.contains('\\'))
        return text;
    QString read;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != u'\\' || at + 1 == text.size()) {
            read += text[at];
            continue;
        }
        const QChar meant = text[++at];
        read += meant == u't' ? u'\t' : meant == u'n' ? u'\n' : meant == u'r' ? u'\r' : meant;
    }
    return read;
}
