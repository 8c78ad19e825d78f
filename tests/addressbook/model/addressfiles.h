#pragma once

#include "storage/datafolder.h"
#include "tests/storage/testfiles.h"

#include <QTemporaryDir>

#include <initializer_list>

/// A data folder of its own, with bytes put in and taken out by hand.
class AddressFiles
{
public:
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QByteArray bytes(const QString &name) const { return contentOf(path(name)); }
    void put(const QString &name, const QByteArray &content) const { QVERIFY(makeFile(path(name), content)); }
    const DataFolder &folder() const { return m_folder; }

private:
    QTemporaryDir m_dir;
    DataFolder m_folder{m_dir.path()};
};

inline QByteArray padded(const QByteArray &text, qsizetype width)
{
    return text + QByteArray(width - text.size(), ' ');
}

/// A record of Addbk1.Fil: the first texts given, the rest blank.
inline QByteArray entryBytes(std::initializer_list<QByteArray> texts, const QByteArray &picture = "**")
{
    QByteArray bytes;
    for (const QByteArray &text : texts)
        bytes += padded(text, 40);
    return padded(bytes, 13 * 40) + padded(picture, 200) + "    ";
}

/// A record of Addbk2.Fil; what stands behind the text means nothing.
inline QByteArray lineBytes(const QByteArray &line)
{
    QByteArray bytes(1, char(line.size()));
    bytes += '\0';
    bytes += line;
    return bytes + QByteArray(60 - bytes.size(), 'x');
}

/// The line of a short name.
inline QByteArray lineOf(const QByteArray &names, int record)
{
    return padded(names, 47) + QByteArray::number(record);
}

inline QByteArray neverWritten(int length)
{
    return QByteArray(length, '\0');
}
