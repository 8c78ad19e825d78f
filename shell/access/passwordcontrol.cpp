// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordcontrol.h"

#include "shell/access/gate.h"
#include "shell/access/guardedareas.h"
#include "shell/access/idlechoice.h"
#include "shell/access/passwordmessages.h"
#include "shell/access/passwordpage.h"
#include "shell/access/passwordpane.h"
#include "shell/access/recoverypage.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/area.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/commonkeys.h"
#include "shell/look/theme.h"
#include "shell/program/functionfaces.h"
#include "shell/program/locking.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QVBoxLayout>

#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int passwordPanelWidth = 352;
constexpr int padding = 24;
constexpr int scrollBarWidth = 16; // it lies in the padding
constexpr int otherRows = 4;

/// The functions of this edition in the order of the list.
constexpr std::array ownAreas{Area::AddressBook,   Area::AddressBookButton,
                              Area::AddressViewer, Area::AddressViewerButton,
                              Area::Planner,       Area::Budget,
                              Area::CarLog,        Area::Journal,
                              Area::PasswordKeeper};
/// Those of other editions, the known ones first.
constexpr std::array otherAreas{6, 8, 3, 4, 5, 7, 10, 12, 17, 18, 19, 20};
static_assert(ownAreas.size() + otherAreas.size() == ProtectedAreas::count);

WindowTraits passwordControl()
{
    WindowTraits traits;
    traits.name = u"Form31"_s;
    traits.caption = PasswordMessages::title();
    traits.activity = PasswordMessages::title();
    traits.colors = {SettingsKeys::passwordControlColor, SettingsKeys::passwordControlColor, {}};
    traits.helpContext = HelpContext::PasswordControl;
    traits.openingSize = {1080, 800};
    return traits;
}

/// `content` scrolls inside its panel where the window is too small for it.
QScrollArea *makeScrolled(QWidget *content, const QString &name, QWidget *parent)
{
    QScrollArea *area = makeScrolling(content, name, parent);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(content->minimumSizeHint().width() + scrollBarWidth);
    return area;
}

} // namespace

Form31::Form31(Program &program, PasswordCost cost, std::chrono::milliseconds step, QWidget *parent)
    : FunctionWindow(program, passwordControl(), parent)
    , m_file(program.folder, cost, &program.gate.memory())
{
    auto *work = new QWidget(this);
    auto *row = new QHBoxLayout(work);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    m_pane = new PasswordPane(m_file, program.gate.memory().attempts, program.clock, step,
                              program.folder.whyReadOnly(), work);
    makeMenus();
    row->addWidget(makePasswordPanel());
    row->addWidget(makeAreasPanel(), 1);
    setWork(work);
    connectPane();
    finishFrame();
    watchFiles({QString::fromLatin1(SettingsKeys::passwordFile.name)});
    Locking::offerAlso(program, activity(),
                       [this] { return m_file.state() != PasswordCheck::State::NotSet; });
    refresh();
    (m_marks[Area::AddressBook]->isEnabled() ? m_marks[Area::AddressBook] : m_pane->firstControl())
        ->setFocus();
}

void Form31::makeMenus()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    options->addAction(standard(Standard::PanelColor));
    const auto saveMarks = [this] { std::ignore = save(); }; // it says itself how it went
    m_saveAction = commands().writing(commands().add(
        options, u"mOSave"_s, u"&Save"_s, saveMarks,
        [this] { return isModified() ? QString() : PasswordMessages::nothingToSave(); }, CommonKeys::save));
    QAction *printing = commands().add(
        options, u"mOPrt"_s, u"&Print"_s, [this] { print(); }, {}, CommonKeys::print);
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
    QAction *help = commands().add(
        addMenu(u"mH"_s, u"&Help"_s), u"mHPage"_s, u"&Password Control"_s,
        [this] { emit program().changes.helpRequested(HelpContext::PasswordControl); }, {}, CommonKeys::help);

    commands().tool(printing, "print"_L1, u"Print"_s);
    commands().separateTools();
    addStandardTool(Standard::PanelColor);
    commands().tool(help, "help"_L1, u"Help"_s);
}

QWidget *Form31::makePasswordPanel()
{
    QWidget *panel = makePanel(u"passwordPanel"_s);
    auto *rows = new QVBoxLayout(panel);
    // The rim of a focused box needs a little room on the left.
    rows->setContentsMargins(padding - 4, 20, padding - scrollBarWidth, 20);
    auto *padded = new QWidget(panel);
    auto *inner = new QVBoxLayout(padded);
    inner->setContentsMargins(4, 0, scrollBarWidth, 0);
    inner->setSpacing(16);
    m_idle = new IdleChoice(program(), padded);
    inner->addWidget(m_pane);
    inner->addWidget(m_idle);
    inner->addStretch();
    rows->addWidget(makeScrolled(padded, u"passwordScroll"_s, panel));
    panel->setFixedWidth(TypeScale::wide(passwordPanelWidth));
    return panel;
}

