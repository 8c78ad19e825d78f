// SPDX-License-Identifier: GPL-3.0-or-later
#include "openmainmenu.h"

#include "shell/core/settingskeys.h"
#include "shell/mainmenu/splash.h"
#include "shell/program/backupplace.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window that comes after the opening picture, which must still have the screen then.
class FollowingWindow final : public QWidget
{
public:
    explicit FollowingWindow(const Splash1 &splash)
        : m_splash(splash)
    {}
    bool cameWhileItStood() const { return m_cameWhileItStood; }

protected:
    void showEvent(QShowEvent *) override { m_cameWhileItStood = m_splash.isVisible(); }

private:
    const Splash1 &m_splash;
    bool m_cameWhileItStood = false;
};

} // namespace

class TestFirstLook : public OpenMainMenu
{
    Q_OBJECT
private slots:
    void init()
    {
        make();
        m_persons.clear();
    }
    void cleanup() { close(); }

    void leadsIntoAnEmptyHousehold()
    {
        addBook();
        m_test->setBytes(u"Addbk2.Fil"_s, {}); // somebody looked at it
        show();
        QTRY_VERIFY(line()->isVisible());
        QCOMPARE(shown(), (QStringList{u"Name your family"_s, u"Choose a picture"_s,
                                       u"Type the first address"_s, u"Not now"_s}));
        m_test->dialogs.willInput(u"Holm"_s);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Up); // from the first card
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Right);
        QCOMPARE(m_window->focusWidget()->objectName(), u"firstLookPicture"_s);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Home);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
        QCOMPARE(m_window->windowTitle(), u"Holm Quillery"_s);
        QCOMPARE(shown(), (QStringList{u"Choose a picture"_s, u"Type the first address"_s, u"Not now"_s}));
        QTest::mouseClick(find<QAbstractButton>("firstLookAddress"), Qt::LeftButton);
        QCOMPARE(m_done.opened, QList<int>{int(Function::AddressBook)});
        m_test->setBytes(u"Addbk1.Fil"_s, "Lind");
        m_persons << u"Anne Lind"_s;
        QVERIFY(m_test->settings.setTagged(SettingsKeys::background, u"WP2"_s));
        QWidget other;
        showActive(other);
        showActive(*m_window);
        QTRY_VERIFY(!line()->isVisible());
        asked();
    }

    void leadsBackFromABackup()
    {
        addBook();
        addFunction(Function::Backup);
        FunctionEntry entry = *m_test->functions.entry(Function::Backup);
        QList<Place> places;
        entry.show = [&places](QWidget &, const Place &place) { places << place; };
        m_test->functions.add(Function::Backup, entry);
        show();
        QTRY_VERIFY(line()->isVisible());
        QTest::mouseClick(find<QAbstractButton>("firstLookRestore"), Qt::LeftButton);
        QCOMPARE(places, {BackupPlace::of(BackupPlace::Side::Restore)});
        QVERIFY(asked().isEmpty());
    }

    void keepsTheFocusFromStepToStep()
    {
        addBook();
        show();
        QTRY_VERIFY(line()->isVisible());
        m_test->dialogs.willInput(u"Holm"_s);
        find<QAbstractButton>("firstLookName")->setFocus();
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
        QCOMPARE(m_window->focusWidget()->objectName(), u"firstLookPicture"_s);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Right);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Return); // chooses
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
        QCOMPARE(m_window->focusWidget()->objectName(), u"firstLookAddress"_s);
        asked();
    }

    void isSentAwayForGood()
    {
        addBook();
        show();
        QTRY_VERIFY(line()->isVisible());
        QTest::mouseClick(find<QAbstractButton>("firstLookNotNow"), Qt::LeftButton);
        QVERIFY(!line()->isVisible());
        delete m_window;
        m_test->state.startup = 0;
        show();
        QTest::qWait(20);
        QVERIFY(!line()->isVisible());
    }

    void staysAwayFromAHousehold_data()
    {
        rows<QByteArray, bool>({{"with an entry", "Lind", false}, {"guarded", {}, true}});
    }

    void staysAwayFromAHousehold()
    {
        const auto [entry, isGuarded] = row<QByteArray, bool>();
        addBook();
        if (!entry.isEmpty())
            m_test->setBytes(u"Addbk1.Fil"_s, entry);
        if (isGuarded)
            protectAll();
        show();
        QTest::qWait(20);
        QVERIFY(!line()->isVisible());
    }

    void endsTheOpeningPictureAtAKeyOrAClick_data() { rows<bool>({{"key", true}, {"click", false}}); }

    void endsTheOpeningPictureAtAKeyOrAClick()
    {
        const auto [isKey] = row<bool>();
        Splash1 splash(m_test->program);
        splash.open();
        QTimer::singleShot(0, &splash, [&] {
            if (isKey)
                QTest::keyClick(&splash, Qt::Key_Space);
            else
                QTest::mouseClick(&splash, Qt::LeftButton);
        });
        QElapsedTimer waited; // the clock of the test stands still
        waited.start();
        FollowingWindow next(splash);
        splash.giveWayTo(next);
        QVERIFY(next.isVisible());
        QVERIFY(next.cameWhileItStood());
        QVERIFY(!splash.isVisible());
        QVERIFY2(waited.elapsed() < 1500, qPrintable(QString::number(waited.elapsed())));
    }

    void leavesTheOpeningPictureOut()
    {
        show();
        QVERIFY(Splash1::isWanted(m_test->store));
        QVERIFY(find<QAction>("mOOpening")->isChecked());
        trigger("mOOpening");
        QVERIFY(!Splash1::isWanted(m_test->store));
        QVERIFY(!find<QAction>("mOOpening")->isChecked());
    }

private:
    void addBook()
    {
        addFunction(Function::AddressBook);
        FunctionEntry entry = *m_test->functions.entry(Function::AddressBook);
        entry.names = [this](const Program &) { return m_persons; };
        entry.files = [](const Program &) { return QStringList{u"Addbk1.Fil"_s, u"Addbk2.Fil"_s}; };
        m_test->functions.add(Function::AddressBook, entry);
    }
    QWidget *line() const { return find<QWidget>("firstLook"); }
    QStringList shown() const
    {
        QStringList texts;
        for (const QAbstractButton *link : line()->findChildren<QAbstractButton *>())
            if (link->isVisible())
                texts << link->text();
        return texts;
    }

    QStringList m_persons;
};

QTEST_MAIN(TestFirstLook)
#include "tst_firstlook.moc"
