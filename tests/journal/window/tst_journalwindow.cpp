// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/messages.h"
#include "journal/window/hitlist.h"
#include "journal/window/journaltext.h"
#include "journal/window/journalwindow.h"
#include "journal/window/openday.h"
#include "shell/core/place.h"
#include "shell/preview/previewpane.h"
#include "tests/shell/writing/threewords.h"
#include "tests/support/failingdisk.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"
#include "tests/support/testpictures.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTextBlock>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

/// The journal on 21 November 2026, a Saturday.
class TestJournalWindow : public OpenWindow<DJournal>
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    /// From an empty folder to a found entry: by keys alone.
    void isWorkedByKeysOnly()
    {
        open();
        QVERIFY(page()->hasFocus());
        QCOMPARE(shownDay(), u"Saturday, November 21, 2026"_s);
        keys(u"We took the ferry."_s);
        key(Qt::Key_Tab);
        QVERIFY(find<QLineEdit>("entryTags")->hasFocus());
        keys(u"see"_s);
        key(Qt::Key_Z, Qt::ControlModifier); // of the box alone
        QCOMPARE(find<QLineEdit>("entryTags")->text() + page()->text(), u"We took the ferry."_s);
        keys(u"sea, school"_s);
        key(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(said(), u"Saved"_s);
        QCOMPARE(file(), "Quillery journal 1\r\n"
                         "=== 2026-11-21\r\n"
                         "written 2026-11-21 10:24\r\n"
                         "tags sea, school\r\n"
                         "\r\n"
                         "We took the ferry.\r\n"_ba);
        QCOMPARE(labelText("wordCount"), u"4 words"_s);
        key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(shownDay(), u"Friday, November 20, 2026"_s);
        QCOMPARE(page()->text(), QString());
        key(Qt::Key_F, Qt::ControlModifier);
        keys(u"FERRY"_s);
        QTRY_COMPARE(hits(), QStringList{u"Sat, Nov 21, 2026"_s});
        key(Qt::Key_Down);
        key(Qt::Key_Return);
        QCOMPARE(page()->text(), u"We took the ferry."_s);
        QVERIFY(page()->hasFocus());
        QCOMPARE(page()->extraSelections().value(0).cursor.selectedText(), u"ferry"_s); // marked
        key(Qt::Key_F, Qt::ControlModifier);
        key(Qt::Key_Escape);
        QCOMPARE(shownDay(), u"Friday, November 20, 2026"_s); // where the search began
        key(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(page()->text(), u"We took the ferry."_s);
    }

    void writesNothingForALook()
    {
        open();
        trigger("mVBefore");
        trigger("mVToday");
        m_window->close();
        QVERIFY(!m_test->folder.exists(u"DJour2026.Fil"_s));
    }

    void savesByItselfAndOnLeavingTheDay()
    {
        open();
        keys(u"Rain."_s);
        QVERIFY(file().isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(file().contains("Rain.\r\n"), 8000);
        keys(u" Wind."_s);
        trigger("mVBefore");
        QVERIFY(file().contains("Rain. Wind.\r\n"));
    }

    void showsWhatWasWrittenElsewhereBeforeADayWasLeft()
    {
        begin("=== 2026-11-20\r\n\r\nHere.\r\n");
        m_test->setBytes(u"DJour2026.Fil"_s, "Quillery journal 1\r\n=== 2026-11-21\r\n\r\nElsewhere.\r\n");
        trigger("mVBefore");
        QTRY_COMPARE(page()->text(), QString());
        trigger("mVToday");
        QCOMPARE(page()->text(), u"Elsewhere."_s);
    }

    /// Spelling changes how a text looks when it comes to it.
    void callsNoUnderlineAChange()
    {
        begin("=== 2026-11-21\r\n\r\nMarket.\r\n");
        const QSignalSpy edited(m_window->findChild<OpenDay *>(), &OpenDay::edited);
        emit page()->textChanged();
        QCOMPARE(edited.size(), 0);
        keys(u"x"_s);
        const auto typed = edited.size();
        QVERIFY(typed > 0);
        trigger("mOSave");
        emit page()->textChanged();
        QCOMPARE(edited.size(), typed);
        trigger("mEUndo");
        QVERIFY(edited.size() > typed);
    }

    void asksOnlyWhenASaveFailed()
    {
        open();
        keys(u"Rain."_s);
        {
            const FailingDisk full(DiskFailure::TheEnd, 1);
            trigger("mOSave");
            QCOMPARE(page()->text(), u"Rain."_s);
            m_test->dialogs.willAnswer(Answer::No);
            QVERIFY(!m_window->close());
            QCOMPARE(asked(), {JournalMessages::leaveUnsaved()});
        }
        QVERIFY(file().isEmpty());
        QVERIFY(m_window->close());
        QVERIFY(file().contains("Rain."));
    }

    /// Each day has its own, as long as the window is open.
    void undoesDayByDay()
    {
        open();
        keys(u"Today."_s);
        trigger("mVBefore");
        keys(u"Yesterday."_s);
        trigger("mVAfter");
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(page()->text(), QString());
        key(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(page()->text(), u"Today."_s);
        trigger("mVBefore");
        QCOMPARE(page()->text(), u"Yesterday."_s);
        trigger("mEUndo");
        QCOMPARE(page()->text(), QString());
        m_window->close();
        QVERIFY(file().contains("Today.") && !file().contains("=== 2026-11-20\r\n"));
        QVERIFY(file().contains("=== 2026-11-20 earlier\r\n"));
    }

    void marksAsOneTypes_data()
    {
        rows<QString, QByteArray, QString>({
            {"bold around a word", u"a ferry"_s, "b", u"a **ferry**"_s},
            {"and away again", u"a **ferry**"_s, "<<<b", u"a ferry"_s},
            {"italic", u"a ferry"_s, "i", u"a *ferry*"_s},
            {"all that is chosen", u"a ferry"_s, "ab", u"**a ferry**"_s},
            {"chosen and bold", u"**a ferry**"_s, "ab", u"a ferry"_s},
            {"chosen, and bold in parts", u"a **ferry** is **late**"_s, "ab", u"**a ferry is late**"_s},
            {"with what is italic", u"a *ferry* is ***late***"_s, "ab", u"**a *ferry* is *late***"_s},
            {"two lines, one of them bold", u"**one**\na **two**"_s, "ab", u"**one**\n**a two**"_s},
            {"and away from both", u"one\na **two**"_s, "abb", u"one\na two"_s},
            {"two lines", u"one\ntwo"_s, "ab", u"**one**\n**two**"_s},
            {"a heading", u"The sea"_s, "h", u"# The sea"_s},
            {"no heading", u"# The sea"_s, "h", u"The sea"_s},
            {"a list", u"milk\nbread"_s, "al", u"- milk\n- bread"_s},
            {"Enter goes on", u"- milk"_s, "r", u"- milk\n- "_s},
            {"and ends it", u"- milk\n- "_s, "r", u"- milk\n"_s},
            {"a step to the right", u"- milk"_s, "t", u"  - milk"_s},
            {"and back", u"  - milk"_s, "T", u"- milk"_s},
            {"typed into the signs", u""_s, "bxb", u"**x**"_s},
        });
    }
    void marksAsOneTypes()
    {
        const auto [before, does, after] = row<QString, QByteArray, QString>();
        open();
        page()->insertPlainText(before);
        for (const char step : does) {
            switch (step) {
            case 'a':
                page()->selectAll();
                break;
            case '<':
                key(Qt::Key_Left);
                break;
            case 'b':
                key(Qt::Key_B, Qt::ControlModifier);
                break;
            case 'i':
                key(Qt::Key_I, Qt::ControlModifier);
                break;
            case 'h':
                trigger("mFHeading");
                break;
            case 'l':
                trigger("mFList");
                break;
            case 'r':
                key(Qt::Key_Return);
                break;
            case 't':
                key(Qt::Key_Tab, Qt::ControlModifier);
                break;
            case 'T':
                key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
                break;
            default:
                keys(QString(QLatin1Char(step)));
            }
        }
        QCOMPARE(page()->text(), after);
    }

    void hangsTheRowsOfLists()
    {
        open();
        keys(u"- "_s + u"bread and milk "_s.repeated(20));
        const QTextLayout *row = page()->document()->begin().layout();
        QTRY_COMPARE(row->lineAt(1).x(), row->lineAt(0).cursorToX(2));
        QCOMPARE(row->lineAt(row->lineCount() - 1).x(), row->lineAt(1).x());
        QCOMPARE(page()->document()->begin().lineCount(), row->lineCount());
        key(Qt::Key_Home, Qt::ControlModifier);
        key(Qt::Key_Delete); // no list any more
        QTRY_COMPARE(row->lineAt(1).x(), row->lineAt(0).x());
    }

    void pastesTheWordsAlone()
    {
        open();
        auto *data = new QMimeData;
        data->setHtml(u"<b>one</b><br>two"_s);
        data->setText(u"one\r\ntwo\u2028three"_s);
        QGuiApplication::clipboard()->setMimeData(data);
        key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(page()->text(), u"one\ntwo\nthree"_s);
        QVERIFY(!page()->document()->firstBlock().charFormat().hasProperty(QTextFormat::FontWeight));
    }

    void bringsBackWhatWasWipedOut()
    {
        begin("=== 2026-11-21\r\nwritten 2026-11-21 08:00\r\n\r\nThe whole story.\r\n");
        QVERIFY(page()->textCursor().atEnd());
        page()->selectAll();
        key(Qt::Key_Delete);
        m_window->close();
        openAgain();
        QCOMPARE(page()->text(), QString());
        click("earlierVersion");
        QCOMPARE(find<QPlainTextEdit>("earlierText")->toPlainText(), u"The whole story."_s);
        click("bringBack");
        QCOMPARE(page()->text(), u"The whole story."_s);
        m_window->close();
        QVERIFY(file().contains("=== 2026-11-21\r\nwritten 2026-11-21 08:00\r\n\r\nThe whole story.\r\n"));
    }

    void bringsBackWhatWasWrittenAndDeletedInOneSitting()
    {
        begin("=== 2026-11-20\r\nwritten 2026-11-20 08:00\r\n\r\nOld.\r\n");
        keys(u"New."_s);
        trigger("mOSave");
        click("deleteEntry");
        click("earlierVersion");
        click("bringBack");
        QCOMPARE(page()->text(), u"New."_s);
        trigger("mVBefore");
        page()->moveCursor(QTextCursor::End);
        keys(u" And more."_s);
        click("deleteEntry");
        m_window->close();
        QVERIFY(
            file().contains("=== 2026-11-20 earlier\r\nwritten 2026-11-20 08:00\r\n\r\nOld. And more.\r\n"));
    }

    void deletesForGoodWhenAskedTwice()
    {
        begin("=== 2026-11-21\r\n\r\nA secret.\r\n");
        click("deleteEntry");
        QCOMPARE(page()->text(), QString());
        click("earlierVersion");
        const Message question = JournalMessages::deleteForGood(u"November 21, 2026"_s);
        m_test->dialogs.willAnswer(Answer::No);
        click("deleteForGood");
        QCOMPARE(asked(), {question});
        QVERIFY(file().contains("A secret."));
        m_test->dialogs.willAnswer(Answer::Yes);
        click("deleteForGood");
        QVERIFY(!file().contains("A secret."));
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(page()->text(), QString());
    }

    /// A picture takes its room once it is read, when the box has long reckoned how far it scrolls.
    void leadsBelowAPicture()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        makePicture(m_test->folder.filePath(u"Sea.png"_s), {1600, 900});
        m_test->setBytes(u"DJour2026.Fil"_s, "Quillery journal 1\r\n=== 2026-11-21\r\npicture Sea.png\r\n\r\n"
                                             "1\r\n2\r\n3\r\n4\r\n[picture 1]\r\nBelow it.\r\n");
        openAgain();
        m_window->resize(1000, 640);
        QTRY_VERIFY(page()->verticalScrollBar()->maximum() > 0);
        const auto isCursorInSight = [this] {
            const QRect page = this->page()->viewport()->rect();
            return page.contains(this->page()->cursorRect().center());
        };
        key(Qt::Key_Home, Qt::ControlModifier);
        QTRY_VERIFY(isCursorInSight() && page()->verticalScrollBar()->value() == 0);
        key(Qt::Key_End, Qt::ControlModifier);
        QTRY_VERIFY(isCursorInSight());
        QVERIFY(!find<QAction>("mECaption")->isEnabled());
        key(Qt::Key_Up);
        QTRY_VERIFY(find<QAction>("mECaption")->isEnabled());
        m_test->dialogs.willInput(u"The sea"_s);
        trigger("mECaption");
        trigger("mOSave");
        QVERIFY(file().contains("picture Sea.png | The sea\r\n"));
        key(Qt::Key_Z, Qt::ControlModifier);
        trigger("mOSave");
        QVERIFY(file().contains("picture Sea.png\r\n") && !file().contains("The sea"));
        key(Qt::Key_Y, Qt::ControlModifier);
        trigger("mOSave");
        QVERIFY(file().contains("picture Sea.png | The sea\r\n"));
    }

    /// Of pictures that are as high as the page each is seen, and the end fills it.
    void showsEachPictureOfAPage_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("one below the other")
            << QByteArray("Top\r\n[picture 1]\r\n[picture 2]\r\n[picture 3]\r\nEnd.");
        QTest::newRow("lines between")
            << QByteArray("[picture 1]\r\nOne.\r\n[picture 2]\r\n[picture 3]\r\n1\r\n2\r\nEnd.");
        QTest::newRow("one last of all")
            << QByteArray("Top\r\n[picture 1]\r\n1\r\n[picture 2]\r\n[picture 3]");
    }
    void showsEachPictureOfAPage()
    {
        QFETCH(const QByteArray, text);
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        makePicture(m_test->folder.filePath(u"Sea.png"_s), {1600, 900});
        const QByteArray pictures = QByteArray("picture Sea.png\r\n").repeated(3);
        m_test->setBytes(u"DJour2026.Fil"_s,
                         QByteArray("Quillery journal 1\r\n=== 2026-11-21\r\n" + pictures + "\r\n" + text));
        openAgain();
        m_window->resize(1000, 640);
        const auto place = [this](const QTextBlock &line) {
            QTextCursor cursor(line);
            const QRect row = page()->cursorRect(cursor);
            return QRect(page()->viewport()->mapTo(page(), row.topLeft()), row.size());
        };
        const auto endRow = [&] { return place(page()->document()->lastBlock()).bottom(); };
        const auto foot = [this] { return page()->height(); };
        QTRY_VERIFY(m_window->width() == 1000 && endRow() <= foot() && endRow() > foot() - 40);
        QSet<int> seen;
        for (int notch = 0; notch < 150; ++notch) {
            const QPointF middle = page()->viewport()->rect().center();
            QWheelEvent event(middle, page()->viewport()->mapToGlobal(middle), {}, {0, 60}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(page()->viewport(), &event);
            QTest::qWait(1);
            for (QTextBlock line = page()->document()->begin(); line.isValid(); line = line.next()) {
                const QRect row = place(line);
                const double high = page()->document()->documentLayout()->blockBoundingRect(line).height();
                if (line.text().startsWith(u'[') && row.bottom() <= foot() && row.bottom() >= high - 20)
                    seen.insert(line.blockNumber());
            }
        }
        QCOMPARE(seen.size(), 3);
        QCOMPARE(page()->verticalScrollBar()->value(), 0);
    }

    void tellsTheCalendarsDays()
    {
        begin("=== 2026-11-14\r\n\r\nMarket.\r\n");
        auto *days = find<QCalendarWidget>("MonthView1")->findChild<QTableView *>();
        QCOMPARE(days->accessibleName(), u"November 21"_s);
        find<QCalendarWidget>("MonthView1")->setSelectedDate(QDate(2026, 11, 14));
        QTRY_COMPARE(page()->text(), u"Market."_s);
        QCOMPARE(days->accessibleName(), u"November 14, has an entry"_s);
    }

    void showsTheSameDayOfOtherYears()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        m_test->setBytes(u"DJour2019.Fil"_s, "Quillery journal 1\r\n=== 2019-11-21\r\n\r\n# Snow\r\n"
                                             "=== 2019-11-23\r\n\r\nThaw.\r\n");
        m_test->setBytes(u"DJour2024.Fil"_s,
                         "Quillery journal 1\r\n=== 2024-11-21\r\ntags Zoo, garden\r\n\r\nFog.\r\n");
        openAgain();
        QTRY_COMPARE(names("onThisDay"), (QStringList{u"2024, 2 years before"_s, u"2019, 7 years before"_s}));
        QTRY_COMPARE(names("tagsList"), (QStringList{u"garden"_s, u"Zoo"_s}));
        find<QCheckBox>("daysAround")->click();
        QCOMPARE(names("onThisDay").size(), 3);
        auto *list = find<QListView>("onThisDay");
        list->setFocus();
        list->setCurrentIndex(list->model()->index(1, 0));
        key(Qt::Key_Return);
        QVERIFY2(page()->text() == u"Thaw."_s || page()->text() == u"# Snow"_s, qPrintable(page()->text()));
    }

    void leavesForeignFilesAlone()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        const QByteArray foreign = "Quillery journal 7\r\nwho knows\r\n";
        m_test->setBytes(u"DJour2026.Fil"_s, foreign);
        openAgain();
        QVERIFY(page()->isReadOnly());
        QVERIFY(!said().isEmpty());
        keys(u"typed in vain"_s);
        QCOMPARE(file(), foreign);
        QVERIFY(find<QPushButton>("setYearAside")->width() > 0 &&
                find<QPushButton>("setYearAside")->isVisible());
        m_test->dialogs.willAnswer(Answer::No);
        click("setYearAside");
        QCOMPARE(asked(), {JournalMessages::setAside(2026, u"DJour2026.Fil"_s)});
        QCOMPARE(file(), foreign);
        m_test->dialogs.willAnswer(Answer::Yes);
        click("setYearAside");
        QCOMPARE(m_test->bytes(u"DJour2026 set aside.Fil"_s), foreign);
        QVERIFY(!find<QPushButton>("setYearAside")->isVisible());
        keys(u"Anew."_s);
        m_window->close();
        QVERIFY(file().endsWith("\r\nAnew.\r\n"));
    }

    void findsALivelierWord()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        QVERIFY(QDir().mkpath(m_test->path(u"dictionaries"_s)));
        for (const auto &[name, bytes] :
             {std::pair(u"th_en_US_v2.idx"_s, ThreeWords::idx),
              std::pair(u"th_en_US_v2.dat"_s, ThreeWords::dat), std::pair(u"en_US.aff"_s, "SET UTF-8\n"_ba),
              std::pair(u"en_US.dic"_s, "1\nglad\n"_ba)})
            m_test->setBytes(u"dictionaries/"_s + name, bytes);
        m_test->store.setValue(u"Writing/languages"_s, QStringList{u"en_US"_s});
        openAgain();
        keys(u"So Glad"_s);
        key(Qt::Key_F7, Qt::ShiftModifier);
        QCOMPARE(labelText("thesaurusWord"), u"\u201cglad\u201d"_s);
        key(Qt::Key_Down);
        key(Qt::Key_Return);
        QCOMPARE(page()->text(), u"So Cheerful"_s);
        QTRY_VERIFY(page()->hasFocus());
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(page()->text(), u"So Glad"_s);
    }

    void copiesTextAndPage()
    {
        begin("=== 2026-11-21\r\n\r\n# Snow\r\n**Much** of it.\r\n");
        trigger("mOCopy");
        QCOMPARE(asked(), {JournalMessages::copied()});
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Snow\nMuch of it."_s);
        QVERIFY(QGuiApplication::clipboard()->mimeData()->hasImage());
    }

    void showsABookOnSmallSheets()
    {
        begin("=== 2026-11-21\r\n\r\nSnow.\r\n");
        trigger("mOPrt");
        find<QComboBox>("printPaper")->setCurrentIndex(2);
        click("printWhat_4");
        click("journalPrintShow");
        auto *preview = m_window->findChild<PreviewPane *>();
        QCOMPARE(preview->setup().paper, PageMetrics::a5);
        QVERIFY(preview->sheetCount() > 2); // title, contents, the day
    }

    void takesAnImportBack_data() { rows<bool>({{"wholly", false}, {"but for what was typed since", true}}); }
    void takesAnImportBack()
    {
        const auto [types] = row<bool>();
        begin("=== 2026-11-21\r\n\r\nMarket.\r\n");
        m_test->setBytes(u"log.txt"_s, "[2026-11-20 08:12] Rain.\n[2026-11-21 09:00] More.\n");
        m_test->dialogs.willChooseFile(m_test->path(u"log.txt"_s));
        trigger("mUImport");
        QTRY_VERIFY(isOffered("journalImportTake"));
        QVERIFY(find<QTableView>("journalImportList")->hasFocus());
        click("journalImportTake");
        QVERIFY(page()->hasFocus());
        QVERIFY(page()->text().contains(u"More."_s));
        QVERIFY(file().contains("=== 2026-11-20\r\n"));
        if (types) {
            page()->moveCursor(QTextCursor::End);
            keys(u" Late"_s);
        }
        trigger("mUTakeBack");
        QVERIFY(!file().contains("=== 2026-11-20\r\nwritten"));
        QCOMPARE(page()->text().contains(u"Late"_s), types);
        QCOMPARE(page()->text().contains(u"More."_s), types);
        QVERIFY(!find<QAction>("mUTakeBack")->isEnabled());
    }

    void goesToADateThatIsTyped()
    {
        open();
        m_test->dialogs.willInput(u"3/14/2019"_s);
        trigger("mVDate");
        QCOMPARE(shownDay(), u"Thursday, March 14, 2019"_s);
        m_test->dialogs.willInput(u"yesterday or so"_s);
        trigger("mVDate");
        QCOMPARE(said(), u"That is no date between the years 1000 and 9999"_s);
        keys(u"Late."_s);
        trigger("mOSave");
        QVERIFY(m_test->bytes(u"DJour2019.Fil"_s).contains("=== 2019-03-14\r\nwritten 2026-11-21 10:24\r\n"));
        QCOMPARE(labelText("writtenOn"), u"Written on November 21, 2026"_s);
    }

private:
    JournalText *page() const { return find<JournalText>("entryText"); }
    /// In words, where a narrow window has room for a short date alone.
    QString shownDay() const { return find<QLabel>("journalDate")->accessibleName(); }
    QByteArray file() const { return m_test->bytes(u"DJour2026.Fil"_s); }
    void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(m_window->focusWidget(), key, held);
    }
    void keys(const QString &text) const { typeInto(m_window->focusWidget(), text); }
    QStringList names(const char *list) const
    {
        QStringList names;
        const QAbstractItemModel *rows = find<QListView>(list)->model();
        for (int row = 0; row < rows->rowCount(); ++row)
            names += rows->index(row, 0).data().toString();
        return names;
    }
    QStringList hits() const { return names("journalHits"); }

    void open()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        openAgain();
    }
    void begin(const QByteArray &entries)
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        m_test->setBytes(u"DJour2026.Fil"_s, QByteArray("Quillery journal 1\r\n" + entries));
        openAgain();
    }
    void openAgain()
    {
        delete m_window;
        m_window = new DJournal(m_test->program);
        showActive(*m_window);
    }
};

QTEST_MAIN(TestJournalWindow)
#include "tst_journalwindow.moc"
