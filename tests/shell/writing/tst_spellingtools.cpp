// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/controls.h"
#include "shell/controls/searchbox.h"
#include "shell/controls/taskpanel.h"
#include "shell/look/theme.h"
#include "shell/writing/correctionfile.h"
#include "shell/writing/spellingtools.h"
#include "shell/writing/writing.h"
#include "tests/support/testfiles.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with three texts, the menu "Spelling" and its panels.
struct Desk {
    explicit Desk(bool hasDictionary = true)
    {
        QDir(folder.folder().path()).mkpath(u"dictionaries"_s);
        if (hasDictionary)
            putDictionary();
        tools->addTo(menu,
                     [this](QMenu *into, const QString &name, const QString &caption,
                            std::function<void()> run, std::function<QString()>, const QKeySequence &key) {
                         QAction *action = makeAction(name, caption, &window);
                         action->setShortcut(key);
                         into->addAction(action);
                         window.addAction(action);
                         QObject::connect(action, &QAction::triggered, &window, run);
                         return action;
                     });
        for (TaskPanel *panel : tools->panels()) {
            panel->hide();
            panel->setGeometry(0, 0, 900, 640);
            QObject::connect(panel, &TaskPanel::left, panel, &QWidget::hide);
        }
        QObject::connect(tools, &SpellingTools::opened, [](QWidget *panel) {
            panel->show();
            panel->setFocus();
        });
        window.resize(900, 640);
        showActive(window);
    }

    void putDictionary() const
    {
        folder.put(u"dictionaries/en_US.aff"_s, "SET UTF-8\nTRY esianrtolcdug\n");
        folder.put(u"dictionaries/en_US.dic"_s, "5\nwater\nthe\nferns\nand\na\n");
    }
    void click(const char *name) { QTest::mouseClick(control<QPushButton>(window, name), Qt::LeftButton); }
    bool may(const char *name) const { return control<QPushButton>(window, name)->isEnabled(); }
    QString lastSaid() const { return said.isEmpty() ? QString() : said.last().value(0).toString(); }

    TestFolder folder;
    QSettings store{folder.path(u"desk.ini"_s), QSettings::IniFormat};
    QStringList texts{u"Watre teh ferns, teh"_s, u"the"_s, u"teh zinnia"_s};
    QWidget window;
    QMenu *menu = new QMenu(&window);
    Writing *writing = new Writing({.folder = folder.folder(),
                                    .dictionaryFolders = {folder.path(u"dictionaries"_s)},
                                    .store = store,
                                    .systemLanguage = u"en_US"_s},
                                   &window);
    SpellingTools *tools = new SpellingTools(*writing,
                                             {[this] {
                                                  std::vector<WalkedText> walked;
                                                  for (int i = 0; i < texts.size(); ++i)
                                                      walked.push_back({i, u"List %1"_s.arg(i), texts[i]});
                                                  return walked;
                                              },
                                              [this](const WalkedText &text) { texts[text.id] = text.text; }},
                                             &window);
    QSignalSpy said{tools, &SpellingTools::said};
};

} // namespace

