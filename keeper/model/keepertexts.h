// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"

#include <QString>

#include <optional>

/// How entries are told to files of other programs, and found there: what columns are called, what a title
/// may be made of.
namespace KeeperTexts {

/// An own field as a column: "Own: Customer number", "Own secret: PUK".
struct OwnField {
    QString name;
    bool isSecret = false;
};

QString ownHeading(const KeeperText &field);
std::optional<OwnField> ownField(const QString &heading);
inline bool isOwn(const QString &heading)
{
    return ownField(heading).has_value();
}

/// Whether a kind has a box of that caption.
bool isCaption(const QString &heading);
/// The number of the box of that kind with that caption; 0: it has none.
quint8 boxOf(EntryKind kind, const QString &caption);

/// "one, two", each once and without blanks around it.
QStringList tags(const QString &text);

/// A log-in where it has anything of one, else a note.
EntryKind likelyKind(const KeeperEntry &entry);

/// What an entry without a title is called: by its site, else by its user name, else "Untitled".
QString titleFor(const KeeperEntry &entry);

/// The part of an address by which a site is known, "example.org"; empty where there is none.
QString site(const QString &address);

/// Whether a text has characters that are neither seen nor end a line.
bool hasControls(const QString &text);

} // namespace KeeperTexts
