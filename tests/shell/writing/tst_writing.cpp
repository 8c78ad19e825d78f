// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/writing/checkedtext.h"
#include "shell/writing/writing.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTextBlock>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with two boxes that are checked by a dictionary of a few words.
struct Desk {
    explicit Desk(bool hasDictionary = true)
    {
        QDir(folder.folder().path()).mkpath(u"dictionaries"_s);
        if (hasDictionary) {
            folder.put(u"dictionaries/en_US.aff"_s, "SET UTF-8\nTRY esianrtolcdug\n");
            folder.put(u"dictionaries/en_US.dic"_s, "5\nwater\nthe\nferns\nand\na\n");
        }
        line->setGeometry(10, 10, 400, 36);
        text->setGeometry(10, 60, 400, 120);
        other->setGeometry(10, 200, 400, 36);
        writing->check(line);
        writing->check(text);
        other->setFocus();
        window.resize(420, 240);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    /// Puts the focus there, which loads the languages.
    void enter(QWidget *box)
    {
        box->setFocus();
        QTRY_VERIFY(writing->isLoaded());
    }

    TestFolder folder;
    QSettings store{folder.path(u"desk.ini"_s), QSettings::IniFormat};
    QWidget window;
    FieldBox *line = new FieldBox(&window);
    QPlainTextEdit *text = new QPlainTextEdit(&window);
    QLineEdit *other = new QLineEdit(&window);
    Writing *writing = new Writing({.folder = folder.folder(),
                                    .dictionaryFolders = {folder.path(u"dictionaries"_s)},
                                    .store = store,
                                    .knownNames = [] { return QStringList{u"Karin Holm"_s}; },
                                    .systemLanguage = u"en_US"_s},
                                   &window);
};

QStringList marked(const QWidget *box)
{
    return box->findChild<CheckedBox *>(u"spellMarks"_s)->marked();
}

QString textOf(QWidget *box)
{
    if (const auto *line = qobject_cast<QLineEdit *>(box))
        return line->text();
    return qobject_cast<QPlainTextEdit *>(box)->toPlainText();
}

int cursorOf(QWidget *box)
{
    if (const auto *line = qobject_cast<QLineEdit *>(box))
        return line->cursorPosition();
    return qobject_cast<QPlainTextEdit *>(box)->textCursor().position();
}

/// Asks for the menu on the word at the cursor, and returns the captions down to the first entry of the usual
/// one.
QStringList openMenu(QWidget *box)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, box->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(box, &event);
    QStringList captions;
    if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
        for (const QAction *action : menu->actions())
            captions += action->text();
    }
    return captions;
}

QAction *entry(const QString &caption)
{
    for (QAction *action : QApplication::activePopupWidget()->actions()) {
        if (action->text() == caption)
            return action;
    }
    return nullptr;
}

} // namespace