/// The menu "Spelling", the walk through the texts of a window, and the table of corrections.
class SpellingToolsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void walksThroughTheTextsOfTheWindow()
    {
        Desk desk;
        QTest::keyClick(&desk.window, Qt::Key_F7);
        const auto *by = control<FieldBox>(desk.window, "spellReplacement");
        QVERIFY(by->isVisible());
        QCOMPARE(control<QLabel>(desk.window, "spellWhere")->text(), u"List 0"_s);
        QCOMPARE(by->text(), u"Water"_s);
        QVERIFY(control<QListWidget>(desk.window, "spellSuggestions")->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(desk.texts[0], u"Water teh ferns, teh"_s);
        control<FieldBox>(desk.window, "spellReplacement")->setText(u"the"_s);
        desk.click("spellChangeAll");
        QCOMPARE(desk.texts, (QStringList{u"Water the ferns, the"_s, u"the"_s, u"the zinnia"_s}));
        desk.click("spellAddWord");
        QCOMPARE(desk.folder.bytes(u"Spell1.Fil"_s), "Quillery words 1\r\nzinnia\r\n");
        QVERIFY(!desk.may("spellChange") && !desk.may("spellIgnore"));
        desk.click("spellUndo");
        QCOMPARE(desk.folder.bytes(u"Spell1.Fil"_s), "Quillery words 1\r\n");
        desk.click("spellIgnore");
        for (int i = 0; i < 3; ++i)
            desk.click("spellUndo");
        QCOMPARE(desk.texts, (QStringList{u"Watre teh ferns, teh"_s, u"the"_s, u"teh zinnia"_s}));
        QVERIFY(!desk.may("spellUndo"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!by->isVisible());
    }

    void saysWhenThereIsNothingToWalkTo()
    {
        Desk right;
        right.texts = {u"Water the ferns"_s};
        QTest::keyClick(&right.window, Qt::Key_F7);
        QVERIFY(right.lastSaid().contains(u"Every word"_s));

        Desk none(false);
        QTest::keyClick(&none.window, Qt::Key_F7);
        QVERIFY(none.lastSaid().contains(u"hunspell-en-us"_s));
        QVERIFY(none.lastSaid().contains(QDir::toNativeSeparators(none.folder.path(u"dictionaries"_s))));
        emit none.menu->aboutToShow();
        QCOMPARE(none.menu->actions().last()->text(), u"No dictionary is installed"_s);
        QVERIFY(!none.menu->actions().last()->isEnabled());
        none.putDictionary();
        emit none.menu->aboutToShow();
        QTest::keyClick(&none.window, Qt::Key_F7);
        QVERIFY(control<FieldBox>(none.window, "spellReplacement")->isVisible());
    }

    void listsTheLanguagesThatAreThere()
    {
        Desk desk;
        desk.folder.put(u"dictionaries/ru_RU.aff"_s, "SET KOI8-R\n");
        desk.folder.put(u"dictionaries/ru_RU.dic"_s, "1\nx\n");
        desk.writing->load();
        for (int i = 0; i < 2; ++i)
            emit desk.menu->aboutToShow();
        QCOMPARE(desk.menu->actions().size(), 5); // two commands, a line, two languages
        auto *english = control<QAction>(desk.window, "mSpLanguage_en_US");
        auto *russian = control<QAction>(desk.window, "mSpLanguage_ru_RU");
        QCOMPARE(english->text(), u"English (United States)"_s);
        QVERIFY(english->isChecked());
        QVERIFY(!russian->isEnabled() && russian->statusTip().contains(u"KOI8-R"_s));
        english->trigger();
        QTest::keyClick(&desk.window, Qt::Key_F7);
        QVERIFY(desk.lastSaid().contains(u"No language"_s));
    }

    void changesTheTableOfCorrections()
    {
        Desk desk;
        control<QAction>(desk.window, "mSpTable")->trigger();
        auto *list = control<QTableView>(desk.window, "correctionList");
        auto *wrong = control<FieldBox>(desk.window, "correctionWrong");
        auto *right = control<FieldBox>(desk.window, "correctionRight");
        const int first = list->model()->rowCount();
        QVERIFY(control<SearchBox>(desk.window, "correctionSearch")->hasFocus());
        wrong->setFocus();
        QTest::keyClicks(wrong, u"zinia"_s);
        QVERIFY(!desk.may("correctionAdd") && !desk.may("correctionChange"));
        QTest::keyClick(wrong, Qt::Key_Return);
        QVERIFY(desk.lastSaid().contains(u"Both"_s));
        QTest::keyClicks(right, u"zinnia"_s);
        QCOMPARE(desk.lastSaid(), QString()); // that holds no longer
        QTest::keyClick(right, Qt::Key_Return);
        QCOMPARE(list->model()->rowCount(), first + 1);
        QVERIFY(wrong->hasFocus() && wrong->text().isEmpty());

        QTest::keyClicks(control<SearchBox>(desk.window, "correctionSearch"), u"ZINI"_s);
        QCOMPARE(list->model()->rowCount(), 1);
        list->selectRow(0);
        QCOMPARE(right->text(), u"zinnia"_s);
        QVERIFY(!desk.may("correctionAdd"));
        right->setText(u"zinnias"_s);
        desk.click("correctionChange");
        QVERIFY(desk.folder.bytes(u"Spell2.Fil"_s).startsWith("Quillery corrections 1\r\nabotu\tabout\r\n"));
        QVERIFY(desk.folder.bytes(u"Spell2.Fil"_s).endsWith("zinia\tzinnias\r\n"));
        QTest::keyClick(list, Qt::Key_Delete);
        QVERIFY(!desk.folder.bytes(u"Spell2.Fil"_s).contains("zinia"));
        desk.click("correctionUndo");
        desk.click("correctionUndo");
        QCOMPARE(desk.writing->corrections().rightFor(u"Zinia"_s), u"Zinnia"_s);
        desk.click("correctionRestore");
        QCOMPARE(desk.writing->corrections(), Corrections::firstTable());
        QVERIFY(!desk.may("correctionRestore") && desk.may("correctionUndo"));
    }

    void leavesATableAloneThatItDoesNotKnow()
    {
        const QByteArray later = "Quillery corrections 2\r\nteh\tthee\r\n";
        Desk desk;
        desk.folder.put(u"Spell2.Fil"_s, later);
        control<QAction>(desk.window, "mSpTable")->trigger();
        QCOMPARE(desk.writing->corrections().rightFor(u"teh"_s), u"thee"_s);
        desk.click("correctionRestore");
        QVERIFY(desk.lastSaid().contains(u"later version"_s));
        QCOMPARE(desk.folder.bytes(u"Spell2.Fil"_s), later);
    }
};

QTEST_MAIN(SpellingToolsTest)
#include "tst_spellingtools.moc"
