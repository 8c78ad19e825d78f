// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todoitem.h"

#include <QByteArray>

/// Lines of the lists' file as bytes: columns separated by tabs. Ids have nine digits at most.
namespace ToDoLine {

enum class Kind : quint8 { Other, Active, Next, List, Item };

inline constexpr int lastId = 999'999'999;

/// No line of ours is longer than this.
inline constexpr qsizetype longest = 0xffff;

/// What is known of a line without decoding its texts.
struct Outline {
    Kind kind = Kind::Other;
    ItemLevel level = ItemLevel::Item;
    int id = 0;     ///< of `Next`, that of the next item
    int list = 0;   ///< of `Next`, the id of the next list
    qint32 due = 0; ///< Julian days; 0: none
    qint32 actual = 0;
    quint16 textAt = 0; ///< from the beginning of the line
    quint16 noteAt = 0; ///< the length of the line where it has none
};

/// `Other` for a line of an unknown kind, and for one that cannot be read.
Outline outline(QByteArrayView line);

/// The column `number` of a line, counted from 0; empty where it has none.
QByteArrayView column(QByteArrayView line, int number);

ToDoList list(QByteArrayView line);
ToDoItem item(QByteArrayView line);

/// The line of a list or an item. A column that says the same as in `former` keeps its bytes from there, and
/// so do the columns beyond the known ones.
QByteArray make(const ToDoList &list, QByteArrayView former = {});
QByteArray make(const ToDoItem &item, QByteArrayView former = {});

/// The line with the digests of the other programs' file.
QByteArray makeActive(QByteArrayView digest, QByteArrayView formerDigest, QByteArrayView former = {});

/// The line with the ids that the next item and the next list get at least.
QByteArray makeNext(int item, int list, QByteArrayView former = {});

} // namespace ToDoLine
