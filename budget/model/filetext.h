// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSharedData>
#include <QString>

/// A text as a line of a file has it: UTF-8, with tabs, line ends and backslashes written as "\t", "\n", "\r"
/// and "\\". One that was read stays in the bytes of its file until somebody asks for it.
class FileText
{
public:
    /// The bytes of a file, kept as long as a text in them.
    struct File : QSharedData {
        explicit File(const QByteArray &content)
            : bytes(content)
        {}
        const QByteArray bytes;
    };
    using FilePointer = QExplicitlySharedDataPointer<const File>;

    FileText() = default;
    FileText(const FilePointer &file, const char *at, qsizetype length)
        : m_file(file)
        , m_at(int(at - file->bytes.constData()))
        , m_length(int(length))
    {}
    FileText(const QString &text);

    QString text() const { return plain(bytes()); }
    bool isEmpty() const { return m_length == 0; }
    /// As it stands in the file.
    QByteArrayView bytes() const
    {
        return m_file ? QByteArrayView(m_file->bytes).sliced(m_at, m_length) : QByteArrayView();
    }

    static QByteArray escaped(const QString &text);
    static QString plain(QByteArrayView bytes);

    bool operator==(const FileText &other) const { return bytes() == other.bytes(); }

private:
    FilePointer m_file;
    int m_at = 0;
    int m_length = 0;
};
