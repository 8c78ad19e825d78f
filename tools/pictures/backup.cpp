// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskrecords.h"
#include "backup/model/snapshotrun.h"
#include "backup/window/backup1.h"
#include "backup/window/householdsnapshot.h"
#include "shell/frame/workviews.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QComboBox>
#include <QDir>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 gigabyte = 1'000'000'000;

/// A household with two drives plugged in, the first of which has a backup.
class Drawer
{
public:
    explicit Drawer(const Camera &camera)
        : m_session(camera)
    {}

    PictureSession &session() { return m_session; }

    /// The window on these drives, in place of those of this computer.
    void open()
    {
        const QList<Drive> drives{{.name = u"SILVER"_s,
                                   .folder = folder(u"SILVER"_s),
                                   .free = 21 * gigabyte,
                                   .size = 32 * gigabyte},
                                  {.name = u"Old stick"_s,
                                   .folder = folder(u"Old stick"_s),
                                   .free = gigabyte,
                                   .size = 2 * gigabyte}};
        m_window = std::make_unique<Backup1>(m_session.program(), [drives] { return drives; });
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        m_window->show();
        QTest::qWait(300);
        m_session.use("Backup1");
    }

    /// The last backup that the household knows of was made so many days ago.
    void noteBackup(int days)
    {
        SetRecord last;
        last.set = QByteArray(16, 's');
        last.begun = last.ended = m_session.program().clock.now().addDays(-days).toUTC();
        last.drive = u"SILVER"_s;
        last.disks = 1;
        QFile file(m_session.program().folder.filePath(SetRecord::fileName));
        if (file.open(QIODevice::WriteOnly))
            file.write(DiskRecords::encoded(last));
    }

    void makeSnapshot(int daysAgo)
    {
        SnapshotJob job = HouseholdSnapshot::job(m_session.program());
        job.now = m_session.program().clock.now().addDays(-daysAgo);
        const SnapshotReport report = SnapshotRun(std::move(job)).run();
        if (report.end != SnapshotReport::End::Made)
            qFatal("no snapshot: %s", qPrintable(report.refusal));
    }

    void clickWhenOffered(const char *button)
    {
        wait([&] { return m_session.find<QPushButton>(button).isEnabled(); });
        m_session.click(button);
    }
    void wait(const std::function<bool()> &until) { std::ignore = QTest::qWaitFor(until, 20'000); }
    bool isShown(const char *name) const
    {
        const auto *found = m_window->findChild<QWidget *>(QString::fromLatin1(name));
        return found && found->isVisible();
    }

private:
    QString folder(const QString &name)
    {
        QDir(m_drives.path()).mkpath(name);
        return m_drives.filePath(name);
    }

    PictureSession m_session;
    QTemporaryDir m_drives;
    std::unique_ptr<Backup1> m_window;
};

/// Both sides, a run that asks for its second disk, and what came of one.
void takeSides(Drawer &drawer)
{
    PictureSession &session = drawer.session();
    drawer.noteBackup(34);
    drawer.open();
    session.take("backup");
    drawer.clickWhenOffered("backUpNow");
    drawer.wait([&] { return drawer.isShown("donePanel"); });
    session.take("backup-done");
    session.click("doneReport");
    session.take("backup-report");
    session.key(Qt::Key_Escape);
    session.click("doneFiles");
    session.takePage("backup-page-files");
    session.key(Qt::Key_Escape);
    session.click("doneClose");
    session.trigger("mVRestore");
    session.take("backup-sets");
    session.clickRow("sets", 0);
    drawer.clickWhenOffered("restoreStart");
    drawer.wait([&] { return drawer.isShown("restorePanel"); });
    session.take("backup-restore");
    session.key(Qt::Key_Escape);
    session.trigger("mBSnapshots");
    session.take("backup-snapshots");
    session.key(Qt::Key_Escape);
    session.trigger("mVBackUp");
    session.click("sealSet");
    drawer.clickWhenOffered("backUpNow");
    session.take("backup-seal");
    session.key(Qt::Key_Escape);
    session.click("sealSet");
    auto &sizes = session.find<QComboBox>("diskSize");
    sizes.addItem(u"600 KB"_s, 600'000);
    sizes.setCurrentIndex(sizes.count() - 1);
    emit sizes.activated(sizes.count() - 1);
    QTest::qWait(300);
    drawer.clickWhenOffered("backUpNow");
    drawer.wait([&] { return drawer.isShown("diskQuestion"); });
    session.take("backup-disk-question");
}

/// An address was changed since a snapshot, and another one deleted.
void takeBringBack(Drawer &drawer)
{
    PictureSession &session = drawer.session();
    for (const int days : {60, 4})
        drawer.makeSnapshot(days);
    session.open(Function::AddressBook);
    session.box([&] { session.click("Command3"); },
                [&] {
                    session.key(Qt::Key_Backtab, Qt::ShiftModifier); // from No to Yes
                    session.key(Qt::Key_Space);
                });
    session.click("Command4");
    session.fill("Text1_5", u"Lund"_s);
    session.box([&] { session.click("Command6"); }, [&] { session.key(Qt::Key_Return); });
    session.close();
    drawer.open();
    session.trigger("mVBringBack");
    drawer.wait([&] { return session.find<QTableView>("differences").model()->rowCount() > 0; });
    session.take("backup-bring-back");
    drawer.makeSnapshot(0);
    drawer.open();
    session.trigger("mVBringBack");
    drawer.wait([&] { return drawer.isShown("bringBackEmpty"); });
    session.take("backup-bring-back-none");
}

} // namespace

void Albums::backup(const Camera &camera)
{
    {
        Drawer drawer(camera);
        takeSides(drawer);
    }
    {
        Drawer drawer(camera);
        takeBringBack(drawer);
    }
    {
        Drawer drawer(camera);
        drawer.noteBackup(34);
        drawer.session().openMainMenu();
        drawer.session().take("main-menu-backup-overdue");
    }
    PictureSession session(camera);
    QDir household(session.program().folder.path());
    for (const QString &name : household.entryList(QDir::Files))
        household.remove(name);
    session.openMainMenu();
    session.take("main-menu-empty");
}
