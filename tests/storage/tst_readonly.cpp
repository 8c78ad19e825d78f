// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/changeset.h"
#include "storage/openrecordfile.h"
#include "storage/saving.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString name = u"Addbk1.Fil"_s;
using Write = bool (*)(const DataFolder &);

bool commit(const DataFolder &folder)
{
    ChangeSet set(folder);
    set.write(RecordFile(folder, name, 4), 1, "new");
    set.replace(u"New.Fil"_s, "new");
    return set.commit();
}

} // namespace

class TestReadOnly : public QObject
{
    Q_OBJECT
private slots:
    void writesNothingWhereTheSystemWouldAllowIt_data()
    {
        rows<Write>({
            {"a record",
             [](const DataFolder &folder) { return RecordFile(folder, name, 4).write(1, "new"); }},
            {"a record of a missing file",
             [](const DataFolder &folder) { return RecordFile(folder, u"New.Fil"_s, 4).write(1, "new"); }},
            {"a missing file",
             [](const DataFolder &folder) {
                 RecordFile(folder, u"New.Fil"_s, 4).create();
                 return false;
             }},
            {"a record of an open file",
             [](const DataFolder &folder) {
                 OpenRecordFile file(RecordFile(folder, name, 4));
                 return file.read(1) != "old" || file.write(1, "new");
             }},
            {"a missing file that is opened",
             [](const DataFolder &folder) {
                 return !OpenRecordFile(RecordFile(folder, u"New.Fil"_s, 4)).read(1).isEmpty();
             }},
            {"a whole file",
             [](const DataFolder &folder) { return Saving::replaceFile(folder, name, "new"); }},
            {"several writes", commit},
            {"what a crash interrupted",
             [](const DataFolder &folder) {
                 Saving::recover(folder);
                 return !ChangeSet::recover(folder);
             }},
        });
    }

    void writesNothingWhereTheSystemWouldAllowIt()
    {
        const auto [write] = row<Write>();
        const TestFolder test;
        const QMap<QString, QByteArray> before{{name, "old"},
                                               {name + Saving::partSuffix, "ne"},
                                               {u"Weight.Fil"_s + Saving::stagedSuffix, "new"},
                                               {u"2026.Fil"_s + ChangeSet::waitingSuffix, "new"},
                                               {ChangeSet::journalName, "torn"}};
        for (auto file = before.cbegin(); file != before.cend(); ++file)
            test.put(file.key(), file.value());
        QVERIFY(!write(DataFolder(test.path({}), u"For reading only"_s)));
        QMap<QString, QByteArray> after;
        for (const QString &file : QDir(test.path({})).entryList(QDir::Files))
            after[file] = test.bytes(file);
        QCOMPARE(after, before);
    }
};

QTEST_GUILESS_MAIN(TestReadOnly)
#include "tst_readonly.moc"
