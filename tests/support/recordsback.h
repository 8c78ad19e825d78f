// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/functionrecords.h"
#include "shell/core/recordlines.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QMap>

/// The files of a folder by name.
using FolderFiles = QMap<QString, QByteArray>;

inline void putAll(const TestFolder &folder, const FolderFiles &files)
{
    for (auto file = files.begin(); file != files.end(); ++file)
        folder.put(file.key(), *file);
}

inline FolderFiles filesOf(const TestFolder &folder)
{
    FolderFiles files;
    for (const QString &name : QDir(folder.folder().path()).entryList(QDir::Files | QDir::Hidden))
        files[name] = folder.bytes(name);
    return files;
}

/// Titles and lines of each record: "Budget 2026", "Rent: 100.00 each month". What tells of all of them in
/// one pass says the same.
inline QStringList told(const FunctionRecords &records)
{
    QStringList texts;
    for (const FunctionRecord &record : records.all())
        texts << record.title << records.lines(record.key);
    if (const auto *all = dynamic_cast<const RecordLines *>(&records)) {
        QStringList inOnePass;
        all->visitLines([&inOnePass](const FunctionRecord &record, const QStringList &lines) {
            inOnePass << record.title << lines;
            return true;
        });
        return inOnePass == texts ? texts : QStringList();
    }
    return texts;
}

/// Brings the records `keys` of `from` into the folder: it has the files `expected` then, what it had before
/// when that is taken back, and these again when it is made once more. Nothing is left to bring back then.
/// A change that empties the files that it made has `undone` in the place of what was there.
inline void bringBackAndForth(FunctionRecords &here, const FunctionRecords &from, const QStringList &keys,
                              const TestFolder &folder, const FolderFiles &expected,
                              const std::optional<FolderFiles> &undone = {})
{
    const FolderFiles before = filesOf(folder);
    const RecordsBack back = here.bringBack(from, keys);
    QCOMPARE(back.refusal, QString());
    QCOMPARE(back.keys, keys);
    QVERIFY(back.step);
    QCOMPARE(filesOf(folder), expected);
    QCOMPARE(back.step->undo(), ChangeResult::Done);
    QCOMPARE(filesOf(folder), undone.value_or(before));
    QCOMPARE(back.step->redo(), ChangeResult::Done);
    QCOMPARE(filesOf(folder), expected);
}
