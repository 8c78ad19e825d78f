// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/bringbackview.h"

#include "backup/model/openedcopy.h"
#include "backup/model/snapshots.h"
#include "backup/window/differencesmodel.h"
#include "backup/window/placespane.h"
#include "backup/window/snapshotchoice.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/emptypage.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/titleline.h"
#include "shell/core/dates.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastChoice = 160;

/// "Sat, 21 Nov 2026", with the time where it is not the day's first.
QString nameOf(const Snapshot &snapshot, DateStyle style)
{
    const QString date = Dates::statusText(snapshot.made.date(), style);
    const QTime time = snapshot.made.time();
    return time == QTime(0, 0) ? date : date + u", "_s + time.toString(u"hh:mm"_s);
}

/// A version as a text: what the other one does not say stands out.
QString textOf(const QStringList &lines, const QStringList &others)
{
    if (lines.isEmpty())
        return u"Not there"_s;
    QStringList shown;
    for (const QString &line : lines) {
        const QString text = line.toHtmlEscaped();
        const bool isSame = others.isEmpty() || others.contains(line);
        shown.append(isSame ? text : u"<b>"_s + text + u"</b>"_s);
    }
    return shown.join(u"<br>"_s);
}

} // namespace

BringBackView::BringBackView(const BackupDesk &desk, QWidget *parent)
    : TitledView(u"bringBack"_s, parent)
    , m_desk(desk)
    , m_comparison(new Comparison(desk.program, this))
    , m_model(new DifferencesModel(this))
    , m_choice(named(new QComboBox(this), u"snapshots"_s))
    , m_words(named(makeQuietLabel({}, this), u"bringBackWords"_s))
    , m_view(named(new QTableView(this), u"differences"_s))
    , m_differences(new QWidget(this))
    , m_empty(named(new EmptyPage("backup"_L1, {}, {}, this), u"bringBackEmpty"_s))
{
    titleLine().setTitle(u"Bring Back"_s);
    m_choosing = makeChoice();
    addContent(m_choosing);
    m_words->setWordWrap(true);
    addContent(m_words);
    makeTable();
    auto *rows = new QVBoxLayout(m_differences);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    auto *table = new WholeRows(m_view, nullptr, m_differences);
    table->setGivesWay(true);
    rows->addWidget(table, 3);
    rows->addWidget(makeVersions(), 2);
    addContent(m_differences, 1);
    addContent(m_empty, 1);
    m_empty->hide();
    setFocusProxy(m_view);
    connect(m_choice, &QComboBox::activated, this, &BringBackView::openChosen);
    connect(&desk.places, &PlacesPane::chosenChanged, this, &BringBackView::lookForCopies);
    connect(m_comparison, &Comparison::looked, this, &BringBackView::show);
    connect(m_comparison, &Comparison::done, this, &BringBackView::edited);
    connect(m_comparison, &Comparison::said, this, &BringBackView::said);
    connect(m_model, &DifferencesModel::tickedChanged, &desk.commands, &Commands::refresh);
}

BringBackView::~BringBackView() = default;

QWidget *BringBackView::makeChoice()
{
    auto *choice = new QWidget(this);
    auto *row = new QHBoxLayout(choice);
    row->setContentsMargins({});
    row->setSpacing(12);
    row->addWidget(makeFieldLabel(u"The &household as it was on"_s, m_choice, choice));
    row->addWidget(m_choice);
    row->addStretch(1);
    m_choice->setMinimumWidth(TypeScale::wide(leastChoice)); // the names of backups are long
    m_choice->setAccessibleName(u"Snapshot or backup"_s);
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return choice;
}

void BringBackView::makeTable()
{
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setAccessibleName(u"What differs"_s);
    QHeaderView *head = m_view->horizontalHeader();
    head->setSectionResizeMode(QHeaderView::ResizeToContents);
    head->setSectionResizeMode(DifferencesModel::What, QHeaderView::Stretch);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &BringBackView::showVersions);
}

QWidget *BringBackView::makeVersions()
{
    auto *versions = new QWidget(m_differences);
    auto *row = new QHBoxLayout(versions);
    row->setContentsMargins({});
    const auto add = [&](const QString &name, const QString &caption) {
        auto *text = named(new QTextBrowser(versions), name);
        text->setAccessibleName(caption);
        text->setTabChangesFocus(true);
        text->setMinimumHeight(72);
        text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // the table is as important
        QVBoxLayout *column = labelled(caption, text);
        column->setStretchFactor(text, 1);
        row->addLayout(column, 1);
        return text;
    };
    m_there = add(u"versionThere"_s, u"As it was"_s);
    m_here = add(u"versionHere"_s, u"As it is now"_s);
    return versions;
}

