// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/controls.h"
#include "shell/controls/taskpanel.h"
#include "shell/look/theme.h"
#include "shell/writing/thesaurustools.h"
#include "shell/writing/writing.h"
#include "tests/shell/writing/threewords.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTableWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with a checked text, the command "Thesaurus" and its panel.
struct Desk {
    explicit Desk(const QString &words, bool hasThesaurus = true)
    {
        QDir(folder.folder().path()).mkpath(u"dictionaries"_s);
        if (hasThesaurus)
            ThreeWords::put(folder, u"dictionaries/"_s);
        tools->addTo(menu, [this](QMenu *into, const QString &name, const QString &caption,
                                  const std::function<void()> &run, const std::function<QString()> &,
                                  const QKeySequence &key) {
            QAction *action = makeAction(name, caption, &window);
            action->setShortcut(key);
            into->addAction(action);
            window.addAction(action);
            QObject::connect(action, &QAction::triggered, &window, run);
            return action;
        });
        TaskPanel *panel = tools->panel();
        panel->hide();
        panel->setGeometry(0, 0, 900, 640);
        QObject::connect(panel, &TaskPanel::left, panel, &QWidget::hide);
        QObject::connect(tools, &ThesaurusTools::opened, panel, &QWidget::show);
        writing->check(text);
        text->setPlainText(words);
        window.resize(900, 640);
        showActive(window);
        text->setFocus();
    }

    void putCursor(qsizetype place) const
    {
        QTextCursor cursor = text->textCursor();
        cursor.setPosition(int(place));
        text->setTextCursor(cursor);
    }
    void ask() { QTest::keyClick(text, Qt::Key_F7, Qt::ShiftModifier); }
    void click(const char *name) { QTest::mouseClick(control<QPushButton>(window, name), Qt::LeftButton); }
    bool may(const char *name) const { return control<QPushButton>(window, name)->isEnabled(); }
    QString label(const char *name) const { return control<QLabel>(window, name)->text(); }
    QString by() const { return control<QLineEdit>(window, "thesaurusReplacement")->text(); }
    QStringList meanings() const
    {
        QStringList rows;
        const auto *list = control<QListWidget>(window, "thesaurusMeanings");
        for (int row = 0; row < list->count(); ++row)
            rows += list->item(row)->text();
        return rows;
    }
    QStringList words() const
    {
        QStringList rows;
        const auto *table = control<QTableWidget>(window, "thesaurusOthers");
        for (int row = 0; row < table->rowCount(); ++row)
            rows += table->item(row, 0)->text() + u'/' + table->item(row, 1)->text();
        return rows;
    }

    TestFolder folder;
    QSettings store{folder.path(u"desk.ini"_s), QSettings::IniFormat};
    QWidget window;
    QPlainTextEdit *text = new QPlainTextEdit(&window);
    QMenu *menu = new QMenu(&window);
    Writing *writing = new Writing({.folder = folder.folder(),
                                    .dictionaryFolders = {folder.path(u"dictionaries"_s)},
                                    .store = store,
                                    .systemLanguage = u"en_US"_s,
                                    .thesaurusFolders = {folder.path(u"dictionaries"_s)}},
                                   &window);
    ThesaurusTools *tools = new ThesaurusTools(*writing, &window);
    QSignalSpy said{tools, &ThesaurusTools::said};
};

} // namespace

