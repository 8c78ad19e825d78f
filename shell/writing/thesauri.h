// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

/// The two files of a language's thesaurus, "th_en_US_v2.idx" and "th_en_US_v2.dat".
struct ThesaurusFiles {
    QString name; ///< "en_US"
    QString idxPath;
    QString datPath;
    QByteArray encoding{}; ///< of the files, by the name that they have for it
};

/// Finds the thesauri of this machine.
namespace Thesauri {

/// Larger ones are not opened.
inline constexpr qint64 mostBytes = 64 << 20;

/// The folders in which they may lie, the first before the next: beside the program, in the data folder, in
/// the folders that the system's programs share.
QStringList folders(const QString &programFolder, const QString &dataFolder);

/// What lies there and can be used, by name, each name once.
std::vector<ThesaurusFiles> found(const QStringList &folders);

/// The one for the first of `languages` ("en_GB") that has one: its own, else that of another country.
std::optional<ThesaurusFiles> firstFor(const QStringList &languages,
                                       const std::vector<ThesaurusFiles> &found);

/// Whether the library may be given these files: it believes what they say about themselves.
bool areSound(const ThesaurusFiles &files);

/// Whether the entry of `word`, in bytes as the files have them, is whole as far as the library needs it.
bool isSound(const ThesaurusFiles &files, const QByteArray &word);

} // namespace Thesauri
