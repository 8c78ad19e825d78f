// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperwindow.h"

#include "keeper/model/messages.h"
#include "keeper/window/clipboardguard.h"
#include "keeper/window/entrycommands.h"
#include "keeper/window/entryform.h"
#include "keeper/window/entryview.h"
#include "keeper/window/entrywork.h"
#include "keeper/window/keeperdoor.h"
#include "keeper/window/keeperexchange.h"
#include "keeper/window/keeperpane.h"
#include "keeper/window/keeperprint.h"
#include "keeper/window/keepertools.h"
#include "keeper/window/secretbox.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/emptypage.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"
#include "shell/program/locking.h"
#include "shell/writing/writing.h"
#include "storage/sealing/freememory.h"

#include <QDialog>
#include <QHideEvent>
#include <QListView>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"Form4"_s,
            .caption = u"Password Keeper"_s,
            .activity = u"Password Keeper"_s,
            .colors = {SettingsKeys::passwordKeeperColor, SettingsKeys::passwordKeeperProgramColor,
                       SettingsKeys::passwordKeeperTextColor},
            .helpContext = HelpContext::PasswordKeeper};
}

} // namespace

Form4::Form4(Program &program, QWidget *parent, PasswordCost cost, std::chrono::milliseconds step)
    : FunctionWindow(program, traits(), parent)
    , m_keeper(program.folder, program.clock, cost)
    , m_writing(new Writing(
          {.folder = program.folder,
           .dictionaryFolders = Dictionaries::folders(program.programFolder.path(), program.folder.path()),
           .store = program.store},
          this))
    , m_strength(m_keeper, *m_writing)
    , m_clipboard(new ClipboardGuard(this))
    , m_idle(program.idle)
    , m_stack(new WorkViews(this))
    , m_pane(new KeeperPane(program, m_keeper,
                            {[this] { return isModified(); }, [this] { return mayReplace(leaveQuestion()); }},
                            this))
    , m_door(new KeeperDoor(desk(), step, this))
    , m_work(new EntryWork(desk(), *m_pane, this))
    , m_commands(new EntryCommands(desk(), *m_work, *m_pane, this))
    , m_tools(new KeeperTools(desk(), *m_work, *m_pane, this))
    , m_print(new KeeperPrint(desk(), *m_pane, this))
    , m_exchange(new KeeperExchange(desk(), *m_pane, this))
{
    m_clipboard->watch(this);
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_pane, makeWorkPanel(),
                             [](QSize window) { return window.width() < 1200 ? 212 : 272; }));
    makeCommands();
    setViews(m_stack);
    connectParts();
    finishFrame();
    Locking::offerAlso(program, activity(), [this] { return isOpen(); });
    m_pane->hide();
    m_door->show();
    commands().refresh();
}

Form4::~Form4()
{
    m_keeper.lock();
}

KeeperDesk Form4::desk()
{
    return {program(),
            *this,
            m_keeper,
            *m_clipboard,
            commands(),
            *m_stack,
            m_strength,
            [this](bool isBusy) { setBusy(isBusy); },
            [this]() -> PreviewPane & { return preview(); }};
}

QWidget *Form4::makeWorkPanel()
{
    QWidget *panel = makePanel(u"keeperPanel"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(m_stack);
    return panel;
}

/// The tools stand in the order in which their commands are made.
void Form4::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    undoStack().addCommands(edit);
    edit->addSeparator();
    m_commands->addEntryCommands(edit);
    edit->addSeparator();
    m_commands->addCopyCommands(edit);
    edit->addSeparator();
    m_tools->addVersionsCommand(edit);
    m_commands->addTrashCommands(edit);
    makeView(view);
    addUsualOptions(options, [this](QMenu *menu) { addOptions(menu); });
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    m_tools->addGenerator(utilities);
    m_print->addSheet(utilities);
    utilities->addSeparator();
    m_exchange->addCommands(utilities);
    utilities->addSeparator();
    m_door->addCommands(utilities);
    utilities->addSeparator();
    utilities->addActions({standard(Standard::Backup), standard(Standard::Restore)});
    addHelpEntry();
    commands().separateTools();
    for (const Standard tool : {Standard::PanelColor, Standard::Backup})
        addStandardTool(tool);
    addStandardTool(Standard::Help, u"mH_tool"_s);
    m_commands->makeButtons();
    EmptyPage &empty = m_work->emptyPage();
    QAction *importing = m_exchange->importCommand();
    empty.addButton(commands().button(importing, u"emptyImport"_s, importing->text(), &empty));
    ButtonRow &foot = m_work->view().foot();
    foot.addRight(commands().button(standard(Standard::Exit), u"exitButton"_s, u"E&xit"_s, &foot));
}

void Form4::makeView(QMenu *view)
{
    const auto unless = [this] { return whyLocked(); };
    m_tools->addViews(view);
    view->addSeparator();
    commands().add(
        view, u"mVSearch"_s, u"&Search"_s, [this] { m_pane->startSearch(); }, unless, CommonKeys::search);
    commands().add(
        view, u"mVShow"_s, u"S&how or Hide Secret"_s, [this] { m_work->view().form().toggleSecret(); },
        [this] {
            return m_work->entry() && m_work->view().form().hasSecret() ? QString()
                                                                        : KeeperWindowLines::noSecret();
        },
        Qt::CTRL | Qt::Key_H);
}

