// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/addressbook/entry/openaddressbook.h"
#include "tests/addressbook/model/addressrecords.h"

#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturelines.h"
#include "tests/support/testpictures.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

/// The address of somebody else, pictures that are dropped or pasted, links.
class TestTypingHelp : public OpenAddressBook
{
    Q_OBJECT
private slots:
    void init() { open(TestProgram::Household); }
    void cleanup() { close(); }

    void takesTheAddressOfWhoWasSavedLast()
    {
        click("Command6");
        typeAll(
            {u"Novak"_s, u"Jana"_s, {}, u"7 Elm Road"_s, {}, u"Lund"_s, u"OH"_s, u"44074"_s, u"555-0142"_s});
        click("Command1");
        type(0, u"Novak"_s);
        QTest::keyClick(box(0), Qt::Key_A, Qt::AltModifier);
        QVERIFY(search()->hasFocus());
        QCOMPARE(labelText("sameAddressGives"), u"7 Elm Road, Lund, OH, 44074, 555-0142"_s);
        QVERIFY(labelText("sameAddressReplaces").isEmpty());
        QTest::keyClick(search(), Qt::Key_Return);
        QVERIFY(box(0)->hasFocus() && !search()->isVisible());
        type(1, u"Bo"_s);
        click("Command1");
        QCOMPARE(record(lineAt(39 + 2).mid(42).trimmed().toInt()),
                 entryBytes({"Novak", "Bo", "", "7 Elm Road", "", "Lund", "OH", "44074", "555-0142"}));
    }

