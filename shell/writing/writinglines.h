// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QString>

/// Quiet words of spelling and corrections.
namespace WritingLines {

using namespace Qt::Literals::StringLiterals;

// Why a dictionary cannot be used

inline QString cannotBeRead()
{
    return u"This dictionary cannot be read"_s;
}

inline QString tooLarge()
{
    return u"This dictionary is larger than 64 MB"_s;
}

inline QString unknownEncoding(const QString &encoding)
{
    return u"This dictionary is written in "_s + encoding + u", which Quillery does not read"_s;
}

inline QString notADictionary()
{
    return u"What this dictionary holds is no list of words"_s;
}

// The menu

inline QString noDictionary()
{
    return u"No dictionary is installed"_s;
}

/// `folder`: where one may be put.
inline QString howToGetOne(const QString &folder)
{
    return u"No dictionary is installed: the package hunspell-en-us brings one, or put its .aff and .dic into "_s +
           QDir::toNativeSeparators(folder);
}

inline QString noLanguageChosen()
{
    return u"No language is chosen in the menu Spelling"_s;
}

// Own words

inline QString added(const QString &word)
{
    return u"\u201c%1\u201d is one of the household's own words now"_s.arg(word);
}

inline QString notAdded(const QString &word)
{
    return u"\u201c%1\u201d could not be saved; it counts as right until this window closes"_s.arg(word);
}

// The walk

inline QString everythingIsRight()
{
    return u"Every word is in the dictionary"_s;
}

inline QString notKnown(const QString &word)
{
    return u"\u201c%1\u201d is not in the dictionary"_s.arg(word);
}

inline QString walkIsOver()
{
    return u"That was the last word that is not in the dictionary"_s;
}

inline QString noSuggestion()
{
    return u"No suggestion"_s;
}

// The table of corrections

inline QString tableWords()
{
    return u"What stands at the left is corrected when a blank, a point or Enter follows"_s;
}

inline QString noCorrectionChosen()
{
    return u"No row is chosen"_s;
}

inline QString oneWordOnly()
{
    return u"What is typed is one word, without blanks"_s;
}

inline QString correctionMissing()
{
    return u"Both boxes are needed"_s;
}

inline QString sameWord()
{
    return u"Nothing would be changed by that"_s;
}

inline QString isInTable(const QString &wrong)
{
    return u"\u201c%1\u201d is in the table already"_s.arg(wrong);
}

inline QString tableNotSaved()
{
    return u"The table could not be saved"_s;
}

inline QString tableNotOurs()
{
    return u"The file of the corrections is of a later version or damaged, and is left as it is"_s;
}

inline QString tableRestored()
{
    return u"The first table is back"_s;
}

inline QString isFirstTable()
{
    return u"This is the first table"_s;
}

inline QString nothingToUndo()
{
    return u"Nothing to undo"_s;
}

// The thesaurus

inline QString thesaurusCommand()
{
    return u"T&hesaurus"_s;
}

inline QString noThesaurus()
{
    return u"No thesaurus is installed for this language"_s;
}

/// `folder`: where one may be put.
inline QString howToGetThesaurus(const QString &folder)
{
    return u"The package mythes-en-us brings the English one, or put its .idx and .dat into "_s +
           QDir::toNativeSeparators(folder);
}

inline QString noOtherWords(const QString &word)
{
    return u"\u201c%1\u201d is not in the thesaurus"_s.arg(word);
}

inline QString baseForm(const QString &word)
{
    return u"The base form of \u201c%1\u201d: its ending is not added to the words below"_s.arg(word);
}

inline QString noWordAtCursor()
{
    return u"The cursor stands at no word"_s;
}

inline QString wordHasChanged()
{
    return u"The word does not stand there any more"_s;
}

inline QString noWordTyped()
{
    return u"No word is chosen"_s;
}

inline QString isLookedUp()
{
    return u"This word is the one that is shown"_s;
}

inline QString nothingBefore()
{
    return u"This is the first word"_s;
}

} // namespace WritingLines
