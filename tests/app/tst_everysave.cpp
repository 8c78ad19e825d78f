// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/functions.h"
#include "planner/model/dayrecord.h"
#include "planner/model/plannerfiles.h"
#include "planner/model/plannertrash.h"
#include "shell/access/passwordcheck.h"
#include "shell/access/passwordcontrol.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/frame/functionwindow.h"
#include "shell/mainmenu/mainmenuwindow.h"
#include "storage/changeset.h"
#include "storage/saving.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QListView>
#include <QLoggingCategory>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Files = QMap<QString, QByteArray>;

/// "Sesame", with the address book guarded; made once, since each password has a salt of its own.
const QByteArray &guardedFile()
{
    static const QByteArray bytes = [] {
        const TestProgram test;
        PasswordCheck file(test.folder, PasswordCost::minimum());
        ProtectedAreas areas;
        areas.setFlag(Area::AddressBook, u"YES"_s);
        if (!file.setPassword(u"Sesame"_s) || !file.saveAreas(areas))
            qFatal("no password file");
        return test.bytes(u"PCtrl1.Fil"_s);
    }();
    return bytes;
}

/// A window on a folder of its own, and the hands that work it.
class Desk
{
public:
    explicit Desk(TestProgram::Content content)
        : test(content)
    {
        addFunctions(test.functions, test.clock);
        test.setBytes(u"PCtrl1.Fil"_s, guardedFile());
        test.setBytes(u"TODOActv.FIL"_s, "\"Paint\",\"12/01/2026\",\"\"\r\n\"Call\",\"01/21/2027\",\"\"\r\n");
    }
    ~Desk() { delete window; } // without its questions
    Q_DISABLE_COPY_MOVE(Desk)

    void show(QWidget *shown)
    {
        window = shown;
        showActive(*window);
    }
    void open(Function function) { show(test.functions.open(function, test.program)); }
    void openPasswordControl() { show(new Form31(test.program, PasswordCost::minimum(), 1ms)); }
    void openMainMenu() { show(new Startfrm(test.program)); }