    void tellsWhatItReplacesAndBringsItBack()
    {
        select(1); // Quill, David
        QVERIFY(!find<QWidget>("sameAddress")->isVisible());
        const QString own = box(3)->text(), home = box(8)->text();
        click("Command4");
        trigger("mOMod");
        click("Command4");
        openChooser();
        typeInto(search(), u"kessler, te"_s);
        QVERIFY(labelText("sameAddressGives").startsWith(u"160 High Street"_s));
        QVERIFY(labelText("sameAddressReplaces").contains(own));
        QTest::keyClick(search(), Qt::Key_Escape);
        QCOMPARE(box(3)->text(), own);
        openChooser();
        typeInto(search(), u"kessler, te"_s);
        QTest::keyClick(search(), Qt::Key_Return);
        QCOMPARE(box(3)->text(), u"160 High Street"_s);
        QVERIFY(said().contains(u"Ctrl+Z"_s) && m_window->isModified());
        QTest::keyClick(box(3), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(box(3)->text(), own);
        openChooser();
        typeInto(search(), u"nobody at all"_s);
        QTest::keyClick(search(), Qt::Key_Return); // chooses nothing
        QVERIFY(search()->isVisible());
        clickRow(0); // elsewhere
        QVERIFY(!search()->isVisible());
        m_test->dialogs.willAnswer(Answer::No);
        QTRY_VERIFY(m_test->dialogs.isDone());
    }

    void narrowsAFullBookAtOnce()
    {
        QByteArray lines = neverWritten(60);
        for (int record = 2; record < 50'002; ++record)
            lines += lineBytes(lineOf(record == 49'000 ? "Zander, Amill" : "Amiller, Anne", record));
        m_test->setBytes(u"Addbk2.Fil"_s, lines);
        show();
        click("Command6");
        openChooser();
        QElapsedTimer timer;
        timer.start();
        typeInto(search(), u"zan"_s);
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(find<QListView>("sameAddressNames")->currentIndex().data().toString(), u"Zander, Amill"_s);
    }

    void takesAPictureThatIsPastedOrDropped()
    {
        auto *frame = find<PictureFrame>("Image1");
        select(2); // Miller, Anne, record 4
        const QString jpg = makePicture(m_test->temporary.filePath(u"anne.jpg"_s), {40, 30});
        const QString png = makePicture(m_test->temporary.filePath(u"anne.png"_s), {40, 30});
        m_test->setBytes(u"letter.jpg"_s, "no picture");
        paste({QUrl::fromLocalFile(m_test->path(u"letter.jpg"_s))});
        QCOMPARE(said(), PictureLines::notAPicture());
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::View);
        paste({QUrl::fromLocalFile(jpg)});
        QVERIFY(frame->hasPicture() && frame->hasFocus());
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Modify);
        click("Command4");
        QCOMPARE(record(4).mid(520, 200), padded(QDir::toNativeSeparators(jpg).toLatin1(), 200));
        QVERIFY(m_test->bytes(u"GColor4.Fil"_s)
                    .startsWith(QDir::toNativeSeparators(m_test->temporary.path()).toLatin1()));

        QImage image(30, 40, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QApplication::clipboard()->setImage(image);
        QTest::keyClick(frame, Qt::Key_V, Qt::ControlModifier);
        QVERIFY2(said().contains(u"Anne Miller.jpg"_s), qPrintable(said()));
        drop({QUrl::fromLocalFile(png)}); // a kind that the panel does not offer
        QVERIFY2(said().contains(u"Anne Miller 2.jpg"_s), qPrintable(said()));
        click("Command4");
        const QString second = QDir::toNativeSeparators(m_test->path(u"Pictures/Anne Miller 2.jpg"_s));
        QCOMPARE(record(4).mid(520, 200), padded(second.toLatin1(), 200));
        QCOMPARE(QImage(m_test->path(u"Pictures/Anne Miller.jpg"_s)).pixelColor(3, 3), QColor(Qt::white));
        QApplication::clipboard()->setText(u"words"_s);
        QTest::keyClick(frame, Qt::Key_V, Qt::ControlModifier);
        QVERIFY(!m_window->isModified() && !said().isEmpty());
    }

    void opensWhatTheLinksLeadTo()
    {
        select(0);
        for (const char *link : {"linkHomeCall", "linkMobileCall", "linkMap"}) {
            find<QWidget>(link)->setFocus();
            QTest::keyClick(find<QWidget>(link), Qt::Key_Return);
        }
        QCOMPARE(m_opened.value(0), u"tel:4405550100"_s);
        QCOMPARE(m_opened.value(1), u"tel:4405550100"_s.replace(u"0100"_s, box(9)->text().right(4)));
        QVERIFY(m_opened.value(2).contains(u"160%20High%20Street"_s));
        click("Command6");
        for (const char *link : {"linkHomeCall", "linkMobileCall", "linkMap", "linkMail", "linkWeb"})
            QVERIFY(!find<QWidget>(link)->isVisible());
        type(11, u"jana@novak.example"_s);
        m_opens = false;
        QTest::mouseClick(find<QWidget>("linkMail"), Qt::LeftButton);
        QCOMPARE(m_opened.last(), u"mailto:jana@novak.example"_s);
        QVERIFY(said().contains(u"jana@novak.example"_s));
    }

private:
    QLineEdit *search() const { return find<QLineEdit>("sameAddressSearch"); }
    void openChooser()
    {
        QTest::mouseClick(find<QWidget>("sameAddress"), Qt::LeftButton);
        QVERIFY(search()->isVisible());
    }
    void typeAll(const QStringList &texts)
    {
        for (int field = 0; field < texts.size(); ++field)
            type(field, texts[field]);
    }
    void paste(const QList<QUrl> &urls)
    {
        auto *data = new QMimeData;
        data->setUrls(urls);
        QApplication::clipboard()->setMimeData(data);
        find<QWidget>("Image1")->setFocus();
        QTest::keyClick(find<QWidget>("Image1"), Qt::Key_V, Qt::ControlModifier);
    }
    void drop(const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), &drop})
            QApplication::sendEvent(find<QWidget>("Image1"), event);
    }
};

QTEST_MAIN(TestTypingHelp)
#include "tst_typinghelp.moc"
