// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/dictionary.h"

#include "shell/writing/dictionaries.h"
#include "storage/ansitext.h"
#include "storage/systemfile.h"

#include <hunspell.hxx>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar typesetApostrophe(u'\u2019');

/// The letters and digits of an encoding's name: "iso88591" for "ISO8859-1" and "ISO-8859-1".
QByteArray plainName(const QByteArray &encoding)
{
    QByteArray name = encoding.toLower();
    name.removeIf([](char character) {
        return (character < 'a' || character > 'z') && (character < '0' || character > '9');
    });
    return name;
}

} // namespace

std::unique_ptr<Dictionary> Dictionary::load(const DictionaryFiles &files)
{
    const DictionaryFiles now = Dictionaries::examined(files);
    if (!now.isUsable())
        return nullptr;
    const QByteArray name = plainName(now.encoding);
    const Encoding encoding = name == "utf8"       ? Encoding::Utf8
                              : name == "iso88591" ? Encoding::Latin1
                                                   : Encoding::Windows1252;
    return std::unique_ptr<Dictionary>(new Dictionary(now, encoding));
}

Dictionary::Dictionary(const DictionaryFiles &files, Encoding encoding)
    : m_words(std::make_unique<Hunspell>(SystemFile::encodedPath(files.affPath).constData(),
                                         SystemFile::encodedPath(files.dicPath).constData()))
    , m_encoding(encoding)
{}

Dictionary::~Dictionary() = default;

std::string Dictionary::encoded(QStringView word) const
{
    std::string letters(std::size_t(word.size()), char());
    std::ranges::transform(word, letters.begin(), [](QChar character) { return character.toLatin1(); });
    const auto isPlain = [](QChar character) { return character.unicode() < 0x80; };
    if (std::ranges::all_of(word, isPlain)) // the same in each of them
        return letters;
    switch (m_encoding) {
    case Encoding::Utf8:
        return word.toUtf8().toStdString();
    case Encoding::Latin1:
        return std::ranges::all_of(word, [](QChar character) { return character.unicode() < 0x100; })
                   ? letters
                   : std::string();
    case Encoding::Windows1252:
        return AnsiText::isHoldable(word) ? AnsiText::encode(word).toStdString() : std::string();
    }
    Q_UNREACHABLE();
}

QString Dictionary::decoded(const std::string &word) const
{
    const QByteArrayView bytes(word.data(), qsizetype(word.size()));
    switch (m_encoding) {
    case Encoding::Utf8:
        return QString::fromUtf8(bytes);
    case Encoding::Latin1:
        return QString::fromLatin1(bytes);
    case Encoding::Windows1252:
        return AnsiText::decode(bytes);
    }
    Q_UNREACHABLE();
}

bool Dictionary::knows(QStringView word) const
{
    const std::string bytes = encoded(word);
    if (!bytes.empty() && m_words->spell(bytes))
        return true;
    // Few dictionaries know the apostrophe of typesetters.
    return word.contains(typesetApostrophe) && knows(word.toString().replace(typesetApostrophe, u'\''));
}

QStringList Dictionary::suggestions(QStringView word) const
{
    QStringList words;
    const std::string bytes = encoded(word);
    if (bytes.empty())
        return words;
    for (const std::string &suggestion : m_words->suggest(bytes))
        words += decoded(suggestion);
    return words;
}
