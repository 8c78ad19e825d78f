// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/assembly.h"
#include "app/startup.h"
#include "backup/model/archivefile.h"
#include "shell/core/helpcontexts.h"
#include "storage/changeset.h"
#include "tests/support/testfiles.h"

#include <QApplication>
#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

#include <clocale>

using namespace Qt::Literals::StringLiterals;

class TestAssembly : public QObject
{
    Q_OBJECT
private slots:
    /// Whoever asks for help sees the one manual at the page asked for.
    void opensTheManual()
    {
        const QTemporaryDir place;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, place.path());
        const DataFolder folder(place.path());
        Assembly assembly(folder, folder);
        const auto shown = [] {
            QList<int> pages;
            for (QWidget *window : QApplication::topLevelWidgets())
                if (auto *manual = qobject_cast<HelpViewer *>(window); manual && manual->isVisible())
                    pages.append(manual->currentContext());
            return pages;
        };
        QVERIFY(shown().isEmpty());
        emit assembly.program().changes.helpRequested(HelpContext::BackupAndRestore);
        QCOMPARE(shown(), {HelpContext::BackupAndRestore});
        emit assembly.program().changes.helpRequested(HelpContext::ProgramOverview);
        QCOMPARE(shown(), {HelpContext::ProgramOverview});
    }

    /// Where the user's locale has ASCII alone, or is not installed, a snapshot's names are read all the
    /// same.
    void readsAllLettersInEveryLocale()
    {
        std::setlocale(LC_CTYPE, "C");
        Startup::readAllLetters();
        QBuffer file;
        file.open(QIODevice::ReadWrite);
        ArchiveWriter writer(ArchiveForm::Zip, [&file](QByteArrayView bytes) {
            return file.write(bytes.data(), bytes.size()) == bytes.size();
        });
        QVERIFY(writer.add({u"Zoë Märsh.Fil"_s, 0, {}}, {}) && writer.finish());
        file.seek(0);
        ArchiveReader reader(ArchiveForm::Zip, ArchiveReader::sourceOf(file), {});
        QVERIFY(reader.next());
        QCOMPARE(reader.entry().name, u"Zoë Märsh.Fil"_s);
    }

    /// What a restore has laid down: settings are read behind it, and the desk goes where the user's is.
    void takesUpWhatWasRestored()
    {
        const QTemporaryDir place;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, place.filePath(u"desk"_s));
        const TestFolder household;
        const DataFolder &folder = household.folder();
        QVERIFY(QDir(folder.path()).mkpath(ChangeSet::layingFolder));
        household.put(ChangeSet::layingFolder + u"/0"_s,
                      "[Planner]\nview=@ByteArray(week)\n[Splash]\nwanted=false\n");
        household.put(ChangeSet::layingFolder + u"/1"_s, QByteArray("\4\0Holm", 6));
        ChangeSet change(folder);
        change.takeLaid(u"0"_s, u"Desk.conf"_s);
        change.takeLaid(u"1"_s, u"HINVNAME.FIL"_s);
        QVERIFY(change.leaveToNextStart());
        QSettings(u"Tessaly"_s, u"Quillery"_s).setValue(u"kept"_s, 1);
        Assembly assembly(folder, folder);
        const QSettings &store = assembly.program().store;
        QCOMPARE(store.value(u"Splash/wanted"_s).toBool(), false);
        QCOMPARE(store.value(u"Planner/view"_s).toByteArray(), "week");
        QCOMPARE(store.value(u"kept"_s).toInt(), 1);
        QCOMPARE(assembly.program().settings.text(SettingsKeys::familyName), u"Holm"_s);
        QVERIFY(!folder.exists(u"Desk.conf"_s) && !folder.exists(ChangeSet::layingFolder));
    }
};

QTEST_MAIN(TestAssembly)
#include "tst_assembly.moc"
