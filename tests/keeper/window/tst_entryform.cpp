// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperkinds.h"
#include "keeper/window/entryform.h"
#include "keeper/window/secretbox.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

/// An entry that has a text in every box of its kind and in all others.
KeeperEntry full(EntryKind kind)
{
    KeeperEntry entry{.id = QByteArray(16, 'i'), .fields = {}};
    entry.setKind(kind);
    entry.setText(KeeperField::Title, u"Power company"_s);
    for (const KeeperKinds::Box &box : KeeperKinds::boxes(kind))
        entry.setText(box.id, box.input == KeeperKinds::Input::Date
                                  ? u"2026-03-04"_s
                                  : QString(u"text of "_s + box.caption.toString()));
    entry.setText(KeeperField::Notes, u"first\nsecond \u2603"_s);
    entry.setTags({u"bank"_s, u"home"_s});
    entry.setText(KeeperField::Member, u"Anne"_s);
    entry.setText(KeeperField::Expires, u"2027-01-31"_s);
    entry.setText(KeeperField::Favourite, u"1"_s);
    entry.fields.append({77, true, {}, u"of a later version"_s});
    entry.fields.append({KeeperField::Own, true, u"Question"_s, u"Rex"_s});
    entry.fields.append({KeeperField::Own, false, {}, u"without a name"_s});
    return entry;
}

} // namespace

class TestEntryForm : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestProgram>();
        m_window = std::make_unique<QMainWindow>();
        m_form = new EntryForm(m_test->program, m_window.get());
        m_window->setCentralWidget(m_form);
        m_window->resize(700, 900);
        showActive(*m_window);
    }

    void givesBackWhatItWasGiven_data()
    {
        QTest::addColumn<int>("kind");
        for (const EntryKind kind : KeeperKinds::all)
            QTest::newRow(qPrintable(KeeperKinds::name(kind))) << int(kind);
    }
    void givesBackWhatItWasGiven()
    {
        QFETCH(int, kind);
        const KeeperEntry entry = full(EntryKind(kind));
        m_form->load(full(EntryKind::Card));
        m_form->load(entry);
        QVERIFY(!m_form->isModified());
        const KeeperEntry back = m_form->entry();
        QCOMPARE(back.id, entry.id);
        QCOMPARE(back.fields.size(), entry.fields.size());
        for (const KeeperText &field : entry.fields)
            QVERIFY2(back.fields.contains(field), qPrintable(field.text));
    }

    void knowsWhatWasTyped()
    {
        m_form->load(full(EntryKind::LogIn));
        QSignalSpy edited(m_form, &EntryForm::edited);
        auto *user = control<QLineEdit>(*m_form, "entryBox_3");
        QTest::keyClicks(user, u"x"_s);
        QVERIFY(m_form->isModified());
        QVERIFY(!edited.isEmpty());
        QTest::keyClick(user, Qt::Key_Backspace);
        QVERIFY(!m_form->isModified());
        QTest::mouseClick(control<QPushButton>(*m_form, "ownRemove_1"), Qt::LeftButton);
        QVERIFY(m_form->isModified());
        m_form->setSaved(m_form->entry());
        QVERIFY(!m_form->isModified());
    }

    void keepsDatesInOneForm()
    {
        m_form->load(full(EntryKind::Document));
        auto *expires = control<QLineEdit>(*m_form, "entryExpires");
        expires->setText(u"2/28/2030"_s);
        QCOMPARE(m_form->entry().text(KeeperField::Expires), u"2030-02-28"_s);
        QCOMPARE(m_form->refusal(), QString());
        expires->setText(u"soon"_s);
        QVERIFY(!m_form->refusal().isEmpty());
        QVERIFY(expires->hasFocus());
        auto *issued = control<QLineEdit>(*m_form, "entryBox_62");
        issued->setText(u"spring 2019"_s);
        QCOMPARE(m_form->entry().text(KeeperField::DocumentIssued), u"spring 2019"_s);
    }

    void wantsATitle()
    {
        m_form->load({});
        QVERIFY(!m_form->refusal().isEmpty());
        QVERIFY(control<QLineEdit>(*m_form, "entryTitle")->hasFocus());
    }

    /// The password typed for a log-in is that of the Wi-Fi that the entry becomes.
    void carriesOverWhatBothKindsHave()
    {
        m_form->load({});
        auto *kind = control<QComboBox>(*m_form, "entryKind");
        kind->setCurrentIndex(0);
        m_form->findChild<SecretBox *>(u"entrySecret_4"_s)->setSecret(u"correct horse"_s);
        kind->setCurrentIndex(int(EntryKind::WiFi));
        QCOMPARE(m_form->entry().text(KeeperField::Password), u"correct horse"_s);
        QCOMPARE(m_form->entry().kind(), EntryKind::WiFi);
        m_form->load(full(EntryKind::LogIn));
        QVERIFY(!kind->isEnabled()); // what is in the file stays what it is
    }

    void turnsAnOwnFieldIntoASecret()
    {
        m_form->load(full(EntryKind::Note));
        control<QCheckBox>(*m_form, "ownIsSecret_1")->click();
        QCOMPARE(m_form->entry().fields.last(),
                 (KeeperText{KeeperField::Own, true, {}, u"without a name"_s}));
        QCOMPARE(control<QLineEdit>(*m_form, "ownText_1")->text(), QString());
    }

    void showsTheSecretThatHasTheFocus()
    {
        m_form->load(full(EntryKind::Card));
        auto *pin = control<SecretBox>(*m_form, "entrySecret_34");
        pin->line().setFocus();
        m_form->toggleSecret();
        QVERIFY(pin->isShown());
        QVERIFY(!control<SecretBox>(*m_form, "entrySecret_31")->isShown());
        m_form->toggleSecret();
        QVERIFY(!m_form->isSecretShown());
    }

    void isForReadingOnlyWhenLocked()
    {
        m_form->load(full(EntryKind::LogIn));
        m_form->setLocked(true);
        for (const char *name : {"entryTitle", "entryBox_3", "entryTags", "entryExpires", "ownText_1"})
            QVERIFY2(control<QLineEdit>(*m_form, name)->isReadOnly(), name);
        QVERIFY(control<QPlainTextEdit>(*m_form, "entryNotes")->isReadOnly());
        QVERIFY(!m_form->isModified());
    }

private:
    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<QMainWindow> m_window;
    EntryForm *m_form = nullptr;
};

QTEST_MAIN(TestEntryForm)
#include "tst_entryform.moc"