QWidget *Form31::makeAreasPanel()
{
    QWidget *panel = makePanel(u"areasPanel"_s);
    auto *rows = new QVBoxLayout(panel);
    rows->setContentsMargins(padding, 20, padding - scrollBarWidth, 20);
    rows->setSpacing(12);
    rows->addWidget(makeTitle(u"Protected areas"_s, panel));
    rows->addWidget(makeScrolled(makeMarks(), u"marksScroll"_s, panel), 1);
    findChild<QWidget *>(u"otherMarks"_s)->hide(); // measured before, so that there is room to show them
    rows->addWidget(makeFoot());
    return panel;
}

QWidget *Form31::makeMarks()
{
    auto *marks = new QWidget(this);
    auto *rows = new QVBoxLayout(marks);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(makeQuietLabel(u"What is marked opens only with the password."_s, marks));
    rows->addSpacing(12);
    rows->addWidget(makeHeading(u"This program"_s, marks));
    rows->addSpacing(4);
    rows->addLayout(makeOwnMarks(marks));
    rows->addSpacing(12);
    m_showOthers = named(new QCheckBox(FrameLines::showOtherEditions(), marks), u"showOthers"_s);
    rows->addWidget(m_showOthers);
    QWidget *others = makeOtherMarks(marks);
    rows->addWidget(others);
    connect(m_showOthers, &QCheckBox::toggled, others, &QWidget::setVisible);
    rows->addStretch();
    return marks;
}

/// Each mark with what it does at its right.
QLayout *Form31::makeOwnMarks(QWidget *parent)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(1, 1);
    for (const int area : ownAreas) {
        const int row = grid->rowCount();
        QLabel *level = named(makeQuietLabel({}, parent), u"level_%1"_s.arg(area));
        level->setWordWrap(true);
        m_levels[std::size_t(area)] = level;
        grid->addWidget(makeMark(area, parent), row, 0);
        grid->addWidget(level, row, 1);
    }
    return grid;
}

/// The marks of functions that this edition does not have, which are kept and cannot be changed.
QWidget *Form31::makeOtherMarks(QWidget *parent)
{
    auto *others = named(new QWidget(parent), u"otherMarks"_s);
    auto *rows = new QVBoxLayout(others);
    rows->setContentsMargins(0, 8, 0, 0);
    rows->setSpacing(4);
    QLabel *heading = makeHeading(u"Kept for other editions"_s, others);
    heading->setForegroundRole(ThemeRole::quiet);
    rows->addWidget(heading);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(3, 1);
    for (std::size_t i = 0; i < otherAreas.size(); ++i) {
        QCheckBox *mark = makeMark(otherAreas[i], others);
        setUnavailable(mark, PasswordMessages::markOfOtherEdition());
        grid->addWidget(mark, int(i) % otherRows, int(i) / otherRows);
    }
    rows->addLayout(grid);
    return others;
}

QCheckBox *Form31::makeMark(int area, QWidget *parent)
{
    auto *mark = named(new QCheckBox(GuardedAreas::name(area), parent), u"Check1_%1"_s.arg(area));
    m_marks[std::size_t(area)] = mark;
    connect(mark, &QCheckBox::toggled, this, &Form31::marksChanged);
    connect(mark, &QCheckBox::clicked, this, [this, area](bool isMarked) {
        if (isMarked)
            offerOtherWay(area);
    });
    return mark;
}

QWidget *Form31::makeFoot()
{
    auto *foot = new QWidget(this);
    auto *rows = new QVBoxLayout(foot);
    rows->setContentsMargins(0, 0, scrollBarWidth, 0);
    rows->setSpacing(12);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    rows->addWidget(makeLine(foot));
    rows->addLayout(row);
    m_unsaved = named(makeQuietLabel(FrameLines::unsavedChanges(), foot), u"unsavedWords"_s);
    m_saveButton = commands().button(m_saveAction, u"Command1"_s, u"&Save"_s, foot, ButtonKind::Main);
    QPushButton *leave = commands().button(standard(Standard::Exit), u"Command2"_s, u"E&xit"_s, foot);
    row->addStretch();
    row->addWidget(m_unsaved);
    row->addSpacing(8);
    row->addWidget(m_saveButton);
    row->addWidget(leave);
    return foot;
}

