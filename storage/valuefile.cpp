// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/valuefile.h"

#include "storage/ansitext.h"
#include "storage/log.h"

#include <QFile>

#include <algorithm>
#include <limits>

namespace {

constexpr char endOfText = 26;

// A plain one-line file holds a path; what is longer is not one of ours.
constexpr qint64 longestLine = qint64(32) * 1024;

bool isSeparator(char byte)
{
    return byte == ',' || byte == '\r' || byte == '\n';
}

/// The bytes up to the characters 26 with which older programs end a file.
QByteArrayView withoutEndMark(QByteArrayView bytes)
{
    while (bytes.endsWith(endOfText))
        bytes.chop(1);
    return bytes;
}

/// The first bytes of the file at `path`, at most `length`; none, and a line in the log, when it cannot be
/// read.
QByteArray readFirst(const QString &path, qint64 length)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(storageLog).noquote() << "Cannot read" << path << '-' << file.errorString();
        return {};
    }
    return file.read(std::min(length, file.size()));
}

} // namespace

QByteArray ValueFile::encode(const QStringList &values)
{
    QByteArray bytes;
    for (const QString &value : values)
        append(bytes, AnsiText::encode(value));
    return bytes;
}

void ValueFile::append(QByteArray &file, QByteArrayView value)
{
    file += '"';
    qsizetype quote = value.indexOf('"');
    for (; quote >= 0; quote = value.indexOf('"')) {
        const bool wouldClose = quote + 1 < value.size() && isSeparator(value[quote + 1]);
        file.append(value.first(quote)).append(wouldClose ? "''" : "\"");
        value = value.sliced(quote + 1);
    }
    file.append(value).append("\"\r\n");
}

QStringList ValueFile::decode(QByteArrayView bytes)
{
    QStringList values;
    for (Cutter cutter(bytes); !cutter.isAtEnd();)
        values += cutter.take();
    return values;
}

QStringList ValueFile::read(const QString &path)
{
    return decode(readFirst(path, std::numeric_limits<qint64>::max()));
}

QString ValueFile::readLine(const QString &path)
{
    const QByteArray bytes = readFirst(path, longestLine);
    const auto isLineEnd = [](char byte) { return byte == '\r' || byte == '\n'; };
    const auto end = std::ranges::find_if(bytes, isLineEnd);
    return text(withoutEndMark(QByteArrayView(bytes).first(end - bytes.begin())));
}

QString ValueFile::text(QByteArrayView bytes)
{
    if (!bytes.contains('\0'))
        return AnsiText::decode(bytes);
    QByteArray kept = bytes.toByteArray();
    kept.removeIf([](char byte) { return byte == '\0'; });
    return AnsiText::decode(kept);
}

ValueFile::Cutter::Cutter(QByteArrayView bytes)
    : m_rest(withoutEndMark(bytes))
{
    skipBlanks();
}

QByteArrayView ValueFile::Cutter::takeBytes()
{
    const QByteArrayView value = m_rest.startsWith('"') ? takeQuoted() : takeUnquoted();
    if (!m_rest.isEmpty())
        m_rest = m_rest.sliced(m_rest.startsWith("\r\n") ? 2 : 1);
    skipBlanks();
    return value;
}

QString ValueFile::Cutter::take()
{
    const bool isQuoted = m_rest.startsWith('"');
    const QString value = text(takeBytes());
    return isQuoted ? value : AnsiText::trimmedBlanksRight(value).toString();
}

QByteArrayView ValueFile::Cutter::takeQuoted()
{
    m_rest = m_rest.sliced(1);
    qsizetype end = m_rest.indexOf('"');
    while (end >= 0 && end + 1 < m_rest.size() && !isSeparator(m_rest[end + 1]))
        end = m_rest.indexOf('"', end + 1);
    m_isTorn = end < 0;
    const QByteArrayView value = m_isTorn ? m_rest : m_rest.first(end);
    m_rest = m_rest.sliced(m_isTorn ? m_rest.size() : end + 1);
    return value;
}

QByteArrayView ValueFile::Cutter::takeUnquoted()
{
    qsizetype end = 0;
    while (end < m_rest.size() && !isSeparator(m_rest[end]))
        ++end;
    m_isTorn = false;
    const QByteArrayView value = m_rest.first(end);
    m_rest = m_rest.sliced(end);
    return value;
}

void ValueFile::Cutter::skipBlanks()
{
    while (m_rest.startsWith(' '))
        m_rest = m_rest.sliced(1);
}
