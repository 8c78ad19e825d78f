// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>

/// How the files of a language write letters: its dictionary, its thesaurus.
class WordEncoding
{
public:
    /// By the name that the files have for it, "ISO8859-1" say; nothing for one that is not read.
    static std::optional<WordEncoding> named(const QByteArray &name);

    bool isUtf8() const { return m_kind == Kind::Utf8; }
    /// Nothing where the files cannot hold `word`.
    std::string encoded(QStringView word) const;
    QString decoded(QByteArrayView bytes) const;

private:
    enum class Kind { Utf8, Latin1, Windows1252 };

    explicit WordEncoding(Kind kind)
        : m_kind(kind)
    {}

    Kind m_kind;
};
