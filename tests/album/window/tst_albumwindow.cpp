// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumfile.h"
#include "album/model/kepttexts.h"
#include "album/model/photodatewords.h"
#include "album/model/photofile.h"
#include "album/window/albumwindow.h"
#include "album/window/photogrid.h"
#include "album/window/phototiles.h"
#include "album/window/starsbox.h"
#include "album/window/windowlines.h"
#include "shell/controls/droplist.h"
#include "shell/controls/itemdrag.h"
#include "shell/controls/panerows.h"
#include "shell/core/area.h"
#include "tests/album/model/albumbytes.h"
#include "tests/support/failingdisk.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"
#include "tests/support/testphotographs.h"

#include <QCheckBox>
#include <QCompleter>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray grandmother = albumBytes({{0, "ALB1"}, {12, QByteArray(1, 0)}, {16, "Grandmother"}});

/// The path of a picture, its caption and its date.
QByteArray picture(const QByteArray &name, const QByteArray &caption, const QByteArray &date)
{
    return pictureBytes({{0, "PIC1"}, {4, "Pictures/" + name}, {516, caption}, {2356, date}, {2388, "\x01"}});
}

} // namespace

/// The photo album on 21 November 2026. Its four pictures: Anne of 1974, a boat, a cat, and one without a
/// caption.
class TestAlbumWindow : public OpenWindow<PhotoVIEW1>
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(m_cache.isValid());
        qputenv("XDG_CACHE_HOME", m_cache.path().toLocal8Bit());
    }
    void cleanup() { close(); }

    void aFirstFolderIsTakenInAtOnePress()
    {
        makeProgram();
        m_test->setBytes(PhotoFile::name, {});
        QFile::remove(m_test->path(PhotoFile::name));
        QFile::remove(m_test->path(AlbumFile::name));
        open();
        QVERIFY(find<QPushButton>("firstFolder")->hasFocus());
        QVERIFY(!m_test->folder.exists(PhotoFile::name)); // opening alone writes nothing
        m_test->dialogs.willChooseFile(m_test->path(u"Pictures"_s));
        key(Qt::Key_Space);
        QTRY_COMPARE(shown(), 4);
        QCOMPARE(m_test->bytes(PhotoFile::name).size() % 2560, 0);
        QVERIFY(field(1, 0, 4) == "PIC1" && field(1, 4, 512).startsWith("Pictures/"));
        QTRY_VERIFY(said().contains(u"4 pictures taken in"_s));
        QTRY_VERIFY(grid()->hasFocus()); // the button has gone
        QCOMPARE(grid()->currentIndex().row(), 0);
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown(), 0);
    }

    void tabGoesThroughAllThatIsKnownOfAPicture()
    {
        makeProgram();
        open();
        find<QWidget>("photoCaption")->setFocus();
        QStringList names;
        for (int i = 0; i < 6; ++i) {
            key(Qt::Key_Tab);
            names << m_window->focusWidget()->objectName();
        }
        QCOMPARE(names, QStringList({u"photoPeople"_s, u"photoDate"_s, u"photoPlace"_s, u"photoTags"_s,
                                     u"photoStory"_s, u"photoStars"_s}));
    }

    void goesThroughThePicturesByKeys_data()
    {
        // where it stands, the key, where it goes
        rows<int, Qt::Key, int>({{"right", 1, Qt::Key_Right, 2},
                                 {"right, at the end of a row", 2, Qt::Key_Right, 3},
                                 {"left, at the beginning of a row", 3, Qt::Key_Left, 2},
                                 {"down", 1, Qt::Key_Down, 3},
                                 {"down, where nothing lies straight below", 2, Qt::Key_Down, 4},
                                 {"up", 4, Qt::Key_Up, 2},
                                 {"up, in the first row", 2, Qt::Key_Up, 2},
                                 {"home", 4, Qt::Key_Home, 1},
                                 {"end", 1, Qt::Key_End, 4},
                                 {"page down", 2, Qt::Key_PageDown, 4},
                                 {"a letter", 1, Qt::Key_C, 3}});
    }
    void goesThroughThePicturesByKeys()
    {
        const auto [from, pressed, to] = row<int, Qt::Key, int>();
        makeProgram();
        open();
        m_window->resize(900, 700);
        find<QSlider>("photoSize")->setValue(PictureGrid::greatestSide);
        for (int side = PictureGrid::greatestSide; grid()->columns() != 2 && side > PictureGrid::leastSide;
             --side)
            find<QSlider>("photoSize")->setValue(side);
        QCOMPARE(grid()->columns(), 2);
        choose({from});
        key(pressed);
        QCOMPARE(grid()->chosenRecords(), QList<int>{to});
    }

    void whatIsTypedIsInTheRecordAtOnce_data()
    {
        // the box, what is typed, where it stands in the record, as which bytes
        rows<QByteArray, QString, int, QByteArray>(
            {{"a caption", "photoCaption", u"Anne and Karin at the lake"_s, 516,
              "Anne and Karin at the lake"},
             {"an accent becomes one letter", "photoCaption", u"Cafe\u0301"_s, 516, "Caf\xC3\xA9"},
             {"people", "photoPeople", u"Anne Lind;Karin"_s, 2036, "Anne Lind; Karin"},
             {"a vague date", "photoDate", u"about 1974"_s, 2356, "1974~"},
             {"a season", "photoDate", u"summer 82"_s, 2356, "1982-22"},
             {"a place", "photoPlace", u"Siljan"_s, 1796, "Siljan"},
             {"tags", "photoTags", u"garden; summer"_s, 1876, "garden; summer"}});
    }
    void whatIsTypedIsInTheRecordAtOnce()
    {
        const auto [box, typed, at, bytes] = row<QByteArray, QString, int, QByteArray>();
        makeProgram();
        open();
        choose({2});
        const QByteArray before = m_test->bytes(PhotoFile::name);
        type(box, typed);
        QCOMPARE(field(2, at, bytes.size() + 1), bytes + '\0');
        QVERIFY(grid()->hasFocus()); // Enter goes on in the pictures
        QCOMPARE(m_test->bytes(PhotoFile::name).left(2560), before.left(2560));
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_test->bytes(PhotoFile::name), before);
        QVERIFY(find<QLineEdit>(box)->text() != typed);
    }

    void escapeGivesUpWhatWasTyped()
    {
        makeProgram();
        open();
        choose({1});
        const QByteArray before = m_test->bytes(PhotoFile::name);
        key(Qt::Key_F2);
        QTest::keyClicks(m_window->focusWidget(), u"Annette"_s);
        key(Qt::Key_Escape);
        QVERIFY(grid()->hasFocus());
        QCOMPARE(find<QLineEdit>("photoCaption")->text(), u"Anne"_s);
        QCOMPARE(m_test->bytes(PhotoFile::name), before);
        QVERIFY(m_window->isVisible());
    }

    void whatIsNoDateStaysToBeMended()
    {
        makeProgram();
        open();
        choose({1});
        const QByteArray before = field(1, 2356, 33);
        type("photoDate", u"some day"_s);
        QCOMPARE(said(), PhotoDateWords::refusal());
        QCOMPARE(find<QLineEdit>("photoDate")->text(), u"some day"_s);
        QTRY_VERIFY(find<QLineEdit>("photoDate")->hasFocus());
        QCOMPARE(field(1, 2356, 33), before);
        const std::array<std::function<void()>, 3> ways{[this] { choose({2}); },
                                                        [this] { chooseInPane(u"Grandmother"_s); },
                                                        [this] {
                                                            trigger("mVLarge");
                                                            trigger("mVNext");
                                                        }};
        for (const auto &way : ways) { // not before it is mended, or given up
            way();
            QTRY_COMPARE(grid()->chosenRecords(), QList<int>{1});
            QTRY_VERIFY(find<QLineEdit>("photoDate")->hasFocus());
        }
        QCOMPARE(labelText("largeTitle"), u"Anne"_s);
        QCOMPARE(shown(), 4);
        QCOMPARE(find<QLineEdit>("photoDate")->text(), u"some day"_s);
        key(Qt::Key_Escape);
        QCOMPARE(find<QLineEdit>("photoDate")->text(), u"1974"_s);
        trigger("mVBack");
        choose({2});
        QCOMPARE(grid()->chosenRecords(), QList<int>{2});
    }

    void whatTheDiskRefusesStaysInItsBox_data()
    {
        rows<QByteArray, qsizetype>({{"a caption", "photoCaption", 516}, {"tags", "photoTags", 1876}});
    }
    void whatTheDiskRefusesStaysInItsBox()
    {
        const auto [box, at] = row<QByteArray, qsizetype>();
        makeProgram();
        open();
        choose({1});
        const QByteArray before = field(1, at, 64);
        {
            const FailingDisk full(DiskFailure::TheEnd, 1);
            type(box, u"at the lake"_s);
            QTRY_VERIFY(find<QLineEdit>(box)->hasFocus());
        }
        QCOMPARE(find<QLineEdit>(box)->text(), u"at the lake"_s);
        QCOMPARE(field(1, at, 64), before);
        key(Qt::Key_Return);
        QCOMPARE(field(1, at, 12), QByteArray("at the lake\0", 12));
        QVERIFY(grid()->hasFocus());
    }

    void whatBothChangedIsSettledAtOnceAndTakenBack()
    {
        if (!KeptTexts::isBuiltIn())
            QSKIP("built without the library for texts in pictures");
        makeProgram();
        const QDate today = m_test->clock.today();
        for (const QString &name : {u"Pictures/A.jpg"_s, u"Pictures/B.jpg"_s}) {
            PictureTexts texts;
            texts.caption = u"Karin"_s;
            QVERIFY(KeptTexts::write(m_test->path(name), texts, KeptTexts::Into::Picture, today).isKept);
        }
        open();
        QTRY_COMPARE(said(), AlbumWindowLines::conflicts(2));
        find<QAction>("mPBoth")->trigger();
        find<QCheckBox>("conflictOthers")->click();
        find<QPushButton>("takePicture")->click();
        QVERIFY(grid()->isVisible());
        for (const int record : {1, 2})
            QCOMPARE(field(record, 516, 6), QByteArray("Karin\0", 6));
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field(1, 516, 6), QByteArray("Anne\0\0", 6));
        QCOMPARE(field(2, 516, 6), QByteArray("Boat\0\0", 6));
        QTRY_VERIFY(find<QAction>("mPBoth")->isEnabled());
    }

    void severalPicturesAreSpokenOfAtOnce()
    {
        makeProgram();
        open();
        choose({2});
        type("photoTags", u"boat"_s);
        choose({1});
        key(Qt::Key_Space); // marks the first, which stays marked while one goes on
        key(Qt::Key_Right);
        key(Qt::Key_Space);
        QCOMPARE(grid()->chosenRecords(), (QList<int>{1, 2}));
        key(Qt::Key_4);
        QCOMPARE(field(1, 2390, 1), QByteArray("\x04"));
        QCOMPARE(field(2, 2390, 1), QByteArray("\x04"));
        QCOMPARE(field(3, 2390, 1), QByteArray(1, '\0'));
        QVERIFY(find<QLineEdit>("photoTags")->text().isEmpty()); // they share none
        type("photoTags", u"summer"_s);
        QCOMPARE(field(1, 1876, 7), QByteArray("summer\0", 7));
        QCOMPARE(field(2, 1876, 13), QByteArray("boat; summer\0", 13));
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field(2, 1876, 5), QByteArray("boat\0", 5));
    }

    void markingEndsByKeys_data()
    {
        // the key, which are chosen then
        rows<Qt::Key, QList<int>>({{"Esc", Qt::Key_Escape, {3}},
                                   {"a letter goes to another one", Qt::Key_B, {2}},
                                   {"an arrow goes on", Qt::Key_Right, {1, 2}}});
    }
    void markingEndsByKeys()
    {
        const auto [pressed, chosen] = row<Qt::Key, QList<int>>();
        makeProgram();
        open();
        choose({1});
        for (const Qt::Key each : {Qt::Key_Space, Qt::Key_Right, Qt::Key_Space, Qt::Key_Right, pressed})
            key(each);
        QCOMPARE(grid()->chosenRecords(), chosen);
        QCOMPARE(said().contains(u"Esc ends"_s), pressed == Qt::Key_Right);
        QVERIFY(m_window->isVisible());
        key(Qt::Key_Home);
        QCOMPARE(grid()->chosenRecords(), pressed == Qt::Key_Right ? chosen : QList<int>{1});
    }

    /// Two that want the same key would leave it without effect; what is behind a panel is not worked on.
    void noAccessKeyIsTakenTwice_data()
    {
        rows<QByteArray, bool>({{"all", {}, false},
                                {"one large", "mVLarge", false},
                                {"a slide show", "mPShow", true},
                                {"paper", "mOPrt", true},
                                {"giving away", "mPExport", true},
                                {"shifted dates", "mEShift", true},
                                {"alike", "mPAlike", true},
                                {"found again", "mPFind", true}});
    }
    void noAccessKeyIsTakenTwice()
    {
        const auto [command, isPanel] = row<QByteArray, bool>();
        makeProgram();
        open();
        choose({1});
        if (!command.isEmpty())
            trigger(command.constData());
        QHash<QKeySequence, QString> taken;
        const auto take = [&taken](const QString &caption) {
            const QKeySequence key = QKeySequence::mnemonic(caption);
            if (!key.isEmpty() && taken.contains(key))
                QFAIL(qPrintable(caption + u" and "_s + taken.value(key)));
            taken.insert(key, caption);
        };
        for (const QAction *menu : m_window->menuBar()->actions())
            take(menu->text());
        for (const QAbstractButton *button : m_window->findChildren<QAbstractButton *>()) {
            if (button->isVisible())
                take(button->text());
        }
        for (const QLabel *label : m_window->findChildren<QLabel *>()) {
            if (label->isVisible() && label->buddy())
                take(label->text());
        }
        for (const char *name : {"mECap", "mELeft", "mEOff", "mEAll", "mEOpen"})
            QCOMPARE(m_window->findChild<QAction *>(QLatin1StringView(name))->isEnabled(), !isPanel);
    }

    void anAlbumIsMadeNamedAndFilledByDragging()
    {
        makeProgram();
        QFile::remove(m_test->path(AlbumFile::name));
        open();
        key(Qt::Key_N, Qt::ControlModifier);
        auto *box = qobject_cast<QLineEdit *>(m_window->focusWidget());
        QVERIFY(box && box->text() == u"New Album"_s);
        box->selectAll();
        typeInto(box, u"Lake"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_COMPARE(placeField(1, 16, 5), QByteArray("Lake\0", 5));
        QCOMPARE(placeField(1, 0, 4), QByteArray("ALB1"));
        key(Qt::Key_1, Qt::ControlModifier);
        dropOnAlbum({3, 1}, u"Lake"_s);
        QCOMPARE(placeField(2, 0, 12), QByteArray("PLC1\1\0\0\0\3\0\0\0", 12));
        QCOMPARE(placeField(3, 0, 12), QByteArray("PLC1\1\0\0\0\1\0\0\0", 12));
        QCOMPARE(shown(), 4); // all pictures are still shown
    }

    void picturesAreOrderedByHandWhereTheAlbumIs()
    {
        makeProgram();
        open();
        chooseInPane(u"Grandmother"_s);
        QCOMPARE(tiles()->records(), (QList<int>{1, 2, 3}));
        dropBefore({3}, 0);
        QCOMPARE(tiles()->records(), (QList<int>{3, 1, 2}));
        const QByteArray byHand = m_test->bytes(AlbumFile::name);
        trigger("mVDay");
        QCOMPARE(tiles()->records(), (QList<int>{1, 2, 3}));
        dropBefore({3}, 0); // by day, nothing is put anywhere
        QVERIFY(said().contains(u"By Hand"_s));
        trigger("mVHand");
        QCOMPARE(tiles()->records(), (QList<int>{3, 1, 2}));
        QCOMPARE(m_test->bytes(AlbumFile::name), byHand);
        choose({3});
        key(Qt::Key_Delete);
        QCOMPARE(tiles()->records(), (QList<int>{1, 2}));
        QVERIFY(QFile::exists(m_test->path(u"Pictures/C.jpg"_s)));
    }

    void anAlbumBearsItsCover()
    {
        makeProgram();
        open();
        const auto cover = [this] {
            return paneRow(u"Grandmother"_s).data(Qt::DecorationRole).value<QImage>();
        };
        QTRY_VERIFY(!cover().isNull());
        const QImage first = cover();
        chooseInPane(u"Grandmother"_s);
        choose({2});
        trigger("mACover");
        QCOMPARE(placeField(1, 8, 4), QByteArray("\2\0\0\0", 4));
        QTRY_VERIFY(!cover().isNull() && cover() != first);
    }

    void searchesAsOneTypes_data()
    {
        rows<QString, QList<int>>({{"a word of a caption", u"boa"_s, {2}},
                                   {"the year", u"1974"_s, {1}},
                                   {"an album", u"grandm"_s, {1, 2, 3}},
                                   {"a file", u"d.jp"_s, {4}},
                                   {"nothing", u"submarine"_s, {}}});
    }
    void searchesAsOneTypes()
    {
        const auto [words, found] = row<QString, QList<int>>();
        makeProgram();
        open();
        key(Qt::Key_F, Qt::ControlModifier);
        typeInto(m_window->focusWidget(), words);
        QCOMPARE(tiles()->records(), found);
        find<QLineEdit>("photoSearch")->clear();
        QCOMPARE(shown(), 4);
    }

    void oneIsSeenLargeOnTheWayThroughAll()
    {
        makeProgram();
        open();
        choose({1});
        key(Qt::Key_Return);
        QCOMPARE(labelText("largeTitle"), u"Anne"_s);
        QCOMPARE(labelText("largePlace"), u"1 of 4"_s);
        key(Qt::Key_Left);
        QVERIFY(said().contains(u"first"_s));
        key(Qt::Key_Right);
        key(Qt::Key_Right);
        QCOMPARE(labelText("largeTitle"), u"Cat"_s);
        QCOMPARE(find<QLineEdit>("photoCaption")->text(), u"Cat"_s);
        key(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(field(3, 2389, 1), QByteArray("\x01"));
        key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(field(3, 2389, 1), QByteArray("\x03"));
        key(Qt::Key_Escape);
        QVERIFY(grid()->hasFocus());
        QCOMPARE(grid()->chosenRecords(), QList<int>{3});
    }

    void datesOfManyAreShifted()
    {
        makeProgram();
        open();
        choose({2, 3});
        trigger("mEShift");
        find<QSpinBox>("shiftHours")->setValue(3);
        key(Qt::Key_Return);
        QCOMPARE(field(2, 2356, 20), QByteArray("2019-07-05T02:30:00\0", 20));
        QCOMPARE(field(3, 2356, 11), QByteArray("2020-01-01\0", 11)); // a day without a time stays
        QCOMPARE(field(1, 2356, 5), QByteArray("1974\0", 5));
    }

    void namesOfAGuardedAddressBookAreNotOffered_data()
    {
        rows<bool, QStringList>(
            {{"free", false, {u"Anne Lind"_s, u"Karin"_s}}, {"guarded", true, {u"Karin"_s}}});
    }
    void namesOfAGuardedAddressBookAreNotOffered()
    {
        const auto [isGuarded, names] = row<bool, QStringList>();
        makeProgram();
        m_test->functions.add(Function::AddressBook, {.persons = [](const Program &) {
                                  return QList<KnownPerson>{{u"Anne Lind"_s, 7, QDate(1970, 5, 1)}};
                              }});
        m_test->state.protectedAreas.setFlag(Area::AddressBook, isGuarded ? u"YES"_s : QString());
        open();
        choose({1});
        type("photoPeople", u"Karin"_s);
        find<QLineEdit>("photoPeople")->setFocus();
        const QAbstractItemModel *offered = find<QLineEdit>("photoPeople")->completer()->model();
        QStringList found;
        for (int row = 0; row < offered->rowCount(); ++row)
            found.append(offered->index(row, 0).data().toString());
        QCOMPARE(found, names);
        type("photoPeople", u"Anne Lind"_s);
        QCOMPARE(field(1, 2292, 4), isGuarded ? QByteArray(4, '\0') : QByteArray("\7\0\0\0", 4));
        QCOMPARE(labelText("photoAges").contains(u"years old"_s), !isGuarded);
    }

    void aPersonIsChosenFromTheList()
    {
        makeProgram();
        open();
        choose({2});
        type("photoPeople", u"Karl Müller"_s);
        choose({1});
        auto *box = find<QLineEdit>("photoPeople");
        box->setFocus();
        QTest::keyClicks(box, u"Kar"_s);
        QAbstractItemView *list = box->completer()->popup();
        QTRY_VERIFY(list->isVisible());
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        key(Qt::Key_Tab);
        QCOMPARE(field(1, 2036, 13), QByteArray("Karl M\xC3\xBCller\0", 13));
    }

    void isReadAloudByCaptionDateAndPeople()
    {
        makeProgram();
        open();
        choose({1});
        type("photoPeople", u"Anne Lind; Karin"_s);
        QCOMPARE(tiles()->index(0).data(Qt::AccessibleTextRole).toString(),
                 u"Anne, 1974, with Anne Lind and Karin"_s);
    }

    void aFileOfSomebodyElseIsLeftAloneUntilItIsSetAside()
    {
        makeProgram();
        const QByteArray foreign(3000, 'x');
        m_test->setBytes(PhotoFile::name, foreign);
        open();
        QVERIFY(said().contains(PhotoFile::name));
        QVERIFY(!find<QAction>("mPAdd")->isEnabled());
        QCOMPARE(m_test->bytes(PhotoFile::name), foreign);
        QTest::mouseClick(find<QToolButton>("statusWay"), Qt::LeftButton);
        QVERIFY(!m_test->folder.exists(PhotoFile::name));
        QCOMPARE(m_test->bytes(u"Photobk3 (set aside).Fil"_s), foreign);
        QVERIFY(find<QAction>("mPAdd")->isEnabled());
    }

private:
    void makeProgram()
    {
        m_test = std::make_unique<TestProgram>();
        QVERIFY(QDir().mkpath(m_test->path(u"Pictures"_s)));
        for (int which = 0; which < 4; ++which) {
            const QString name = u"Pictures/%1.jpg"_s.arg(QChar(u'A' + which));
            TestPhotographs::save(m_test->path(name),
                                  TestPhotographs::jpeg(TestPhotographs::draw({120, 90}, which)));
        }
        const QByteArray pictures = picture("A.jpg", "Anne", "1974") +
                                    picture("B.jpg", "Boat", "2019-07-04T23:30:00") +
                                    picture("C.jpg", "Cat", "2020-01-01") + picture("D.jpg", {}, "2021");
        m_test->setBytes(PhotoFile::name, pictures);
        QByteArray albums = grandmother;
        for (const char number : {1, 2, 3})
            albums += albumBytes({{0, "PLC1"},
                                  {4, "\x01"},
                                  {8, QByteArray(1, number)},
                                  {13, QByteArray(1, char(4 * number))}});
        m_test->setBytes(AlbumFile::name, albums);
    }
    void open()
    {
        m_window = new PhotoVIEW1(m_test->program);
        showActive(*m_window);
    }
    PhotoGrid *grid() const { return find<PhotoGrid>("photoGrid"); }
    PhotoTiles *tiles() const { return m_window->findChild<PhotoTiles *>(); }
    int shown() const { return tiles()->rowCount(); }
    void choose(const QList<int> &records)
    {
        grid()->setFocus();
        QList<int> rows;
        for (const int record : records)
            rows.append(tiles()->rowOf(record));
        grid()->choose(rows);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_window->focusWidget(), key, modifiers);
    }
    /// Types over what the box holds, and Enter.
    void type(const QByteArray &box, const QString &text)
    {
        auto *line = find<QLineEdit>(box);
        line->setFocus();
        line->selectAll();
        typeInto(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    }
    QByteArray field(int record, qsizetype at, qsizetype width) const
    {
        return m_test->bytes(PhotoFile::name).mid((record - 1) * 2560 + at, width);
    }
    QByteArray placeField(int record, qsizetype at, qsizetype width) const
    {
        return m_test->bytes(AlbumFile::name).mid((record - 1) * 640 + at, width);
    }
    QModelIndex paneRow(const QString &name) const
    {
        const QAbstractItemModel *model = find<DropList>("albumList")->model();
        return model->match(model->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    }
    void chooseInPane(const QString &name)
    {
        auto *list = find<DropList>("albumList");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(paneRow(name)).center());
    }
    void drop(QWidget *onto, QPoint place, const std::vector<int> &records)
    {
        const std::unique_ptr<QMimeData> data = ItemDrag::of(PhotoTiles::dragFormat(), records);
        QDragEnterEvent enter(place, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QDragMoveEvent move(place, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(place, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), static_cast<QDropEvent *>(&move), &drop})
            QCoreApplication::sendEvent(onto, event);
    }
    void dropOnAlbum(const std::vector<int> &records, const QString &album)
    {
        auto *list = find<DropList>("albumList");
        drop(list->viewport(), list->visualRect(paneRow(album)).center(), records);
    }
    void dropBefore(const std::vector<int> &records, int row)
    {
        drop(grid()->viewport(), grid()->visualRect(tiles()->index(row)).center() - QPoint(20, 0), records);
    }

    QTemporaryDir m_cache;
};

QTEST_MAIN(TestAlbumWindow)
#include "tst_albumwindow.moc"