void BringBackView::addCommands(QMenu *menu)
{
    Commands &commands = m_desk.commands;
    QAction *bring = commands.writing(commands.add(
        menu, u"mBBring"_s, u"Bring Bac&k What Is Ticked"_s, [this] { bringBack(); },
        [this] { return whyNot(); }));
    QAction *uncover = commands.add(
        menu, u"mBUncover"_s, u"Show What Is &Guarded..."_s, [this] { m_comparison->uncover(); },
        [this] { return m_comparison->whyNotUncovered(); });
    foot().addRight(commands.button(bring, u"bringBackNow"_s, u"Bring Bac&k"_s, &foot(), ButtonKind::Main));
    QAction *open = commands.add(
        menu, u"mBOpen"_s, u"O&pen Backup..."_s, [this] { emit openWanted(*chosen()->source.set); },
        [this] { return isToBeOpened() ? QString() : u"What is chosen here is open"_s; });
    m_open = commands.button(open, u"openBackup"_s, u"O&pen Backup..."_s, m_empty, ButtonKind::Main);
    m_empty->addButton(m_open);
    foot().addLeft(commands.button(uncover, u"uncover"_s, u"Show What Is &Guarded..."_s, &foot()));
}

std::vector<BringBackView::Choice> BringBackView::choices() const
{
    const DateStyle style = m_desk.program.state.dateStyle;
    std::vector<Choice> choices;
    for (const Snapshot &snapshot :
         Snapshots::in(SnapshotChoice::read(m_desk.program.store, m_desk.program.folder).folder))
        choices.push_back({u"Snapshot of "_s + nameOf(snapshot, style), {.snapshot = snapshot.path}});
    const auto isThere = [&choices](const QString &title) {
        return std::ranges::any_of(choices, [&title](const Choice &choice) { return choice.title == title; });
    };
    const std::optional<BackupPlaceRow> place = m_desk.places.chosen();
    if (place && place->last)
        choices.push_back(choiceOf(*place->last, place->drive.name));
    if (m_opened && !isThere(m_opened->title)) // its last disk has been taken out
        choices.push_back(*m_opened);
    return choices;
}

BringBackView::Choice BringBackView::choiceOf(const BackupSet &set, const QString &place) const
{
    const QDateTime begun = set.begun().toLocalTime();
    return {u"Backup on "_s + place + u", "_s +
                Dates::statusText(begun.date(), m_desk.program.state.dateStyle) + u", "_s +
                begun.toString(u"hh:mm"_s),
            {.set = set}};
}

bool BringBackView::Choice::isAtOnce() const
{
    return !source.set || OpenedCopy::isAtOnce(*source.set);
}

const BringBackView::Choice *BringBackView::chosen() const
{
    const int index = m_choice->currentIndex();
    return index >= 0 ? &m_choices[std::size_t(index)] : nullptr;
}

/// Nothing is asked before the user says so: what is chosen may be passed by with the arrow keys.
bool BringBackView::isToBeOpened() const
{
    return chosen() && !chosen()->isAtOnce() && !m_isOpen;
}

/// What is looked into stays as long as it is there; a backup that asked for something is there while it is
/// open.
void BringBackView::lookForCopies()
{
    std::vector<Choice> choices = this->choices();
    const auto isSame = [](const Choice &one, const Choice &other) {
        return one.title == other.title && one.source.snapshot == other.source.snapshot;
    };
    if (!std::ranges::equal(choices, m_choices, isSame)) {
        const QString chosen = m_choice->currentText();
        m_choices = std::move(choices);
        m_choice->clear();
        for (const Choice &choice : m_choices)
            m_choice->addItem(choice.title);
        m_choice->setCurrentIndex(std::max(0, m_choice->findText(chosen)));
        m_isOpen = m_isOpen && m_choice->findText(chosen) >= 0;
    }
    if (!m_isOpen)
        follow(false);
    showWords();
}

void BringBackView::look()
{
    const bool wasOpen = m_isOpen;
    lookForCopies();
    if (wasOpen && m_isOpen)
        m_comparison->look();
}

/// The first snapshot is looked into when the side is seen, not before.
void BringBackView::refresh()
{
    if (!m_isOpen)
        openChosen();
}

void BringBackView::openChosen()
{
    const Choice *choice = chosen();
    if (choice && m_opened && m_isOpen && choice->title == m_opened->title)
        return;
    m_isOpen = choice && choice->isAtOnce();
    m_comparison->open(m_isOpen ? choice->source : Comparison::Source());
    if (std::exchange(m_opened, std::nullopt))
        lookForCopies();
}

