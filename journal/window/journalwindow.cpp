// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalwindow.h"

#include "journal/model/journalfiles.h"
#include "journal/model/messages.h"
#include "journal/window/daycommands.h"
#include "journal/window/dayfacts.h"
#include "journal/window/daypage.h"
#include "journal/window/journaldamage.h"
#include "journal/window/journalexchange.h"
#include "journal/window/journalfront.h"
#include "journal/window/journalpane.h"
#include "journal/window/journalprint.h"
#include "journal/window/journalspelling.h"
#include "journal/window/journaltext.h"
#include "journal/window/openday.h"
#include "journal/window/pagecommands.h"
#include "journal/window/picturecommands.h"
#include "journal/window/seallines.h"
#include "journal/window/windowlines.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/tagbox.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/core/slicedwork.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/windowwriting.h"
#include "shell/frame/workviews.h"
#include "shell/program/locking.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHideEvent>
#include <QMenu>
#include <QMimeData>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int followsAfter = 200; // milliseconds

WindowTraits traits()
{
    return {.name = u"DJournal"_s,
            .caption = u"Personal Journal"_s,
            .activity = u"Daily Journal"_s,
            .colors = {SettingsKeys::journalColor, SettingsKeys::journalProgramColor,
                       SettingsKeys::journalTextColor},
            .helpContext = HelpContext::Journal};
}

} // namespace

DJournal::DJournal(Program &program, QWidget *parent, PasswordCost cost, std::chrono::milliseconds step)
    : FunctionWindow(program, traits(), parent)
    , m_journal(program.folder, program.clock, nullptr, cost)
    , m_writing(WindowWriting::make(program, this))
    , m_stack(new WorkViews(this))
    , m_page(new DayPage(program))
    , m_day(new OpenDay(m_journal, {m_page->text(), m_page->tags(), m_page->pictures()}, this))
    , m_pane(new JournalPane(program, colors(), m_journal, this))
    , m_front(new JournalFront(desk(), step, this))
    , m_damage(new JournalDamage(desk(), this))
    , m_days(new DayCommands(desk(), this))
    , m_edit(new PageCommands(desk(), this))
    , m_pictures(new PictureCommands(desk(), this))
    , m_spelling(JournalSpelling::make(desk()))
    , m_exchange(new JournalExchange(desk(), this))
    , m_print(new JournalPrint(desk(), this))
    , m_reading(new SlicedWork(this))
{
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_pane, makeWorkPanel(), &JournalPane::suitableWidth));
    makeCommands();
    setViews(m_stack);
    connectParts();
    connectFront();
    finishFrame();
    Locking::offerAlso(program, activity(), [this] { return m_journal.seal().isOpen(); });
    m_front->enter();
}

DJournal::~DJournal()
{
    for (QObject *part : {static_cast<QObject *>(m_stack), static_cast<QObject *>(m_day)})
        disconnect(part, nullptr, this, nullptr); // they go later, and still tell
    m_journal.seal().lock();
}

JournalDesk DJournal::desk()
{
    return {program(),
            *this,
            m_journal,
            commands(),
            activity(),
            *m_stack,
            *m_writing,
            *m_page,
            *m_day,
            [this](QDate date) { goTo(date); },
            [this] { return whyNone(); },
            [this](bool isBusy) { setBusy(isBusy); },
            [this]() -> PreviewPane & { return preview(); }};
}

QWidget *DJournal::makeWorkPanel()
{
    m_stack->addHome(m_page);
    m_page->hide(); // until it is the one
    return makePanel(u"journalPanel"_s, m_stack);
}

/// The tools stand in the order in which their commands are made.
void DJournal::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *format = addMenu(u"mFt"_s, u"&Format"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    m_days->addCommands(view);
    view->addSeparator();
    commands().add(
        view, u"mVSearch"_s, u"&Search"_s, [this] { m_pane->startSearch(); }, [this] { return whyNone(); },
        CommonKeys::search);
    m_edit->addUndo(edit);
    m_pictures->addCommands(edit);
    m_edit->addCommands(edit);
    m_edit->addFormat(format);
    addUsualOptions(options, [this](QMenu *menu) { addOptions(menu); });
    m_spelling->addCommands(addMenu(u"mSp"_s, u"&Spelling"_s), [this] { return whyNone(); });
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    m_exchange->addCommands(utilities);
    utilities->addSeparator();
    m_front->addSealCommands(utilities);
    m_damage->addCommand(utilities);
    m_edit->addAside(utilities);
    utilities->addSeparator();
    utilities->addActions({standard(Standard::Backup), standard(Standard::Restore)});
    addHelpEntry();
    commands().separateTools();
    addUsualTools();
    // At 1024 a second row of tools would be three lines less to write on.
    for (const char *name : {"mOCopy", "mH_tool"})
        toolbar().giveWay(findChild<QAction *>(QLatin1StringView(name)));
    m_edit->makeButtons();
    ButtonRow &foot = m_page->foot();
    foot.addRight(commands().button(standard(Standard::Exit), u"exitButton"_s, u"E&xit"_s, &foot));
}

