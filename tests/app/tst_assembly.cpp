// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/assembly.h"
#include "shell/core/helpcontexts.h"

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
};

QTEST_MAIN(TestAssembly)
#include "tst_assembly.moc"
