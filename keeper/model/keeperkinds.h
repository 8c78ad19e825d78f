// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"

#include <span>

/// The seven kinds of entry, and the boxes that each has.
namespace KeeperKinds {

/// What is typed into a box.
enum class Input { Line, Lines, Date, Address, Password, OneTimeSecret };

/// One box of a kind.
struct Box {
    quint8 id = 0;
    QStringView caption;
    Input input = Input::Line;
    bool isSecret = false;
};

/// The kinds in the order in which they are offered.
inline constexpr EntryKind all[] = {EntryKind::LogIn, EntryKind::BankAccount, EntryKind::Card,
                                    EntryKind::WiFi,  EntryKind::Licence,     EntryKind::Document,
                                    EntryKind::Note};

/// "Log-in", "Bank account" and so on.
QString name(EntryKind kind);

/// The word that stands for the kind in the file ("login", "bank", "card", "wifi", "licence", "document",
/// "note").
QString word(EntryKind kind);
/// The kind of that word; a note for a word that nobody knows.
EntryKind kind(QStringView word);

/// The kind's own boxes in their order, without title, tags, member, favourite, expiry date and notes, which
/// all have.
std::span<const Box> boxes(EntryKind kind);

/// Whether a field of this number is a secret whatever the entry says.
bool isSecret(quint8 id);

/// What a field is called on the screen and on paper; an own field has its own name.
QString caption(const KeeperText &field);

} // namespace KeeperKinds
