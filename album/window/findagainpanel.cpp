// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/findagainpanel.h"

#include "album/model/photoshelf.h"
#include "album/window/foundtable.h"
#include "album/window/keepinglines.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/tablework.h"
#include "shell/program/program.h"

#include <QHeaderView>
#include <QSettings>
#include <QTableView>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString folderKey = u"Windows/PhotoVIEW1/foundIn"_s;
constexpr int knownByWidth = 150;
} // namespace

FindAgainPanel::FindAgainPanel(const Program &program, PhotoShelf &shelf, QWidget *window, QWidget *parent)
    : WalkPanel(u"findAgainPanel"_s, u"Find Again"_s, parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_window(window)
    , m_what(makeQuietLabel({}, this))
    , m_table(new FoundTable(this))
    , m_view(named(new QTableView(this), u"findAgainList"_s))
    , m_choose(nullptr)
    , m_link(nullptr)
{
    m_what->setWordWrap(true);
    m_view->setModel(m_table);
    auto *work = new TableWork(m_what, m_view, u"Pictures that were found again"_s, this);
    m_view->horizontalHeader()->setSectionResizeMode(FoundTable::Was, QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionResizeMode(FoundTable::Is, QHeaderView::Stretch);
    m_view->horizontalHeader()->resizeSection(FoundTable::KnownBy,
                                              boxWidth(u"the same picture"_s, knownByWidth));
    m_view->setTextElideMode(Qt::ElideMiddle);
    setWalkWork(work);
    m_choose = addButton(u"findAgainChoose"_s, u"Choose &Folder..."_s);
    m_link = addButton(u"findAgainLink"_s, KeepingLines::link(0), ButtonKind::Main);
    setLeave(setLeaveButton(u"findAgainClose"_s, u"C&lose"_s));
    setFocusProxy(m_choose);
    connect(m_choose, &QPushButton::clicked, this, &FindAgainPanel::choose);
    connect(m_link, &QPushButton::clicked, this, &FindAgainPanel::link);
    connect(work, &TableWork::entered, this, &FindAgainPanel::link);
    connect(m_table, &FoundTable::tickedChanged, this, &FindAgainPanel::follow);
}

FindAgainPanel::~FindAgainPanel() = default;

void FindAgainPanel::start(FindAgain::Others others)
{
    if (isWalking())
        return;
    m_find = std::make_unique<FindAgain>(m_shelf, std::move(others), this);
    connect(m_find.get(), &FindAgain::progressed, this, &FindAgainPanel::showWalk);
    connect(m_find.get(), &FindAgain::finished, this, &FindAgainPanel::finish);
    m_table->setFound({});
    const int missing = m_find->missingCount();
    m_what->setText(KeepingLines::missing(missing));
    QString why = m_shelf.whyLocked();
    if (why.isEmpty() && missing == 0)
        why = KeepingLines::missing(0);
    setUnavailable(m_choose, why);
}

void FindAgainPanel::choose()
{
    const std::optional<QString> folder = m_program.dialogs.chooseFolder(
        m_window, KeepingLines::whereNow(), m_program.store.value(folderKey).toString());
    if (!folder)
        return;
    m_program.store.setValue(folderKey, *folder);
    look(*folder);
}

void FindAgainPanel::look(const QString &folder)
{
    m_folder = folder;
    m_table->setFound({});
    showWalk(0, 0);
    setUnavailable(m_choose, KeepingLines::looks());
    m_find->start(folder);
}

void FindAgainPanel::finish(bool wasStopped)
{
    endWalk();
    setUnavailable(m_choose, {});
    const auto &found = m_find->found();
    m_table->setFound(found);
    m_what->setText(
        KeepingLines::found(qsizetype(found.size()), m_find->soughtCount(), m_folder, wasStopped));
    if (found.empty()) {
        m_choose->setFocus();
        return;
    }
    m_view->setCurrentIndex(m_table->index(0, 0));
    m_view->setFocus();
}

void FindAgainPanel::follow()
{
    const auto count = qsizetype(m_table->ticked().size());
    m_link->setText(KeepingLines::link(count));
    buttonRow().rearrange();
    setUnavailable(m_link, count > 0 ? QString() : KeepingLines::tickFirst());
}

void FindAgainPanel::link()
{
    const std::vector<FoundPicture> ticked = m_table->ticked();
    if (isWalking() || ticked.empty())
        return;
    if (!m_find->link(ticked)) {
        setWords(KeepingLines::notLinked());
        return;
    }
    leave();
    emit said(KeepingLines::linked(qsizetype(ticked.size())));
}

void FindAgainPanel::stopWalk()
{
    m_find->stop();
}
