// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/saving.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDirIterator>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace {

using Files = QMap<QString, QByteArray>;

const QString name = u"2026.Fil"_s;
const QString part = name + u".quillery-part";
const QString staged = name + u".quillery-staged";

} // namespace

class TestSaving : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }

    void replacesAFile()
    {
        m_files->put(u"WEIGHTTRKER.FIL"_s, "old");
        QVERIFY(replace(u"WeightTrker.Fil"_s, "new"));
        QVERIFY(replace(name, "first, longer"));
        QCOMPARE(files(), (Files{{name, "first, longer"}, {u"WEIGHTTRKER.FIL"_s, "new"}}));
        for (const QByteArray &content : {"second"_ba, ""_ba}) {
            QVERIFY(replace(name, content));
            QCOMPARE(files()[name], content);
        }
        QCOMPARE(files().size(), 2);
    }

    void replacesAFileOnlyByWhatIsReadBackRight()
    {
        m_files->put(u"A.fil"_s, "old");
        const auto isNew = [](const QByteArray &written) { return written == "new"; };
        QVERIFY(!Saving::replaceFile(m_files->folder(), u"A.fil"_s, "other", isNew));
        QCOMPARE(m_files->bytes(u"A.fil"_s), QByteArray("old"));
        QCOMPARE(QDir(m_files->folder().path()).entryList(QDir::Files), QStringList{u"A.fil"_s});
        QVERIFY(Saving::replaceFile(m_files->folder(), u"A.fil"_s, "new", isNew));
        QCOMPARE(m_files->bytes(u"A.fil"_s), QByteArray("new"));
    }

    void keepsTheOldFileOnAFullDisk()
    {
#ifdef Q_OS_UNIX
        m_files->put(name, "old");
        expectWarning("^Cannot write .*2026.Fil");
        {
            const FileSizeLimit limit(1024 * 1024);
            QVERIFY(!replace(name, QByteArray(1024 * 1024 + 1, 'x')));
        }
        QCOMPARE(files(), (Files{{ name, "old" }}));
#else
        QSKIP("needs a limit on file sizes");
#endif
    }

    /// A virus scanner opens what was just written, and keeps it for a moment.
    void waitsForAFileThatIsOpenForAMoment()
    {
        m_files->put(name, "old");
        QFile file(m_files->path(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QThread> reader(QThread::create([&file] {
            QThread::msleep(200);
            file.close();
        }));
        reader->start();
        QVERIFY(replace(name, "new"));
        QVERIFY(reader->wait());
        QCOMPARE(files(), (Files{{name, "new"}}));
    }

    /// Not every system replaces a file that another program holds; none leaves a torn one.
    void keepsAFileWholeThatStaysOpen()
    {
        m_files->put(name, "old");
        QFile file(m_files->path(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const bool isReplaced = replace(name, "new");
        file.close();
        QCOMPARE(files(), (Files{{name, isReplaced ? "new" : "old"}}));
    }

    /// Some systems take paths of more than 260 letters in a form of their own only.
    void replacesAFileDeepInside()
    {
        const QString deep =
            m_files->path(QString(90, u'a') + u'/' + QString(90, u'b') + u'/' + QString(90, u'c'));
        QVERIFY(QDir().mkpath(deep));
        for (const QByteArray &content : {"first"_ba, "second"_ba}) {
            QVERIFY(Saving::replaceFile(DataFolder(deep), name, content));
            QCOMPARE(contentOf(deep + u'/' + name), content);
        }
    }

    void keepsAFolderInTheFilesPlace()
    {
        QVERIFY(QDir().mkdir(m_files->path(name)));
        m_files->put(name + u"/inside", "kept");
        expectWarning("^Cannot replace .*2026.Fil");
        QVERIFY(!replace(name, "new"));
        QCOMPARE(files(), (Files{{name + u"/inside", "kept"}}));
    }

    void failsInAMissingFolder()
    {
        expectWarning("^Cannot write .*2026.Fil");
        QVERIFY(!Saving::replaceFile(DataFolder(m_files->path(u"missing"_s)), name, "new"));
        QVERIFY(!QFile::exists(m_files->path(u"missing"_s)));
    }

    void finishesWhatACrashInterrupted_data()
    {
        const Files others{{u"film.part"_s, "x"}, {u".quillery-part"_s, "x"}};
        rows<Files, Files>({
            {"nothing happened", {{name, "old"}}, {{name, "old"}}},
            {"while writing", {{name, "old"}, {part, "ne"}}, {{name, "old"}}},
            {"while writing the first time", {{part, "ne"}}, {}},
            {"all on disk, old file there", {{name, "old"}, {staged, "new"}}, {{name, "old"}}},
            {"old file gone", {{staged, "new"}}, {{name, "new"}}},
            {"old file emptied", {{name, ""}, {staged, "new"}}, {{name, "new"}}},
            {"old file emptied, other spelling",
             {{u"2026.FIL"_s, ""}, {staged, "new"}},
             {{u"2026.FIL"_s, "new"}}},
            {"files of others", others, others},
        });
    }

    void finishesWhatACrashInterrupted()
    {
        const auto [before, after] = row<Files, Files>();
        for (auto file = before.cbegin(); file != before.cend(); ++file)
            m_files->put(file.key(), file.value());
        Saving::recover(m_files->folder());
        QCOMPARE(files(), after);
    }

private:
    /// All files of the folder, those of its folders too.
    Files files() const
    {
        const QDir folder(m_files->path({}));
        Files files;
        QDirIterator all(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next();
            files[folder.relativeFilePath(path)] = contentOf(path);
        }
        return files;
    }

    [[nodiscard]] bool replace(const QString &file, const QByteArray &content) const
    {
        return Saving::replaceFile(m_files->folder(), file, content);
    }

    std::unique_ptr<TestFolder> m_files;
};

QTEST_APPLESS_MAIN(TestSaving)
#include "tst_saving.moc"
