// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

struct AddressEntry;

/// Lines of the name list: "Miller, Anne", blanks, and the entry's record number.
namespace IndexLine {

/// The most characters that a record of the index file holds; a longer line is not written.
inline constexpr qsizetype maximumLength = 58;

/// The line of a live entry. The number starts at character 48 when the names leave room, else behind five
/// blanks.
QString make(QStringView lastName, QStringView firstName, int record);

/// The record number that the line leads to: the digits from character 43 on, leading blanks skipped; 0 when
/// there are none. Wrong for names of more than 42 characters, and kept so: other readers of the file count
/// on the column.
int record(QStringView line);
/// The same of a line as it stands in the file: one byte a character.
int record(QByteArrayView line);

/// The names in front of the number: "Miller, Anne".
QStringView name(QStringView line);
/// The same of a line as it stands in the file.
QByteArrayView name(QByteArrayView line);

/// What stands in place of the line of a deleted entry.
QString deletionMark();

/// Whether `name` can be the last name of a live entry: not empty, and not beginning as a mark does.
bool isLastName(QStringView name);

bool isDeleted(QStringView line);
bool isDeleted(QByteArrayView line);

/// Whether the line names this entry. A line that leads to an entry of another name shows it, but nothing may
/// be changed or deleted through it.
bool belongs(QStringView line, const AddressEntry &entry);

/// Whether the number behind these names can be read back: they take at most 42 characters of the line.
bool fits(QStringView lastName, QStringView firstName);

} // namespace IndexLine