void DJournal::addOptions(QMenu *options)
{
    m_front->addLockCommands(options);
    options->addSeparator();
    commands().writing(commands().add(
        options, u"mOSave"_s, u"&Save"_s,
        [this] {
            if (m_day->save())
                activity().say(JournalWindowLines::saved());
        },
        [this] { return whyNone(); }, CommonKeys::save));
    QAction *copying = commands().add(
        options, u"mOCopy"_s, u"Cop&y"_s, [this] { copy(); },
        [this] {
            if (QString none = whyNone(); !none.isEmpty())
                return none;
            return m_day->typed().isEmpty() ? JournalWindowLines::nothingWritten() : QString();
        });
    commands().tool(copying, "copy"_L1, u"Copy"_s);
    m_print->addCommands(options);
}

void DJournal::connectParts()
{
    const auto say = [this](const QString &line) { activity().say(line); };
    connect(m_day, &OpenDay::said, this, say);
    connect(m_days, &DayCommands::said, this, say);
    connect(m_edit, &PageCommands::said, this, say);
    connect(m_pictures, &PictureCommands::said, this, say);
    connect(m_spelling, &WindowWriting::said, this, say);
    connect(m_print, &JournalPrint::said, this, say);
    connect(m_exchange, &JournalExchange::said, this, say);
    connect(m_exchange, &JournalExchange::progressed, &activity(),
            [this](int done, int total) { activity().showProgress(done, total); });
    const auto follow = [this] {
        m_pane->refresh();
        commands().refresh();
    };
    connect(m_exchange, &JournalExchange::pagesWanted, m_print, &JournalPrint::savePages);
    connect(m_exchange, &JournalExchange::tookBack, this, follow);
    connect(m_exchange, &JournalExchange::broughtIn, this, [this, follow] {
        follow();
        activity().offerWay(u"Undo"_s, [this] { m_exchange->takeBack(); });
    });
    m_following.setSingleShot(true);
    m_following.setInterval(followsAfter);
    connect(&m_following, &QTimer::timeout, this, &DJournal::followDay);
    connect(m_day, &OpenDay::edited, &m_following, qOverload<>(&QTimer::start));
    connect(m_day, &OpenDay::edited, this, &DJournal::endMessage);
    connect(m_stack, &WorkViews::changed, this, &DJournal::endMessage);
    connect(m_day, &OpenDay::savedChanged, this, [this] {
        if (m_day->isSaved()) { // else another program may have the reason
            // What others wrote meanwhile would pass for seen.
            if (m_journal.reread())
                QTimer::singleShot(0, this, &DJournal::filesChanged);
            watchYears();
        }
        followDay();
    });
    connect(&m_journal, &Journal::changed, m_pane, &JournalPane::refresh);
    connect(m_page, &DayPage::stepped, m_days, &DayCommands::step);
    connect(m_page, &DayPage::todayRequested, m_days, &DayCommands::goToday);
    connect(&m_page->facts(), &DayFacts::chosen, m_edit, &PageCommands::insert);
    connect(m_pane, &JournalPane::dateChosen, this, &DJournal::goTo);
    connect(m_pane, &JournalPane::entered, m_page, [this] { m_page->setFocus(); });
    connect(m_pane, &JournalPane::searchBegun, this, [this] { m_before = m_day->date(); });
    connect(m_pane, &JournalPane::hitOpened, this, [this](QDate date) {
        goTo(date);
        m_page->text().showFound(m_pane->placesIn(m_page->text().text()));
        m_page->setFocus();
    });
    connect(m_pane, &JournalPane::searchLeft, this, [this] {
        m_page->text().showFound({});
        if (const QDate before = std::exchange(m_before, {}); before.isValid())
            goTo(before);
    });
    connect(m_reading, &SlicedWork::progressed, m_pane, &JournalPane::refresh);
    connect(m_reading, &SlicedWork::finished, this, [this] {
        sayDamage();
        m_pane->refresh();
        m_page->setKnownTags(m_journal.tagNames());
        commands().refresh();
    });
}

