// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/filestamp.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestFileStamp : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatHappenedToAFile();
};

void TestFileStamp::tellsWhatHappenedToAFile()
{
    const QTemporaryDir dir;
    const DataFolder folder(dir.path());
    const QStringList names{u"Addbk1.Fil"_s, u"Addbk2.Fil"_s};
    const QString path = dir.filePath(u"addbk2.fil"_s);
    const auto stamp = [&] { return FileStamp::of(folder, names); };

    const FileStamp missing = stamp();
    QCOMPARE(stamp(), missing);
    QVERIFY(makeFile(path, "one"));
    const FileStamp made = stamp();
    QVERIFY(made != missing);
    QCOMPARE(stamp(), made);
    QVERIFY(makeFile(path, "longer"));
    const FileStamp longer = stamp();
    QVERIFY(longer != made);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(file.fileTime(QFileDevice::FileModificationTime).addSecs(-9),
                             QFileDevice::FileModificationTime));
    file.close();
    QVERIFY2(stamp() != longer, "as long as before, written at another time");
    QVERIFY(file.remove());
    QCOMPARE(stamp(), missing);
}

QTEST_GUILESS_MAIN(TestFileStamp)
#include "tst_filestamp.moc"