    template <typename T>
    T *find(const char *name) const
    {
        return control<T>(*window, name);
    }
    void click(const char *name) const { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    void trigger(const char *name) const { find<QAction>(name)->trigger(); }
    void answer(Answer answer) { test.dialogs.willAnswer(answer); }
    void type(const char *box, const QString &text) const
    {
        find<QLineEdit>(box)->setFocus();
        find<QLineEdit>(box)->selectAll();
        QTest::keyClicks(find<QLineEdit>(box), text);
    }
    void selectName(int row) const
    {
        auto *list = find<QListView>("List1");
        list->setCurrentIndex(list->model()->index(row, 0));
    }
    /// Waits for the end of a walk over many days.
    void finish() const { QTRY_VERIFY(window->findChild<QMenuBar *>()->isEnabled()); }

    /// What the folder holds, but for a journal that has done its work and files that are empty as yet.
    Files files() const
    {
        Files files;
        for (const QString &name : QDir(test.folder.path()).entryList(QDir::Files))
            if (const QByteArray bytes = test.bytes(name); !bytes.isEmpty())
                files.insert(name, bytes);
        files.remove(ChangeSet::journalName);
        return files;
    }
    /// All that the person has been told since the last time.
    QStringList told()
    {
        QStringList texts;
        for (const Message &message : test.dialogs.takeShown())
            texts << message.text;
        if (window)
            texts << window->findChild<ActivityBar *>()->message();
        for (const QLabel *refusal :
             window ? window->findChildren<QLabel *>(u"refusal"_s) : QList<QLabel *>())
            texts << refusal->text();
        return texts;
    }

    TestProgram test;
    QPointer<QWidget> window;
};

/// What a person does to be able to save, and how it is saved.
struct Save {
    enum Kind {
        Record,
        Setting, ///< holds in the window, saved or not
        Walk     ///< each day is saved by itself
    };
    void (*prepare)(Desk &);
    void (*press)(Desk &);
    Kind kind = Record;
};

/// Each day of the planner's files is as in one or the other; nothing stands between the days.
bool isMixedByDay(const Files &now, const Files &before, const Files &after)
{
    const auto day = [](const Files &files, const QString &name, int record) {
        return DayRecord::ofNumber(files.value(name), record).toByteArray().left(plannerDayLayout.size());
    };
    for (const QString &name : after.keys()) {
        for (int record = 1; record <= DayRecord::last; ++record) {
            const QByteArray bytes = day(now, name, record);
            if (bytes != day(after, name, record) && bytes != day(before, name, record))
                return false;
        }
    }
    return true;
}

const Save newEntry{[](Desk &desk) {
                        desk.open(Function::AddressBook);
                        desk.click("Command6");
                        desk.type("Text1_0", u"Zorn"_s);
                    },
                    [](Desk &desk) { desk.click("Command1"); }};

const Save changedName{[](Desk &desk) {
                           desk.open(Function::AddressBook);
                           desk.selectName(2);
                           desk.click("Command4");
                           desk.type("Text1_0", u"Zorn"_s);
                       },
                       [](Desk &desk) { desk.click("Command4"); }};

const Save deletedEntry{[](Desk &desk) {
                            desk.open(Function::AddressBook);
                            desk.selectName(2);
                        },
                        [](Desk &desk) {
                            desk.answer(Answer::Yes);
                            desk.click("Command3");
                        }};

const Save undoneDeletion{[](Desk &desk) {
                              deletedEntry.prepare(desk);
                              deletedEntry.press(desk);
                          },
                          [](Desk &desk) { desk.trigger("mEUndo"); }};

const Save broughtBack{[](Desk &desk) {
                           deletedEntry.prepare(desk);
                           deletedEntry.press(desk);
                           desk.trigger("mEBack");
                       },
                       [](Desk &desk) { desk.click("bringBack"); }};

const Save savedDay{[](Desk &desk) {
                        desk.open(Function::Planner);
                        desk.type("Text2_13", u"Ferns"_s);
                    },
                    [](Desk &desk) { desk.click("saveDay"); }};

const Save undoneDay{[](Desk &desk) {
                         savedDay.prepare(desk);
                         savedDay.press(desk);
                     },
                     [](Desk &desk) { desk.trigger("mEUndo"); }};

const Save emptiedDay{[](Desk &desk) {
                          savedDay.prepare(desk);
                          savedDay.press(desk);
                          desk.answer(Answer::Yes);
                          desk.click("clearDay");
                      },
                      [](Desk &desk) {
                          desk.answer(Answer::Yes);
                          desk.click("saveDay");
                      }};

const Save broughtBackDay{[](Desk &desk) {
                              emptiedDay.prepare(desk);
                              emptiedDay.press(desk);
                              desk.trigger("mEBack");
                          },
                          [](Desk &desk) { desk.click("bringBack"); }};

const Save recurrence{[](Desk &desk) {
                          desk.open(Function::Planner);
                          desk.type("Text2_0", u"Yoga"_s);
                          desk.click("saveDay");
                          desk.find<QLineEdit>("Text2_0")->setFocus();
                          desk.trigger("mERec");
                          QTest::mouseClick(desk.find<QRadioButton>("kind_0"), Qt::LeftButton, {}, {10, 8});
                          desk.type("endDate", u"11/25/2026"_s);
                      },
                      [](Desk &desk) {
                          desk.click("recurrenceOk");
                          desk.finish();
                      },
                      Save::Walk};

const Save removal{[](Desk &desk) {
                       recurrence.prepare(desk);
                       recurrence.press(desk);
                       desk.find<QLineEdit>("Text2_0")->setFocus();
                       desk.trigger("mERec");
                       desk.type("endDate", u"11/25/2026"_s);
                   },
                   [](Desk &desk) {
                       desk.answer(Answer::Yes);
                       desk.click("recurrenceRemove");
                       desk.finish();
                   },
                   Save::Walk};

const Save undoneRecurrence{[](Desk &desk) {
                                recurrence.prepare(desk);
                                recurrence.press(desk);
                            },
                            [](Desk &desk) { desk.trigger("mEUndo"); }};

const Save importedToDos{[](Desk &desk) { desk.open(Function::Planner); },
                         [](Desk &desk) {
                             desk.answer(Answer::Yes);
                             desk.trigger("mUImport");
                             desk.finish();
                         },
                         Save::Walk};

const Save calendarOptions{[](Desk &desk) {
                               desk.open(Function::Planner);
                               desk.trigger("mOCal");
                               desk.find<QRadioButton>("months_1")->setChecked(true);
                               desk.find<QRadioButton>("weekStart_3")->setChecked(true);
                           },
                           [](Desk &desk) { desk.click("calendarOptionsOk"); }};

const Save savedBudget{[](Desk &desk) {
                           desk.open(Function::Budget);
                           auto *grid = desk.find<QAbstractItemView>("VSGd1");
                           QVERIFY(grid->model()->setData(grid->model()->index(0, 0), u"Zorn"_s));
                       },
                       [](Desk &desk) { desk.click("saveBudget"); }};

const Save copiedYear{[](Desk &desk) { desk.open(Function::Budget); },
                      [](Desk &desk) {
                          desk.answer(Answer::Yes);
                          desk.trigger("mECY");
                      }};

const Save undoneCopy{[](Desk &desk) {
                          copiedYear.prepare(desk);
                          copiedYear.press(desk);
                      },
                      [](Desk &desk) { desk.trigger("mEUndo"); }};

const Save exportedBudget{[](Desk &desk) { desk.open(Function::Budget); },
                          [](Desk &desk) {
                              desk.answer(Answer::Ok);
                              desk.test.dialogs.willRun([](QDialog &box) {
                                  control<QPushButton>(box, "exportOk")->click();
                                  return box.result();
                              });
                              desk.trigger("mUExcel");
                          }};

/// Sheet, history and fuel tracker in one go.
const Save savedCar{[](Desk &desk) {
                        desk.open(Function::CarLog);
                        desk.trigger("mVMaint");
                        auto *history = desk.find<QAbstractItemView>("maintenanceList")->model();
                        QVERIFY(history->setData(history->index(0, 2), u"Zorn"_s));
                        desk.trigger("mVFuel");
                        auto *fuel = desk.find<QAbstractItemView>("fuelGrid")->model();
                        QVERIFY(fuel->setData(fuel->index(0, 2), u"84999"_s));
                    },
                    [](Desk &desk) { desk.trigger("mOSave"); }};

const Save deletedCarEntry{[](Desk &desk) {
                               desk.open(Function::CarLog);
                               desk.trigger("mVRep");
                               auto *list = desk.find<QAbstractItemView>("Grid1");
                               list->setCurrentIndex(list->model()->index(0, 2));
                           },
                           [](Desk &desk) {
                               // Where that was refused the entry is gone from the window, and can be saved.
                               if (qobject_cast<FunctionWindow *>(desk.window)->isModified()) {
                                   desk.trigger("mOSave");
                                   return;
                               }
                               desk.answer(Answer::Yes);
                               desk.trigger("mEDelete");
                           }};

const Save newCar{[](Desk &desk) {
                      desk.open(Function::CarLog);
                      desk.trigger("mONew");
                      desk.type("Text1_0", u"Zorn"_s);
                      desk.type("Text1_20", u"Saab"_s);
                      desk.type("Text1_22", u"61300"_s);
                  },
                  [](Desk &desk) {
                      desk.answer(Answer::Yes);
                      desk.click("informationViewSaveExit");
                  }};

const Save deletedCar{[](Desk &desk) { desk.open(Function::CarLog); },
                      [](Desk &desk) {
                          desk.answer(Answer::Yes);
                          desk.trigger("mODel");
                      }};

const Save undoneCar{[](Desk &desk) {
                         deletedCar.prepare(desk);
                         deletedCar.press(desk);
                     },
                     [](Desk &desk) { desk.trigger("mEUndo"); }};

const Save broughtBackCar{[](Desk &desk) {
                              deletedCar.prepare(desk);
                              deletedCar.press(desk);
                              desk.trigger("mEBack");
                          },
                          [](Desk &desk) { desk.click("bringBack"); }};

const Save otherUnit{[](Desk &desk) { desk.open(Function::CarLog); },
                     [](Desk &desk) { desk.trigger("mOProgKilo"); }};

const Save savedPerson{[](Desk &desk) {
                           desk.open(Function::WeightTracker);
                           desk.trigger("mVPlan");
                           desk.type("Text1_3", u"141"_s);
                       },
                       [](Desk &desk) { desk.trigger("mOSave"); }};

const Save renamedPerson{[](Desk &desk) {
                             desk.open(Function::WeightTracker);
                             desk.trigger("mVPlan");
                             desk.type("Text1_0", u"Karin Zorn"_s);
                         },
                         [](Desk &desk) { desk.trigger("mOSave"); }};

/// Where it was refused it is in the table, and can be saved.
const Save weighIn{[](Desk &desk) {
                       desk.open(Function::WeightTracker);
                       desk.type("weighInWeight", u"151.2"_s);
                   },
                   [](Desk &desk) {
                       auto *weight = desk.find<QLineEdit>("weighInWeight");
                       if (weight->text().isEmpty())
                           desk.trigger("mOSave");
                       else
                           QTest::keyClick(weight, Qt::Key_Return);
                   }};

const Save undoneWeighIn{[](Desk &desk) {
                             weighIn.prepare(desk);
                             weighIn.press(desk);
                         },
                         [](Desk &desk) { desk.trigger("mEUndo"); }};

const Save deletedWeighIn{[](Desk &desk) {
                              desk.open(Function::WeightTracker);
                              auto *persons = desk.find<QListView>("Combo1");
                              persons->setCurrentIndex(persons->model()->index(1, 0));
                              auto *table = desk.find<QAbstractItemView>("Grid4");
                              table->setCurrentIndex(table->model()->index(3, 1));
                          },
                          [](Desk &desk) {
                              // Where that was refused the row is gone from the window, and can be saved.
                              if (qobject_cast<FunctionWindow *>(desk.window)->isModified()) {
                                  desk.trigger("mOSave");
                                  return;
                              }
                              desk.answer(Answer::Yes);
                              desk.trigger("mEDel");
                          }};

const Save toldWeight{[](Desk &desk) { desk.open(Function::WeightTracker); },
                      [](Desk &desk) { desk.trigger("mOTold"); }};

const Save newPerson{[](Desk &desk) {
                         desk.open(Function::WeightTracker);
                         desk.trigger("mONew");
                         desk.type("Text1_0", u"Zorn"_s);
                     },
                     [](Desk &desk) { desk.trigger("mOSaveNew"); }};

const Save deletedPerson{[](Desk &desk) { desk.open(Function::WeightTracker); },
                         [](Desk &desk) {
                             desk.answer(Answer::Yes);
                             desk.trigger("mODel");
                         }};

const Save undonePerson{[](Desk &desk) {
                            deletedPerson.prepare(desk);
                            deletedPerson.press(desk);
                        },
                        [](Desk &desk) { desk.trigger("mEUndo"); }};

const Save broughtBackPerson{[](Desk &desk) {
                                 deletedPerson.prepare(desk);
                                 deletedPerson.press(desk);
                                 desk.trigger("mEBack");
                             },
                             [](Desk &desk) { desk.click("bringBack"); }};

const Save newThing{[](Desk &desk) {
                        desk.open(Function::ToDoList);
                        desk.type("newItem", u"Water the ferns"_s);
                        QTest::keyClick(desk.find<QLineEdit>("newItem"), Qt::Key_Return);
                    },
                    [](Desk &desk) { desk.trigger("mOSave"); }};

const Save newThingUndone{[](Desk &desk) {
                              newThing.prepare(desk);
                              newThing.press(desk);
                              desk.trigger("mEUndo");
                          },
                          [](Desk &desk) { desk.trigger("mOSave"); }};

const Save marks{[](Desk &desk) {
                     desk.openPasswordControl();
                     desk.find<QCheckBox>("Check1_2")->click();
                 },
                 [](Desk &desk) { desk.click("Command1"); }};

const Save noPassword{[](Desk &desk) {
                          desk.openPasswordControl();
                          desk.click("removePassword");
                      },
                      [](Desk &desk) {
                          desk.type("Text1_0", u"Sesame"_s);
                          desk.click("passwordOk");
                      }};

const Save topToolbar{[](Desk &desk) { desk.openMainMenu(); }, [](Desk &desk) { desk.trigger("Toolbar2_4"); },
                      Save::Setting};

const Save sideToolbars{[](Desk &desk) { desk.openMainMenu(); },
                        [](Desk &desk) { desk.trigger("Toolbar2_5"); }, Save::Setting};

const Save familyName{[](Desk &desk) { desk.openMainMenu(); },
                      [](Desk &desk) {
                          desk.test.dialogs.willInput(u"Zorn"_s);
                          desk.trigger("Toolbar2_2");
                      },
                      Save::Setting};

const Save defaultColor{[](Desk &desk) { desk.openMainMenu(); },
                        [](Desk &desk) { desk.trigger("mOPCDefault"); }, Save::Setting};

const Save windowColor{[](Desk &desk) { desk.open(Function::Planner); },
                       [](Desk &desk) {
                           desk.test.dialogs.willChooseColor(QColor(Qt::yellow));
                           for (int question = 0; question < 3; ++question)
                               desk.answer(Answer::Yes);
                           desk.trigger("mOC");
                       },
                       Save::Setting};

const Save screenSize{[](Desk &desk) { desk.openMainMenu(); }, [](Desk &desk) { desk.trigger("mOPS"); },
                      Save::Setting};

} // namespace