void Form31::connectPane()
{
    // It has the panel to itself: there is no room for both in a low window.
    connect(m_pane, &PasswordPane::formShown, m_idle, &QWidget::setHidden);
    connect(m_pane, &PasswordPane::passwordSet, this, [this] {
        loadMarks();
        refresh();
        m_marks[Area::AddressBook]->setFocus();
        activity().say(PasswordMessages::passwordSet());
    });
    connect(m_pane, &PasswordPane::passwordChanged, this,
            [this] { sayWithWrongAnswers(PasswordMessages::passwordChanged()); });
    connect(m_pane, &PasswordPane::passwordRemoved, this, [this] {
        loadMarks();
        refresh();
        sayWithWrongAnswers(PasswordMessages::passwordRemoved());
    });
    connect(m_pane, &PasswordPane::codeMade, this,
            [this] { sayWithWrongAnswers(PasswordMessages::codeMade()); });
    connect(m_pane, &PasswordPane::printRequested, this, &Form31::printCode);
    connect(m_pane, &PasswordPane::damageFound, this, &Form31::tellDamage);
    connect(m_idle, &IdleChoice::chosen, this, [this] { activity().say(PasswordMessages::marksSaved()); });
    connect(m_idle, &IdleChoice::notSaved, this, [this] { activity().say(FrameLines::settingNotSaved()); });
    connect(&program().changes, &ProgramSignals::guardsChanged, this,
            &Form31::marksChanged); // by a seal, too
    loadMarks();
}

/// With what the password that was given for it says of the wrong answers before.
void Form31::sayWithWrongAnswers(const QString &done)
{
    const QString wrong = m_pane->wrongBefore().words(program().state.dateStyle, clock().today());
    activity().say(wrong.isEmpty() ? done : done + u' ' + wrong + u'.');
}

void Form31::refresh()
{
    const PasswordCheck::State state = m_file.state();
    const bool isSet = state == PasswordCheck::State::Set;
    const bool isDamaged = state == PasswordCheck::State::Damaged;
    const QString reason = isDamaged ? PasswordMessages::damagedSummary()
                           : isSet   ? program().folder.whyReadOnly()
                                     : PasswordMessages::marksNeedPassword();
    for (const int area : ownAreas)
        setUnavailable(m_marks[std::size_t(area)], reason);
    m_idle->setReason(reason);
    m_pane->refresh();
    marksChanged();
}

/// By somebody who came back with the recovery code, for one.
void Form31::filesChanged()
{
    m_pane->forgetOldCode();
    refresh();
}

void Form31::loadMarks()
{
    m_saved = m_file.areas();
    program().state.protectedAreas = m_saved;
    emit program().changes.guardsChanged();
    for (int area = 0; area < ProtectedAreas::count; ++area)
        m_marks[std::size_t(area)]->setChecked(m_saved.isProtected(area));
}

void Form31::marksChanged()
{
    const ProtectedAreas areas = shownAreas();
    const QSet<int> sealed = FunctionFaces::sealedAreas(program());
    for (const int area : ownAreas) {
        const QString way = GuardedAreas::openWay(area, areas);
        const QString level = GuardedAreas::level(area, sealed);
        m_levels[std::size_t(area)]->setText(way.isEmpty() ? level
                                                           : PasswordMessages::stillOpens(level, way));
        m_marks[std::size_t(area)]->setAccessibleDescription(m_levels[std::size_t(area)]->text());
    }
    m_unsaved->setVisible(isModified());
    commands().refresh();
}

void Form31::offerOtherWay(int area)
{
    const int other = GuardedAreas::otherWay(area);
    if (other == Area::None || m_marks[std::size_t(other)]->isChecked())
        return;
    if (ask(PasswordMessages::markOtherWay(GuardedAreas::functionName(area), GuardedAreas::wayOf(other))) ==
        Answer::Yes)
        m_marks[std::size_t(other)]->setChecked(true);
}

bool Form31::isModified() const
{
    return shownAreas() != m_saved;
}

ProtectedAreas Form31::shownAreas() const
{
    ProtectedAreas areas = m_saved;
    for (const int area : ownAreas) {
        const bool isMarked = m_marks[std::size_t(area)]->isChecked();
        if (isMarked != areas.isProtected(area))
            areas.setFlag(area, isMarked ? u"YES"_s : u"NO"_s);
    }
    return areas;
}

bool Form31::save()
{
    if (m_file.state() == PasswordCheck::State::Damaged) {
        tellDamage();
        return false;
    }
    if (!m_file.saveAreas(shownAreas())) {
        activity().say(PasswordMessages::marksNotSaved());
        return false;
    }
    // The button is about to have nothing to do.
    if (m_saveButton->hasFocus())
        m_marks[Area::AddressBook]->setFocus();
    loadMarks();
    marksChanged();
    activity().say(PasswordMessages::marksSaved());
    return true;
}

Message Form31::leaveQuestion() const
{
    return PasswordMessages::saveChanges();
}

void Form31::tellDamage()
{
    ask(PasswordMessages::fileDamaged(program().folder.path()));
    refresh();
}

void Form31::printCode(const QString &code)
{
    showPreview([code](const PageContext &context) { return recoveryPage(code, context); },
                PasswordMessages::recoveryTitle());
}

void Form31::print()
{
    const auto page = [this](const PageContext &context) {
        return passwordPage(m_file.state() == PasswordCheck::State::Set, shownAreas(),
                            FunctionFaces::sealedAreas(program()), context);
    };
    showPreview(page, PasswordMessages::title());
}