void Form4::addOptions(QMenu *options)
{
    const auto unless = [this] { return whyLocked(); };
    m_tools->addSettings(options);
    QAction *lock = commands().add(
        options, u"mOLock"_s, u"&Lock the Keeper\tCtrl+L"_s, [this] { this->lock(); }, unless);
    commands().tool(lock, "lock"_L1, u"Lock"_s);
    options->addSeparator();
    commands().add(
        options, u"mOCopy"_s, u"Cop&y"_s, [this] { copyList(); },
        [this] { return m_pane->shownCount() > 0 ? whyLocked() : KeeperWindowLines::nothingShown(); });
    m_print->addPrint(options);
}

void Form4::connectParts()
{
    const auto say = [this](const QString &line) { activity().say(line); };
    connect(m_door, &KeeperDoor::opened, this, &Form4::opened);
    connect(m_door, &KeeperDoor::lockDue, this, &Form4::lock);
    connect(m_door, &KeeperDoor::said, this, say);
    connect(m_work, &EntryWork::said, this, say);
    connect(m_commands, &EntryCommands::said, this, say);
    connect(m_commands, &EntryCommands::done, this, [this](const QString &line, const UndoStep &step) {
        undoStack().push(step);
        activity().say(line);
        undoStack().offer();
    });
    const auto askFirst = [this](bool *isFree) { *isFree = mayReplace(leaveQuestion()); };
    connect(m_commands, &EntryCommands::replacing, this, askFirst);
    connect(m_tools, &KeeperTools::replacing, this, askFirst);
    connect(m_print, &KeeperPrint::replacing, this, askFirst);
    connect(m_exchange, &KeeperExchange::replacing, this, askFirst);
    connect(m_exchange, &KeeperExchange::said, this, say);
    connect(m_exchange, &KeeperExchange::progressed, &activity(),
            [this](int done, int total) { activity().showProgress(done, total); });
    connect(m_print, &KeeperPrint::said, this, say);
    connect(m_print, &KeeperPrint::sheetLeft, m_door, &KeeperDoor::showCodeAgain);
    connect(m_door, &KeeperDoor::codePrintWanted, m_print, &KeeperPrint::openSheet);
    connect(m_tools, &KeeperTools::said, this, say);
    connect(m_tools, &KeeperTools::settingsChanged, this, &Form4::followSettings);
    connect(m_pane, &KeeperPane::chosenChanged, m_work, &EntryWork::show);
    connect(m_pane, &KeeperPane::entered, m_stack, [this] { m_stack->currentWidget()->setFocus(); });
    connect(m_pane, &KeeperPane::narrowed, &commands(), &Commands::refresh);
    connect(&m_keeper, &Keeper::changed, m_work, &EntryWork::followKeeper);
    connect(&m_idle, &IdleLimit::reached, this, &Form4::lock);
    connect(&program().changes, &ProgramSignals::lockRequested, this, &Form4::lock);
    connect(&m_pane->list(), &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        findChild<QMenu *>(u"mE"_s)->popup(m_pane->list().viewport()->mapToGlobal(place));
    });
}

void Form4::opened(const QString &line)
{
    followSettings();
    emit program().changes.guardsChanged();
    m_pane->show();
    QStringList lines{line, m_work->takeUp()};
    lines.removeAll(QString());
    activity().say(lines.join(u"; "_s));
    if (m_work->isModified())
        return;
    m_keeper.count() > 0 ? m_pane->setFocus() : m_stack->currentWidget()->setFocus();
}

void Form4::followSettings()
{
    const KeeperSettings settings = m_keeper.settings();
    m_clipboard->setSeconds(settings.clipboardSeconds);
    m_idle.start(std::chrono::minutes(settings.lockMinutes));
    m_locksMinimised = settings.locksMinimised;
}

/// No box that stands open holds it up, and nothing of an entry is left in words, pages or the clipboard.
void Form4::lock()
{
    if (!isOpen()) {
        m_door->lockBehind();
        return;
    }
    m_idle.stop();
    for (QDialog *dialog : findChildren<QDialog *>())
        dialog->reject();
    m_door->forget();
    m_tools->forget();
    m_print->forget();
    m_exchange->forget();
    m_work->sealAway();
    m_clipboard->empty();
    m_keeper.lock();
    undoStack().clear();
    activity().say({});
    m_pane->hide();
    m_door->show();
    if (m_work->isDraftRefused())
        activity().say(KeeperWindowLines::draftRefused());
    emit program().changes.guardsChanged();
    commands().refresh();
    // Behind what is deleted later.
    QMetaObject::invokeMethod(this, &FreeMemory::wipe, Qt::QueuedConnection);
}

QString Form4::whyLocked() const
{
    return isOpen() ? QString() : KeeperWindowLines::isLocked();
}

bool Form4::isModified() const
{
    return m_work->isModified();
}

bool Form4::save()
{
    return m_work->save();
}

void Form4::drop()
{
    m_work->drop();
}

Message Form4::leaveQuestion() const
{
    return KeeperMessages::saveChanges();
}

void Form4::changeEvent(QEvent *event)
{
    FunctionWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized() && m_locksMinimised)
        lock();
}

/// It locks itself when it is closed, and the card says so.
void Form4::hideEvent(QHideEvent *event)
{
    FunctionWindow::hideEvent(event);
    if (!event->spontaneous())
        lock();
}

/// What the list shows, without a secret.
void Form4::copyList()
{
    QStringList lines;
    for (const KeeperSummary &entry : m_pane->shown())
        lines.append(QStringList{entry.title, entry.userName, entry.address}.join(u'\t'));
    m_clipboard->copy(lines.join(u"\r\n"_s));
    ask(KeeperMessages::copied());
}
