// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/framelines.h"
#include "shell/frame/picturepanel.h"
#include "tests/addressbook/entry/openaddressbook.h"
#include "tests/support/rows.h"

#include <QTableView>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

using Files = std::pair<QByteArray, QByteArray>;

} // namespace

/// What was done on the entry screen is taken back, byte for byte, and done again.
class TestEntryUndo : public OpenAddressBook
{
    Q_OBJECT
private slots:
    void init()
    {
        open(TestProgram::Household);
        select(2);
    }
    void cleanup() { close(); }

    void bringsBackTheDeletedEntry()
    {
        const Files before = files();
        remove();
        const Files after = files();
        QVERIFY(after != before);
        QCOMPARE(said(), u"Deleted: Anne Miller"_s);
        select(7);
        undo();
        QVERIFY(files() == before);
        QCOMPARE(selectedName(), u"Miller, Anne"_s);
        QCOMPARE(box(1)->text(), u"Anne"_s);
        QVERIFY(list()->hasFocus() && count() == u" 40 - Entries "_s);
        redo();
        QVERIFY(files() == after);
        QCOMPARE(selectedName(), u"Garland, Anne"_s);
    }

    void takesBackAChangeAndItsPicture()
    {
        const Files before = files();
        click("Command4");
        type(0, u"Zorn"_s);
        click("Command4");
        const Files after = files();
        QTest::mouseClick(find<QToolButton>("statusUndo"), Qt::LeftButton);
        QVERIFY(files() == before);
        QCOMPARE(selectedName(), u"Miller, Anne"_s);
        QCOMPARE(box(0)->text(), u"Miller"_s);
        redo();
        QVERIFY(files() == after && selectedName() == u"Zorn, Anne"_s);
        // What is saved as it was is no step.
        click("Command4");
        click("Command4");
        undo();
        QVERIFY(files() == before);
    }

    void takesBackANewEntry()
    {
        open(TestProgram::Empty);
        click("emptyEntryScreen");
        type(0, u"Novak"_s);
        click("Command1");
        QCOMPARE(said(), u"Saved: Novak"_s);
        const Files after = files();
        undo();
        QCOMPARE(count(), u" 0 - Entries "_s);
        QCOMPARE(record(2).first(5), QByteArray("*****"));
        QCOMPARE(index(2).mid(2, 5), QByteArray("#####"));
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
        redo();
        QVERIFY(files() == after);
        QCOMPARE(selectedName(), u"Novak,"_s);
    }

    void takesBackAPictureThatIsNotSaved()
    {
        const QByteArray path = "/pictures/anne.jpg";
        click("Command7");
        emit find<PicturePanel>("picturePanel")->pictureEntered(QString::fromLatin1(path));
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Modify);
        undo();
        QVERIFY(!m_window->isModified() && m_window->mode() == ADDBKVIEW::Mode::View);
        redo();
        QVERIFY(m_window->isModified());
        click("Command4");
        QCOMPARE(record(4).mid(520, path.size()), path);
        undo();
        QVERIFY(record(4).mid(520, path.size()) != path);
    }

    void bringsBackFromTheTrash_data()
    {
        rows<bool, int>({{"into its own record", false, 4}, {"beside who has that record now", true, 24}});
    }

    void bringsBackFromTheTrash()
    {
        const auto [isTaken, goesTo] = row<bool, int>();
        const Files before = files();
        const QByteArray entry = record(4);
        remove();
        if (isTaken) {
            click("Command6");
            type(0, u"Novak"_s);
            click("Command1");
            QCOMPARE(record(4).first(5), QByteArray("Novak"));
        }
        // Days later, in a new window.
        m_test->clock.time = m_test->clock.time.addDays(29);
        show();
        trigger("mEBack");
        auto *deleted = find<QTableView>("trashList");
        QVERIFY(deleted->hasFocus());
        QCOMPARE(deleted->model()->rowCount(), 1);
        QCOMPARE(deleted->model()->index(0, 0).data().toString(), u"Sat, Nov 21, 2026  10:24 AM"_s);
        QCOMPARE(deleted->model()->index(0, 1).data().toString(), u"Anne Miller"_s);
        QTest::keyClick(deleted, Qt::Key_Return);
        QCOMPARE(said(), u"Brought back: Anne Miller"_s);
        QCOMPARE(selectedName(), u"Miller, Anne"_s);
        QCOMPARE(record(goesTo), entry);
        QCOMPARE(files() == before, !isTaken);
        trigger("mEBack");
        QVERIFY(!isOffered("bringBack"));
        QTest::keyClick(deleted, Qt::Key_Escape);
        QVERIFY(list()->hasFocus());
        // It lies there again when that is undone.
        undo();
        trigger("mEBack");
        QVERIFY(isOffered("bringBack"));
    }

    void emptiesTheTrashAgainWithUndo()
    {
        remove();
        undo();
        trigger("mEBack");
        QCOMPARE(labelText("trashWords"), FrameLines::trashIsEmpty());
    }

    void deletesWithoutATrash()
    {
        m_test->setBytes(u"Quillery.trash"_s, "noise");
        remove();
        QVERIFY(said().startsWith(u"Deleted: Anne Miller. "_s));
        QCOMPARE(m_test->bytes(u"Quillery.trash.kept"_s), QByteArray("noise"));
    }

    void asksBeforeTypedTextGivesWay()
    {
        remove();
        click("Command4");
        type(3, u"1 New Road"_s);
        list()->setFocus();
        m_test->dialogs.willAnswer(Answer::Cancel);
        undo();
        QCOMPARE(asked(), {AddressMessages::saveChanges()});
        QCOMPARE(box(3)->text(), u"1 New Road"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        undo();
        asked();
        QCOMPARE(selectedName(), u"Miller, Anne"_s);
        QVERIFY(m_test->bytes(u"Addbk1.Fil"_s).contains("1 New Road"));
    }

    void showsWhatWasWrittenSince()
    {
        for (const bool isRedo : {false, true}) {
            click("Command4");
            type(0, isRedo ? u"Yaro"_s : u"Zorn"_s);
            click("Command4");
            if (isRedo)
                undo();
            QByteArray changed = m_test->bytes(u"Addbk1.Fil"_s);
            changed.replace(3 * 724 + 3 * 40, 5, isRedo ? "Beech" : "Alder");
            m_test->setBytes(u"Addbk1.Fil"_s, changed);
            isRedo ? redo() : undo();
            QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), changed);
            QVERIFY(said().startsWith(u"Changed elsewhere since"_s));
            QVERIFY(box(3)->text().startsWith(isRedo ? u"Beech"_s : u"Alder"_s));
            QVERIFY(!m_window->isModified());
        }
    }

    void neverOverwritesWhatWasWrittenSince()
    {
        remove();
        QByteArray changed = m_test->bytes(u"Addbk1.Fil"_s);
        changed.replace(3 * 724, 5, "Other");
        m_test->setBytes(u"Addbk1.Fil"_s, changed);
        undo();
        QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), changed);
        QVERIFY(said().startsWith(u"Changed elsewhere since"_s));
    }

private:
    Files files() const { return {m_test->bytes(u"Addbk1.Fil"_s), m_test->bytes(u"Addbk2.Fil"_s)}; }
    void remove()
    {
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mODel");
        asked();
    }
    void undo() { trigger("mEUndo"); }
    void redo() { trigger("mERedo"); }
};

QTEST_MAIN(TestEntryUndo)
#include "tst_entryundo.moc"
