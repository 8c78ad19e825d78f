// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/corrections.h"
#include "shell/writing/dictionaries.h"
#include "shell/writing/otherwords.h"
#include "shell/writing/spellhighlighter.h"
#include "shell/writing/spelling.h"
#include "storage/filestamp.h"

#include <QLocale>
#include <QObject>

#include <functional>

class CheckedText;
class CheckedBox;
class QLineEdit;
class QPlainTextEdit;
class QSettings;
struct AskedWord;

/// What the spelling of a window stands on.
struct WritingHome {
    const DataFolder &folder;      ///< the household's
    QStringList dictionaryFolders; ///< see `Dictionaries::folders`
    QSettings &store;
    std::function<QStringList()> knownNames{}; ///< asked once, when the languages are loaded
    QString systemLanguage = QLocale::system().name();
    QStringList thesaurusFolders{}; ///< see `Thesauri::folders`
};

/// The spelling and the corrections of one window. Boxes that are given to it mark what is wrong, correct
/// slips while one types, and offer other words in their menu. Nothing is read before the first of them has
/// the focus and has been painted.
class Writing final : public QObject
{
    Q_OBJECT
public:
    explicit Writing(WritingHome home, QObject *parent = nullptr);

    /// From now on `box` is checked, for as long as it lives.
    void check(QLineEdit *box);
    /// The same; `styles` are what its lines have besides the marks.
    CheckedText *check(QPlainTextEdit *box, const LineStyles &styles = {});

    /// Loads the languages that are chosen, the household's words and its corrections; later only what has
    /// changed on the disk.
    void load();
    bool isLoaded() const { return m_isLoaded; }
    /// Why no word can be wrong; empty where one can, and before it is loaded.
    const QString &whyNoSpelling() const { return m_whyNoSpelling; }
    /// Loads what was installed since, where there was nothing before.
    void lookAgain();

    Spelling &spelling() { return m_spelling; }
    const Corrections &corrections() const { return m_corrections; }
    /// False where the disk refuses, or the file there is none that may be written: then nothing changes.
    [[nodiscard]] bool setCorrections(const Corrections &corrections);
    bool mayCorrectionsBeSaved() const;
    /// Why nothing of the household can be changed; empty where it can.
    const QString &whyReadOnly() const { return m_home.folder.whyReadOnly(); }
    /// Adds `word` to the household's own, and says how that went.
    void addWord(const QString &word);
    void ignore(const QString &word);

    /// What is installed, and the names of what is chosen: the user's choice, not the household's.
    std::vector<DictionaryFiles> dictionaries() const;
    QStringList languages() const;
    void choose(const QString &language, bool isChosen);
    QString howToGetOne() const;

    /// What the thesaurus of the first of the languages that has one knows of `word`; opens it on first use.
    OtherWordsFound otherWords(const QString &word);
    /// Why nothing can be looked up; empty where it can.
    QString whyNoThesaurus() const;

    /// From now on the boxes have a thesaurus in the menu of a word: `open` shows it.
    using OpenThesaurus = std::function<void(CheckedBox *, const AskedWord &)>;
    void offerThesaurus(OpenThesaurus open) { m_openThesaurus = std::move(open); }
    bool offersThesaurus() const { return bool(m_openThesaurus); }
    void askThesaurus(CheckedBox *box, const AskedWord &asked) const { m_openThesaurus(box, asked); }

signals:
    /// Another word may be right or wrong now.
    void changed();
    /// A sentence for the status bar.
    void said(const QString &line);

private:
    void loadLanguages();
    void readFiles();
    std::optional<ThesaurusFiles> thesaurusFiles() const;

    WritingHome m_home;
    Spelling m_spelling;
    Corrections m_corrections;
    QString m_whyNoSpelling;
    FileStamp m_read;
    bool m_isLoaded = false;
    std::unique_ptr<Thesaurus> m_thesaurus;
    OpenThesaurus m_openThesaurus;
};