void BringBackView::showOpened(const BackupSet &set, const std::shared_ptr<ComparedCopy> &copy)
{
    const auto isIt = [&set](const Choice &choice) { return choice.source.set == set; };
    const auto listed = std::ranges::find_if(m_choices, isIt);
    m_opened = listed == m_choices.end() ? choiceOf(set, set.record->drive) : *listed;
    lookForCopies();
    m_choice->setCurrentIndex(m_choice->findText(m_opened->title));
    m_isOpen = true;
    m_comparison->show(copy);
}

/// Why a backup on the drive is not among what can be looked into.
QString BringBackView::whyNoSet() const
{
    const std::optional<BackupPlaceRow> place = m_desk.places.chosen();
    if (!place || place->last || place->disk == 0)
        return {};
    return u"On %1 is disk %2 of a backup: put in its last disk to compare with it"_s.arg(place->drive.name)
        .arg(place->disk);
}

/// What opening the chosen set asks for.
QString BringBackView::howOpened() const
{
    const BackupSet &set = *chosen()->source.set;
    QStringList how;
    if (set.isSealed())
        how.append(u"It is sealed: opening it asks for its password"_s);
    if (set.record->disks > 1)
        how.append(
            u"It lies on %1 disks: those that are needed are asked for in turn"_s.arg(set.record->disks));
    return how.join(u". "_s);
}

/// Where there is nothing to compare, or nothing differs, that is said in the place of the panes.
void BringBackView::showWords()
{
    const bool isBusy = m_comparison->isBusy();
    const bool isNothing = !isBusy && m_model->rowCount() == 0;
    const QString notes = this->notes().join(u". "_s);
    m_words->setText(isBusy ? u"Looking at what differs..."_s : notes);
    m_words->setVisible(!isNothing && !m_words->text().isEmpty());
    m_empty->setWords(sentence(), notes);
    if (isNothing && m_view->hasFocus())
        m_choice->setFocus();
    m_choosing->setVisible(!m_choices.empty());
    m_differences->setVisible(!isNothing);
    m_empty->setVisible(isNothing);
    if (m_open)
        m_open->setVisible(isToBeOpened());
    m_desk.commands.refresh();
}

/// Why no difference is shown.
QString BringBackView::sentence() const
{
    if (m_choices.empty())
        return u"There is no snapshot yet"_s;
    if (isToBeOpened())
        return u"This backup has not been opened yet"_s;
    if (!m_comparison->refusal().isEmpty())
        return u"Not all of it could be compared"_s;
    return m_comparison->guarded().isEmpty() ? u"Nothing has changed since"_s
                                             : u"Nothing else has changed since"_s;
}

QStringList BringBackView::notes() const
{
    QStringList notes{m_comparison->refusal(), isToBeOpened() ? howOpened() : QString(), whyNoSet()};
    if (m_choices.empty())
        notes.prepend(u"One is made on the first start of each day after something was changed"_s);
    if (!m_comparison->guarded().isEmpty())
        notes.prepend(u"Guarded, and not shown: "_s + m_comparison->guarded().join(u", "_s));
    notes.removeAll(QString());
    return notes;
}

void BringBackView::show()
{
    m_model->setRows(m_comparison->isBusy() ? std::vector<Comparison::Row>() : m_comparison->rows());
    showWords();
    if (m_model->rowCount() > 0)
        m_view->setCurrentIndex(m_model->index(0, 0));
    showVersions();
}

void BringBackView::showVersions()
{
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid()) {
        m_there->clear();
        m_here->clear();
        return;
    }
    const Comparison::Versions versions = m_comparison->versions(m_model->row(current.row()));
    m_there->setHtml(textOf(versions.there, versions.here));
    m_here->setHtml(textOf(versions.here, versions.there));
}

QString BringBackView::whyNot() const
{
    if (m_comparison->isBusy())
        return u"Looking at what differs..."_s;
    return m_model->ticked().empty() ? u"Tick what is to come back first"_s : QString();
}

/// What was typed in a window and not saved is settled first: it would be lost to what comes back, or it to
/// that.
void BringBackView::bringBack()
{
    const QList<QWidget *> windows = m_desk.program.functions.openWindows();
    const bool areReady = std::ranges::all_of(windows, [](QWidget *each) {
        auto *window = qobject_cast<FunctionWindow *>(each);
        return !window || window->mayBackUp();
    });
    if (areReady)
        m_comparison->bringBack(m_model->ticked());
}