void DJournal::connectFront()
{
    connect(m_front, &JournalFront::said, this, [this](const QString &line) {
        m_saidOfSeal = line;
        activity().say(line);
    });
    connect(m_front, &JournalFront::progressed, &activity(),
            [this](int done, int total) { activity().showProgress(done, total); });
    connect(m_front, &JournalFront::codePrintWanted, m_print, &JournalPrint::showRecoverySheet);
    connect(m_front, &JournalFront::codeLeft, m_print, &JournalPrint::forget);
    connect(m_front, &JournalFront::entered, this, &DJournal::begin);
    connect(m_front, &JournalFront::forgetting, this, &DJournal::forget);
    connect(m_front, &JournalFront::shut, this, [this] {
        watchYears();
        m_pane->hide();
        commands().refresh();
    });
    connect(m_front, &JournalFront::walked, this, [this] {
        m_journal.reread();
        watchYears();
        readOn();
        if (m_stack->isHome())
            m_page->setFocus();
    });
}

void DJournal::begin()
{
    watchYears();
    m_stack->setHome(m_page);
    m_pane->show();
    const QDate left = std::exchange(m_left, {});
    goTo(left.isValid() ? left : clock().today());
    m_page->setFocus();
    QTimer::singleShot(0, this, &DJournal::readOn);
}

/// Nothing of any entry is left in boxes, lists, pages and words.
void DJournal::forget()
{
    if (const QDate date = m_day->date(); date.isValid())
        m_left = date == clock().today() ? QDate() : date;
    m_reading->stop();
    m_following.stop();
    m_before = {};
    m_day->forget();
    m_page->forget();
    m_pane->forget();
    m_damage->forget();
    m_edit->forget();
    m_pictures->forget();
    m_spelling->forget();
    m_exchange->forget();
    m_print->forget();
    undoStack().clear();
    activity().showProgress(0, 0);
    activity().say({});
}

void DJournal::goTo(QDate date)
{
    if (!m_front->isOpen() || !Journal::isPossible(date))
        return;
    closePreview();
    if (!m_stack->isHome())
        m_stack->goHome();
    activity().say({});
    if (date != m_day->date()) {
        m_day->open(date);
        // One goes on with today, and reads what was.
        if (date == clock().today() && m_page->text().textCursor().atStart())
            m_page->text().moveCursor(QTextCursor::End);
    }
    m_pane->setDate(date);
    m_page->facts().setDate(date);
    followDay();
}

/// What was said was of the step before; that something is not saved holds on.
void DJournal::endMessage()
{
    if (!m_day->hasFailed())
        activity().say({});
}

void DJournal::followDay()
{
    m_page->follow(*m_day);
    m_page->setDamage(m_damage->wordsOf(m_day->date()));
    commands().refresh();
    m_edit->follow();
}

/// The other years are read when the window has been seen: for the same day in them, and for the tags.
void DJournal::readOn()
{
    if (!m_front->isOpen())
        return;
    m_reading->start([this] { return m_journal.readNext(m_day->date().year()); });
}

/// Behind what the seal has just said, which is not to be lost.
void DJournal::sayDamage()
{
    const QString damaged = m_damage->summary();
    const QString said = activity().message();
    if (damaged.isEmpty() || said.contains(damaged))
        return;
    activity().say(said == m_saidOfSeal ? SealLines::together({said, damaged}) : damaged);
}

void DJournal::watchYears()
{
    QStringList names;
    for (const int year : m_journal.years())
        names.append(JournalFiles::name(year));
    names.append(JournalSeal::keyFile);
    watchFiles(names);
}

void DJournal::filesChanged()
{
    m_day->take();
    m_journal.reread();
    watchYears();
    if (m_front->follow()) // sealed or opened elsewhere
        return;
    m_pane->refresh();
    readOn();
}

void DJournal::changeEvent(QEvent *event)
{
    FunctionWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized())
        m_front->minimised();
}

/// It locks itself when it is closed.
void DJournal::hideEvent(QHideEvent *event)
{
    FunctionWindow::hideEvent(event);
    if (!event->spontaneous())
        m_front->lock();
}

QString DJournal::whyNone() const
{
    return m_day->date().isValid() ? QString() : JournalWindowLines::isLocked();
}

bool DJournal::isModified() const
{
    return !m_day->save();
}

bool DJournal::save()
{
    return m_day->save();
}

/// The disk has refused; Yes leaves all the same.
Answer DJournal::askToLeave()
{
    return ask(JournalMessages::leaveUnsaved()) == Answer::Yes ? Answer::No : Answer::Cancel;
}

void DJournal::showPlace(const Place &place)
{
    if (!m_front->isOpen()) {
        m_left = place.date;
        return;
    }
    goTo(place.date);
    m_page->setFocus();
}

void DJournal::copy()
{
    QGuiApplication::clipboard()->setMimeData(m_print->copied(m_day->typed()).release());
    ask(JournalMessages::copied());
}
