// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/writing.h"

#include "shell/controls/busycursor.h"
#include "shell/writing/checkedline.h"
#include "shell/writing/checkedtext.h"
#include "shell/writing/correctionfile.h"
#include "shell/writing/writinglines.h"

#include <QSettings>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString languagesKey = QStringLiteral("Writing/languages");

} // namespace

Writing::Writing(WritingHome home, QObject *parent)
    : QObject(parent)
    , m_home(std::move(home))
    , m_spelling(m_home.folder)
{}

void Writing::check(QLineEdit *box)
{
    new CheckedLine(*this, box);
}

CheckedText *Writing::check(QPlainTextEdit *box, const LineStyles &styles)
{
    return new CheckedText(*this, box, styles);
}

void Writing::load()
{
    const FileStamp now = FileStamp::of(m_home.folder, {OwnWords::fileName, CorrectionFile::fileName});
    if (m_isLoaded && now == m_read)
        return;
    m_read = now;
    readFiles();
    if (!m_isLoaded) {
        m_isLoaded = true;
        loadLanguages();
        if (m_home.knownNames)
            m_spelling.setKnownNames(m_home.knownNames());
    }
    emit changed();
}

void Writing::readFiles()
{
    m_spelling.readOwnWords();
    m_corrections = CorrectionFile(m_home.folder).read();
}

void Writing::loadLanguages()
{
    const BusyCursor busy;
    const QStringList chosen = languages();
    const std::vector<DictionaryFiles> found = dictionaries();
    std::vector<std::unique_ptr<Dictionary>> loaded;
    for (const DictionaryFiles &files : found) {
        if (!chosen.contains(files.name))
            continue;
        if (auto dictionary = Dictionary::load(files))
            loaded.push_back(std::move(dictionary));
    }
    m_whyNoSpelling.clear();
    if (loaded.empty())
        m_whyNoSpelling = std::ranges::any_of(found, &DictionaryFiles::isUsable)
                              ? WritingLines::noLanguageChosen()
                              : howToGetOne();
    m_spelling.setDictionaries(std::move(loaded));
}

void Writing::lookAgain()
{
    if (!m_isLoaded || m_spelling.hasDictionary())
        return;
    loadLanguages();
    emit changed();
}

bool Writing::setCorrections(const Corrections &corrections)
{
    if (!CorrectionFile(m_home.folder).save(corrections))
        return false;
    m_corrections = corrections;
    return true;
}

bool Writing::mayCorrectionsBeSaved() const
{
    return CorrectionFile(m_home.folder).mayBeSaved();
}

void Writing::addWord(const QString &word)
{
    const bool isSaved = m_spelling.addOwnWord(word);
    emit said(isSaved ? WritingLines::added(word) : WritingLines::notAdded(word));
    emit changed();
}

void Writing::ignore(const QString &word)
{
    m_spelling.ignore(word);
    emit changed();
}

std::vector<DictionaryFiles> Writing::dictionaries() const
{
    return Dictionaries::found(m_home.dictionaryFolders);
}

QStringList Writing::languages() const
{
    const std::vector<DictionaryFiles> found = dictionaries();
    if (!m_home.store.contains(languagesKey))
        return Dictionaries::firstChoice(found, m_home.systemLanguage);
    const QStringList wanted = m_home.store.value(languagesKey).toStringList();
    QStringList there;
    for (const DictionaryFiles &files : found) {
        if (files.isUsable() && wanted.contains(files.name))
            there += files.name;
    }
    // What was chosen may have been removed from this machine.
    return there.isEmpty() && !wanted.isEmpty() ? Dictionaries::firstChoice(found, m_home.systemLanguage)
                                                : there;
}

void Writing::choose(const QString &language, bool isChosen)
{
    QStringList chosen = languages();
    chosen.removeAll(language);
    if (isChosen)
        chosen += language;
    m_home.store.setValue(languagesKey, chosen);
    loadLanguages();
    emit changed();
}

QString Writing::howToGetOne() const
{
    return WritingLines::howToGetOne(m_home.folder.filePath(u"dictionaries"_s));
}

std::optional<ThesaurusFiles> Writing::thesaurusFiles() const
{
    QStringList wanted = languages();
    if (wanted.isEmpty())
        wanted += m_home.systemLanguage;
    return Thesauri::firstFor(wanted, Thesauri::found(m_home.thesaurusFolders));
}

QString Writing::whyNoThesaurus() const
{
    return thesaurusFiles() ? QString()
                            : WritingLines::howToGetThesaurus(m_home.folder.filePath(u"dictionaries"_s));
}

OtherWordsFound Writing::otherWords(const QString &word)
{
    const auto files = thesaurusFiles();
    if (!files)
        m_thesaurus.reset();
    else if (!m_thesaurus || m_thesaurus->files().idxPath != files->idxPath) {
        const BusyCursor busy;
        m_thesaurus = Thesaurus::open(*files);
    }
    return m_thesaurus ? OtherWords::of(word, *m_thesaurus, m_spelling) : OtherWordsFound{word};
}
