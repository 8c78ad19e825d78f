// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/functionwindow.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/searchbox.h"
#include "shell/controls/workscroll.h"
#include "shell/core/framelines.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/menufocus.h"
#include "shell/frame/refusedcommands.h"
#include "shell/frame/searchoverlay.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undokeys.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowplace.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"
#include "shell/look/theme.h"
#include "shell/preview/previewpane.h"
#include "shell/program/covering.h"
#include "shell/program/functionfaces.h"
#include "shell/program/locking.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusTipEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int windowMargin = 16;

/// The reason of a tool under the mouse may no longer be one when something else is in front.
void forgetTip(QWidget *window)
{
    QStatusTipEvent none((QString()));
    QCoreApplication::sendEvent(window, &none);
}

/// The printer's queue, and a PDF's name, tell nothing of what the password guards.
QString jobNameFor(const QString &name, const QString &caption, const QWidget &window, const Program &program)
{
    const std::optional<Function> function = program.functions.functionOf(window);
    const bool isGuarded = function && FunctionFaces::of(*function).isGuarded(program.state.protectedAreas);
    return isGuarded ? caption : name;
}

} // namespace

FunctionWindow::FunctionWindow(Program &program, WindowTraits traits, QWidget *parent)
    : QMainWindow(parent)
    , m_program(program)
    , m_traits(std::move(traits))
    , m_activity(new ActivityBar(program.clock, program.state.dateStyle, this))
    , m_colors(new PanelColors(program, m_traits.colors, this, *m_activity))
    , m_commands(new Commands(this, program.folder.whyReadOnly()))
    , m_standard(new StandardCommands(program, *m_commands, *m_colors, m_traits.helpContext, this))
    , m_undoStack(new UndoStack(
          program, *m_commands, *m_activity,
          [this] {
              closePreview();
              return mayReplace(replaceQuestion());
          },
          this))
    , m_toolbar(named(new WindowToolbar(program, m_traits.topToolbar, *m_commands, *m_activity, this),
                      u"toolbar"_s))
    , m_refused(new RefusedCommands(*m_commands, *m_activity, this))
    , m_stack(new QStackedWidget(this))
{
    setObjectName(m_traits.name);
    setWindowTitle(m_traits.caption);
    setWindowIcon(Icons::applicationIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    setStatusBar(m_activity);
    m_activity->setActivity(m_traits.activity);
    m_activity->showReadOnly(program.folder.whyReadOnly());

    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(0);
    rows->addWidget(m_toolbar);
    rows->addWidget(m_stack, 1);
    auto *workPlace = new QWidget(m_stack);
    m_workPlace = new QVBoxLayout(workPlace);
    m_workPlace->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    m_stack->addWidget(workPlace);
    setCentralWidget(content);

    connect(m_stack, &QStackedWidget::currentChanged, this, [this] { forgetTip(this); });
    connect(new UndoKeys(this), &UndoKeys::refused, m_refused, &RefusedCommands::tell);
    m_standard->addMainMenuTool();
    connect(m_colors, &PanelColors::changed, this, [this] {
        if (m_preview)
            m_preview->setDeskColor(m_colors->panelColor());
    });
}

FunctionWindow::~FunctionWindow() = default;

bool FunctionWindow::mayLeave()
{
    if (m_busy) {
        m_activity->say(FrameLines::stillBusy());
        return false;
    }
    if (m_leaving)
        return true;
    // What is asked before the window goes tells of its content.
    if (isModified() && !Locking::maySee(*this, m_program))
        return false;
    Leaving leaving;
    if (isModified())
        leaving.data = askToLeave();
    if (leaving.data != Answer::Cancel)
        leaving.colors = m_colors->askToSave();
    if (leaving.data != Answer::Cancel && leaving.colors != Answer::Cancel)
        m_leaving = leaving;
    return m_leaving.has_value();
}

bool FunctionWindow::saveToLeave()
{
    if (m_leaving && m_leaving->data == Answer::Yes && save())
        m_leaving->data = Answer::Ok;
    return !m_leaving || m_leaving->data != Answer::Yes;
}

bool FunctionWindow::mayBackUp()
{
    if (!isModified())
        return true;
    if (!Locking::maySee(*this, m_program))
        return false;
    const Answer answer = askAbout(backupQuestion());
    return answer == Answer::No || (answer == Answer::Yes && save());
}

QString FunctionWindow::whyNothingToBackUp() const
{
    const std::optional<Function> function = m_program.functions.functionOf(*this);
    const FunctionEntry *entry = function ? m_program.functions.entry(*function) : nullptr;
    if (!entry || !entry->files)
        return {};
    const QStringList files = entry->files(m_program);
    const bool isAnyFilled = std::ranges::any_of(files, [this](const QString &name) {
        return QFileInfo(m_program.folder.existingFile({}, name)).size() > 0;
    });
    return isAnyFilled ? QString() : FrameLines::nothingToBackUp();
}

bool FunctionWindow::mayReplace(const Message &question)
{
    if (!isModified())
        return true;
    const Answer answer = askAbout(question);
    if (answer == Answer::No)
        drop();
    return answer == Answer::No || (answer == Answer::Yes && save());
}

/// Yes, No, or Cancel for everything else.
Answer FunctionWindow::askAbout(const Message &question)
{
    Message asked = question;
    if (qApp->isSavingSession())
        asked.answers.removeAll(Answer::Cancel);
    const Answer answer = ask(asked);
    return answer == Answer::Yes || answer == Answer::No ? answer : Answer::Cancel;
}

/// Left alone, it would come to a part that hands the focus on to one of its own, and pass over what stands
/// before that one.
bool FunctionWindow::focusNextPrevChild(bool next)
{
    QWidget *from = focusWidget() ? focusWidget() : this;
    const auto step = [next](const QWidget *each) {
        return next ? each->nextInFocusChain() : each->previousInFocusChain();
    };
    for (QWidget *each = step(from); each != from; each = step(each)) {
        const bool isStop = (each->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !each->focusProxy() &&
                            !each->size().isEmpty(); // of a page that gives way to what is shown
        if (!isStop || each == this || each->window() != this || !each->isVisibleTo(this) ||
            !each->isEnabled())
            continue;
        each->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

void FunctionWindow::setBusy(bool busy)
{
    m_busy = busy;
    menuBar()->setEnabled(!busy);
    m_toolbar->setEnabled(!busy);
    if (m_sideSplitter)
        m_sideSplitter->side()->setEnabled(!busy);
}

void FunctionWindow::showPreview(std::function<Page(const PageContext &)> builder, const QString &jobName)
{
    bringPreview().show([this, build = std::move(builder)](
                            const PageSetup &setup) { return headed(build(pageContext(setup))); },
                        jobNameFor(jobName, m_traits.caption, *this, m_program));
}

void FunctionWindow::showLandscape(std::function<Page(const PageContext &)> builder, const QString &jobName)
{
    bringPreview().show([this, build = std::move(builder)](
                            const PageSetup &setup) { return headed(build(pageContext(setup))); },
                        jobNameFor(jobName, m_traits.caption, *this, m_program), PreviewPane::Lie::Landscape);
}

void FunctionWindow::showSheets(std::function<PageSheets(const PageContext &)> builder,
                                const QString &jobName)
{
    bringPreview().showSheets(
        [this, build = std::move(builder)](const PageSetup &setup) {
            const PageSheets sheets = build(pageContext(setup));
            return PageSheets{sheets.count,
                              [this, make = sheets.make](int sheet) { return headed(make(sheet)); }};
        },
        jobNameFor(jobName, m_traits.caption, *this, m_program));
}

PageContext FunctionWindow::pageContext(const PageSetup &setup) const
{
    return {setup, m_program.state.dateStyle, m_program.clock.today(), m_program.state.familyName.text()};
}

/// The household's name heads a page with a title where it has no other word at its right.
Page FunctionWindow::headed(Page page) const
{
    if (page.headRight().isEmpty() && !page.title().isEmpty())
        page.setHeadRight(m_program.state.familyName.text());
    return page;
}

PreviewPane &FunctionWindow::bringPreview()
{
    if (!isPreviewShown())
        m_focusBeforePreview = focusWidget();
    PreviewPane &pane = preview();
    m_stack->setCurrentWidget(&pane);
    pane.setFocus();
    m_commands->refresh();
    return pane;
}

void FunctionWindow::closePreview()
{
    if (!isPreviewShown())
        return;
    m_stack->setCurrentIndex(0);
    if (m_focusBeforePreview)
        m_focusBeforePreview->setFocus();
    m_commands->refresh();
}

bool FunctionWindow::isPreviewShown() const
{
    return m_preview && m_stack->currentWidget() == m_preview;
}

PreviewPane &FunctionWindow::preview()
{
    if (!m_preview) {
        m_preview = new PreviewPane(m_program, *m_activity, m_stack);
        m_preview->setDeskColor(m_colors->panelColor());
        m_stack->addWidget(m_preview);
        for (QWidget *panel : m_preview->panels())
            m_colors->addPanel(panel);
        connect(m_preview, &PreviewPane::closed, this, &FunctionWindow::closePreview);
    }
    return *m_preview;
}

void FunctionWindow::setWork(QWidget *work)
{
    m_workPlace->addWidget(new WorkScroll(work));
}

void FunctionWindow::setWork(SideSplitter *splitter)
{
    m_sideSplitter = splitter;
    m_workPlace->addWidget(splitter);
}

void FunctionWindow::setViews(WorkViews *views)
{
    m_views = views;
    connect(views, &WorkViews::changed, m_commands, &Commands::refresh);
    connect(views, &WorkViews::changed, this, [this] { forgetTip(this); });
}

QWidget *FunctionWindow::makePanel(const QString &name)
{
    auto *panel = named(new PanelFrame(this), name);
    m_colors->addPanel(panel);
    return panel;
}

QWidget *FunctionWindow::makePanel(const QString &name, QWidget *work)
{
    QWidget *panel = makePanel(name);
    auto *rows = new QVBoxLayout(panel);
    rows->setContentsMargins(1, 1, 1, 1);
    rows->addWidget(work);
    return panel;
}

QAction *FunctionWindow::standard(Standard command)
{
    return m_standard->action(command);
}

void FunctionWindow::addStandardTool(Standard command, const QString &name)
{
    m_standard->addTool(command, name);
    if (command != Standard::Help) // the menus have them as well, and nobody needs them often
        m_toolbar->giveWay(m_standard->action(command));
}

void FunctionWindow::addUsualTools()
{
    addStandardTool(Standard::PanelColor);
    addStandardTool(Standard::Backup);
    addStandardTool(Standard::Help, u"mH_tool"_s);
}

void FunctionWindow::addUsualOptions(QMenu *options, const std::function<void(QMenu *)> &addOwn)
{
    options->addActions({standard(Standard::PanelColor), standard(Standard::TextColor)});
    options->addSeparator();
    addOwn(options);
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
}

void FunctionWindow::addUtilitiesMenu()
{
    addMenu(u"mU"_s, u"&Utilities"_s)->addActions({standard(Standard::Backup), standard(Standard::Restore)});
}

void FunctionWindow::addHelpEntry()
{
    menuBar()->addAction(standard(Standard::Help));
}

QMenu *FunctionWindow::addMenu(const QString &name, const QString &caption)
{
    QMenu *menu = named(menuBar()->addMenu(caption), name);
    menu->menuAction()->setObjectName(name);
    menu->setToolTipsVisible(true);
    return menu;
}

void FunctionWindow::finishFrame()
{
    SearchOverlay::addCommand(m_program, *m_commands, this, [this] { return !m_busy; });
    m_toolbar->complete(u"Toolbar1"_s + m_traits.name);
    for (const QAction *entry : menuBar()->actions()) {
        if (QMenu *menu = entry->menu())
            connect(menu, &QMenu::aboutToShow, m_standard, &StandardCommands::lookAtFiles);
    }
    m_standard->lookAtFiles();
    m_refused->followMenus();
    new MenuFocus(menuBar());
    m_colors->load();
    WindowPlace::open(*this, m_traits.openingSize,
                      m_program.store.value(storeKey(u"geometry"_s)).toByteArray());
    if (m_sideSplitter)
        m_sideSplitter->restore(m_program.store, storeKey(m_sideSplitter->objectName()));
    Locking::offer(m_program, *m_activity);
    m_activity->startClock();
}

void FunctionWindow::closeEvent(QCloseEvent *event)
{
    if (!mayLeave() || !saveToLeave()) {
        stay();
        event->ignore();
        return;
    }
    const Leaving leaving = *std::exchange(m_leaving, std::nullopt);
    if (leaving.data == Answer::No)
        drop();
    if (leaving.colors == Answer::Yes && !m_colors->save())
        emit m_program.changes.settingNotSaved();
    m_program.store.setValue(storeKey(u"geometry"_s), saveGeometry());
    if (m_sideSplitter)
        m_sideSplitter->save(m_program.store, storeKey(m_sideSplitter->objectName()));
    event->accept();
}

/// While a page is shown the keys are the page's, and no command acts behind it.
bool FunctionWindow::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isPreviewShown()) {
        const QKeySequence key(static_cast<QKeyEvent *>(event)->keyCombination());
        if (key != CommonKeys::help && key != CommonKeys::everything && m_commands->hasKey(key))
            event->accept();
    }
    return QMainWindow::event(event);
}

void FunctionWindow::keyPressEvent(QKeyEvent *event)
{
    const QKeySequence key(event->keyCombination());
    if (key == Qt::Key_Escape) {
        if (isPreviewShown())
            closePreview();
        else if (!leaveView())
            close();
    } else if (key == CommonKeys::help) {
        emit m_program.changes.helpRequested(m_traits.helpContext);
    } else if (key == CommonKeys::redo) {
        redo();
    } else if (key == CommonKeys::print && isPreviewShown()) {
        m_preview->print();
    } else if (!m_refused->tell(key)) {
        QMainWindow::keyPressEvent(event);
    }
}

/// Not every desktop gives this key to boxes for text.
void FunctionWindow::redo() const
{
    if (QWidget *box = focusWidget(); box && box->metaObject()->indexOfSlot("redo()") >= 0)
        QMetaObject::invokeMethod(box, "redo");
}

/// What Esc does before it leaves the window, when no page is shown: what stands over the work goes, then a
/// search. False where there is nothing to do.
bool FunctionWindow::leaveView()
{
    if (m_views && m_views->leave())
        return true;
    const QList<SearchBox *> searches = findChildren<SearchBox *>();
    const auto filled = std::ranges::find_if(
        searches, [](const SearchBox *box) { return box->isVisible() && !box->text().isEmpty(); });
    if (filled == searches.end())
        return false;
    (*filled)->clear();
    return true;
}

void FunctionWindow::watchFiles(const QStringList &names)
{
    m_watchedFiles = names;
    filesSeen();
}

void FunctionWindow::filesSeen()
{
    m_seen = FileStamp::of(m_program.folder, m_watchedFiles);
}

void FunctionWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    m_standard->lookAtFiles();
    if (m_watchedFiles.isEmpty() || Covering::isCovered(*this))
        return;
    if (FileStamp now = FileStamp::of(m_program.folder, m_watchedFiles); now != m_seen) {
        m_seen = std::move(now);
        filesChanged();
    }
}

QString FunctionWindow::storeKey(const QString &what) const
{
    return "Windows/"_L1 + m_traits.name + '/'_L1 + what;
}
