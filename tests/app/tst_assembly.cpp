// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/assembly.h"
#include "shell/core/helpcontexts.h"
#include "storage/changeset.h"
#include "tests/support/testfiles.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

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
