// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/setfolder.h"
#include "backup/model/storednames.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

/// Under which names files stand on a disk.
class TestStoredNames : public QObject
{
    Q_OBJECT

private slots:
    void stand_data()
    {
        rows<QStringList, QStringList>(
            {{"as they are", {u" 2026.Cal"_s, u"Zo\u00eb.Fil"_s}, {u" 2026.Cal"_s, u"Zo\u00eb.Fil"_s}},
             {"what FAT refuses",
              {u"a:b"_s, u"q?\"*<>|.x"_s, u"line\nbreak"_s, u"dots..."_s, u"blank /x "_s},
              {u"a%3Ab"_s, u"q%3F%22%2A%3C%3E%7C.x"_s, u"line%0Abreak"_s, u"dots..%2E"_s,
               u"blank%20/x%20"_s}},
             {"spellings",
              {u"Notes.txt"_s, u"notes.TXT"_s, u"NOTES.txt"_s, u"a/B"_s, u"A/b"_s},
              {u"Notes.txt"_s, u"notes ~2.TXT"_s, u"NOTES ~3.txt"_s, u"a/B"_s, u"A/b ~2"_s}},
             {"written and meant", {u"a:b"_s, u"a%3Ab"_s}, {u"a%3Ab"_s, u"a%3Ab ~2"_s}},
             {"a file and a folder",
              {u"Box"_s, u"box/x"_s, u"Crate/x"_s, u"crate"_s},
              {u"Box"_s, u"box ~2/x"_s, u"Crate/x"_s, u"crate ~2"_s}},
             {"names of the set's own",
              {u"sha256sums"_s, u"DISKINFO.bk1"_s},
              {u"sha256sums ~2"_s, u"DISKINFO ~2.bk1"_s}}});
    }
    void stand()
    {
        const auto [names, stored] = row<QStringList, QStringList>();
        StoredNames all;
        QStringList found;
        for (const QString &name : names)
            found.append(all.add(name, 0));
        QCOMPARE(found, stored);
    }

    void numberPieces()
    {
        StoredNames names;
        QCOMPARE(names.add(u"Large.dat"_s, 1), u"Large.dat.001"_s);
        QCOMPARE(names.add(u"Large.dat"_s, 1000), u"Large.dat.1000"_s);
        QCOMPARE(names.add(u"large.DAT.001"_s, 0), u"large.DAT ~2.001"_s);
    }

    void tellWherePicturesWere_data()
    {
        rows<QString, QString>({{"inside", u"/house/Pictures/x.jpg"_s, u"Pictures/x.jpg"_s},
                                {"elsewhere", u"/home/anne/x.jpg"_s, u"Elsewhere/home/anne/x.jpg"_s},
                                {"beside", u"/house 2/x.jpg"_s, u"Elsewhere/house 2/x.jpg"_s},
                                {"on a drive", u"C:/Users/x.jpg"_s, u"Elsewhere/C:/Users/x.jpg"_s}});
    }
    void tellWherePicturesWere()
    {
        const auto [path, name] = row<QString, QString>();
        QCOMPARE(SetFolder::nameOf(u"/house"_s, path), name);
        const bool isElsewhere = name.startsWith(SetFolder::elsewhere);
        QCOMPARE(SetFolder::elsewherePath(name), isElsewhere ? path : QString());
    }
};

QTEST_GUILESS_MAIN(TestStoredNames)
#include "tst_storednames.moc"