/// Every save of the program, with every step of it on the way to the disk refused in turn, and with the
/// program ended at every step.
class TestEverySave : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLoggingCategory::setFilterRules(u"*.warning=false"_s); }

    void isOldOrNewAndTold_data()
    {
        rows<Save>({
            {"a new address", newEntry},
            {"another name", changedName},
            {"an address deleted", deletedEntry},
            {"a deletion undone", undoneDeletion},
            {"an address brought back", broughtBack},
            {"a day", savedDay},
            {"a day undone", undoneDay},
            {"a day emptied", emptiedDay},
            {"a day brought back", broughtBackDay},
            {"a recurrence", recurrence},
            {"a recurrence undone", undoneRecurrence},
            {"to-dos imported", importedToDos},
            {"calendar options", calendarOptions},
            {"a budget", savedBudget},
            {"a budget for the next year", copiedYear},
            {"a budget for the next year undone", undoneCopy},
            {"a budget exported", exportedBudget},
            {"a car", savedCar},
            {"an entry of a car deleted", deletedCarEntry},
            {"a new car", newCar},
            {"a car deleted", deletedCar},
            {"the deletion of a car undone", undoneCar},
            {"a car brought back", broughtBackCar},
            {"another unit for all cars", otherUnit},
            {"a person", savedPerson},
            {"another name of a person", renamedPerson},
            {"a weigh-in", weighIn},
            {"a weigh-in undone", undoneWeighIn},
            {"a weigh-in deleted", deletedWeighIn},
            {"a weight that the main menu may tell", toldWeight},
            {"a new person", newPerson},
            {"a person deleted", deletedPerson},
            {"the deletion of a person undone", undonePerson},
            {"a person brought back", broughtBackPerson},
            {"a thing to do", newThing},
            {"a thing to do undone", newThingUndone},
            {"marks of areas", marks},
            {"no password", noPassword},
            {"top toolbar", topToolbar},
            {"side toolbars", sideToolbars},
            {"family name", familyName},
            {"default panel color", defaultColor},
            {"a window's color", windowColor},
            {"screen size", screenSize},
        });
    }

    void isOldOrNewAndTold()
    {
        const auto [save] = row<Save>();
        succeed(save);
        for (int step = 1; step <= m_steps && !QTest::currentTestFailed(); ++step) {
            refuse(save, step);
            if (save.kind != Save::Walk) // a power cut may tear the day that is being written
                end(save, step);
            if (QTest::currentTestFailed())
                qInfo() << "at step" << step << "of" << m_steps;
        }
    }

    /// What a removal takes from many days is in them or in the trash, wherever it is refused or cut off.
    void keepsWhatARemovalTakes_data()
    {
        rows<DiskFailure>({{"refused", DiskFailure::OneStep}, {"cut off", DiskFailure::TheEnd}});
    }

    void keepsWhatARemovalTakes()
    {
        const auto [failure] = row<DiskFailure>();
        int steps = 1;
        for (int failing = 0; failing <= steps; ++failing) {
            Desk desk(TestProgram::Household);
            removal.prepare(desk);
            {
                const FailingDisk disk(failing == 0 ? DiskFailure::OneStep : failure, failing);
                removal.press(desk);
                steps = failing == 0 ? disk.steps() : steps;
            }
            QVERIFY(ChangeSet::recover(desk.test.folder));
            const auto thrown = PlannerTrash::items(desk.test.folder, desk.test.clock.now());
            if (failing == 0)
                QVERIFY(thrown.size() == 1 && thrown.front().pieces.size() == 5);
            for (QDate date(2026, 11, 21); date <= QDate(2026, 11, 25); date = date.addDays(1)) {
                const Trash::Piece lost = PlannerTrash::ofRemoval({{}, u"Yoga"_s}, {date}, {}).pieces.front();
                const bool isInTrash = !thrown.empty() && std::ranges::find(thrown.front().pieces, lost) !=
                                                              thrown.front().pieces.end();
                QVERIFY2(isInTrash || yogas(desk, date) == 1,
                         qPrintable(u"step %1, %2"_s.arg(failing).arg(date.toString())));
            }
            // Where it stands still, bringing it back adds none.
            if (!thrown.empty())
                QVERIFY(
                    PlannerTrash::bringBack(desk.test.folder, thrown.front(), UntimedPlacement::Last).isDone);
            for (QDate date(2026, 11, 21); failure == DiskFailure::OneStep && date <= QDate(2026, 11, 25);
                 date = date.addDays(1))
                QCOMPARE(yogas(desk, date), 1);
        }
    }