/// "Thesaurus": from a word of a text through meanings and words, and back into the text.
class ThesaurusToolsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void replacesAWordByKeysAlone()
    {
        Desk desk(u"Happy was glad"_s);
        desk.putCursor(3);
        desk.ask();
        QCOMPARE(desk.label("thesaurusWord"), u"\u201chappy\u201d"_s);
        QCOMPARE(desk.meanings(), QStringList({u"adjective: felicitous, fortunate"_s, u"noun: joy"_s}));
        QCOMPARE(desk.words(), QStringList({u"felicitous/"_s, u"fortunate/similar term"_s}));
        QVERIFY(control<QListWidget>(desk.window, "thesaurusMeanings")->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(desk.by(), u"Fortunate"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(desk.text->toPlainText(), u"Fortunate was glad"_s);
        QVERIFY(!desk.tools->panel()->isVisible());
        QTRY_VERIFY(desk.text->hasFocus());
        desk.text->undo();
        QCOMPARE(desk.text->toPlainText(), u"Happy was glad"_s);
    }

    void goesFromWordToWordAndBack()
    {
        Desk desk(u"glad"_s);
        desk.ask();
        QVERIFY(!desk.may("thesaurusBack"));
        QCOMPARE(desk.words(), QStringList({u"happy/"_s, u"cheerful/similar term"_s}));
        desk.click("thesaurusLookUp");
        QCOMPARE(desk.label("thesaurusWord"), u"\u201chappy\u201d"_s);
        control<QListWidget>(desk.window, "thesaurusMeanings")->setCurrentRow(1);
        QCOMPARE(desk.words(), QStringList({u"joy/generic term"_s}));
        desk.click("thesaurusLookUp");
        QCOMPARE(desk.label("thesaurusWord"), u"\u201cjoy\u201d is not in the thesaurus"_s);
        QVERIFY(control<QLineEdit>(desk.window, "thesaurusReplacement")->hasFocus());
        desk.click("thesaurusBack");
        QCOMPARE(desk.words(), QStringList({u"joy/generic term"_s})); // of the meaning that was chosen
        desk.click("thesaurusBack");
        QCOMPARE(desk.label("thesaurusWord"), u"\u201cglad\u201d"_s);
        QVERIFY(!desk.may("thesaurusBack"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(desk.text->toPlainText(), u"glad"_s);
        QTRY_VERIFY(desk.words().isEmpty());
    }

    void saysWhenAnEndingIsNotMade()
    {
        Desk desk(u"happier"_s);
        desk.ask();
        QCOMPARE(desk.label("thesaurusWord"), u"\u201chappy\u201d"_s);
        QVERIFY(desk.label("thesaurusWords").contains(u"base form"_s));
        control<QLineEdit>(desk.window, "thesaurusReplacement")->setText(u"more felicitous"_s);
        desk.click("thesaurusReplace");
        QCOMPARE(desk.text->toPlainText(), u"more felicitous"_s);
    }

    void standsInTheMenuOfAWord()
    {
        Desk desk(u"glad, recieve"_s);
        desk.writing->load();
        for (const int place : {1, 8}) {
            desk.putCursor(place);
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
            QApplication::sendEvent(desk.text->viewport(), &event);
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            QAction *action = menu->findChild<QAction *>(u"spellThesaurus"_s);
            QVERIFY(action);
            QCOMPARE(menu->findChild<QAction *>(u"spellAddWord"_s) != nullptr, place == 8);
            menu->close();
            if (place == 1)
                action->trigger();
        }
        QCOMPARE(desk.label("thesaurusWord"), u"\u201cglad\u201d"_s);
    }

    void saysWhyThereIsNothing()
    {
        Desk without(u"glad"_s, false);
        without.ask();
        QCOMPARE(without.label("thesaurusWord"), u"No thesaurus is installed for this language"_s);
        const QString how = without.label("thesaurusWords");
        QVERIFY(how.contains(u"mythes-en-us"_s) && how.contains(u"dictionaries"_s));
        QVERIFY(!without.may("thesaurusLookUp") && !without.may("thesaurusReplace"));

        Desk beside(u"glad  "_s);
        beside.putCursor(6);
        beside.ask();
        QVERIFY(!beside.tools->panel()->isVisible());
        QCOMPARE(beside.said.last().value(0).toString(), u"The cursor stands at no word"_s);

        Desk changed(u"glad"_s);
        changed.ask();
        changed.text->setPlainText(u"sad"_s);
        changed.click("thesaurusReplace");
        QCOMPARE(changed.text->toPlainText(), u"sad"_s);
        QCOMPARE(changed.said.last().value(0).toString(), u"The word does not stand there any more"_s);
    }
};

QTEST_MAIN(ThesaurusToolsTest)
#include "tst_thesaurustools.moc"
