// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/fillpanel.h"

#include "calendar/window/filllines.h"
#include "shell/access/gate.h"
#include "shell/look/icons.h"
#include "shell/look/theme.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lockSize = 16;

/// The part of the row at column `column`.
enum Column { Box, Count, From, Free };

} // namespace

FillPanel::FillPanel(Program &program, QWidget *parent)
    : TaskPanel(u"fillPanel"_s, u"Fill the Calendar"_s, parent)
    , m_program(program)
{
    setContent(makeContent());
    m_fill = addButton(u"fillNow"_s, u"&Fill"_s, ButtonKind::Main);
    setLeaveButton(u"fillClose"_s, u"C&lose"_s);
    connect(m_fill, &QPushButton::clicked, this, &FillPanel::accepted);
}

QWidget *FillPanel::makeContent()
{
    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addWidget(makeHeading(u"What comes into it"_s, content));
    m_list = named(new QWidget(content), u"fillRows"_s);
    m_grid = new QGridLayout(m_list);
    m_grid->setContentsMargins({});
    m_grid->setHorizontalSpacing(24);
    m_grid->setVerticalSpacing(4);
    m_grid->setColumnStretch(Free, 1);
    column->addWidget(m_list);
    m_none = makeQuietLabel(FillLines::nothingToFill(), content);
    column->addWidget(m_none);
    m_guarded = named(makeQuietLabel(FillLines::guardedNote(), content), u"fillGuarded"_s);
    column->addWidget(m_guarded);
    column->addSpacing(12);
    column->addWidget(makeHeading(u"What that changes"_s, content));
    m_summary = named(new QLabel(content), u"fillSummary"_s);
    m_summary->setWordWrap(true);
    column->addWidget(m_summary);
    column->addStretch(1);
    return content;
}

void FillPanel::start(const WallCalendar &calendar, const QList<LineSource> &sources)
{
    m_rows = FillRows::of(m_program, calendar);
    m_rows.tick(sources);
    setWords({});
    showRows();
}

FillPlan FillPanel::plan() const
{
    return m_rows.plan(m_program.clock.today());
}

void FillPanel::showRows()
{
    while (QLayoutItem *item = m_grid->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (int row = 0; row < int(m_rows.rows().size()); ++row)
        addRow(row);
    m_none->setVisible(m_rows.isEmpty());
    const auto boxes = m_list->findChildren<QCheckBox *>(u"fillRow_0"_s);
    setFocusProxy(boxes.isEmpty() ? static_cast<QWidget *>(m_fill) : boxes.last());
    orderTabs();
    showPlan();
}

void FillPanel::addRow(int number)
{
    const FillRow &row = m_rows.rows()[std::size_t(number)];
    auto *box = named(new QCheckBox(row.caption, m_list), u"fillRow_"_s + QString::number(number));
    box->setChecked(row.isTicked);
    const QString count = row.isRead ? FillLines::countOfEntries(row.notes.size()) : QString();
    box->setAccessibleDescription(row.from + (count.isEmpty() ? QString() : QString(u", "_s + count)));
    if (row.isGuarded)
        showLock(*box);
    m_grid->addWidget(box, number, Box);
    box->show(); // it may get the focus at once
    QLabel *counted = makeQuietLabel(count, m_list);
    counted->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_grid->addWidget(counted, number, Count);
    m_grid->addWidget(makeQuietLabel(row.from, m_list), number, From);
    box->setMinimumHeight(30);
    // Not while the box is still about the click.
    connect(
        box, &QCheckBox::clicked, this, [this, number](bool isOn) { tick(number, isOn); },
        Qt::QueuedConnection);
}

/// As it can be seen on the panel, which may be light where the desk is dark.
void FillPanel::showLock(QCheckBox &box) const
{
    box.setIcon(Icons::icon("lock"_L1, Theme::of(palette()).scheme));
    box.setIconSize({lockSize, lockSize});
}

void FillPanel::changeEvent(QEvent *event)
{
    TaskPanel::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || !m_list)
        return;
    for (QCheckBox *box : m_list->findChildren<QCheckBox *>()) {
        if (!box->icon().isNull())
            showLock(*box);
    }
}

/// What is guarded is asked for once; refused, its box stays empty.
void FillPanel::tick(int number, bool isOn)
{
    FillRow &row = m_rows.rows()[std::size_t(number)];
    if (row.isRead) {
        row.isTicked = isOn;
        showPlan();
        return;
    }
    const FunctionFace &face = FunctionFaces::of(*row.function);
    const bool isArea = m_program.state.protectedAreas.isProtected(face.area);
    if (m_program.gate.mayOpen(m_program, isArea ? face.area : face.buttonArea, window()))
        m_rows.open(m_program, std::size_t(number));
    const bool isOpen = m_rows.rows()[std::size_t(number)].isRead;
    emit said(isOpen ? QString() : FillLines::guardRefused(face.titleText()));
    showRows();
    if (auto *box = m_list->findChild<QCheckBox *>(u"fillRow_"_s + QString::number(number)))
        box->setFocus();
}

/// Enter on a row takes what is ticked.
void FillPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        TaskPanel::keyPressEvent(event);
    else if (m_rows.isAnyTicked())
        emit accepted();
}

void FillPanel::showPlan()
{
    m_guarded->setVisible(m_rows.isGuardedTicked());
    m_summary->setText(m_rows.isAnyTicked() ? plan().summary.words() : FillLines::nothingTicked());
    setUnavailable(m_fill, m_rows.isAnyTicked() ? QString() : FillLines::nothingTicked());
}