/// Spelling in boxes that one types into.
class WritingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void readsNothingBeforeABoxIsUsed()
    {
        Desk desk;
        desk.line->setText(u"Watre"_s);
        QTest::qWait(20);
        QVERIFY(!desk.writing->isLoaded());
        desk.enter(desk.line);
        QCOMPARE(marked(desk.line), QStringList()); // the cursor is still in it
        desk.other->setFocus();
        QCOMPARE(marked(desk.line), QStringList{u"Watre"_s});
    }

    void marksWhatIsWrongInBothBoxes()
    {
        Desk desk;
        for (QWidget *box : {static_cast<QWidget *>(desk.line), static_cast<QWidget *>(desk.text)}) {
            desk.enter(box);
            QTest::keyClicks(box, u"Watre the fersn and Holm"_s);
            QCOMPARE(marked(box), (QStringList{u"Watre"_s, u"fersn"_s}));
            desk.other->setFocus();
        }
        desk.writing->ignore(u"fersn"_s);
        QCOMPARE(marked(desk.line), QStringList{u"Watre"_s});
        QCOMPARE(marked(desk.text), QStringList{u"Watre"_s});
        const QImage with = desk.line->grab().toImage();
        desk.writing->ignore(u"Watre"_s);
        QVERIFY(desk.line->grab().toImage() != with);
    }

    /// A box that shows one text after another, with styles of its own.
    void marksAnotherDocumentOverItsStyles()
    {
        Desk desk;
        desk.enter(desk.text);
        desk.other->setFocus();
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        CheckedText *check = desk.writing->check(desk.text, [bold](const QString &) {
            return QList<QTextLayout::FormatRange>{{0, 3, bold}};
        });
        QTextDocument document;
        document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
        document.setPlainText(u"watre and the ferny"_s);
        desk.text->setDocument(&document);
        check->followDocument();
        QCOMPARE(check->marked(), (QStringList{u"watre"_s, u"ferny"_s}));
        QStringList ranges;
        for (const QTextLayout::FormatRange &range : document.firstBlock().layout()->formats())
            ranges += u"%1+%2 %3%4"_s.arg(range.start)
                          .arg(range.length)
                          .arg(range.format.fontWeight() == QFont::Bold ? u"bold"_s : u"plain"_s,
                               range.format.underlineStyle() != 0 ? u" wrong"_s : u""_s);
        QCOMPARE(ranges, (QStringList{u"0+3 bold wrong"_s, u"3+2 plain wrong"_s, u"14+5 plain wrong"_s}));
        delete check; // before its document
    }

    void correctsSlipsAsTheyAreTyped_data()
    {
        rows<QString, QString>({{"behind a blank", u"teh "_s, u"the "_s},
                                {"behind a point", u"and teh."_s, u"and the."_s},
                                {"with its capital", u"Teh ferns"_s, u"The ferns"_s},
                                {"two words", u"alot,"_s, u"a lot,"_s},
                                {"not in capitals", u"TEH "_s, u"TEH "_s},
                                {"not before it is complete", u"teh"_s, u"teh"_s},
                                {"not in an address", u"anne@adn.teh "_s, u"anne@adn.teh "_s},
                                {"one of the household", u"zinia "_s, u"zinnia "_s}});
    }
    void correctsSlipsAsTheyAreTyped()
    {
        const auto [typed, result] = row<QString, QString>();
        Desk desk;
        Corrections table = Corrections::firstTable();
        table.set(u"zinia"_s, u"zinnia"_s);
        desk.writing->load();
        QVERIFY(desk.writing->setCorrections(table));
        for (QWidget *box : {static_cast<QWidget *>(desk.line), static_cast<QWidget *>(desk.text)}) {
            desk.enter(box);
            QTest::keyClicks(box, typed);
            QCOMPARE(textOf(box), result);
            QCOMPARE(cursorOf(box), result.size());
        }
    }

    void takesBackACorrectionAlone()
    {
        Desk desk(false); // corrections need no dictionary
        for (QWidget *box : {static_cast<QWidget *>(desk.line), static_cast<QWidget *>(desk.text)}) {
            desk.enter(box);
            QTest::keyClicks(box, u"and teh "_s);
            QCOMPARE(textOf(box), u"and the "_s);
            QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(textOf(box), u"and teh "_s);
            QCOMPARE(cursorOf(box), 8);
            QTest::keyClicks(box, u"teh hte "_s); // the same word is left alone here, another one is not
            QCOMPARE(textOf(box), u"and teh teh the "_s);
        }
        desk.line->clear();
        QTest::keyClicks(desk.line, u"teh "_s);
        QCOMPARE(desk.line->text(), u"the "_s);
    }

    void correctsTheLastWordOfALine()
    {
        Desk desk;
        desk.enter(desk.text);
        QTest::keyClicks(desk.text, u"and teh"_s);
        QTest::keyClick(desk.text, Qt::Key_Return);
        QTest::keyClicks(desk.text, u"a"_s);
        QCOMPARE(desk.text->toPlainText(), u"and the\na"_s);
    }

    void leavesAFullBoxAsItIs()
    {
        Desk desk;
        desk.enter(desk.line);
        desk.line->setByteLimit(5);
        QTest::keyClicks(desk.line, u"alot "_s);
        QCOMPARE(desk.line->text(), u"alot "_s);
    }

    void offersOtherWordsInTheMenuOfAWord()
    {
        Desk desk;
        QSignalSpy said(desk.writing, &Writing::said);
        for (QWidget *box : {static_cast<QWidget *>(desk.line), static_cast<QWidget *>(desk.text)}) {
            desk.enter(box);
            QTest::keyClicks(box, u"the wter zinnia"_s);
            const QStringList captions = openMenu(box);
            QVERIFY(captions.contains(u"Add Word"_s));
            entry(u"Add Word"_s)->trigger();
            QApplication::activePopupWidget()->close();
            QTest::keyClick(box, Qt::Key_Left, Qt::ControlModifier);
            QTest::keyClick(box, Qt::Key_Left);
            QCOMPARE(openMenu(box).value(0), u"water"_s);
            entry(u"water"_s)->trigger();
            QApplication::activePopupWidget()->close();
            QCOMPARE(textOf(box), u"the water zinnia"_s);
            QCOMPARE(marked(box), QStringList());
            desk.writing->spelling().heed(u"zinnia"_s);
            QVERIFY(desk.writing->spelling().removeOwnWord(u"zinnia"_s));
        }
        QCOMPARE(said.size(), 2);
    }

    void remembersTheLanguagesOfTheUser()
    {
        Desk desk;
        desk.folder.put(u"dictionaries/sv_SE.aff"_s, "SET UTF-8\n");
        desk.folder.put(u"dictionaries/sv_SE.dic"_s, "1\nvattna\n");
        desk.enter(desk.line);
        QTest::keyClicks(desk.line, u"vattna the "_s);
        QCOMPARE(marked(desk.line), QStringList{u"vattna"_s});
        desk.writing->choose(u"sv_SE"_s, true);
        QCOMPARE(marked(desk.line), QStringList());
        desk.writing->choose(u"en_US"_s, false);
        QCOMPARE(marked(desk.line), QStringList{u"the"_s});
        QCOMPARE(desk.store.value(u"Writing/languages"_s).toStringList(), QStringList{u"sv_SE"_s});
        desk.writing->choose(u"sv_SE"_s, false);
        QCOMPARE(marked(desk.line), QStringList());
        QVERIFY(!desk.writing->whyNoSpelling().isEmpty());
    }

    void noticesWhatAnotherWindowHasAdded()
    {
        Desk desk;
        desk.enter(desk.line);
        QTest::keyClicks(desk.line, u"repot and"_s);
        desk.other->setFocus();
        QCOMPARE(marked(desk.line), QStringList{u"repot"_s});
        desk.folder.put(u"Spell1.Fil"_s, "Quillery words 1\r\nrepot\r\n");
        desk.line->setFocus();
        QTRY_COMPARE(marked(desk.line), QStringList());
    }
};

QTEST_MAIN(WritingTest)
#include "tst_writing.moc"
