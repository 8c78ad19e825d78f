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

/// Zero bytes are what a crash leaves in place of text; they never reach a box.
QString valueText(QByteArrayView bytes)
{
    if (!bytes.contains('\0'))
        return AnsiText::decode(bytes);
    QByteArray kept = bytes.toByteArray();
    kept.removeIf([](char byte) { return byte == '\0'; });
    return AnsiText::decode(kept);
}

/// Cuts the bytes of a file into values, one at a time from the left.
class Cutter
{
public:
    explicit Cutter(QByteArrayView bytes)
        : m_rest(withoutEndMark(bytes))
    {
        skipBlanks();
    }

    bool isAtEnd() const { return m_rest.isEmpty(); }

    QString takeValue()
    {
        QString value = m_rest.startsWith('"') ? takeQuoted() : takeUnquoted();
        takeSeparator();
        skipBlanks();
        return value;
    }

private:
    QString takeQuoted()
    {
        m_rest = m_rest.sliced(1);
        qsizetype end = m_rest.indexOf('"');
        while (end >= 0 && end + 1 < m_rest.size() && !isSeparator(m_rest[end + 1]))
            end = m_rest.indexOf('"', end + 1);
        return end < 0 ? take(m_rest.size()) : take(end, 1);
    }

    QString takeUnquoted()
    {
        qsizetype end = 0;
        while (end < m_rest.size() && !isSeparator(m_rest[end]))
            ++end;
        return AnsiText::trimmedBlanksRight(take(end)).toString();
    }

    QString take(qsizetype length, qsizetype alsoSkip = 0)
    {
        const QByteArrayView value = m_rest.first(length);
        m_rest = m_rest.sliced(length + alsoSkip);
        return valueText(value);
    }

    void takeSeparator()
    {
        if (!m_rest.isEmpty())
            m_rest = m_rest.sliced(m_rest.startsWith("\r\n") ? 2 : 1);
    }

    void skipBlanks()
    {
        while (m_rest.startsWith(' '))
            m_rest = m_rest.sliced(1);
    }

    QByteArrayView m_rest;
};

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
    for (const QString &value : values) {
        const QByteArray text = AnsiText::encode(value);
        bytes += '"';
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] == '"' && i + 1 < text.size() && isSeparator(text[i + 1]))
                bytes += "''";
            else
                bytes += text[i];
        }
        bytes += "\"\r\n";
    }
    return bytes;
}

QStringList ValueFile::decode(QByteArrayView bytes)
{
    QStringList values;
    for (Cutter cutter(bytes); !cutter.isAtEnd();)
        values += cutter.takeValue();
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
    return valueText(withoutEndMark(QByteArrayView(bytes).first(end - bytes.begin())));
}
