// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/thesaurus.h"

#include "storage/systemfile.h"

#include <mythes.hxx>

#include <utility>

namespace {

/// "cardinal (similar term)"; a word that has nothing but brackets is one.
OtherWord wordOf(const QString &text)
{
    const qsizetype open = text.lastIndexOf(u'(');
    if (open <= 0 || !text.endsWith(u')'))
        return {text.trimmed(), {}};
    return {text.left(open).trimmed(), text.sliced(open + 1).chopped(1).trimmed()};
}

/// "(adj)" in front of the first word.
QString kindOf(const QString &definition)
{
    const qsizetype end = definition.indexOf(u')');
    return definition.startsWith(u'(') && end > 0 ? definition.mid(1, end - 1) : QString();
}

} // namespace

std::unique_ptr<Thesaurus> Thesaurus::open(const ThesaurusFiles &files)
{
    const auto encoding = WordEncoding::named(files.encoding);
    if (!encoding || !Thesauri::areSound(files))
        return nullptr;
    return std::unique_ptr<Thesaurus>(new Thesaurus(files, *encoding));
}

Thesaurus::Thesaurus(ThesaurusFiles files, WordEncoding encoding)
    : m_files(std::move(files))
    , m_encoding(encoding)
    , m_words(std::make_unique<MyThes>(SystemFile::encodedPath(m_files.idxPath).constData(),
                                       SystemFile::encodedPath(m_files.datPath).constData()))
{}

Thesaurus::~Thesaurus() = default;

std::vector<Meaning> Thesaurus::meanings(const QString &word) const
{
    std::vector<Meaning> meanings;
    const std::string bytes = m_encoding.encoded(word);
    if (bytes.empty() || !Thesauri::isSound(m_files, QByteArray::fromStdString(bytes)))
        return meanings;
    mentry *entries = nullptr;
    const int count = m_words->Lookup(bytes.data(), int(bytes.size()), &entries);
    const auto text = [this](const char *letters) {
        return letters ? m_encoding.decoded(QByteArrayView(letters)).trimmed() : QString();
    };
    for (int i = 0; i < count; ++i) {
        Meaning meaning{kindOf(text(entries[i].defn)), {}};
        for (int j = 0; j < entries[i].count; ++j) {
            // A line that is torn ends in nothing, or in what could not be cut up.
            OtherWord other = wordOf(text(entries[i].psyns[j]));
            if (!other.text.isEmpty() && !other.text.contains(u'|'))
                meaning.words.push_back(std::move(other));
        }
        if (!meaning.words.empty())
            meanings.push_back(std::move(meaning));
    }
    m_words->CleanUpAfterLookup(&entries, count);
    return meanings;
}
