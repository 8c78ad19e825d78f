// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <vector>

/// The two files of a language, "en_US.aff" and "en_US.dic".
struct DictionaryFiles {
    QString name; ///< "en_US"
    QString affPath;
    QString dicPath;
    QByteArray encoding{}; ///< of the files, by the name that they have for it
    QString whyNot{};      ///< why they cannot be used; empty where they can

    bool isUsable() const { return whyNot.isEmpty(); }
    /// "English (United States)".
    QString title() const;
};

/// Finds the dictionaries of this machine.
namespace Dictionaries {

/// Larger ones are not loaded.
inline constexpr qint64 mostBytes = 64 << 20;

/// The folders in which they may lie, the first before the next: beside the program, in the data folder, in
/// the folders that the system's programs share.
QStringList folders(const QString &programFolder, const QString &dataFolder);

/// What lies there, by name, each name once.
std::vector<DictionaryFiles> found(const QStringList &folders);

/// `files` with what they are like now. The library itself says nothing of a file that is missing, torn or
/// none of its own, and calls every word wrong.
DictionaryFiles examined(DictionaryFiles files);

/// The names to begin with: the system's language ("de_AT") with its country, else of another country, else
/// American English, else the first one; nothing where none can be used.
QStringList firstChoice(const std::vector<DictionaryFiles> &found, const QString &systemLanguage);

} // namespace Dictionaries
