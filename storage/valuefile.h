// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

/// Sequential value files: texts in double quotes, one value a line, CRLF line ends, rewritten whole on each
/// save.
namespace ValueFile {

/// The file of `values`. A quote inside a text that a reader would take for the closing one becomes two
/// apostrophes.
QByteArray encode(const QStringList &values);

/// Adds the line of one value, which is bytes already, to those of a file.
void append(QByteArray &file, QByteArrayView value);

/// The values of a file in order. Also reads commas between values, bare LF or CR line ends, unquoted values,
/// a final character 26, and a file that ends early; a quote closes a text only before a comma, a line end or
/// the end. An empty place between two separators is an empty value; zero bytes read as nothing.
QStringList decode(QByteArrayView bytes);

/// The values of the file at `path`; none when it is missing or cannot be read.
QStringList read(const QString &path);

/// The first line of a plain one-line file, without its line end; empty when the file is missing.
QString readLine(const QString &path);

/// The text of a value's bytes: zero bytes are what a crash leaves in place of text, and never reach a box.
QString text(QByteArrayView bytes);

/// Cuts the bytes of a file into values, one at a time from the left, for a file of thousands of them. It
/// reads what `decode` reads; the bytes outlive it.
class Cutter
{
public:
    explicit Cutter(QByteArrayView bytes);

    bool isAtEnd() const { return m_rest.isEmpty(); }
    /// The bytes of the next value; none at the end.
    QByteArrayView takeBytes();
    /// The same as a text.
    QString take();
    /// Whether the last value was in quotes whose end is missing.
    bool isTorn() const { return m_isTorn; }

private:
    QByteArrayView takeQuoted();
    QByteArrayView takeUnquoted();
    void skipBlanks();

    QByteArrayView m_rest;
    bool m_isTorn = false;
};

} // namespace ValueFile
