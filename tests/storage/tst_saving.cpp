// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/saving.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString name = u"2026.Fil"_s;
const QString part = name + u".quillery-part";
const QString staged = name + u".quillery-staged";

} // namespace

class TestSaving : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void replacesAFile();
    void replacesTheFileOfAnotherSpelling();
    void keepsTheOldFileOnAFullDisk();
    void keepsAFolderInTheFilesPlace();
    void failsInAMissingFolder();
    void finishesWhatACrashInterrupted_data();
    void finishesWhatACrashInterrupted();
    void recoversUnderAnotherSpelling();

private:
    QString path(const QString &file) const { return m_dir->filePath(file); }
    QStringList files() const
    {
        return QDir(m_dir->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestSaving::replacesAFile()
{
    const DataFolder folder(m_dir->path());
    QVERIFY(Saving::replaceFile(folder, name, "first, longer"));
    QCOMPARE(contentOf(path(name)), "first, longer"_ba);
    QVERIFY(Saving::replaceFile(folder, name, "second"));
    QCOMPARE(contentOf(path(name)), "second"_ba);
    QVERIFY(Saving::replaceFile(folder, name, ""));
    QCOMPARE(contentOf(path(name)), QByteArray());
    QCOMPARE(files(), QStringList{name});
}

void TestSaving::replacesTheFileOfAnotherSpelling()
{
    QVERIFY(makeFile(path(u"WEIGHTTRKER.FIL"_s), "old"));
    QVERIFY(Saving::replaceFile(DataFolder(m_dir->path()), u"WeightTrker.Fil"_s, "new"));
    QCOMPARE(files(), QStringList{u"WEIGHTTRKER.FIL"_s});
    QCOMPARE(contentOf(path(u"WEIGHTTRKER.FIL"_s)), "new"_ba);
}

void TestSaving::keepsTheOldFileOnAFullDisk()
{
#ifdef Q_OS_UNIX
    QVERIFY(makeFile(path(name), "old"));
    expectWarning("^Cannot write .*2026.Fil");
    {
        const FileSizeLimit limit(1024 * 1024);
        QVERIFY(!Saving::replaceFile(DataFolder(m_dir->path()), name, QByteArray(1024 * 1024 + 1, 'x')));
    }
    QCOMPARE(contentOf(path(name)), "old"_ba);
    QCOMPARE(files(), QStringList{name});
#else
    QSKIP("needs a limit on file sizes");
#endif
}

void TestSaving::keepsAFolderInTheFilesPlace()
{
    QVERIFY(QDir(m_dir->path()).mkdir(name));
    QVERIFY(makeFile(path(name + u"/inside"), "kept"));
    expectWarning("^Cannot replace .*2026.Fil");
    QVERIFY(!Saving::replaceFile(DataFolder(m_dir->path()), name, "new"));
    QCOMPARE(contentOf(path(name + u"/inside")), "kept"_ba);
    QCOMPARE(files(), QStringList{name});
}

void TestSaving::failsInAMissingFolder()
{
    expectWarning("^Cannot write .*2026.Fil");
    QVERIFY(!Saving::replaceFile(DataFolder(path(u"missing"_s)), name, "new"));
    QCOMPARE(files(), QStringList());
}

void TestSaving::finishesWhatACrashInterrupted_data()
{
    using Files = QMap<QString, QByteArray>;
    QTest::addColumn<Files>("before");
    QTest::addColumn<Files>("after");
    QTest::newRow("nothing happened") << Files{{name, "old"}} << Files{{name, "old"}};
    QTest::newRow("while writing") << Files{{name, "old"}, {part, "ne"}} << Files{{name, "old"}};
    QTest::newRow("while writing the first time") << Files{{part, "ne"}} << Files{};
    QTest::newRow("all on disk, old file there")
        << Files{{name, "old"}, {staged, "new"}} << Files{{name, "old"}};
    QTest::newRow("old file gone") << Files{{staged, "new"}} << Files{{name, "new"}};
    QTest::newRow("old file emptied") << Files{{name, ""}, {staged, "new"}} << Files{{name, "new"}};
    QTest::newRow("files of others") << Files{{u"film.part"_s, "x"}, {u".quillery-part"_s, "x"}}
                                     << Files{{u"film.part"_s, "x"}, {u".quillery-part"_s, "x"}};
}

void TestSaving::finishesWhatACrashInterrupted()
{
    using Files = QMap<QString, QByteArray>;
    QFETCH(Files, before);
    for (auto file = before.cbegin(); file != before.cend(); ++file)
        QVERIFY(makeFile(path(file.key()), file.value()));

    Saving::recover(DataFolder(m_dir->path()));

    Files after;
    for (const QString &file : QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden))
        after[file] = contentOf(path(file));
    QTEST(after, "after");
}

void TestSaving::recoversUnderAnotherSpelling()
{
    QVERIFY(makeFile(path(u"2026.FIL"_s), ""));
    QVERIFY(makeFile(path(staged), "new"));
    Saving::recover(DataFolder(m_dir->path()));
    QCOMPARE(files(), QStringList{u"2026.FIL"_s});
    QCOMPARE(contentOf(path(u"2026.FIL"_s)), "new"_ba);
}

QTEST_APPLESS_MAIN(TestSaving)
#include "tst_saving.moc"
