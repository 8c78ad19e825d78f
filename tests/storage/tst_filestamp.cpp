// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/filestamp.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

class TestFileStamp : public QObject
{
    Q_OBJECT
private slots:
    void tellsWhatHappenedToAFile()
    {
        const TestFolder disk;
        const QString name = u"addbk2.fil"_s;
        const auto stamp = [&] { return FileStamp::of(disk.folder(), {u"Addbk1.Fil"_s, u"Addbk2.Fil"_s}); };

        const FileStamp missing = stamp();
        disk.put(name, "one");
        const FileStamp made = stamp();
        QVERIFY(made != missing);
        QCOMPARE(stamp(), made);
        disk.put(name, "longer");
        const FileStamp longer = stamp();
        QVERIFY(longer != made);

        QFile file(disk.path(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(file.fileTime(QFile::FileModificationTime).addSecs(-9),
                                 QFile::FileModificationTime));
        file.close();
        QVERIFY2(stamp() != longer, "as long as before, written at another time");
        QVERIFY(file.remove());
        QCOMPARE(stamp(), missing);
    }
};

QTEST_GUILESS_MAIN(TestFileStamp)
#include "tst_filestamp.moc"