private:
    static qsizetype yogas(const Desk &desk, QDate date)
    {
        return std::ranges::count(PlannerFiles(desk.test.folder).peek(date).texts, u"Yoga"_s);
    }
    static TestProgram::Content content(const Save &save)
    {
        return save.kind == Save::Setting ? TestProgram::Empty : TestProgram::Household;
    }

    void succeed(const Save &save)
    {
        Desk desk(content(save));
        save.prepare(desk);
        desk.told();
        const Files before = desk.files();
        const FailingDisk disk(DiskFailure::OneStep, 0);
        save.press(desk);
        m_steps = disk.steps();
        m_told = desk.told();
        m_after = desk.files();
        QVERIFY(m_after != before);
    }

    /// Nobody is told of a success that is none, and what was refused can be tried again.
    void refuse(const Save &save, int step) const
    {
        Desk desk(content(save));
        save.prepare(desk);
        desk.told();
        const Files before = desk.files();
        {
            const FailingDisk disk(DiskFailure::OneStep, step);
            save.press(desk);
        }
        const Files now = desk.files();
        if (now == m_after)
            return;
        QVERIFY(now == before || (save.kind == Save::Walk && isMixedByDay(now, before, m_after)));
        QVERIFY(desk.told() != m_told);
        if (save.kind == Save::Setting)
            return;
        save.press(desk);
        QVERIFY(desk.files() == m_after);
    }

    /// The next start makes it old or new.
    void end(const Save &save, int step) const
    {
        Desk desk(content(save));
        save.prepare(desk);
        const Files before = desk.files();
        {
            const FailingDisk disk(DiskFailure::TheEnd, step);
            save.press(desk);
        }
        QVERIFY(ChangeSet::recover(desk.test.folder));
        Saving::recover(desk.test.folder);
        QVERIFY(desk.files() == m_after || desk.files() == before);
    }

    // after the save that succeeds
    Files m_after;
    QStringList m_told;
    int m_steps = 0;
};

QTEST_MAIN(TestEverySave)
#include "tst_everysave.moc"
